#include "tests/obieg/losowa_baza.h"

#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kKontrahentow = 48;
constexpr int kTowarow = 120;
constexpr int kAsortymentow = 5;
constexpr int kKategorii = 4;
constexpr int kWazony = 27;        // prefix of weighted codes, with a constant part of four digits
constexpr int kWazonyKrotki = 28;  // the same without one

constexpr QStringView kPolskie = u"ĄĆĘŁŃÓŚŹŻąćęłńóśźż";
constexpr QStringView kWKodach = u"abcXYZ0123456789'\"%&,.\\/*_-+=<>[]{}@!$^~`#§€„”–‰äüßčřž";
const QString kWBlokach = kWKodach.toString() + u"?  "_s;
const QString kWNazwach = kWBlokach + u"|;():"_s;
constexpr QStringView kWSkrotach = u"abcXYZ019.,-/%&+";

const int kStawki[] = {2300, 800, 500, 0, -1, 700, 2200, 1234, 10000};

}  // namespace

void LosowaBaza::Wstaw(const char* tabela, const Wiersz& wiersz) {
  std::string kolumny, wartosci;
  for (const Parametr& pole : wiersz) {
    const std::string przecinek = kolumny.empty() ? "" : ", ";
    kolumny += przecinek + pole.nazwa;
    wartosci += przecinek + ':' + pole.nazwa;
  }
  m_baza.ExecSQL(std::string("insert into ") + tabela + " (" + kolumny + ") values (" + wartosci + ")",
                 wiersz);
}

// Prices, margins, net amounts of gross ones (more decimals than a file has) and large numbers.
double LosowaBaza::Kwota() {
  constexpr double kWybrane[] = {0, 9.99, 0.123, 0.1 + 0.2, 1e12, -0.01};
  switch (Liczba(0, 3)) {
    case 0:
      return kWybrane[Liczba(0, 5)];
    case 1:
      return Liczba(0, 999999) / 100.0;
    case 2:
      return Liczba(1, 99999) / 123.0;
    default:
      return Liczba(0, 9999999) / 1e6;
  }
}

QString LosowaBaza::Znaki(QStringView alfabet, int od, int do_) {
  QString tekst;
  for (int ile = Liczba(od, do_); ile > 0; --ile) {
    const QStringView skad = Co(3) ? kPolskie : alfabet;
    tekst += skad[Liczba(0, static_cast<int>(skad.size()) - 1)];
  }
  return tekst;
}

QString LosowaBaza::Nazwa() {
  const QString tekst = Znaki(kWNazwach, 0, 40).trimmed();
  return tekst.isEmpty() || tekst.startsWith(u'#') || tekst.startsWith(u"//"_s) ? u"ź"_s + tekst : tekst;
}

QString LosowaBaza::NazwaWBloku(int numer) {
  return Znaki(kWBlokach, 1, 12).trimmed() + QString::number(numer);
}

QString LosowaBaza::Skrot() {
  return Znaki(kWSkrotach, 1, 6) + u' ' + Znaki(kWSkrotach, 1, 6) + QString::number(++m_numer);
}

Wartosc LosowaBaza::Tekst() {
  switch (Liczba(0, 5)) {
    case 0:
      return Wartosc(TypPola::Tekst);
    case 1:
      return QString();
    case 2:
      return u' ' + Nazwa() + u"  "_s;
    default:
      return Nazwa();
  }
}

// All lengths and kinds; the number makes it the only one. Additional codes are never weighted.
QString LosowaBaza::Kod(int numer, bool dodatkowy) {
  const auto cyfry = [numer](int ile) { return u"%1"_s.arg(numer, ile, 10, QChar(u'0')); };
  switch (numer % 10) {
    case 0:
      return dodatkowy ? u"59"_s + cyfry(11) : QString::number(kWazony) + cyfry(4) + u"???????"_s;
    case 1:
      return dodatkowy ? u"5"_s + cyfry(7) : QString::number(kWazony) + cyfry(4) + u"1234567"_s;
    case 2:
      return cyfry(13);
    case 3:
      return cyfry(8);
    case 4:
      return u"20"_s + cyfry(11);
    case 5:
      return QString::number(numer);
    case 6:
      return u"4"_s + cyfry(11);
    case 7:
      return cyfry(20);
    default:
      return u'K' + Znaki(kWKodach, 1, 12) + QString::number(numer);
  }
}

QString LosowaBaza::Nip(int numer) {
  const QString cyfry = u"999%1"_s.arg(numer * 7 + 1, 7, 10, QChar(u'0'));
  switch (Liczba(0, 3)) {
    case 0:
      return cyfry.left(3) + u'-' + cyfry.mid(3, 3) + u'-' + cyfry.mid(6, 2) + u'-' + cyfry.mid(8);
    case 1:
      return u"PL "_s + cyfry;
    default:
      return cyfry;
  }
}

