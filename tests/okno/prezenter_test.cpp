#include "shell/prezenter.h"

#include <atomic>
#include <thread>

#include <QCoreApplication>

#include "model/bledy.h"
#include "tests/okno/rozmowa_testowa.h"

namespace {

struct Prezenter : testing::Test {
  Prezenter() { UstawPrezenterBledow(rozmowa); }
  ~Prezenter() override { EMException::UstawPrezenter({}); }

  RozmowaTestowa rozmowa;
};

TEST_F(Prezenter, PokazujeNaglowekTrescPrzyczyneIWage) {
  EMException::ShowExceptionNow(
      EVLTWDError(2007, std::make_shared<EVLTWDError>(2003, nullptr, QStringLiteral("17"))));
  EMException::ShowExceptionNow(EVLTWDError(2816));
  EMException::ShowExceptionNow(EVLTWDError(2351));
  ASSERT_EQ(rozmowa.pytania.size(), 3U);
  EXPECT_EQ(rozmowa.pytania[0].komunikat.naglowek, QStringLiteral("Wystąpił błąd"));
  EXPECT_EQ(rozmowa.pytania[0].komunikat.tekst,
            EVLTWDError(2007).Tresc() + QStringLiteral("\n\nPrzyczyna: Pozycja listy poza zakresem\n"
                                                       "Lista nieaktywna lub przekroczony zakres "
                                                       "listy.\r\nWartość indeksu: 17"));
  EXPECT_EQ(rozmowa.pytania[1].komunikat.naglowek, QStringLiteral("Operacja nie może zostać wykonana"));
  EXPECT_EQ(rozmowa.pytania[1].komunikat.tekst, EVLTWDError(2816).Tresc());
  EXPECT_THAT((std::vector{rozmowa.pytania[0].ikona, rozmowa.pytania[1].ikona, rozmowa.pytania[2].ikona}),
              testing::ElementsAre(QMessageBox::Critical, QMessageBox::Warning, QMessageBox::Information));
}

TEST_F(Prezenter, InnyWatekCzekaNaPokazanieWWatkuGlownym) {
  std::atomic<bool> koniec{false};
  std::size_t pokazane = 0;
  std::thread robotnik([&] {
    EMException::ShowExceptionNow(EVLTWDError(2001));
    pokazane = rozmowa.pytania.size();
    koniec = true;
  });
  while (!koniec) QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
  robotnik.join();
  EXPECT_EQ(pokazane, 1U);
}

}  // namespace
