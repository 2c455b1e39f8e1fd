#include "model/stawki_vat.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "database/schemat.h"
#include "model/bledy.h"
#include "tests/wspolne/baza_testowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<int> Lista(const TVLTStawkiVat& stawki) {
  std::vector<int> lista;
  for (int i = 0; i < stawki.Ilosc(); ++i) lista.push_back(stawki.Stawka(i));
  return lista;
}

// What an action returns, or the code of its error with a minus.
template <class F>
int WynikLubBlad(F dzialanie) {
  try {
    return dzialanie();
  } catch (const EVLTWDError& blad) {
    return -blad.MacCode();
  }
}

TEST(StawkiVat, ZbiorMalejacy) {
  TVLTStawkiVat stawki, kopia;
  for (const int stawka : {0, 800, -5, 2300, 800, 20'000}) stawki.Dodaj(stawka);
  EXPECT_EQ(Lista(stawki), (std::vector{10'000, 2300, 800, 0, -1}));
  stawki.Usun(0);
  EXPECT_EQ(stawki.Indeks(-1), 3);
  EXPECT_EQ(stawki.Indeks(10'000), -1);
  kopia.Dodaj(1);
  kopia.Kopiuj(stawki);
  EXPECT_TRUE(kopia.Rowne(stawki));
  kopia.Usun(3);
  EXPECT_FALSE(kopia.Rowne(stawki));
  for (const int index : {-1, 3}) EXPECT_EQ(WynikLubBlad([&] { return kopia.Stawka(index); }), -2003);
}

TEST(StawkiVat, Teksty) {
  for (int stawka = kStawkaZwolniona; stawka <= kStawkaNajwyzsza; ++stawka)
    for (const bool procent : {false, true}) ASSERT_EQ(TekstNaStawke(StawkaNaTekst(stawka, procent)), stawka);
  EXPECT_EQ(StawkaNaTekst(2300, true), u"23 %"_s);
  EXPECT_EQ(StawkaNaTekst(550, false), u"5,5"_s);
  const std::pair<int, QString> przypadki[] = {
      {2300, u"23"_s},
      {550, u" 5.5 % |5,5"_s},
      {-1, u"zw|Zw 7|% zW|-0.01"_s},
      {10'000, u"100|100.004"_s},
      {-2401, u"100.01|-0.02||%|abc|nan|1e1|5,5,5|999999999999999999999"_s}};
  for (const auto& [wynik, teksty] : przypadki)
    for (const QString& tekst : teksty.split(u'|'))
      EXPECT_EQ(WynikLubBlad([&] { return TekstNaStawke(tekst); }), wynik) << tekst.toStdString();
}

TEST(StawkiVat, Przeliczenia) {
  EXPECT_DOUBLE_EQ(NettoZBrutto(12.20, 2200), 10.00);
  EXPECT_DOUBLE_EQ(BruttoZNetto(10, 2300), 12.30);
  EXPECT_DOUBLE_EQ(VatZNetto(10, 800), 0.80);
  EXPECT_DOUBLE_EQ(VatZBrutto(12.30, 2300), 2.30);
  for (const int stawka : {0, -1}) {
    EXPECT_EQ(std::pair(BruttoZNetto(7.77, stawka), NettoZBrutto(7.77, stawka)), std::pair(7.77, 7.77));
    EXPECT_EQ(VatZNetto(7.77, stawka) + VatZBrutto(7.77, stawka), 0);
  }
  const struct {
    double cena;
    bool brutto;
    ParaCen para;
  } przypadki[] = {{0.08, true, {0.07, 0.08, 0.01}},    // VAT is the difference
                   {1.005, false, {1.01, 1.24, 0.23}},  // halves go up though binary 1.005 lies below
                   {-9.99, true, {-8.12, -9.99, -1.87}}};
  for (const auto& p : przypadki) {
    const ParaCen para = ObliczPareCen(p.cena, p.brutto, 2300, 2);
    EXPECT_DOUBLE_EQ(para.netto, p.para.netto);
    EXPECT_DOUBLE_EQ(para.brutto, p.para.brutto);
    EXPECT_NEAR(para.vat, p.para.vat, 1e-9);
  }
}

class SlownikVat : public testing::Test {
 protected:
  void SetUp() override {
    UtworzBaze(b.baza, {});
    stawki.Wczytaj(b.baza);
  }
  BazaTestowa b;
  TVLTStawkiVat stawki;
};

TEST_F(SlownikVat, ZapisZastepujeCalySlownik) {
  b.baza.ExecSQL("insert into Vat (Stawka) values (12000)");
  stawki.Wczytaj(b.baza);
  EXPECT_EQ(Lista(stawki), (std::vector{2300, 800, 500, 0, -1})) << "out of range is left out, not clamped";
  stawki.Usun(0);
  stawki.Zapisz(b.baza);
  stawki.Wczytaj(b.baza);
  EXPECT_EQ(Lista(stawki), (std::vector{800, 500, 0, -1}));
  EXPECT_EQ(b.Tekst("select Opis from DziennikZmian where Tabela = 101 and Id1 = -1 and Id2 = -1"),
            u"Nowe stawki: 800, 500, 0, -1"_s);
}

TEST_F(SlownikVat, DopisanieWidziStawkiInnych) {
  b.baza.ExecSQL("insert into Vat (Stawka) values (700)");
  EXPECT_TRUE(stawki.DopiszDoBazy(b.baza, 400));
  EXPECT_EQ(Lista(stawki), (std::vector{2300, 800, 700, 500, 400, 0, -1}));
  EXPECT_FALSE(stawki.DopiszDoBazy(b.baza, 700));
}

TEST_F(SlownikVat, ZapisZmianZostawiaCoZrobiliInni) {
  TVLTStawkiVat poprzednie;
  poprzednie.Kopiuj(stawki);
  stawki.Usun(0);
  stawki.Dodaj(550);
  TVLTBazaDanych inna;
  b.Polacz(inna);
  inna.ExecSQL("insert into Vat (Stawka) values (700)");
  inna.ExecSQL("delete from Vat where Stawka = 500");
  stawki.ZapiszZmiany(b.baza, poprzednie);
  EXPECT_EQ(Lista(stawki), (std::vector{800, 700, 550, 0, -1}));
  TVLTStawkiVat wBazie;
  wBazie.Wczytaj(inna);
  EXPECT_EQ(Lista(wBazie), Lista(stawki));
  EXPECT_EQ(b.OstatniWpis(), u"Nowe stawki: 800, 700, 550, 0, -1"_s);
}

TEST_F(SlownikVat, NieudanyZapisNieZmieniaNiczego) {
  const std::vector<int> bylo = Lista(stawki);
  for (const bool wTransakcji : {false, true}) {
    for (const auto* polecenie :
         {"select Stawka", "delete from Vat", "insert into Vat", "insert into Dziennik"}) {
      SCOPED_TRACE(polecenie);
      if (wTransakcji) b.baza.StartTransakcji();
      b.baza.UstawPodsluch([&](std::string_view sql) {
        if (sql.starts_with(polecenie)) throw std::runtime_error("broken");
      });
      EXPECT_THROW(stawki.DopiszDoBazy(b.baza, 123), std::runtime_error);
      b.baza.UstawPodsluch({});
      EXPECT_EQ(b.baza.GetCzyWTransakcji(), wTransakcji);
      if (wTransakcji) b.baza.KoniecTransakcji();
      EXPECT_EQ(Lista(stawki), bylo);
      EXPECT_EQ(b.Liczba("select count(*) from Vat") + b.Liczba("select count(*) from DziennikZmian"), 5);
    }
  }
}

}  // namespace
