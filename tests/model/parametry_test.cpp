#include <set>

#include <gtest/gtest.h>

#include "database/schemat.h"
#include "model/bledy.h"
#include "model/kody_wlasne.h"
#include "model/parametry_systemu.h"
#include "model/reguly_kodow.h"
#include "tests/wspolne/baza_testowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(ParametrySystemu, RejestrMaKazdyIdentyfikator) {
  std::set<QString> nazwy;
  for (int id = 0; id < ParametrySystemu::kIlosc; ++id) nazwy.insert(ParametrySystemu::Opis(id).nazwa);
  EXPECT_EQ(nazwy.size(), 176u);
  const std::pair<int, QString> przypadki[] = {
      {5, u"MinKodKreskowy"_s},     {22, u"ZamrozonaPrzecenaZKarty"_s}, {36, u"WysNaKasyNowyTowar"_s},
      {41, u"ZakupyKwotyBrutto"_s}, {79, u"SprzedazPodatekOdBrutto"_s}, {80, u"Parametr80"_s}};
  for (const auto& [id, nazwa] : przypadki) EXPECT_EQ(ParametrySystemu::Opis(id).nazwa, nazwa);
  for (const int id : {-1, 176}) {
    try {
      ParametrySystemu().Parametr(id);
      ADD_FAILURE() << id;
    } catch (const EVLTWDError& blad) {
      EXPECT_EQ(blad.MacCode(), 2008);
    }
  }
}

TEST(ParametrySystemu, WartosciPrzychodzaZBazyAlboSaDomyslne) {
  BazaTestowa b;
  std::vector<WpisKonfiguracji> wpisy = {{u"Kasy"_s, u"DaneLogistyczne"_s, u" 7 "_s}};
  for (const auto& [nazwa, wartosc] : ParametrySystemu::DomyslneKodowICen())
    wpisy.push_back({ParametrySystemu::KonfiguracjaKodow(), nazwa, wartosc});
  EXPECT_EQ(wpisy.size(), 35u);
  UtworzBaze(b.baza, wpisy);
  b.baza.ExecSQL("update Konfiguracja set Wartosc = '8' where Parametr = 'MaxKodKreskowy'");
  b.baza.ExecSQL("update Konfiguracja set Wartosc = 'abc' where Parametr = 'MinKodKreskowy'");
  ParametrySystemu parametry;
  EXPECT_EQ(parametry[IdParametru::MaxKodKreskowy].AsInteger(), 13);
  parametry.Wczytaj(b.baza);
  EXPECT_EQ(parametry[IdParametru::MaxKodKreskowy].AsInteger(), 8);
  EXPECT_EQ(parametry[IdParametru::MinKodKreskowy].AsInteger(), 1);
  EXPECT_EQ(parametry.Parametr(33).AsInteger(), 7);
  EXPECT_EQ(parametry.Parametr(100).AsInteger(), 0);
  EXPECT_FALSE(parametry[IdParametru::LiteryWKodzieKreskowym].AsFlag());
}

TEST(ParametrySystemu, WypelniajaRegulyKodow) {
  using enum IdParametru;
  ParametrySystemu parametry;
  const IdParametru id[] = {
      MinKodKreskowy,         MaxKodKreskowy,      LiteryWKodzieKreskowym,        KodyZaczynajaceSieOdZera,
      SprawdzacSumeKoduEAN,   AutomatyczneWazone,  KodyKrotkieDoWazonych,         MinKodKrotkiDoWazonego,
      MaxKodKrotkiDoWazonego, JakTworzycKodWlasny, WykorzystanieZwolnionychKodow, PrefixKoduWlasnego,
      PierwszyKodWlasny};
  const QStringList wartosci = u"4 9 1 1 0 1 2 10 50 2 0 300 77"_s.split(u' ');
  for (int i = 0; i < wartosci.size(); ++i) parametry.Ustaw(id[i], wartosci[i]);
  const RegulyKodow r = RegulyKodow::ZParametrow(parametry, {});
  EXPECT_EQ(std::tuple(r.minDlugosc, r.maxDlugosc, r.minKodKrotki, r.maxKodKrotki), std::tuple(4, 9, 10, 50));
  EXPECT_TRUE(r.litery && r.zeroNaPoczatku && !r.sprawdzacSume && r.uzupelniacWazone);
  EXPECT_EQ(r.kodyKrotkie, RegulyKodow::KodyKrotkie::ObcinajZera);
  const auto u = UstawieniaKodowWlasnych::ZParametrow(parametry);
  EXPECT_EQ(u.forma, UstawieniaKodowWlasnych::Forma::Ean13);
  EXPECT_EQ(std::tuple(u.zwolnione, u.prefiks, u.pierwszy), std::tuple(false, 209, 77LL));
}

}  // namespace
