#include "platform/baza/blad_bazy.h"

#include <array>

namespace {
struct Tytul {
  RodzajBleduBazy rodzaj;
  const char16_t* tytul;
};
constexpr std::array<Tytul, 15> kTytuly{{
    {RodzajBleduBazy::Polaczenie, u"Brak połączenia z bazą"},
    {RodzajBleduBazy::Logowanie, u"Serwer bazy danych odrzucił użytkownika lub hasło"},
    {RodzajBleduBazy::Sterownik, u"Brak sterownika ODBC lub źródła danych"},
    {RodzajBleduBazy::PelnyDysk, u"Brak miejsca na dysku bazy danych"},
    {RodzajBleduBazy::TylkoOdczyt, u"Baza danych jest tylko do odczytu"},
    {RodzajBleduBazy::Zniknela, u"Plik bazy danych zniknął, został podmieniony albo skrócony"},
    {RodzajBleduBazy::Nietrwaly, u"Dysk nie potwierdził zapisu bazy danych"},
    {RodzajBleduBazy::Wejscie, u"Błąd odczytu lub zapisu pliku bazy danych"},
    {RodzajBleduBazy::Blokada, u"Baza danych jest zablokowana przez inny program"},
    {RodzajBleduBazy::Czas, u"Przekroczono czas oczekiwania na bazę danych"},
    {RodzajBleduBazy::Kolizja, u"Zmiany kolidują ze zmianami innego programu"},
    {RodzajBleduBazy::Uprawnienia, u"Brak uprawnień do bazy danych"},
    {RodzajBleduBazy::Grupa, u"Baza danych odrzuciła zapisywane wartości"},
    {RodzajBleduBazy::Ograniczenie, u"Baza danych odrzuciła zapisywane wartości"},
    {RodzajBleduBazy::Inny, u"Błąd bazy danych"},
}};

QString TytulBledu(RodzajBleduBazy rodzaj) {
  for (const Tytul& t : kTytuly)
    if (t.rodzaj == rodzaj) return QString::fromUtf16(t.tytul);
  return {};
}
}  // namespace

EBladBazy::EBladBazy(RodzajBleduBazy rodzaj, QString tresc, const QString& operacja)
    : EVLTExceptionBase(static_cast<int>(rodzaj)), m_rodzaj(rodzaj) {
  if (!operacja.isEmpty()) tresc += QStringLiteral("\r\nOperacja: ") + operacja;
  UstawTeksty(TytulBledu(rodzaj), std::move(tresc));
}

std::unique_ptr<EMException> EBladBazy::Clone() const {
  return std::make_unique<EBladBazy>(m_rodzaj, QString(), QString());
}

void EBladBazy::Assign(const EMException& zrodlo) {
  EMException::Assign(zrodlo);
  if (const auto* taki = dynamic_cast<const EBladBazy*>(&zrodlo)) m_rodzaj = taki->m_rodzaj;
}
