#include "platform/baza/blad_bazy.h"

#include <array>

#include <sqlite3.h>

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

// The first line whose beginning fits.
struct Przyczyna {
  std::string_view stan;
  RodzajBleduBazy rodzaj;
  const char16_t* powod = u"";
};
constexpr Przyczyna kPrzyczyny[] = {
    {"08", RodzajBleduBazy::Polaczenie},
    {"57P", RodzajBleduBazy::Polaczenie, u"Administrator zatrzymał serwer albo zakończył połączenie."},
    {"53300", RodzajBleduBazy::Polaczenie, u"Serwer nie przyjmuje więcej połączeń; spróbować później."},
    {"HYT01", RodzajBleduBazy::Polaczenie, u"Serwer nie odpowiada."},
    {"28", RodzajBleduBazy::Logowanie},
    {"IM", RodzajBleduBazy::Sterownik},
    {"53100", RodzajBleduBazy::PelnyDysk},
    {"58030", RodzajBleduBazy::Wejscie},
    {"XX001", RodzajBleduBazy::Wejscie, u"Plik bazy danych jest uszkodzony albo nie jest bazą danych."},
    {"XX002", RodzajBleduBazy::Wejscie, u"Indeks bazy danych jest uszkodzony."},
    {"25006", RodzajBleduBazy::TylkoOdczyt},
    {"55P03", RodzajBleduBazy::Blokada},
    {"57014", RodzajBleduBazy::Czas},
    {"HYT00", RodzajBleduBazy::Czas},
    {"40", RodzajBleduBazy::Kolizja},
    {"42501", RodzajBleduBazy::Uprawnienia},
    {"22001", RodzajBleduBazy::Ograniczenie, u"Tekst jest dłuższy niż kolumna bazy."},
    {"22003", RodzajBleduBazy::Ograniczenie, u"Liczba nie mieści się w kolumnie bazy."},
    {"22021", RodzajBleduBazy::Ograniczenie, u"Baza nie przyjmuje któregoś ze znaków tekstu."},
    {"22P05", RodzajBleduBazy::Ograniczenie, u"Baza nie przyjmuje któregoś ze znaków tekstu."},
    {"22", RodzajBleduBazy::Ograniczenie},
    {"23502", RodzajBleduBazy::Ograniczenie, u"Brak wartości, która jest konieczna."},
    {"23503", RodzajBleduBazy::Ograniczenie, u"Zapis wskazuje na wiersz, którego nie ma w bazie."},
    {"23505", RodzajBleduBazy::Ograniczenie, u"Taki wiersz już jest w bazie."},
    {"23", RodzajBleduBazy::Ograniczenie},
    {"54", RodzajBleduBazy::Ograniczenie},
    {"25P02", RodzajBleduBazy::Inny, u"Wcześniejszy błąd unieważnił transakcję."},
    {"3F000", RodzajBleduBazy::Inny, u"Brak schematu bazy; sprawdzić ją poleceniem sprawdz-baze."},
    {"42P01", RodzajBleduBazy::Inny, u"W bazie brakuje tabeli; sprawdzić ją poleceniem sprawdz-baze."},
    {"42S02", RodzajBleduBazy::Inny, u"W bazie brakuje tabeli; sprawdzić ją poleceniem sprawdz-baze."},
    {"42", RodzajBleduBazy::Inny,
     u"Baza jest zbudowana inaczej, niż oczekuje program; sprawdzić ją poleceniem sprawdz-baze."},
};

struct KodSqlite {
  int kod;
  std::string_view stan;
};
constexpr KodSqlite kSqlite[] = {
    {SQLITE_CONSTRAINT_UNIQUE, "23505"},
    {SQLITE_CONSTRAINT_PRIMARYKEY, "23505"},
    {SQLITE_CONSTRAINT_FOREIGNKEY, "23503"},
    {SQLITE_CONSTRAINT_NOTNULL, "23502"},
    {SQLITE_FULL, "53100"},
    {SQLITE_READONLY, "25006"},
    {SQLITE_IOERR, "58030"},
    {SQLITE_CORRUPT, "XX001"},
    {SQLITE_NOTADB, "XX001"},
    {SQLITE_CANTOPEN, "08001"},
    {SQLITE_BUSY, "55P03"},
    {SQLITE_LOCKED, "55P03"},
    {SQLITE_CONSTRAINT, "23000"},
    {SQLITE_TOOBIG, "54000"},
    {SQLITE_MISMATCH, "22000"},
    {SQLITE_RANGE, "22000"},
    {SQLITE_ERROR, "42000"},
};

}  // namespace

PrzyczynaBledu PrzyczynaStanu(std::string_view stan) {
  for (const Przyczyna& p : kPrzyczyny)
    if (stan.starts_with(p.stan)) return {p.rodzaj, QString::fromUtf16(p.powod), {}};
  return {};
}

std::string_view StanSqlite(int kod) {
  for (const int szukany : {kod, kod & 0xff})
    for (const KodSqlite& k : kSqlite)
      if (k.kod == szukany) return k.stan;
  return {};
}

EBladBazy::EBladBazy(RodzajBleduBazy rodzaj, QString tresc, const QString& szczegoly)
    : EVLTExceptionBase(static_cast<int>(rodzaj)), m_rodzaj(rodzaj) {
  if (!szczegoly.isEmpty()) {
    if (!tresc.isEmpty()) tresc += QStringLiteral("\r\n");
    tresc += kSzczegoly.toString() + szczegoly;
  }
  UstawTeksty(TytulBledu(rodzaj), std::move(tresc));
}

std::unique_ptr<EMException> EBladBazy::Clone() const {
  return std::make_unique<EBladBazy>(m_rodzaj, QString(), QString());
}

void EBladBazy::Assign(const EMException& zrodlo) {
  EMException::Assign(zrodlo);
  if (const auto* taki = dynamic_cast<const EBladBazy*>(&zrodlo)) m_rodzaj = taki->m_rodzaj;
}
