#include "model/reguly_kodow.h"

#include <gtest/gtest.h>

#include "database/schemat.h"
#include "model/kontekst.h"
#include "model/parametry_systemu.h"
#include "tests/wspolne/baza_testowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

RegulyKodow Reguly() {
  RegulyKodow reguly;
  for (const int czescStala : {0, 2, 5}) reguly.formaty.Dodaj({27, czescStala});
  reguly.formaty.Dodaj({29, 4});
  return reguly;
}

TEST(RegulyKodow, KazdaRegulaOdmawiaSwoimKodem) {
  using Zmiana = void (*)(RegulyKodow&);
  const Zmiana bezZmian = [](RegulyKodow&) {};
  const Zmiana litery = [](RegulyKodow& r) { r.litery = true; };
  const Zmiana zero = [](RegulyKodow& r) { r.zeroNaPoczatku = true; };
  const Zmiana bezSumy = [](RegulyKodow& r) { r.sprawdzacSume = false; };
  const Zmiana dlugie = [](RegulyKodow& r) { r.minDlugosc = 3, r.maxDlugosc = 20; };
  const struct {
    Zmiana zmiana;
    OdmowaKodu odmowa;
    QString kody;
  } przypadki[] = {{bezZmian, OdmowaKodu::Brak, u"1|5901234123457|96385074|590123412345|2712345??????"_s},
                   {bezZmian, OdmowaKodu::Dlugosc, u"|12345678901234"_s},
                   {bezZmian, OdmowaKodu::Format, u"27123????????|28?????|?|1?3"_s},
                   {bezZmian, OdmowaKodu::Litery, u"12A4|٣٤"_s},
                   {bezZmian, OdmowaKodu::Zero, u"0123|00000000"_s},
                   {bezZmian, OdmowaKodu::SumaKontrolna, u"5901234123458|96385075"_s},
                   {dlugie, OdmowaKodu::Brak, u"123|12345678901234567890"_s},
                   {dlugie, OdmowaKodu::Dlugosc, u"12"_s},
                   {litery, OdmowaKodu::Brak, u"12A-4"_s},
                   {litery, OdmowaKodu::Format, u"12 4|1\n"_s},
                   {zero, OdmowaKodu::Brak, u"0123"_s},
                   {bezSumy, OdmowaKodu::Brak, u"5901234123458|96385075"_s}};
  for (const auto& p : przypadki) {
    for (const QString& kod : p.kody.split(u'|')) {
      SCOPED_TRACE(kod.toStdString());
      RegulyKodow reguly = Reguly();
      p.zmiana(reguly);
      const WynikKodu wynik = reguly.Sprawdz(kod);
      const bool dobry = p.odmowa == OdmowaKodu::Brak;
      EXPECT_EQ(wynik.odmowa, p.odmowa);
      EXPECT_EQ(wynik.kod, dobry ? 0 : p.odmowa == OdmowaKodu::SumaKontrolna ? 2826 : 2404);
      EXPECT_EQ(wynik.szczegol, dobry ? QString() : kod);
      EXPECT_EQ(reguly.SprawdzDlugoscIFormat(kod).Dobry(),
                p.odmowa != OdmowaKodu::Dlugosc && p.odmowa != OdmowaKodu::Format);
    }
  }
}

TEST(RegulyKodow, MiejsceKoduWybieraNumerBledu) {
  const RegulyKodow r = Reguly();
  const struct {
    QString kod;
    std::array<int, 4> bledy;  // main code of a "towar", of anything else, additional, automatic
  } przypadki[] = {{u"1234"_s, {0, 0, 0, 0}},
                   {u"A1"_s, {2894, 2894, 2895, 2896}},
                   {u"5901234123458"_s, {2826, 2826, 2826, 2896}},
                   {u"291234?????"_s, {0, 2821, 2827, 2896}}};
  for (const auto& p : przypadki)
    EXPECT_EQ((std::array{r.SprawdzGlowny(p.kod, true).kod, r.SprawdzGlowny(p.kod, false).kod,
                          r.SprawdzDodatkowy(p.kod).kod, r.SprawdzAutomatyczny(p.kod).kod}),
              p.bledy);
}

