#include "exchange/czytnik.h"

#include <gtest/gtest.h>

#include "exchange/strony_kodowe.h"
#include "tests/exchange/pliki_probne.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto kTowary = RodzajRekordu::Towary;
constexpr auto kKontrahenci = RodzajRekordu::Kontrahenci;

struct Przypadek {
  const char* opis;
  QStringList pola;
  std::string tresc;
  QStringList rekordy;
};

void Sprawdz(const StrukturaPliku& wzor, const std::vector<Przypadek>& przypadki) {
  for (const Przypadek& p : przypadki) {
    StrukturaPliku struktura = wzor;
    for (const QString& pole : p.pola) struktura.pola.emplace_back(pole);
    EXPECT_EQ(OdczytTresci(struktura, p.tresc), p.rekordy)
        << p.opis << ": " << OdczytTresci(struktura, p.tresc).join(u" // "_s).toStdString();
  }
}

TEST(CzytnikRozdzielany, LinieIPola) {
  Sprawdz(Struktura(kTowary, TypPliku::Rozdzielany, {}),
          {
              {"comments",
               {u"00"_s},
               "#a\n//b\n\n #c\r\n/d\n\n",
               {u"-"_s, u"-"_s, u"-"_s, u"0=#c"_s, u"0=/d"_s, u"-"_s}},
              {"order and trim", {u"01"_s, u"00"_s}, " A  b ;  7 \n", {u"0=7|1=A  b"_s}},
              {"dropped columns", {u"32"_s, u"??"_s, u"77"_s, u"00"_s}, "a;b;c;d", {u"0=d"_s}},
              {"more fields than declared", {u"00"_s}, "1;2;3", {u"0=1"_s}},
              {"fewer fields",
               {u"00"_s, u"01"_s, u"02"_s},
               "1;2\n1;2;\n1;2; ",
               {u"0=1|1=2?2/3"_s, u"0=1|1=2?2/3"_s, u"0=1|1=2"_s}},
              {"quoted text is split", {u"00"_s, u"01"_s, u"02"_s}, "\"a;b\";\"c\"", {u"0=a|1=b\"|2=c"_s}},
              {"qualifier alone", {u"00"_s, u"01"_s, u"02"_s}, "\";\"\";\"\"\"", {u"2=\""_s}},
              {"lone CR", {u"00"_s, u"01"_s}, "1;a\rb\r;\r\n\r2;c\n", {u"0=1|1=a b"_s, u"0=2|1=c"_s}},
              {"CR alone ends lines",
               {u"00"_s, u"01"_s},
               "1;a\r#\r\r2;c\r\x1A\r",
               {u"0=1|1=a"_s, u"-"_s, u"-"_s, u"0=2|1=c"_s}},
              {"1A at the end", {u"00"_s}, "1\r\n\x1A\r\n\x1A", {u"0=1"_s}},
              {"tab in a value", {u"00"_s, u"01"_s}, "1;a\tb", {u"0=1|1=a b"_s}},
              {"last one wins", {u"06"_s, u"06"_s}, "a;b", {u"6=b"_s}},
          });
}

TEST(Spostrzezenia, WiecejPolNizOpisano) {
  const auto rozdzielany = [](const QString& separator) {
    StrukturaPliku s = Struktura(kTowary, TypPliku::Rozdzielany, {u"00"_s, u"18"_s});
    s.separator = separator;
    return s;
  };
  const auto wlasny = [](int pol, const char* reszta) {
    return "naglowek\nA" + std::string(pol - 1, '\t') + reszta;
  };
  const struct {
    StrukturaPliku struktura;
    std::string tresc;
    QStringList oczekiwane;
  } przypadki[] = {
      {rozdzielany(u","_s), "1,\"3,69\"\n2,3\n3,4,, ,\n4,5, , .\n", {u"1 WiecejPol"_s, u"4 WiecejPol"_s}},
      {rozdzielany(u"||"_s), "1||2||||\n1||2||x\n1||2|||", {u"2 WiecejPol"_s, u"3 WiecejPol"_s}},
      {rozdzielany(u"\t"_s), "1\t2\t\t\n1\t2\t\t0", {u"2 WiecejPol"_s}},
      {Struktura(kTowary, TypPliku::StalaSzerokosc, {u"003"_s, u"012"_s}),
       "123AB  \n123ABx\n123A",
       {u"2 WiecejPol"_s}},
      {Struktura(kTowary, TypPliku::Zorvik, {}), wlasny(32, "1\t"), {}},
      {Struktura(kTowary, TypPliku::Zorvik, {}), wlasny(33, "x"), {u"1 WiecejPol"_s}},
      {Struktura(kKontrahenci, TypPliku::Zorvik, {}), wlasny(36, "1\t\t"), {}},
      {Struktura(kKontrahenci, TypPliku::Zorvik, {}), wlasny(37, "x"), {u"1 WiecejPol"_s}},
  };
  for (const auto& p : przypadki) EXPECT_EQ(Zauwazone(p.struktura, p.tresc), p.oczekiwane) << p.tresc;
}

