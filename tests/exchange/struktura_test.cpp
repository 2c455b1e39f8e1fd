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

// The letters as each page has them; the two last ones are not offered. Other bytes stay.
TEST(StronyKodowe, LiteryNaKazdejStronie) {
  const QString litery = u"ĄĆĘŁŃÓŚŻŹąćęłńóśżź"_s;
  const std::string strony[] = {"\xA5\xC6\xCA\xA3\xD1\xD3\x8C\xAF\x8F\xB9\xE6\xEA\xB3\xF1\xF3\x9C\xBF\x9F",
                                "\xA4\x8F\xA8\x9D\xE3\xE0\x97\xBD\x8D\xA5\x86\xA9\x88\xE4\xA2\x98\xBE\xAB",
                                "\x8F\x95\x90\x9C\xA5\xA3\x98\xA1\xA0\x86\x8D\x91\x92\xA4\xA2\x9E\xA7\xA6",
                                "ACELNOSZXacelnoszx",
                                "\x80\x82\x84\x8B\x8D\x8E\x92\x97\x99\xA0\xA2\xA4\xAB\xAD\xAE\xB2\xB7\xB9",
                                "\x80\x81\x82\x83\x84\x85\x86\x88\x87\x89\x8A\x8B\x8C\x8D\x8E\x8F\x91\x90"};
  for (int strona = 0; strona < 6; ++strona) {
    std::string bajty = "z" + strony[0] + "\x81";
    KonwertujStrone(bajty, 0, strona);
    EXPECT_EQ(bajty, "z" + strony[strona] + "\x81") << strona;
    if (strona == 3) continue;  // has no letters of its own
    KonwertujStrone(bajty, strona, 0);
    EXPECT_EQ(bajty.substr(1, 18), strony[0]) << strona;
  }
  for (int strona = 0; strona < 4; ++strona) {
    EXPECT_EQ(BajtyNaStronie(litery, StronaKodowa(strona)), strony[strona]);
    EXPECT_EQ(TekstZeStrony(strony[strona], StronaKodowa(strona)),
              strona == 3 ? u"ACELNOSZXacelnoszx"_s : litery);
  }
}

}  // namespace
