#include <gtest/gtest.h>

#include "exchange/strony_kodowe.h"
#include "exchange/struktura_pliku.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto kTowary = RodzajRekordu::Towary;
constexpr auto kKontrahenci = RodzajRekordu::Kontrahenci;

TEST(KatalogPol, NumerJestMiejscemWKatalogu) {
  for (const RodzajRekordu rodzaj : {kTowary, kKontrahenci}) {
    const auto katalog = KatalogPol(rodzaj);
    ASSERT_EQ(static_cast<int>(katalog.size()), LiczbaWartosci(rodzaj) + 1);
    for (size_t i = 0; i < katalog.size(); ++i) EXPECT_EQ(katalog[i].numer, static_cast<int>(i));
    for (int i = 0; i < LiczbaPolOferowanych(rodzaj); ++i)
      EXPECT_FALSE(NazwaPozycjiOferowanej(rodzaj, i).isEmpty());
    EXPECT_EQ(NazwaPozycjiOferowanej(rodzaj, LiczbaPolOferowanych(rodzaj)), QString());
  }
  // Goods are shifted by the barcode, contractors are not.
  EXPECT_EQ(NazwaPozycjiOferowanej(kTowary, 28), u"Producent towaru"_s);
  EXPECT_EQ(NazwaPozycjiOferowanej(kKontrahenci, 16), u"Numer anlityki"_s);
}

TEST(WpisPola, CzesciTekstu) {
  const struct {
    QString tekst;
    std::optional<int> numer, szerokosc;
    QString nazwa;
  } przypadki[] = {
      {u"0113"_s, 1, 13, u"13"_s},
      {u"31   20"_s, 31, 20, u"20"_s},
      {u"05NAZWA"_s, 5, {}, u"NAZWA"_s},
      {u"0712345678"_s, 7, 12345, u"12345678"_s},
      {u"x1 4"_s, {}, 4, u"4"_s},
      {u""_s, {}, {}, u""_s},
      {u"99abcdefghijklmnopqrstuvwxyz"_s, 99, {}, u"abcdefghijklmnopqrst"_s},
  };
  for (const auto& p : przypadki) {
    const WpisPola wpis(p.tekst);
    EXPECT_EQ(wpis.Numer(), p.numer) << p.tekst.toStdString();
    EXPECT_EQ(wpis.Szerokosc(), p.szerokosc) << p.tekst.toStdString();
    EXPECT_EQ(wpis.Nazwa(), p.nazwa);
  }
  EXPECT_EQ(WpisPola(3, u"KOD"_s).Tekst(), u"03KOD"_s);
}

TEST(OpisVat, ObaWyrownaniaKodu) {
  const struct {
    QString tekst, kod, opis, stawka;
  } przypadki[] = {
      {u"23VAT 23"_s, u"23"_s, u"VAT 23"_s, u"2300"_s},
      {u"5 A"_s, u"5"_s, u"A"_s, u"500"_s},
      {u" 5A"_s, u"5"_s, u"A"_s, u"500"_s},
      {u"-1ZW"_s, u"-1"_s, u"ZW"_s, u"-1"_s},
      {u"08piętnaście znaków i dalej"_s, u"08"_s, u"piętnaście znak"_s, u"0800"_s},
  };
  for (const auto& p : przypadki) {
    const OpisVat opis(p.tekst);
    EXPECT_EQ(opis.Kod(), p.kod);
    EXPECT_EQ(opis.Opis(), p.opis);
    EXPECT_EQ(opis.Stawka(), p.stawka);
  }
  EXPECT_EQ(OpisVat(u"5"_s, u"A"_s).Tekst(), u"5 A"_s);
  EXPECT_EQ(EtykietaStawki(5), u" 5 %"_s);
}

TEST(StrukturaPliku, UkladWlasnyMaStaleSlowa) {
  StrukturaPliku s(kTowary);
  s.EdPoleUsuniety = s.EdPoleTypUsluga = s.EdPoleAktywny = u"x"_s;
  s.PrzyjmijTypPliku(TypPliku::DBase);
  EXPECT_FALSE(s.CBNieAnalizujPierwszejLinii);
  s.CBTypPliku = TypPliku::Zorvik;
  EXPECT_TRUE(s.PomijaPierwszaLinie());
  EXPECT_EQ(s.EdPoleTypUsluga, u"x"_s);
  s.PrzyjmijTypPliku(TypPliku::Zorvik);
  EXPECT_TRUE(s.CBNieAnalizujPierwszejLinii);
  EXPECT_EQ(s.EdPoleAktywny + s.EdPoleUsuniety + s.EdPoleTypUsluga, u"102"_s);
}

TEST(StrukturaPliku, PolaIOferowane) {
  StrukturaPliku s(kTowary);
  s.pola = {WpisPola(u"00"_s), WpisPola(u"32"_s), WpisPola(u"zz"_s), WpisPola(u"-5"_s), WpisPola(u"31"_s)};
  EXPECT_EQ(s.Pola().count(), 2U);
  EXPECT_TRUE(s.ZawieraPole(PoleTowaru::Nieinterpretowane));
  EXPECT_FALSE(s.ZawieraPole(PoleTowaru::Nazwa));
  s.UstawOferowane(PoleTowaru::Stan, false);
  EXPECT_EQ(s.oferowane[27], 0);
  EXPECT_FALSE(s.CzyOferowane(PoleTowaru::Stan));
  EXPECT_TRUE(s.CzyOferowane(PoleTowaru::Kod));
}

TEST(StrukturaPliku, OdmowyDialogow) {
  EXPECT_EQ(SprawdzSlowaStatusu(u""_s, u""_s)->tekst,
            u"Pola 'Aktywny' i 'Usunięty' nie mogą być takie same"_s);
  EXPECT_FALSE(SprawdzSlowaStatusu(u"T"_s, u"t"_s));
  const std::vector<WpisPola> bezKodu = {WpisPola(u"01"_s), WpisPola(u""_s)};
  EXPECT_EQ(SprawdzListePol(kTowary, bezKodu)->naglowek, u"UWAGA"_s);
  EXPECT_FALSE(SprawdzListePol(kKontrahenci, bezKodu));
  EXPECT_FALSE(SprawdzListePol(kTowary, {WpisPola(u"00"_s)}));
}

TEST(StronyKodowe, LiteryNaKazdejStronie) {
  const QString litery = u"ĄĆĘŁŃÓŚŻŹąćęłńóśżź"_s;
  for (const auto strona : {StronaKodowa::Windows, StronaKodowa::LatinII, StronaKodowa::Mazovia})
    EXPECT_EQ(TekstZeStrony(BajtyNaStronie(litery, strona), strona), litery) << static_cast<int>(strona);
  EXPECT_EQ(BajtyNaStronie(u"Źrebię, Żółw", StronaKodowa::Ascii), "Xrebie, Zolw");
}

TEST(StronyKodowe, InneBajtyZostaja) {
  std::string tekst = "a\xB3\x81z";
  KonwertujStrone(tekst, 0, 2);
  EXPECT_EQ(tekst, "a\x92\x81z");
  tekst = "\xA5\xBF";
  KonwertujStrone(tekst, 0, 5);
  EXPECT_EQ(tekst, "\x80\x91");
}

}  // namespace