TEST(Spostrzezenia, NieznanaStawkaIPozostawionyKwalifikator) {
  StrukturaPliku s = Struktura(kTowary, TypPliku::Rozdzielany,
                               {u"00"_s, u"01"_s, u"01"_s, u"03"_s, u"23"_s, u"26"_s, u"31"_s});
  s.opisyVat = {OpisVat(u"23A"_s), OpisVat(u"8 \"B\""_s)};
  s.CBPolskieZnaki = StronaKodowa::LatinII;
  const std::string tresc =
      "\"1\";\"a\";;1;A;2;1\n"
      "2;a;b;0;\"A\";\"2\";1\n"
      "3;\"a\";\"b\";\"2\";\"B\";;\"N\"\n"
      "4;\"x \"\"y\"\"\";;0;;(1|\"\"|);0\n"
      "5;19\" x;\";0;\x88;2;0\n";
  const QStringList oczekiwane{u"2 Cudzyslow 26"_s, u"2 NieznanyVat 23 \"A\""_s, u"2 Cudzyslow 23"_s,
                               u"3 Cudzyslow 1"_s,  u"3 Cudzyslow 3"_s,          u"3 Cudzyslow 31"_s,
                               u"4 Cudzyslow 26"_s, u"4 NieznanyVat 23"_s,       u"4 Cudzyslow 1"_s,
                               u"4 Cudzyslow 26"_s, u"5 NieznanyVat 23 ł"_s};
  EXPECT_EQ(Zauwazone(s, tresc), oczekiwane) << Zauwazone(s, tresc).join(u'|').toStdString();
  s.CBKwalifikatorTekstu = KwalifikatorTekstu::Brak;
  EXPECT_EQ(Zauwazone(s, tresc).filter(u"Cudzyslow"_s), QStringList());
  s.pola.resize(3);  // no VAT column, nothing to explain
  EXPECT_EQ(Zauwazone(s, "4;x;y\n"), QStringList());
}