void LosowaBaza::Slowniki() {
  for (int i = 1; i <= 2; ++i) Wstaw("Magazyn", {{"Nazwa", Nazwa()}});
  for (int i = 1; i <= kAsortymentow; ++i) {
    Wstaw("Asort", {{"Nazwa", Nazwa() + QString::number(i)}});
    Wstaw("JM", {{"Nazwa", Nazwa() + QString::number(i)}, {"Precyzja", i % 4}});
  }
  m_baza.ExecSQL("delete from Vat");
  for (const int stawka : kStawki) Wstaw("Vat", {{"Stawka", stawka}});
  Wstaw("KodWazony", {{"Nazwa", u"w"_s}, {"Prefix", kWazony}, {"CzescStala", 4}, {"DodKontrola", 1}});
  Wstaw("KodWazony", {{"Nazwa", u"k"_s}, {"Prefix", kWazonyKrotki}, {"CzescStala", 0}});
  // Of the parameters 1 and 2 are lists, 3 and 4 ranges. The first category has none, the last one all of
  // them.
  for (int par = 1; par <= 4; ++par) {
    const int typ = par > 2;
    Wstaw("Parametr", {{"Nazwa", NazwaWBloku(par)}, {"Typ", typ}, {"Od", -9 * typ}, {"Do", 99 * typ}});
    if (typ == 0)
      for (int i = 0; i < 3; ++i)
        Wstaw("ParWartosc", {{"ParId", par}, {"Kolejnosc", i}, {"Wartosc", NazwaWBloku(i)}});
  }
  for (int kat = 1; kat <= kKategorii; ++kat) Wstaw("Kategoria", {{"Nazwa", NazwaWBloku(kat)}});
  const std::pair<int, int> parametryKategorii[] = {{2, 1}, {3, 3}, {4, 4}, {4, 2}, {4, 1}, {4, 3}};
  for (const auto& [kat, par] : parametryKategorii)
    Wstaw("KatParam", {{"KatId", kat}, {"ParId", par}, {"Kolejnosc", ++m_numer}});
}

void LosowaBaza::Kontrahent(int numer) {
  const int id = 3 * numer + 1;
  const bool sklep = numer & 1, bezNipu = numer % 7 == 0;
  const auto flaga = [&](int bit) { return numer >> bit & 1; };
  Wiersz wiersz{{"KontrId", id},
                {"Nazwa", Nazwa()},
                {"NIP", bezNipu ? QString() : Nip(numer)},
                {"Staly", Liczba(0, 1)},
                {"Dostawca", flaga(1)},
                {"Odbiorca", flaga(2)},
                {"Producent", flaga(3)},
                {"ZakPracChron", Liczba(0, 1)},
                {"KartaAktywna", Liczba(0, 1)},
                {"Aktywny", Liczba(0, 1)},
                {"AkwId", Liczba(0, 3)},
                {"Zmiana", u"2020-02-03 04:05:06"_s}};
  if (Co(2))
    wiersz.push_back({"TermWaznKarty", u"20%1-0%2-1%2 00:00:00"_s.arg(Liczba(10, 99)).arg(Liczba(1, 9))});
  for (const char* pole : {"Skrot", "Ulica", "Kod", "Miasto", "Telefon", "Fax", "EMail", "Bank", "Konto",
                           "NrAnalityki", "KodKontr", "NaPrzelewie1", "NaPrzelewie2", "KodKarty", "Rezerwa1"})
    wiersz.push_back({pole, Tekst()});
  for (const char* pole : {"RabatDost", "RabatOdb", "MaxKredyt"}) wiersz.push_back({pole, Kwota()});
  for (const char* pole : {"FormaPlatDost", "TermPlatDost", "CzasRealZam", "FormaPlatOdb", "TermPlatOdb",
                           "MaxPoTermPlat", "PoziomRabatu"})
    wiersz.push_back({pole, Liczba(-1, 60)});
  Wstaw("Kontrahent", wiersz);
  if (sklep)
    Wstaw(
        "Sklep",
        {{"SklepId", id}, {"NrSklepu", 100 - numer}, {"NrSeryjny", Tekst()}, {"PelnyImport", Liczba(0, 1)}});
  // A contractor of no type is not sent.
  if (numer % 16 == 0) return;
  m_kontrahenci.push_back(id);
  m_zawartosc.kontrahentow++;
  m_zawartosc.bezNipu += bezNipu;
}

