#include "model/kody_wlasne.h"

#include <gtest/gtest.h>

#include "database/schemat.h"
#include "model/bufor_towarow.h"
#include "model/parametry_systemu.h"
#include "model/reguly_kodow.h"
#include "tests/wspolne/baza_testowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Forma = UstawieniaKodowWlasnych::Forma;

class WlasneKody : public testing::Test {
 protected:
  void SetUp() override { UtworzBaze(b.baza, {}); }

  void DodajTowar(const QString& kod, const QString& dodatkowy = {}) {
    const int id = b.baza.WstawOdRazu(
        "TowId", "insert into Towar (Nazwa, Skrot, Kod) values ('n', 's', :Kod)", {{"Kod", kod}});
    if (bufor.Gotowy()) bufor.Dodaj(id, {{}, kod, {}, {}, {}});
    if (!dodatkowy.isEmpty())
      b.baza.ExecSQL("insert into KodDod (TowId, Kolejnosc, Kod) values (:TowId, 0, :Kod)",
                     {{"TowId", id}, {"Kod", dodatkowy}});
  }
  KodyWlasne Kody(UstawieniaKodowWlasnych ustawienia) { return {b.baza, bufor, reguly, ustawienia}; }
  // Gives a code out as an import does.
  QString Nadaj(KodyWlasne& kody) {
    const auto kod = kody.Zaproponuj();
    if (!kod) return {};
    DodajTowar(*kod);
    kody.Potwierdz(*kod);
    return *kod;
  }

  BazaTestowa b;
  TVLTBuforTowarow bufor;
  RegulyKodow reguly;
};

TEST_F(WlasneKody, UkladKazdejFormy) {
  const std::pair<UstawieniaKodowWlasnych, QString> przypadki[] = {
      {{}, u"1001"_s},
      {{Forma::Ean8, true, 200, 1001}, u"20010010"_s},
      {{Forma::Ean13, true, 209, 1001}, u"2090000010015"_s},
      {{Forma::Kolejny, true, 200, 30'000'000}, u"30000001"_s}};
  for (const auto& [ustawienia, oczekiwany] : przypadki) {
    KodyWlasne kody = Kody(ustawienia);
    const auto kod = kody.Zaproponuj();
    ASSERT_TRUE(kod);
    EXPECT_EQ(*kod, oczekiwany);
    EXPECT_TRUE(reguly.Sprawdz(*kod).Dobry());
    EXPECT_EQ(kody.Zaproponuj(), kod) << "an unconfirmed code is proposed again";
  }
}

TEST_F(WlasneKody, ZwolnioneNumeryWracajaAleZajeteNie) {
  DodajTowar(u"1001"_s, u"1003"_s);
  DodajTowar(u"1005"_s);
  for (const bool zBuforem : {false, true}) {
    SCOPED_TRACE(zBuforem);
    ASSERT_TRUE(!zBuforem || bufor.Napelnij(b.baza));
    KodyWlasne kody = Kody({});
    EXPECT_EQ(Nadaj(kody), zBuforem ? u"1007"_s : u"1002"_s);
    DodajTowar(zBuforem ? u"1008"_s : u"1006"_s);  // brought by the file itself
    EXPECT_EQ(Nadaj(kody), zBuforem ? u"1009"_s : u"1004"_s);
  }
}

TEST_F(WlasneKody, BezZwolnionychIdzieZaNajwyzszym) {
  DodajTowar(u"1001"_s, u"1010"_s);
  DodajTowar(u"5901234123457"_s, u"0002000"_s);  // no numbers of the sequence
  KodyWlasne kody = Kody({Forma::Kolejny, false, 200, 1001});
  EXPECT_EQ(Nadaj(kody), u"1011"_s);
  DodajTowar(u"1500"_s);
  kody.Potwierdz(u"1500"_s);
  EXPECT_EQ(Nadaj(kody), u"1501"_s);

  KodyWlasne ean = Kody({Forma::Ean8, false, 200, 9'998});
  EXPECT_EQ(Nadaj(ean), u"20099985"_s);
  EXPECT_EQ(Nadaj(ean), u"20099992"_s);
  EXPECT_FALSE(ean.Zaproponuj()) << "four digits are used up";
  DodajTowar(u"20199999"_s);
  EXPECT_FALSE(Kody({Forma::Ean8, false, 201, 1'001}).Zaproponuj()) << "the highest number is taken";
}

TEST_F(WlasneKody, KolejnyNumerMusiBycZwyklymKodem) {
  reguly.formaty.Dodaj({27, 2});
  EXPECT_EQ(Kody({Forma::Kolejny, true, 200, 2'700}).Zaproponuj(), u"2800"_s);
  reguly.minDlugosc = 6;
  EXPECT_EQ(Kody({}).Zaproponuj(), u"100000"_s);
}

TEST_F(WlasneKody, KodInnegoPolaczeniaNieJestWolny) {
  ASSERT_TRUE(bufor.Napelnij(b.baza));
  KodyWlasne kody = Kody({});
  EXPECT_EQ(kody.Zaproponuj(), u"1001"_s);
  TVLTBazaDanych obca;
  b.Polacz(obca);
  obca.ExecSQL("insert into Towar (Nazwa, Skrot, Kod) values ('n', 's', '1001')");
  bufor.SprawdzObceZmiany(b.baza);
  EXPECT_EQ(kody.Zaproponuj(), u"1002"_s);
}

}  // namespace
