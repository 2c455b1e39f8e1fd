#include <gtest/gtest.h>

#include "exchange/plik_dbase.h"
#include "tests/exchange/pliki_probne.h"
#include "tests/exchange/tabela_dbase.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const std::vector<std::pair<std::string, int>> kPola = {{"KOD", 4}, {"NAZWA", 6}};

TEST(PlikDBase, RekordyIWartosci) {
  PlikDBase plik;
  const PlikProbny bajty(
      Tabela{.pola = kPola, .rekordy = {" 5901Chleb ", "*5902Mleko ", std::string(" 59\0 Ser   ", 11)}}
          .Bajty());
  ASSERT_TRUE(plik.Open(bajty.Sciezka()));
  EXPECT_EQ(plik.RecordCount(), 3);
  EXPECT_EQ(plik.FieldCount(), 2);
  EXPECT_EQ(plik.FieldName(1), "NAZWA");
  EXPECT_EQ(plik.FieldName(2), "");
  EXPECT_EQ(plik.FieldName(-1), "");
  EXPECT_EQ(plik.FieldValue("KOD"), "");
  ASSERT_TRUE(plik.ReadRecord(2));
  EXPECT_EQ(plik.FieldValue("kod"), "59");
  ASSERT_TRUE(plik.ReadRecord(0));
  EXPECT_FALSE(plik.IsDeleted());
  EXPECT_EQ(plik.FieldValue("nazwa"), "Chleb ");
  EXPECT_EQ(plik.FieldValue("CENA"), "");
  ASSERT_TRUE(plik.ReadRecord(1));
  EXPECT_TRUE(plik.IsDeleted());
  EXPECT_FALSE(plik.ReadRecord(3));
  EXPECT_FALSE(plik.ReadRecord(-1));
}

TEST(PlikDBase, LiczbaRekordowZRozmiaru) {
  const struct {
    Tabela tabela;
    qint64 rekordow;
  } przypadki[] = {
      {{.pola = kPola, .rekordy = {" 0001aaaaaa", " 0002bbbbbb"}, .koniec = ""}, 1},
      {{.pola = kPola, .rekordy = {" 0001aaaaaa", " 0002bb"}}, 1},
      {{.pola = kPola, .rekordy = {}}, 0},
      {{.pola = kPola, .rekordy = {}, .koniec = ""}, 0},
      {{.pola = {{"A", 4999}}, .rekordy = {std::string(5000, ' ')}}, 1},
      {{.pola = std::vector(100, std::pair<std::string, int>("A", 49)), .rekordy = {std::string(4901, ' ')}},
       1},
      // A file filled up with its last byte; a record that only begins with one.
      {{.pola = kPola, .rekordy = {" 0001aaaaaa", " 0002bbbbbb"}, .koniec = std::string(43, '\x1A') + "\r\n"},
       2},
      {{.pola = kPola,
        .rekordy = {" 0001aaaaaa",
                    "\x1A"
                    "0002bbbbbb"}},
       2},
  };
  for (const auto& p : przypadki) {
    PlikDBase plik;
    EXPECT_TRUE(plik.Open(PlikProbny(p.tabela.Bajty()).Sciezka()));
    EXPECT_EQ(plik.RecordCount(), p.rekordow);
  }
}

TEST(PlikDBase, NaglowekNieBudziZaufania) {
  const struct {
    std::string bajty;
    QString powod;
  } przypadki[] = {
      {Tabela{.pola = kPola, .dlugoscRekordu = 5001}.Bajty(), u"Za długi rekord"_s},
      {Tabela{.pola = kPola, .dlugoscRekordu = 0}.Bajty(), u"Długość rekordu w nagłówku wynosi 0"_s},
      {Tabela{.pola = kPola, .dlugoscNaglowka = 0}.Bajty(), u"nie zawiera opisów"_s},
      {Tabela{.pola = kPola, .dlugoscNaglowka = 40}.Bajty(), u"nie zawiera opisów"_s},
      {Tabela{.pola = kPola, .dlugoscNaglowka = 5000}.Bajty(), u"dłuższy niż plik"_s},
      {Tabela{.pola = {}, .rekordy = {std::string(64, '\0')}, .dlugoscNaglowka = 97}.Bajty(),
       u"nie zawiera opisów"_s},
      {Tabela{.pola = std::vector(101, std::pair<std::string, int>("A", 1))}.Bajty(),
       u"więcej niż 100 pól"_s},
      {Tabela{.pola = kPola, .dlugoscRekordu = 12}.Bajty(),
       u"Pola zajmują razem 11 bajtów, a rekord ma ich 12"_s},
      {Tabela{.pola = {{"A", 300}}, .typy = "N"}.Bajty(),
       u"Pola zajmują razem 45 bajtów, a rekord ma ich 301"_s},
      {"abc", u"krótszy niż nagłówek"_s},
  };
  for (const auto& p : przypadki) {
    PlikDBase plik;
    EXPECT_FALSE(plik.Open(PlikProbny(p.bajty).Sciezka()));
    ASSERT_TRUE(plik.Blad()) << p.powod.toStdString();
    EXPECT_TRUE(plik.Blad()->tekst.contains(p.powod)) << plik.Blad()->tekst.toStdString();
    EXPECT_EQ(plik.Blad()->tekst.contains(u"/plik\n"_s), plik.Blad()->naglowek == u"BŁĄD"_s);
    EXPECT_EQ(plik.RecordCount(), 0);
    EXPECT_FALSE(plik.ReadRecord(0));
  }
  PlikDBase plik;
  EXPECT_FALSE(plik.Open(u"/nie/ma"_s));
  EXPECT_FALSE(plik.Blad());
}

