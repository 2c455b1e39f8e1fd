#include "goods/stany.h"

#include "model/bledy.h"
#include "run/liczniki.h"
#include "tests/goods/import_testowy.h"

namespace {

using namespace Qt::Literals::StringLiterals;

TEST(Stany, ZapisujeDoMagazynuZListy) {
  ImportTestowy i;
  Liczniki liczniki;
  Stany stany(i.sesja, liczniki);
  // The list is by name, then by identifier, though a server meets a row last that was changed.
  i.b.baza.ExecSQL("insert into Magazyn (Nazwa) values ('B'), ('A'), ('A')");
  i.b.baza.ExecSQL("update Magazyn set Nazwa = 'A' where MagId = 2");
  i.b.baza.ExecSQL("insert into Towar (Nazwa, Skrot, Kod) values ('A', 'A', '1')");
  stany.WczytajMagazyny();
  struct {
    int n;
    double ilosc;
    bool zmiana;
    QString stany;
  } const przypadki[] = {{1, 0, false, u"0,0,0"_s},
                         {1, 2.5, true, u"0,2.5,0"_s},
                         {1, 2.5, false, u"0,2.5,0"_s},
                         {4, 7, false, u"0,2.5,0"_s},
                         {0, 7, false, u"0,2.5,0"_s},
                         {2, 4, true, u"0,2.5,4"_s},
                         {3, -1.0 / 3, true, u"-0.333333,2.5,4"_s},
                         {3, -1.0 / 3, false, u"-0.333333,2.5,4"_s}};
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.ilosc);
    EXPECT_EQ(stany.Ustaw(1, p.n, p.ilosc), p.zmiana);
    EXPECT_EQ(i.b.Kolumna("select StanMag from Istw order by MagId", TypPola::Dziesietne), p.stany);
  }
  EXPECT_THROW(stany.Ustaw(1, 3, 1e300), EVLTWDError);
  i.b.baza.ExecSQL("delete from Istw where MagId = 1");
  EXPECT_TRUE(stany.Ustaw(1, 3, 5));
  EXPECT_EQ(i.b.Liczba("select count(*) from Istw"), 2);  // no row is made
  liczniki.Zatwierdz();
  EXPECT_EQ(liczniki[Licznik::Stany], 4);
}

}  // namespace
