#include "database/schemat.h"

#include <gmock/gmock.h>

#include "tests/wspolne/baza_testowa.h"

namespace {

class Schemat : public testing::Test, protected BazaTestowa {
 protected:
  void SetUp() override { UtworzBaze(baza, kKonfiguracja); }
  int DodajTowar() {
    return baza.WstawOdRazu("TowId", "insert into Towar (Nazwa, Skrot, Kod) values ('Mleko', 'Mleko', '1')",
                            {});
  }

  const WpisKonfiguracji kKonfiguracja[2] = {
      {QStringLiteral("Wykazy"), QStringLiteral("B"), QStringLiteral("2")},
      {QStringLiteral("Wykazy"), QStringLiteral("A"), QStringLiteral("1")}};
};

TEST_F(Schemat, NowaBazaMaStawkiIKonfiguracjeINicWiecej) {
  EXPECT_EQ(Liczba("select sum(Stawka) from Vat"), 2300 + 800 + 500 - 1);
  EXPECT_EQ(Liczba("select count(*) from Konfiguracja where Nazwa = 'NazwaSkrocona'"), 8);
  EXPECT_EQ(Liczba("select Wartosc from Konfiguracja where Nazwa = 'Wykazy' and Kolejnosc = 0"), 2);
  EXPECT_EQ(Liczba("select (select count(*) from Magazyn) + (select count(*) from Asort)"), 0);
}

TEST_F(Schemat, KazdyTowarMaStanWKazdymMagazynie) {
  DodajTowar();
  baza.ExecSQL("insert into Magazyn (Nazwa) values ('Sklep')");
  baza.ExecSQL("insert into Magazyn (Nazwa) values ('Zaplecze')");
  EXPECT_EQ(DodajTowar(), 2) << "a trigger's rows must not hide the good's identifier";
  EXPECT_EQ(Liczba("select count(*) from Istw where StanMag = 0 and BlokadaMag = 0 and CenaMag = 0"), 4);
}

TEST_F(Schemat, DrugieUtworzenieOdmawiaINicNieZmienia) {
  EXPECT_THROW(UtworzBaze(baza, kKonfiguracja), EBladBazy);
  EXPECT_FALSE(baza.GetCzyWTransakcji());
  EXPECT_EQ(Liczba("select count(*) from Vat"), 5);
}

TEST_F(Schemat, KluczeObcePilnujaTowaruAleNieStawekVat) {
  DodajTowar();
  EXPECT_THROW(baza.ExecSQL("update Towar set AsId = 77"), EBladBazy);
  EXPECT_THROW(baza.ExecSQL("insert into KodDod (TowId, Kolejnosc, Kod) values (99, 0, '5')"), EBladBazy);
  baza.ExecSQL("update Towar set Stawka = 2300");
  baza.ExecSQL("delete from Vat");
}

TEST_F(Schemat, DaneDemoSaSpojne) {
  DodajDaneDemo(baza);
  EXPECT_GT(Liczba("select count(*) from Towar"), 0);
  EXPECT_EQ(Liczba("select count(*) from Istw"),
            Liczba("select (select count(*) from Towar) * (select count(*) from Magazyn)"));
  EXPECT_EQ(Liczba("select count(*) from Towar where Stawka not in (select Stawka from Vat)"), 0);
  EXPECT_EQ(Liczba("select count(*) from Towar where length(Skrot) not between 1 and 18"), 0);
}

}  // namespace