// Two bytes of length when the record needs them; otherwise the second one says nothing.
TEST(PlikDBase, SzerokiePolaZnakowe) {
  const std::string opis(300, 'o');
  PlikDBase plik;
  ASSERT_TRUE(plik.Open(
      PlikProbny(Tabela{.pola = {{"OPIS", 300}, {"CENA", 4}}, .rekordy = {" " + opis + "7.50"}, .typy = "CN"}
                     .Bajty())
          .Sciezka()));
  ASSERT_TRUE(plik.ReadRecord(0));
  EXPECT_EQ(plik.FieldValue("OPIS"), opis);
  EXPECT_EQ(plik.FieldValue("CENA"), "7.50");
  std::string bajty = Tabela{.pola = kPola, .rekordy = {" 5901Chleb "}}.Bajty();
  bajty[32 + 17] = '\x01';
  ASSERT_TRUE(plik.Open(PlikProbny(bajty).Sciezka()));
  ASSERT_TRUE(plik.ReadRecord(0));
  EXPECT_EQ(plik.FieldValue("NAZWA"), "Chleb ");
}

TEST(CzytnikDBase, TypyKtorychNieMaCzymCzytac) {
  for (const char typ : std::string("CNFDLMIYBT@O+")) {
    const std::string bajty =
        Tabela{.pola = kPola, .rekordy = {" 1   12    "}, .typy = std::string("C") + typ}.Bajty();
    const StrukturaPliku s = Struktura(RodzajRekordu::Towary, TypPliku::DBase, {u"00KOD"_s, u"06NAZWA"_s});
    const bool czytelny = std::string("CNFDL").find(typ) != std::string::npos;
    const QString odczyt = OdczytTresci(s, bajty).join(u' ');
    EXPECT_TRUE(odczyt.startsWith(czytelny ? u"0=1|6=12"_s
                                           : u"Kolumna NAZWA ma typ %1 ("_s.arg(QChar::fromLatin1(typ))))
        << odczyt.toStdString();
    const StrukturaPliku bez = Struktura(RodzajRekordu::Towary, TypPliku::DBase, {u"00KOD"_s, u"32NAZWA"_s});
    EXPECT_EQ(OdczytTresci(bez, bajty), QStringList{u"0=1"_s});
  }
}

