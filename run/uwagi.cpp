#include "run/uwagi.h"

#include <utility>

#include <QStringList>

#include "exchange/spostrzezenie.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct OpisUwagi {
  RodzajUwagi rodzaj;
  std::u16string_view nazwa;  // in the result
  std::u16string_view tekst;  // %1 and %2 are filled in
};

// In the order in which they are shown.
constexpr OpisUwagi kOpisy[] = {
    {RodzajUwagi::WiecejPol, u"wiecej-pol",
     u"Za ostatnim polem opisanym w strukturze pliku jest dalszy tekst, którego nie odczytano; sprawdź "
     u"separator i listę pól, bo wartości mogły trafić do niewłaściwych pól"},
    {RodzajUwagi::NieznanyVat, u"nieznany-vat",
     u"Tekst „%1” nie jest opisem żadnej stawki VAT; przyjęto stawkę %2"},
    {RodzajUwagi::StawkaBezOpisu, u"nieznany-vat",
     u"Stawka VAT %1 jest w bazie, a w strukturze pliku nie ma jej opisu; towary z tą stawką w pliku dostają "
     u"stawkę %2"},
    {RodzajUwagi::VatDomyslny, u"vat-domyslny",
     u"Plik nie zawiera stawki VAT; nowe towary dostają stawkę %1"},
    {RodzajUwagi::Cudzyslow, u"cudzyslow",
     u"Wartość pola „%1” odczytano razem z kwalifikatorem tekstu (cudzysłowem albo apostrofem)"},
    {RodzajUwagi::StronaKodowa, u"strona-kodowa",
     u"Większość znaków spoza ASCII nie jest polskimi literami na wybranej stronie kodowej %1, a jest nimi "
     u"na stronie %2; zmień stronę kodową w strukturze pliku"},
    {RodzajUwagi::DbaseLiczba, u"dbase-liczba",
     u"Liczba rekordów według nagłówka tabeli dBase: %1, odczytano: %2; gdy brakuje ostatniego, tabela nie "
     u"kończy się bajtem 1A: zapisz ją ponownie w programie, z którego pochodzi, albo dopisz ten bajt"},
    {RodzajUwagi::DbaseLogiczna, u"dbase-typ",
     u"Kolumna %1 jest logiczna (T, F, Y, N), a w strukturze pliku pole „%2” ma inne wartości"},
    {RodzajUwagi::DbaseData, u"dbase-typ",
     u"Kolumna %1 jest datą (rok, miesiąc, dzień bez kropek), której pole „%2” nie odczyta"},
    {RodzajUwagi::Data, u"data",
     u"Pole „Termin ważności karty” nie zawiera daty w postaci dzień.miesiąc.rok; datę pominięto"},
    {RodzajUwagi::ZapisWMiejscu, u"zapis-w-miejscu",
     u"Plik %1 %2, więc eksport pisał wprost do niego: zabity w połowie zostawiłby niepełny plik"},
};

constexpr bool WKolejnosci() {
  int numer = 0;
  for (const OpisUwagi& opis : kOpisy)
    if (static_cast<int>(opis.rodzaj) != numer++) return false;
  return numer == static_cast<int>(RodzajUwagi::Ilosc);
}
static_assert(WKolejnosci());

const OpisUwagi& Opis(RodzajUwagi rodzaj) {
  return kOpisy[static_cast<std::size_t>(rodzaj)];
}

// Stands for the texts beyond the first ones of a kind.
const QString kPozostale = u"…"_s;

}  // namespace

size_t qHash(const TrescUwagi& tresc, size_t ziarno) {
  return qHashMulti(ziarno, static_cast<int>(tresc.rodzaj), tresc.pierwszy, tresc.drugi);
}

QString TrescUwagi::Tekst() const {
  const QString wzor = QStringView(Opis(rodzaj).tekst).toString();
  if (wzor.contains(u"%2")) return wzor.arg(pierwszy, drugi);
  return wzor.contains(u"%1") ? wzor.arg(pierwszy) : wzor;
}

