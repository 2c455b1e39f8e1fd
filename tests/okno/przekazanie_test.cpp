#include "shell/przebieg/przekazanie.h"

#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>

namespace {

// The calling thread is the main one here: it serves until the worker is done.
void Przeprowadz(const std::function<void(Przekazanie&)>& robotnik) {
  std::mutex straz;
  std::condition_variable budzik;
  bool wezwano = false;
  bool koniec = false;
  const auto obudz = [&](bool& co) {
    const std::lock_guard zamek(straz);
    co = true;
    budzik.notify_one();
  };
  Przekazanie przekazanie([&] { obudz(wezwano); });
  std::thread watek([&] {
    robotnik(przekazanie);
    obudz(koniec);
  });
  for (;;) {
    std::unique_lock zamek(straz);
    budzik.wait(zamek, [&] { return wezwano || koniec; });
    if (!wezwano) break;
    wezwano = false;
    zamek.unlock();
    przekazanie.Obsluz();
  }
  watek.join();
}

TEST(Przekazanie, KazdaCzynnoscDziejeSieWWatkuGlownymPrzedPowrotem) {
  const auto glowny = std::this_thread::get_id();
  long suma = 0;
  Przeprowadz([&](Przekazanie& przekazanie) {
    for (int i = 1; i <= 1000; ++i) {
      przekazanie.Wykonaj([&, i] {
        EXPECT_EQ(std::this_thread::get_id(), glowny);
        suma += i;
      });
      ASSERT_EQ(suma, i * (i + 1L) / 2);
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

}  // namespace
