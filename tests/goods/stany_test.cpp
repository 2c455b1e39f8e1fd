#include "goods/stany.h"

#include "tests/goods/srodowisko.h"

namespace {

using namespace Qt::Literals::StringLiterals;

class StanyTest : public testing::Test, protected SrodowiskoTowarow {
 protected:
  double Stan(int magId) {
    auto odczyt = baza.baza.Otworz("select StanMag from Istw where TowId = 1 and MagId = :MagId",
                                   {TypPola::Dziesietne}, {{"MagId", magId}});
    return odczyt.Nastepny() ? odczyt[0].AsFloat() : -1;
  }
  void DodajTowar() { baza.baza.ExecSQL("insert into Towar (Nazwa, Skrot, Kod) values ('A', 'A', '1')"); }

  Stany stany{sesja, liczniki};
};

TEST_F(StanyTest, PustaBazaDostajeMagazyn) {
  stany.WczytajMagazyny();
  stany.WczytajMagazyny();
  EXPECT_EQ(baza.Tekst("select group_concat(Nazwa) from Magazyn"), u"Magazyn nr 1"_s);
}

TEST_F(StanyTest, UstawianieStanu) {
  // The list is by name, so the first warehouse is the one stored last.
  baza.baza.ExecSQL("insert into Magazyn (Nazwa) values ('B')");
  baza.baza.ExecSQL("insert into Magazyn (Nazwa) values ('A')");
  DodajTowar();
  stany.WczytajMagazyny();
  struct {
    int n;
    double ilosc;
    bool zmiana;
    double stan1, stan2;
  } const przypadki[] = {
      {1, 0, false, 0, 0},
      {1, 2.5, true, 0, 2.5},
      {1, 2.5, false, 0, 2.5},
      {2, -1, true, -1, 2.5},
      {3, 7, false, -1, 2.5},
      {0, 7, false, -1, 2.5},
      {2, 1.0 / 3, true, 0.333333, 2.5},
      {2, 1.0 / 3, false, 0.333333, 2.5},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.ilosc);
    EXPECT_EQ(stany.Ustaw(1, p.n, p.ilosc), p.zmiana);
    EXPECT_EQ(Stan(1), p.stan1);
    EXPECT_EQ(Stan(2), p.stan2);
  }
  baza.baza.ExecSQL("delete from Istw where MagId = 1");
  EXPECT_TRUE(stany.Ustaw(1, 2, 5));
  EXPECT_EQ(Stan(1), -1);  // no row is made
  liczniki.Zatwierdz();
  EXPECT_EQ(liczniki[Licznik::Stany], 4);
}

}  // namespace