// Records come in blocks of 256 KiB. A table cut off meanwhile is told of and never read as zeros.
TEST(PlikDBase, BlokiRekordowISkroconyPlik) {
  std::vector<std::string> rekordy;
  for (int i = 0; i < 30'000; ++i) rekordy.push_back(' ' + std::to_string(5'900'000'000 + i));
  const PlikProbny bajty(Tabela{.pola = kPola, .rekordy = rekordy}.Bajty());
  PlikDBase plik;
  ASSERT_TRUE(plik.Open(bajty.Sciezka()));
  for (int i = 0; i < 30'000; ++i) {
    ASSERT_TRUE(plik.ReadRecord(i));
    ASSERT_EQ(' ' + std::string(plik.FieldValue("KOD")) + std::string(plik.FieldValue("NAZWA")),
              rekordy[size_t(i)]);
  }
  ASSERT_TRUE(plik.ReadRecord(0));
  ASSERT_TRUE(QFile::resize(bajty.Sciezka(), 97 + 11 * 24'000));
  EXPECT_TRUE(plik.ReadRecord(23'999));
  EXPECT_FALSE(plik.ReadRecord(24'000));
  EXPECT_TRUE(plik.Blad()->tekst.contains(u"skrócony w trakcie odczytu"));
}

TEST(CzytnikDBase, KolumnyPolImaja) {
  const std::string bajty =
      Tabela{.pola = kPola, .rekordy = {" 5901 \x88uk  ", "*5902Mleko ", " 5903Ser   "}}.Bajty();
  StrukturaPliku s = Struktura(RodzajRekordu::Towary, TypPliku::DBase,
                               {u"01nazwa"_s, u"00Kod  "_s, u"32NAZWA"_s, u"x NAZWA"_s});
  s.CBPolskieZnaki = StronaKodowa::LatinII;
  s.CBNieAnalizujPierwszejLinii = true;
  EXPECT_EQ(OdczytTresci(s, bajty), (QStringList{u"0=5901|1=łuk"_s, u"-"_s, u"0=5903|1=Ser"_s}));
  EXPECT_EQ(OdczytTresci(s, Tabela{.pola = kPola, .rekordy = {" 5901a\rb\r\nc"}}.Bajty()),
            QStringList{u"0=5901|1=a b\r\nc"_s});
  s.pola.emplace_back(u"32CENA"_s);
  EXPECT_EQ(OdczytTresci(s, bajty), QStringList{u"W importowanym pliku brak pola: CENA"_s});
}

// Types are those of the columns KOD and NAZWA, the count is that of the header: 10.
TEST(Spostrzezenia, NaglowekDBase) {
  const auto kTowary = RodzajRekordu::Towary, kKontrahenci = RodzajRekordu::Kontrahenci;
  const struct {
    RodzajRekordu rodzaj;
    QString pole;
    char typ;
    const char* slowa;  // active and removed, also the kinds
    size_t rekordow;
    QStringList oczekiwane;
  } przypadki[] = {
      {kTowary, u"31"_s, 'L', "TF", 10, {}},
      {kTowary, u"31"_s, 'L', "tn", 10, {}},
      {kTowary, u"31"_s, 'C', "10", 10, {}},
      {kTowary, u"31"_s, 'L', "T0", 10, {u"0 DbaseLogiczna 31 NAZWA"_s}},
      {kTowary, u"03"_s, 'L', "TF", 10, {u"0 DbaseLogiczna 3 NAZWA"_s}},
      {kTowary, u"22"_s, 'L', "TF", 10, {u"0 DbaseLogiczna 22 NAZWA"_s}},
      {kTowary, u"06"_s, 'L', "10", 10, {}},
      {kTowary, u"06"_s, 'D', "10", 10, {}},
      {kTowary, u"12"_s, 'D', "10", 10, {u"0 DbaseData 12 NAZWA"_s}},
      {kKontrahenci, u"32"_s, 'D', "10", 10, {u"0 DbaseData 32 NAZWA"_s}},
      {kKontrahenci, u"11"_s, 'L', "Y0", 10, {}},
      {kKontrahenci, u"14"_s, 'L', "1F", 10, {u"0 DbaseLogiczna 14 NAZWA"_s}},
      {kKontrahenci, u"31"_s, 'L', "TF", 10, {u"0 DbaseLogiczna 31 NAZWA"_s}},
      {kTowary, u"06"_s, 'C', "10", 9, {u"0 DbaseLiczba 10 9"_s}},
      {kTowary, u"06"_s, 'C', "10", 11, {u"0 DbaseLiczba 10 11"_s}},
  };
  for (const auto& p : przypadki) {
    StrukturaPliku s = Struktura(p.rodzaj, TypPliku::DBase, {u"00KOD"_s, p.pole + u"NAZWA"_s});
    s.EdPoleAktywny = s.EdPoleDostawca = s.EdPoleSklep = QString(QLatin1Char(p.slowa[0]));
    s.EdPoleUsuniety = QString(QLatin1Char(p.slowa[1]));
    std::string bajty =
        Tabela{.pola = kPola, .rekordy = std::vector<std::string>(p.rekordow, " 5901x     ")}.Bajty();
    bajty[2 * 32 + 11] = p.typ;
    EXPECT_EQ(Zauwazone(s, bajty), p.oczekiwane) << p.pole.toStdString() << p.typ << p.slowa;
  }
  StrukturaPliku s = Struktura(kTowary, TypPliku::DBase, {u"00KOD"_s, u"01NAZWA"_s});
  const std::vector<std::string> rekordy(10, " 5901\x88\x86    ");
  EXPECT_EQ(Zauwazone(s, Tabela{.pola = kPola, .rekordy = rekordy}.Bajty()),
            QStringList{u"0 StronaKodowa Windows Latin II"_s});
}

}  // namespace
