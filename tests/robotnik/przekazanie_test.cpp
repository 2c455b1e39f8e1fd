#include "robotnik/przekazanie.h"

#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>

namespace {

// The calling thread is the main one here: it serves until the worker is done.
void Przeprowadz(const std::function<void(Przekazanie&)>& robotnik) {
  Przekazanie przekazanie([] {});
  std::thread watek([&] {
    robotnik(przekazanie);
    przekazanie.Zamknij();
  });
  przekazanie.ObsluzDoZamkniecia();
  watek.join();
}

TEST(Przekazanie, KazdaCzynnoscDziejeSieWWatkuGlownymPrzedPowrotem) {
  const auto glowny = std::this_thread::get_id();
  long suma = 0;
  Przeprowadz([&](Przekazanie& przekazanie) {
    for (int i = 1; i <= 1000; ++i) {
      const long poDodaniu = przekazanie.Zapytaj([&, i] {
        EXPECT_EQ(std::this_thread::get_id(), glowny);
        return suma += i;
      });
      ASSERT_EQ(poDodaniu, i * (i + 1L) / 2);
    }
  });
  EXPECT_EQ(suma, 500500);
}

TEST(Przekazanie, WyjatekWracaDoRobotnikaRaz) {
  Przeprowadz([](Przekazanie& przekazanie) {
    EXPECT_THROW(przekazanie.Wykonaj([] { throw std::runtime_error("x"); }), std::runtime_error);
    EXPECT_NO_THROW(przekazanie.Wykonaj([] {}));
  });
}

TEST(Przekazanie, NieudaneObudzenieNieZostawiaCzynnosci) {
  Przekazanie przekazanie([] { throw std::bad_alloc(); });
  EXPECT_THROW(przekazanie.Wykonaj([] { ADD_FAILURE(); }), std::bad_alloc);
  przekazanie.Obsluz();
}

// A message box lets the main thread come back here while the worker still waits.
TEST(Przekazanie, ObslugaWTrakcieObslugiNieRobiNiczegoDrugiRaz) {
  int razy = 0;
  Przeprowadz([&](Przekazanie& przekazanie) {
    przekazanie.Wykonaj([&] {
      ++razy;
      przekazanie.Obsluz();
    });
  });
  EXPECT_EQ(razy, 1);
}

}  // namespace