TEST(RegulyKodow, RodzajeIPostacieKodowWazonych) {
  RegulyKodow reguly = Reguly();
  reguly.uzupelniacWazone = true;
  reguly.kodyKrotkie = RegulyKodow::KodyKrotkie::WedlugZera;
  reguly.maxKodKrotki = 99'999;
  const std::tuple<QString, RodzajKodu, QString> przypadki[] = {
      {u"5901234123457|2801234123457"_s, RodzajKodu::Ean13, {}},
      {u"590123412345"_s, RodzajKodu::Upc12, {}},
      {u"96385074"_s, RodzajKodu::Ean8, {}},
      {u"1234|A1|27|27123"_s, RodzajKodu::Inny, {}},
      {u"27?????|99?|2700000??????"_s, RodzajKodu::Wazony, {}},
      {u"2700123??????|2700123004567"_s, RodzajKodu::Wazony, u"123"_s}};
  for (const auto& [kody, rodzaj, krotki] : przypadki) {
    for (const QString& kod : kody.split(u'|')) {
      SCOPED_TRACE(kod.toStdString());
      EXPECT_EQ(reguly.Rodzaj(kod), rodzaj);
      EXPECT_EQ(reguly.Normalizuj(kod), kod);
      EXPECT_EQ(reguly.KodKrotki(kod), krotki);
    }
  }
  EXPECT_EQ(reguly.Normalizuj(u"2712345"_s), u"2712345??????"_s);
  EXPECT_EQ(reguly.KodKrotki(u"2712345"_s), u"12345"_s);
  const QString kod = u"2700123??????"_s;
  reguly.zeroNaPoczatku = true;
  EXPECT_EQ(reguly.KodKrotki(kod), u"00123"_s);
  reguly.kodyKrotkie = RegulyKodow::KodyKrotkie::ObcinajZera;
  EXPECT_EQ(reguly.KodKrotki(kod), u"123"_s);
  const std::tuple<int, int, QString> granice[] = {
      {1, 122, {}}, {1, 123, u"123"_s}, {123, 999, u"123"_s}, {124, 999, {}}};
  for (const auto& [najnizszy, najwyzszy, krotki] : granice) {
    reguly.minKodKrotki = najnizszy;
    reguly.maxKodKrotki = najwyzszy;
    EXPECT_EQ(reguly.KodKrotki(kod), krotki) << najnizszy << '-' << najwyzszy;
  }
}

TEST(KodyWazone, MaskaDajeFormat) {
  using F = FormatKoduWazonego;
  const std::pair<QString, std::optional<F>> przypadki[] = {
      {u"27?????"_s, F{27, 0}}, {u"2712?"_s, F{27, 2}}, {u"01123??"_s, F{1, 3}}, {u"2?????"_s, {}},
      {u"A7??"_s, {}},          {u"?2712"_s, {}},       {u"2712"_s, {}},         {u"2"_s, {}}};
  for (const auto& [maska, format] : przypadki) EXPECT_EQ(FormatZMaski(maska), format) << maska.toStdString();
  FormatyKodowWazonych formaty;
  for (const F zly : {F{100, 1}, F{-1, 1}, F{27, 32}, F{27, -1}}) {
    formaty.Dodaj(zly);
    EXPECT_FALSE(formaty.Zawiera(zly));
  }
}

TEST(KodyWazone, FormatWracaZBazyIDochodziDoListy) {
  BazaTestowa b;
  UtworzBaze(b.baza, {});
  const ParametrySystemu parametry;
  KontekstSesji kontekst{b.baza, parametry};
  TDmVLTListaKodowWazonych lista(kontekst);
  lista.Otworz();
  TDmVLTKodWazony nowy(kontekst);
  nowy.Nowy();
  nowy.UstawNazwe(u"KW typ 1"_s);
  nowy.UstawFormat({27, 5});
  const int id = nowy.Zapisz();
  lista.DodajElement(id);
  EXPECT_TRUE(lista.Formaty().Zawiera({27, 5}));

  TDmVLTKodWazony kod(kontekst);
  kod.Wczytaj(id);
  EXPECT_EQ(kod.Nazwa(), u"KW typ 1"_s);
  kod.UstawFormat({28, 4});
  kod.UstawWartoscWKodzie(1);
  kod.UstawDodKontrola(2);
  EXPECT_EQ(kod.Zapisz(), id);
  kod.Wczytaj(id);
  EXPECT_EQ(kod.WartoscWKodzie() * 10 + kod.DodKontrola(), 12);
  lista.Otworz();
  EXPECT_EQ(lista.Ilosc(), 1);
  EXPECT_FALSE(lista.Formaty().Zawiera({27, 5}));
  EXPECT_TRUE(lista.Formaty().Zawiera({28, 4}));
}

}  // namespace