// In no order of contractors, some of them twice.
void LosowaBaza::Osoby() {
  for (int i = 0; i < kKontrahentow; ++i) {
    const int id = m_kontrahenci[static_cast<std::size_t>(Liczba(0, 15))];
    const QString osoba = NazwaWBloku(i);
    for (int ile = Liczba(1, 2); ile > 0; --ile) Wstaw("Osoba", {{"KontrId", id}, {"Nazwisko", osoba}});
  }
}

void LosowaBaza::Towar(int numer) {
  const int towId = 2 * numer + 1;
  const int katId = numer % (kKategorii + 1);
  const QString kod = numer == 7 ? u"%1???????????"_s.arg(kWazonyKrotki) : Kod(numer, false);
  static const QString powtorzona = Nazwa();
  Wiersz wiersz{{"TowId", towId},
                {"Kod", kod},
                {"Nazwa", Co(10) ? powtorzona : Nazwa()},
                {"Skrot", Skrot()},
                {"TypTowaru", kod.startsWith(QString::number(kWazony)) || kod.contains(u'?') ? 0 : numer % 3},
                {"AsId", Liczba(1, kAsortymentow)},
                {"JMId", Liczba(1, kAsortymentow)},
                {"Stawka", kStawki[Liczba(0, static_cast<int>(std::size(kStawki)) - 1)]},
                {"CenaOtwarta", Liczba(0, 1)},
                {"Aktywny", numer % 5 == 4 ? 0 : 1},
                {"TermWazn", Liczba(0, 400)},
                {"PrefPLU", Liczba(0, 9999)},
                {"CKU", Co(9) ? QString::number(numer) : QString()},
                {"OpcjaMarzy", Liczba(0, 2)},
                {"Zmiana", u"2020-02-03 04:05:06"_s}};
  if (katId > 0) wiersz.push_back({"KatId", katId});
  if (Co(2)) wiersz.push_back({"Producent", m_kontrahenci[static_cast<std::size_t>(Liczba(0, 20))]});
  for (const char* pole : {"Indeks1", "Indeks2", "Opis1", "Opis2", "Opis3", "Opis4", "Rezerwa1"})
    wiersz.push_back({pole, Tekst()});
  for (const char* pole : {"IleWZgrzewce", "IleWCalosci", "Marza", "HurtRabat", "NocNarzut", "CenaEw",
                           "CenaDet", "CenaHurt", "CenaNoc", "CenaDod"})
    wiersz.push_back({pole, Kwota()});
  Wstaw("Towar", wiersz);
  SzczegolyTowaru(towId, katId);
  ++m_zawartosc.towarow;
}

void LosowaBaza::SzczegolyTowaru(int towId, int katId) {
  for (int i = Liczba(-2, 3); i > 0; --i)
    Wstaw("KodDod", {{"TowId", towId},
                     {"Kolejnosc", 10 - 2 * i},
                     {"Kod", Kod(1000 + ++m_numer, true)},
                     {"Skrot", Skrot()},
                     {"PrefPLU", Liczba(0, 99)},
                     {"IleWKodzie", Kwota()}});
  std::vector<int> parametry;
  for (auto odczyt = m_baza.Otworz("select ParId from KatParam where KatId = :KatId", {TypPola::Calkowite},
                                   {{"KatId", katId}});
       odczyt.Nastepny();)
    parametry.push_back(static_cast<int>(odczyt[0].AsInteger()));
  for (const int par : parametry)
    Wstaw("TowWartosc",
          {{"TowId", towId}, {"ParId", par}, {"Wartosc", par > 2 ? Liczba(-9, 99) : Liczba(0, 2)}});
  QSet<int> dostawcy;
  for (int i = Liczba(-2, 4); i > 0; --i) {
    const int id = m_kontrahenci[static_cast<std::size_t>(Liczba(0, 30))];
    if (!dostawcy.contains(id)) Wstaw("TowDostawca", {{"TowId", towId}, {"KontrId", id}, {"Kolejnosc", i}});
    dostawcy.insert(id);
  }
  m_baza.ExecSQL("update Istw set StanMag = :Stan where TowId = :TowId and MagId = 1",
                 {{"Stan", Kwota()}, {"TowId", towId}});
  if (Co(4)) Wstaw("KasTow", {{"KasaId", 1}, {"TowId", towId}, {"Wyslany", 1}});
}

ZawartoscBazy LosowaBaza::Napelnij() {
  m_baza.StartTransakcji();
  Slowniki();
  for (int i = 0; i < kKontrahentow; ++i) Kontrahent(i);
  Osoby();
  for (int i = 0; i < kTowarow; ++i) Towar(i);
  m_baza.KoniecTransakcji();
  return m_zawartosc;
}
