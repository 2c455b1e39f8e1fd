#include <gtest/gtest.h>

#include "exchange/format_liczb.h"
#include "exchange/zapis_rekordow.h"
#include "tests/exchange/pliki_probne.h"

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(FormatLiczby, ZeraIZnakDziesietny) {
  const struct {
    double wartosc;
    char separator;
    const char* tekst;
  } przypadki[] = {
      {12.5, ',', "12,5"},          {3, ',', "3,0"},          {0, ',', "0,0"},      {-100, ',', "-100,0"},
      {0.1234564, ',', "0,123456"}, {12.5, '.', "12.500000"}, {3, '.', "3.000000"},
  };
  for (const auto& p : przypadki) EXPECT_EQ(FormatLiczby(p.wartosc, p.separator), p.tekst);
}

TEST(ZapisRekordow, LiniaNaRekord) {
  const PlikProbny plik("to zniknie");
  const auto tresc = [&plik] {
    QFile wynik(plik.Sciezka());
    return wynik.open(QIODevice::ReadOnly) ? wynik.readAll().toStdString() : "brak";
  };
  ZapisRekordow zapis;
  ASSERT_TRUE(zapis.Otworz(plik.Sciezka()));
  EXPECT_TRUE(zapis.Zamknij());
  EXPECT_EQ(tresc(), "to zniknie") << "an export that has written nothing leaves the file as it was";
  ASSERT_TRUE(zapis.Otworz(plik.Sciezka()));
  zapis.Pole(u"");
  zapis.Pole(u"ża\r\nb\nc\r\r\n");
  zapis.PoleAscii("0.00");
  zapis.Pole(u"中x\t\U0001F600");
  EXPECT_TRUE(zapis.ZapiszRekord());
  EXPECT_EQ(zapis.BrakujacychZnakow(), 2);
  zapis.Pole(u"ok");
  EXPECT_TRUE(zapis.ZapiszRekord());
  EXPECT_EQ(zapis.BrakujacychZnakow(), 0);
  EXPECT_TRUE(zapis.Zamknij());
  EXPECT_EQ(tresc(),
            "\t\xBF"
            "a b c  \t0.00\t?x\t?\r\nok\r\n");
}

}  // namespace
