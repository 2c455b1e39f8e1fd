#include "database/schemat.h"

#include <gmock/gmock.h>

#include "tests/wspolne/baza_testowa.h"

using namespace Qt::Literals::StringLiterals;

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
  EXPECT_EQ(Kolumna("select Stawka from Vat order by Stawka", TypPola::Calkowite), u"-1,0,500,800,2300"_s);
  EXPECT_EQ(Kolumna("select Wartosc from Konfiguracja where Nazwa = 'NazwaSkrocona' order by Kolejnosc",
                    TypPola::Tekst, u'|'),
            u"0|1|1|.,-/%&+|32||1|18"_s);
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
  // Gross prices in grosze, and who makes the good.
  EXPECT_EQ(Kolumna("select T.Kod || ' ' || round(T.CenaDet * (10000 + T.Stawka) / 100) || ' ' || K.Skrot"
                    " from Towar T, Kontrahent K where K.KontrId = T.Producent and T.Kod in ('5909912001653',"
                    " '5909918001527') order by T.Kod")
                .remove(u".0"_s),
            u"5909912001653 189 Źródło,5909918001527 3757 Świt"_s);
}

}  // namespace