// The word żółć as each page has it, and letters that belong to none.
TEST(Spostrzezenia, LiteryInnejStronyKodowej) {
  constexpr auto W = StronaKodowa::Windows, L = StronaKodowa::LatinII, M = StronaKodowa::Mazovia;
  const struct {
    StronaKodowa strona;
    std::string bajty;
    QString oczekiwane;
  } przypadki[] = {
      {W, "\xBE\xA2\x88\x86", u"0 StronaKodowa Windows Latin II"_s},
      {W, "\xA7\xA2\x92\x8D", u"0 StronaKodowa Windows Mazovia"_s},
      {L, "\xBF\xF3\xB3\xE6", u"0 StronaKodowa Latin II Windows"_s},
      {M, "\xBF\xF3\xB3\xE6", u"0 StronaKodowa Mazovia Windows"_s},
      {StronaKodowa::Ascii, "\xBF\xF3\xB3\xE6", u"0 StronaKodowa ASCII Windows"_s},
      {W, "\xBF\xF3\xB3\xE6", {}},
      {L, "\xBE\xA2\x88\x86", {}},
      {M, "\xA7\xA2\x92\x8D", {}},
      {W, "\xB3\x88", {}},  // as many as not
      {W, "\xB3\x88\x88", u"0 StronaKodowa Windows Latin II"_s},
      {W, "\xD6\xFC\xDF", {}},  // German
      {W, "zolc", {}},
  };
  for (const auto& p : przypadki) {
    StrukturaPliku s = Struktura(kTowary, TypPliku::Rozdzielany, {u"00"_s, u"01"_s});
    s.CBPolskieZnaki = p.strona;
    const QStringList oczekiwane = p.oczekiwane.isEmpty() ? QStringList() : QStringList{p.oczekiwane};
    const std::string daleko(70'000, 'a');
    EXPECT_EQ(Zauwazone(s, "1;" + daleko + "\n# \xBF\xBF\xBF\xBF\xBF\n2;" + p.bajty + "\n"), oczekiwane)
        << p.bajty;
  }
}

TEST(CzytnikRozdzielany, Separatory) {
  StrukturaPliku s = Struktura(kTowary, TypPliku::Rozdzielany, {u"00"_s, u"01"_s, u"02"_s});
  s.CBKwalifikatorTekstu = KwalifikatorTekstu::Brak;
  s.separator = u"||"_s;
  EXPECT_EQ(OdczytTresci(s, "ab||cd||ef"), QStringList{u"0=a|1=c|2=ef"_s});
  EXPECT_EQ(OdczytTresci(s, "||x||'y'"), QStringList{u"2='y'"_s});
  s.separator = u"ł"_s;
  s.CBPolskieZnaki = StronaKodowa::Mazovia;
  EXPECT_EQ(OdczytTresci(s,
                         "a\x92"
                         "b\xB3"
                         "c"),
            QStringList{u"0=a|1=błc?2/3"_s});
  s.separator.clear();
  EXPECT_EQ(OdczytTresci(s, "a;b"), QStringList{u"0=a;b?1/3"_s});
}

TEST(CzytnikRozdzielany, RegulyPolTowaru) {
  StrukturaPliku s = Struktura(kTowary, TypPliku::Rozdzielany, {});
  s.EdPoleAktywny = u"jest"_s;
  s.EdPoleUsuniety = u"usunięty"_s;
  s.EdPoleTypUsluga = u"U"_s;
  s.CBPolskieZnaki = StronaKodowa::LatinII;
  s.opisyVat = {OpisVat(u"23wysoka"_s), OpisVat(u"-1zwoln."_s), OpisVat(u"5  "_s), OpisVat(u"8 ósma"_s)};
  const QStringList kody = {u"26"_s, u"26"_s, u"26"_s};
  const QStringList nipy = {u"30"_s, u"30"_s, u"30"_s};
  Sprawdz(
      s,
      {
          {"name of several columns", {u"01"_s, u"01"_s, u"01"_s}, "A;;B", {u"1=A B"_s}},
          {"status", {u"31"_s}, "jest\nusuni\xA9ty\nJEST\n;", {u"31=1"_s, u"31=0"_s, u"31=1"_s, u"31=1"_s}},
          {"type", {u"03"_s}, "U\n1\nu\n0", {u"3=2"_s, u"3=1"_s, u"3=0"_s, u"3=0"_s}},
          {"codes", kody, "1;(2|a|3);\n;4;5", {u"26=(1||);(2|a|3)?2/3"_s, u"26=(4||);(5||)"_s}},
          {"tax numbers",
           nipy,
           "1;2;3\n(1);(2);3\n(1;2;",
           {u"30=(1|2|3)"_s, u"30=(1;(2|3)"_s, u"30=(1?2/3"_s}},
          {"rates",
           {u"23"_s},
           "wysoka\nzwoln.\nWysoka\n\xA2sma\n;\n",
           {u"23=2300"_s, u"23=-1"_s, u""_s, u"23=800"_s, u""_s}},
      });
}

TEST(CzytnikRozdzielany, RegulyPolKontrahenta) {
  StrukturaPliku s =
      Struktura(kKontrahenci, TypPliku::Rozdzielany, {u"00"_s, u"00"_s, u"11"_s, u"14"_s, u"35"_s});
  s.EdPoleDostawca = u"tak"_s;
  s.EdPoleUsuniety = u"nie"_s;
  EXPECT_EQ(OdczytTresci(s,
                         "Zak\xB3"
                         "ad;A;tak;tak;nie\nB;;nie;1;x"),
            (QStringList{u"0=Zakład A|11=1|14=0|35=0"_s, u"0=B|11=0|14=1|35=1"_s}));
}

TEST(CzytnikSzerokosci, Kolumny) {
  Sprawdz(
      Struktura(kTowary, TypPliku::StalaSzerokosc, {}),
      {
          {"widths", {u"003"_s, u"325"_s, u"0110"_s}, "123--x--Chleb  ;", {u"0=123|1=Chleb  ;"_s}},
          {"short line", {u"003"_s, u"013"_s, u"063"_s}, "123\n1234", {u"0=123?1/3"_s, u"0=123|1=4?2/3"_s}},
          {"lone CR keeps its place, 1A is nothing",
           {u"003"_s, u"013"_s},
           "12\r4\r6\n\x1A",
           {u"0=12|1=4 6"_s}},
          {"no width", {u"00x"_s, u"01-2"_s, u"0699999"_s}, "abc", {u"6=abc"_s}},
      });
}

TEST(CzytnikWlasny, KazdaLiniaPrawieJestRekordem) {
  StrukturaPliku s = Struktura(kTowary, TypPliku::Zorvik, {});
  s.CBPolskieZnaki = StronaKodowa::LatinII;
  const std::string tab30(30, '\t');
  Sprawdz(s, {
                 {"header only", {}, "Kod", {}},
                 {"nothing at all", {}, "", {}},
                 {"comments, no qualifier", {}, "Kod\n#x\n\"5\"" + tab30 + "\n", {u"-"_s, u"0=\"5\""_s}},
                 {"1A CR LF, lone CR", {}, "Kod\n5\ta\rb" + tab30 + "\n\x1A\r\n", {u"0=5|1=a b"_s}},
                 {"CR alone ends lines", {}, "Kod\r5\r\r\r", {u"0=5?1/31"_s}},
                 {"empty lines", {}, "Kod\n\n\n//\n\n\n\n", {u"?1/31"_s, u"?1/31"_s, u"-"_s}},
                 {"last piece stands in Windows-1250", {}, "Kod\n\x88\t\x88", {u"0=ł|1=\u0088?2/31"_s}},
             });
}

TEST(CzytnikWlasny, KolumnaStatusu) {
  const struct {
    const char* naglowek;
    int pol;
    bool status;
  } przypadki[] = {{"Kod\tStatus towaru", 32, true}, {"Kod\tStatus towaru", 31, false}, {"Kod", 32, false}};
  for (const auto& p : przypadki) {
    const PlikProbny plik(std::string(p.naglowek) + "\n1" +
                          std::string(static_cast<size_t>(p.pol) - 1, '\t') + "0\n");
    const auto czytnik = UtworzCzytnik(Struktura(kTowary, TypPliku::Zorvik, {}));
    ASSERT_FALSE(czytnik->Otworz(plik.Sciezka()));
    EXPECT_EQ(czytnik->Policz(nullptr).rekordow, 1);
    ASSERT_EQ(czytnik->Nastepny(), WynikCzytania::Rekord);
    EXPECT_EQ(czytnik->MaStatus(), p.status) << p.naglowek << p.pol;
    EXPECT_FALSE(czytnik->SprawdzLiczbePol());
    EXPECT_TRUE(czytnik->NiesiePole(PoleTowaru::CenaDet));
  }
}

TEST(CzytnikWlasny, TabulatorNaKoncuKontrahenta) {
  const StrukturaPliku s = Struktura(kKontrahenci, TypPliku::Zorvik, {});
  const std::string tab34(34, '\t');
  EXPECT_EQ(OdczytTresci(s, "Nazwa\nA" + tab34 + "\t\nB" + tab34 + "\t1"),
            (QStringList{u"0=A?35/36"_s, u"0=B|35=1"_s}));
}

TEST(Czytnik, PierwszaLiniaINumery) {
  StrukturaPliku s = Struktura(kTowary, TypPliku::Rozdzielany, {u"00"_s, u"01"_s});
  s.CBNieAnalizujPierwszejLinii = true;
  const PlikProbny plik("# nag\xB3\xF3wek\n#\n1;a\n\n2");
  const auto czytnik = UtworzCzytnik(s);
  ASSERT_FALSE(czytnik->Otworz(plik.Sciezka()));
  EXPECT_EQ(czytnik->Policz(nullptr).rekordow, 2);
  while (czytnik->Nastepny() != WynikCzytania::Koniec) EXPECT_LE(czytnik->Pozycja(), czytnik->Rozmiar());
  const auto pol = czytnik->SprawdzLiczbePol();
  ASSERT_TRUE(pol);
  EXPECT_EQ(pol->Pytanie().tekst, u"Liczba pól w rekordzie 2 wynosi 1, deklarowana liczba pól wynosi 2."_s);
  EXPECT_EQ(pol->Pytanie().naglowek, u"Uwaga"_s);
  EXPECT_FALSE(czytnik->MaStatus());
  EXPECT_FALSE(czytnik->NiesiePole(PoleTowaru::Stan));
}

TEST(Czytnik, OdmawiaTegoCoNieJestTekstem) {
  const StrukturaPliku s = Struktura(kTowary, TypPliku::Rozdzielany, {u"00"_s});
  EXPECT_TRUE(OdczytPliku(s, u"/nie/ma"_s).join(QString()).contains(u"/nie/ma nie istnieje"));
  EXPECT_TRUE(OdczytTresci(s,
                           "\xEF\xBB\xBF"
                           "1;2\n")
                  .join(QString())
                  .contains(u"UTF-8"));
  // Behind what the first look sees: found by the count, before anything is written.
  const std::string daleko = "1\n" + std::string(100'000, 'x') + "\n";
  EXPECT_TRUE(OdczytTresci(s, daleko + '\0' + "\n").join(QString()).contains(u"bajty zerowe"));
  EXPECT_TRUE(
      OdczytTresci(s, daleko + std::string(2'000'000, 'y')).join(QString()).startsWith(u"Linia 3 pliku"));
}

TEST(Czytnik, LiczenieMoznaPrzerwac) {
  const PlikProbny plik(std::string(20'000, '\n'));
  const auto czytnik = UtworzCzytnik(Struktura(kTowary, TypPliku::Rozdzielany, {u"00"_s}));
  ASSERT_FALSE(czytnik->Otworz(plik.Sciezka()));
  EXPECT_TRUE(czytnik->Policz([](qint64) { return false; }).przerwano);
  EXPECT_EQ(czytnik->Pozycja(), 0);
}

TEST(LiniaRekordu, ZetonyPoKolei) {
  LiniaRekordu linia("\x88 \t\t x7 \t -7 \t1,5\t1.5\t1,2,3\t\tpomin\treszta", StronaKodowa::LatinII, 10);
  EXPECT_EQ(linia.Tekst(), u"ł "_s);
  EXPECT_EQ(linia.Calkowita(22).wartosc, 22);
  const TokenLiczby<int> zla = linia.Calkowita();
  EXPECT_FALSE(zla.poprawny);
  EXPECT_EQ(zla.bledny, u"x7"_s);
  EXPECT_EQ(linia.Calkowita().wartosc, -7);
  EXPECT_EQ(linia.Liczba('.').wartosc, 1.5);
  EXPECT_EQ(linia.Liczba(',').wartosc, 1.5);
  EXPECT_EQ(linia.Liczba('.').bledny, u"1,2,3"_s);
  EXPECT_EQ(linia.Liczba('.').wartosc, 0.0);
  linia.Pomin();
  EXPECT_EQ(linia.Reszta(), "reszta");
  linia.Pomin();
  EXPECT_TRUE(linia.Tekst().isEmpty());
  EXPECT_EQ(linia.Licznik(), 21);
}

}  // namespace
