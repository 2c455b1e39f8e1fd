#include "robotnik/robotnik.h"

#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>

// No event loop and nothing of Qt here: the thread sanitizer sees all of it.

namespace {

TEST(StanPrzebiegu, PrzejsciaIZyczenieStopu) {
  // Moves: Begin, Stop, End.
  const struct {
    std::string ruchy;
    Stan stan;
    bool stop;
  } przypadki[] = {
      {"", Stan::Zakonczony, false},    {"S", Stan::Zakonczony, false},    {"B", Stan::Trwa, false},
      {"BS", Stan::Zatrzymywany, true}, {"BSS", Stan::Zatrzymywany, true}, {"BE", Stan::Zakonczony, false},
      {"BES", Stan::Zakonczony, false}, {"BSE", Stan::Zakonczony, true},   {"BSEB", Stan::Trwa, false},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.ruchy);
    StanPrzebiegu stan;
    for (const char ruch : p.ruchy)
      ruch == 'B' ? stan.Rozpocznij() : ruch == 'E' ? stan.Zakoncz() : void(stan.ZazadajStopu());
    EXPECT_EQ(stan.Get(), p.stan);
    EXPECT_EQ(stan.Stop(), p.stop);
    EXPECT_EQ(stan.ZazadajStopu(), p.stan == Stan::Trwa);
  }
}

TEST(StanPrzebiegu, KoniecPrzewazaNadRownoczesnymStopem) {
  for (int proba = 0; proba < 50; ++proba) {
    StanPrzebiegu stan;
    stan.Rozpocznij();
    std::atomic<int> przyjete = 0;
    const auto naciskaj = [&] {
      while (stan.Get() != Stan::Zakonczony) przyjete += stan.ZazadajStopu();
    };
    std::thread pierwszy(naciskaj);
    std::thread drugi(naciskaj);
    stan.Zakoncz();
    pierwszy.join();
    drugi.join();
    ASSERT_LE(przyjete, 1);
    ASSERT_EQ(przyjete == 1, stan.Stop());
  }
}

TEST(Robotnik, KazdaDrogaPracyKonczySieStanemZakonczonym) {
  const struct {
    const char* nazwa;
    void (*praca)(Przekazanie&);
    int pokazanych;
  } przypadki[] = {
      {"the end", [](Przekazanie&) {}, 0},
      {"an exception", [](Przekazanie&) { throw std::runtime_error("x"); }, 1},
      {"from the main thread", [](Przekazanie& p) { p.Wykonaj([] { throw 7; }); }, 1},
  };
  for (const bool pokazZawodzi : {false, true})
    for (const auto& p : przypadki) {
      SCOPED_TRACE(p.nazwa);
      StanPrzebiegu stan;
      int pokazanych = 0;
      Robotnik robotnik(
          stan, [] {},
          [&, glowny = std::this_thread::get_id()](const std::exception_ptr&) {
            EXPECT_EQ(std::this_thread::get_id(), glowny);
            EXPECT_NE(stan.Get(), Stan::Zakonczony);
            ++pokazanych;
            if (pokazZawodzi) throw std::bad_alloc();
          });
      robotnik.Uruchom([&](Przekazanie& doGlownego, const std::atomic<bool>& stop) {
        while (!stop) std::this_thread::yield();
        p.praca(doGlownego);
      });
      EXPECT_EQ(stan.Get(), Stan::Trwa);
      robotnik.Dokoncz();
      EXPECT_EQ(stan.Get(), Stan::Zakonczony);
      EXPECT_EQ(pokazanych, p.pokazanych);
    }
}

TEST(Robotnik, ZniszczonyWTrakcieDoprowadzaPraceDoKonca) {
  StanPrzebiegu stan;
  bool podsumowano = false;
  {
    Robotnik robotnik(
        stan, [] {}, [](auto&) { ADD_FAILURE(); });
    robotnik.Uruchom([&](Przekazanie& doGlownego, const std::atomic<bool>& stop) {
      while (!stop) doGlownego.Wykonaj([] {});
      doGlownego.Wykonaj([&] { podsumowano = true; });
    });
  }
  EXPECT_TRUE(podsumowano);
}

}  // namespace