TrescUwagi UwagaZeSpostrzezenia(const Spostrzezenie& s, RodzajRekordu rodzaj) {
  using R = Spostrzezenie::Rodzaj;
  const auto pole = [&] {
    return QStringView(KatalogPol(rodzaj)[static_cast<std::size_t>(s.pole)].nazwa).toString();
  };
  switch (s.rodzaj) {
    case R::WiecejPol:
      break;
    case R::NieznanyVat:
      return {RodzajUwagi::NieznanyVat, s.szczegol, u"22 %"_s};
    case R::Cudzyslow:
      return {RodzajUwagi::Cudzyslow, pole()};
    case R::StronaKodowa:
      return {RodzajUwagi::StronaKodowa, s.szczegol, s.drugi};
    case R::DbaseLiczba:
      return {RodzajUwagi::DbaseLiczba, s.szczegol, s.drugi};
    case R::DbaseLogiczna:
      return {RodzajUwagi::DbaseLogiczna, s.szczegol, pole()};
    case R::DbaseData:
      return {RodzajUwagi::DbaseData, s.szczegol, pole()};
  }
  return {RodzajUwagi::WiecejPol};
}

QString Uwaga::NazwaRodzaju() const {
  return QStringView(Opis(rodzaj).nazwa).toString();
}

QString Uwaga::NumeryRekordow() const {
  QStringList numery;
  for (const int numer : rekordy) numery << QString::number(numer);
  if (!numery.isEmpty() && ile > numery.size()) numery << u"…"_s;
  return numery.join(u", "_s);
}

QString Uwaga::Linia() const {
  if (ile == 0) return tekst + u'.';
  const QString licznie = tekst + u". Rekordów: "_s + QString::number(ile);
  return rekordy.empty() ? licznie + u'.' : licznie + u" ("_s + NumeryRekordow() + u")."_s;
}

Uwagi::Wpis& Uwagi::Znajdz(const TrescUwagi& tresc) {
  if (const auto znany = m_miejsca.constFind(tresc); znany != m_miejsca.cend()) return m_wpisy[*znany];
  int& tekstow = m_tekstow[static_cast<std::size_t>(tresc.rodzaj)];
  const TrescUwagi pozostale{tresc.rodzaj, kPozostale, tresc.drugi};
  if (tekstow >= kNajwiecejTekstow && tresc != pozostale) return Znajdz(pozostale);
  ++tekstow;
  m_miejsca.insert(tresc, m_wpisy.size());
  return m_wpisy.emplace_back(Wpis{.tresc = tresc});
}

void Uwagi::Zglos(const TrescUwagi& tresc, int rekord) {
  Wpis& wpis = Znajdz(tresc);
  if (wpis.ostatni == rekord) return;
  wpis.ostatni = rekord;
  ++wpis.wPaczce;
  if (wpis.rekordy.size() < kNajwiecejRekordow) wpis.rekordy.push_back(rekord);
}

void Uwagi::ZglosOCalosci(const TrescUwagi& tresc, long long ile) {
  Wpis& wpis = Znajdz(tresc);
  wpis.oCalosci = true;
  wpis.ile += ile;
}

void Uwagi::Zatwierdz() {
  for (Wpis& wpis : m_wpisy) {
    wpis.ile += std::exchange(wpis.wPaczce, 0);
    wpis.zatwierdzonych = wpis.rekordy.size();
  }
}

void Uwagi::Porzuc() {
  for (Wpis& wpis : m_wpisy) {
    wpis.wPaczce = 0;
    wpis.ostatni = 0;
    wpis.rekordy.resize(wpis.zatwierdzonych);
  }
}

std::vector<Uwaga> Uwagi::Lista() const {
  std::vector<Uwaga> lista;
  for (const OpisUwagi& opis : kOpisy)
    for (const Wpis& wpis : m_wpisy)
      if (wpis.tresc.rodzaj == opis.rodzaj && (wpis.oCalosci || wpis.ile > 0))
        lista.push_back({wpis.tresc.rodzaj,
                         wpis.tresc.Tekst(),
                         wpis.ile,
                         {wpis.rekordy.begin(),
                          wpis.rekordy.begin() + static_cast<std::ptrdiff_t>(wpis.zatwierdzonych)}});
  return lista;
}
