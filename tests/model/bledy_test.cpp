#include "model/bledy.h"

#include <gtest/gtest.h>

#include "model/katalog_bledow.h"

namespace {

TEST(Bledy, OpisWedlugPostaci) {
  const struct {
    int kod;
    QString szczegol;
    QString opis;
  } przypadki[] = {
      {2002, QStringLiteral("x"), QStringLiteral("Sesja nie jest otwarta")},
      {2003, QStringLiteral("17"),
       QStringLiteral("Lista nieaktywna lub przekroczony zakres listy.\r\nWartość indeksu: 17")},
      {2819, QStringLiteral("MLEKO"), QStringLiteral("MLEKO")},
      {2009, QStringLiteral("x"), QString()},
      {2821,
       {},
       QStringLiteral("Wprowadzony kod główny jest kodem ważonym, a status towaru jest inny niż \"towar\"")},
      {2826, QStringLiteral("12345678"),
       QStringLiteral("Wprowadzony kod EAN 8: 12345678 ma źle wyliczoną sumę kontrolną")},
      {2826, QStringLiteral("%1%2%3%4%1%2x"),
       QStringLiteral("Wprowadzony kod EAN 13: %1%2%3%4%1%2x ma źle wyliczoną sumę kontrolną")},
      {2826, QStringLiteral("123456789012"),
       QStringLiteral("Wprowadzony kod EAN ma źle wyliczoną sumę kontrolną")},
      {2896, QStringLiteral("5"),
       QStringLiteral(
           "Program próbował dla towaru ważonego dodać kod dodatkowy: 5\r\nTaki kod nie jest zgodny z "
           "obsługiwanymi przez program formatami kodów kreskowych.")},
  };
  for (const auto& przypadek : przypadki)
    EXPECT_EQ(EVLTWDError(przypadek.kod, nullptr, przypadek.szczegol).MacDescription(), przypadek.opis)
        << przypadek.kod;
  EXPECT_EQ(EVLTWDError(2866).MacMessage(), QStringLiteral("Przedostek kodu ważonego nie jest unikalny"));
  EXPECT_EQ(EVLTWinError(3401, nullptr, QStringLiteral("590")).MacDescription(), QStringLiteral("590"));
  EXPECT_EQ(EVLTWinError(3811).MacMessage(), EVLTWinError(3812).MacMessage());
  // A code in nobody's catalogue, and one of the other catalogue.
  for (const int kod : {2999, 3401, -5}) EXPECT_TRUE(EVLTWDError(kod).MacMessage().isEmpty()) << kod;
}

TEST(Bledy, GraniceZakresow) {
  using enum KlasaBledu;
  const struct {
    int kod;
    const char16_t* naglowek;
    KlasaBledu klasa;
  } dane[] = {{-1, u"Wystąpił błąd", Blad},
              {2299, u"Wystąpił błąd", Blad},
              {2300, u"Bład sterownika", Ostrzezenie},
              {2350, u"Bład sterownika", Ostrzezenie},
              {2351, u"Informacja sterownika", Informacja},
              {2399, u"Informacja sterownika", Informacja},
              {2400, u"Błąd wprowadzania danych", Ostrzezenie},
              {2799, u"Błąd wprowadzania danych", Ostrzezenie},
              {2999, u"Operacja nie może zostać wykonana", Ostrzezenie}},
    okna[] = {{3399, u"Wystąpił błąd", Blad},
              {3400, u"Błąd wprowadzania danych", Ostrzezenie},
              {3799, u"Błąd wprowadzania danych", Ostrzezenie},
              {3800, u"Operacja nie może zostać wykonana", Ostrzezenie}};
  const auto sprawdz = [](const EMException& blad, const auto& oczekiwane) {
    EXPECT_EQ(blad.Naglowek(), QStringView(oczekiwane.naglowek)) << oczekiwane.kod;
    EXPECT_EQ(blad.Klasa(), oczekiwane.klasa) << oczekiwane.kod;
  };
  for (const auto& oczekiwane : dane) sprawdz(EVLTWDError(oczekiwane.kod), oczekiwane);
  for (const auto& oczekiwane : okna) sprawdz(EVLTWinError(oczekiwane.kod), oczekiwane);
}

// The look-up halves the catalogue, so an entry out of its place would not be found.
TEST(Bledy, KazdaPozycjaJestZnajdowana) {
  const auto ile = [](katalog_bledow::Katalog katalog, int od, int doKodu) {
    int znalezione = 0;
    for (int kod = od; kod <= doKodu; ++kod)
      znalezione += katalog_bledow::Szukaj(katalog, kod, {}).tytul.isEmpty() ? 0 : 1;
    return znalezione;
  };
  EXPECT_EQ(ile(katalog_bledow::Katalog::Dane, 2001, 2912), 147);
  EXPECT_EQ(ile(katalog_bledow::Katalog::Okna, 3001, 3865), 73);
}

TEST(Bledy, KopiaPrzezGranice) {
  const auto przyczyna = std::make_shared<const EVLTWDError>(2001);
  const EVLTWDError zrodlo(2003, przyczyna, QStringLiteral("17"));
  EXPECT_EQ(zrodlo.Przyczyna(), przyczyna.get());
  const std::unique_ptr<EMException> kopia = zrodlo.Clone();
  auto* kopiaWd = dynamic_cast<EVLTWDError*>(kopia.get());
  ASSERT_NE(kopiaWd, nullptr);
  EXPECT_EQ(kopiaWd->MacCode(), 2003);
  EXPECT_EQ(kopiaWd->Przyczyna(), nullptr);
  EXPECT_TRUE(kopiaWd->Detail().isEmpty());
  kopiaWd->Assign(zrodlo);
  EXPECT_EQ(kopiaWd->Detail(), QStringLiteral("17"));
  EXPECT_EQ(kopiaWd->MacDescription(), zrodlo.MacDescription());

  // An error of another class gives its code and texts, not its detail.
  const EVLTWinError okno(3401, nullptr, QStringLiteral("590"));
  kopiaWd->Assign(okno);
  EXPECT_EQ(kopiaWd->MacCode(), 3401);
  EXPECT_EQ(kopiaWd->MacMessage(), okno.MacMessage());
  EXPECT_EQ(kopiaWd->MacDescription(), QStringLiteral("590"));
  EXPECT_EQ(kopiaWd->Detail(), QStringLiteral("17"));
  EXPECT_EQ(kopiaWd->Modul(), QStringLiteral("WD"));
  EXPECT_EQ(okno.Clone()->Modul(), QStringLiteral("Win"));
}

}  // namespace
