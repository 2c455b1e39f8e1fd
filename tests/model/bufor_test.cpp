#include "model/bufor_nip.h"
#include "model/bufor_towarow.h"
#include "model/szukanie_kontrahenta.h"
#include "model/szukanie_towaru.h"
#include "tests/model/towary_probne.h"

namespace {

class Bufor : public TowaryProbne {
 protected:
  // The buffer kept up to date answers like one that has just been read.
  void SprawdzZgodnosc() {
    TVLTBuforTowarow swiezy;
    ASSERT_TRUE(swiezy.Napelnij(b.baza));
    EXPECT_EQ(bufor.Ilosc(), swiezy.Ilosc());
    for (const char16_t* znaki :
         {u"1", u"2", u"3", u"4", u"Mleko", u"Ser", u"m1", u"m2", u"s1", u"Mleko 1"}) {
      const QString tekst = QString::fromUtf16(znaki);
      EXPECT_EQ(bufor.TowaryZKodem(tekst), swiezy.TowaryZKodem(tekst)) << tekst.toStdString();
      EXPECT_EQ(bufor.TowaryZeSkrotem(tekst), swiezy.TowaryZeSkrotem(tekst)) << tekst.toStdString();
      EXPECT_EQ(bufor.TowaryZNazwa(tekst), swiezy.TowaryZNazwa(tekst)) << tekst.toStdString();
    }
  }
};

TEST_F(Bufor, NadazaZaZapisami) {
  ASSERT_TRUE(bufor.Napelnij(b.baza));
  auto mleko = Nowy(u"1"_s, u"Mleko"_s);
  mleko->Kody().Dodaj({0, u"2"_s, u"m1"_s});
  bufor.Dodaj(mleko->Zapisz(), mleko->Teksty());
  SprawdzZgodnosc();
  auto ser = Nowy(u"3"_s, u"Mleko"_s);
  bufor.Dodaj(ser->Zapisz(), ser->Teksty());
  SprawdzZgodnosc();
  EXPECT_EQ(bufor.TowaryZNazwa(u"Mleko"_s), (std::vector<int>{1, 2}));

  mleko->UstawNazwa(u"Ser"_s);
  mleko->UstawKod(u"4"_s);
  mleko->Kody().Ustaw({{0, u"1"_s, u"s1"_s}, {0, u"2"_s, u"m2"_s}});
  const auto bylo = mleko->TekstyZBazy();
  mleko->Zapisz();
  bufor.Zmien(1, bylo, mleko->Teksty());
  SprawdzZgodnosc();
  EXPECT_FALSE(bufor.MozeBySkrot(u"m1"_s));
  EXPECT_TRUE(bufor.MozeByKod(u"4"_s) && bufor.MozeByNazwa(u"Ser"_s));

  // Two changes of one good in a batch that the database has undone.
  bufor.Zatwierdz();
  const auto jest = mleko->Teksty();
  auto raz = jest, dwa = jest;
  raz.kod = u"3"_s;
  dwa.kod = u"5"_s;
  bufor.Zmien(1, jest, raz);
  bufor.Zmien(1, raz, dwa);
  bufor.Cofnij();
  SprawdzZgodnosc();
}

TEST_F(Bufor, CudzyZapisOdbieraPewnosc) {
  ASSERT_TRUE(bufor.Napelnij(b.baza));
  Zapisany(u"1"_s, u"Nasz"_s);
  bufor.SprawdzObceZmiany(b.baza);
  EXPECT_TRUE(bufor.BrakJestPewny()) << "our own writes are no surprise";
  // A server tells what was written, ours too, and that is taken over.
  EXPECT_EQ(TowaryZKodem(b.baza, &bufor, u"1"_s).empty(), !NaSerwerze()) << "a certain miss asks nobody";
  TVLTBazaDanych inna;
  b.Polacz(inna);
  inna.ExecSQL("insert into Towar (Nazwa, Skrot, Kod) values ('Cudzy', 'c', '2')");
  inna.ExecSQL("insert into KodDod (TowId, Kolejnosc, Kod) select max(TowId), 1, '1' from Towar");
  b.baza.StartTransakcji();
  bufor.SprawdzObceZmiany(b.baza);
  EXPECT_EQ(bufor.BrakJestPewny(), NaSerwerze());
  const auto towary = TowaryZKodem(b.baza, &bufor, u"1"_s);
  ASSERT_EQ(towary.size(), 2u);
  EXPECT_EQ(towary[1].nazwa, u"Cudzy");
  EXPECT_EQ(Nowy(u"2"_s, u"Nowy"_s)->Sprawdz().kod, 2822);
  ASSERT_TRUE(bufor.Napelnij(b.baza));
  EXPECT_TRUE(bufor.BrakJestPewny());
  b.baza.KoniecTransakcji();
  b.Polacz(b.baza);
  bufor.SprawdzObceZmiany(b.baza);
  EXPECT_EQ(bufor.BrakJestPewny(), NaSerwerze()) << "nobody knows what was written while we were away";
}

TEST_F(Bufor, PrzerwaneCzytanieZostawiaPustyBufor) {
  b.baza.ExecSQL(
      "insert into Towar (Nazwa, Skrot, Kod)"
      " with recursive n(i) as (select 1 union all select i + 1 from n where i < 2500) select i, i, i from "
      "n");
  std::vector<int> postepy;
  EXPECT_FALSE(bufor.Napelnij(b.baza, [&](int ile) {
    postepy.push_back(ile);
    return ile < 2000;
  }));
  EXPECT_EQ(postepy, (std::vector<int>{1000, 2000}));
  EXPECT_FALSE(bufor.Gotowy() || bufor.MozeByKod(u"1"_s));
}

TEST_F(Bufor, NipyPorownujeSiePoCyfrach) {
  TVLTBuforNip nipy;
  ASSERT_TRUE(nipy.Napelnij(b.baza));
  nipy.Dodaj(9, u"PL 22-2");
  nipy.Dodaj(1, u"222");
  EXPECT_EQ(nipy.Znajdz(u"1-11 11"), 1);
  const auto wielu = nipy.Kontrahenci(u"222");
  EXPECT_EQ(std::vector<int>(wielu.begin(), wielu.end()), (std::vector<int>{1, 2, 9}));
  EXPECT_EQ(nipy.Znajdz(u"333"), -1);
  EXPECT_EQ(nipy.Znajdz(u"brak"), -1) << "no digits, no number";
  EXPECT_EQ(TVLTBuforNip::IloscKontrahentow(b.baza), 3);
  b.baza.ExecSQL("insert into Kontrahent (Nazwa, NIP) values ('K4', 'PL 22-2')");
  EXPECT_EQ(KontrahentZNipem(b.baza, u"2-22")->kontrId, 2) << "of several the first";

  TVLTBuforNip zAdresami(TVLTBuforNip::Zawartosc::NipyIAdresy);
  zAdresami.Dodaj(4, u"44", u"Polna 1"_s, u"Radom"_s);
  zAdresami.Dodaj(5, u"brak", u"Polna 1"_s, u"Radom"_s);
  EXPECT_TRUE(zAdresami.MaAdres(u"4-4", u"Polna 1"_s, u"Radom"_s));
  EXPECT_FALSE(zAdresami.MaAdres(u"44", u"Polna 1R"_s, u"adom"_s));
  EXPECT_FALSE(zAdresami.MaAdres(u"55", u"Polna 1"_s, u"Radom"_s));
  EXPECT_TRUE(zAdresami.MaAdres(u"", u"Polna 1R"_s, u"adom"_s)) << "without a number they are one text";
}

}  // namespace
