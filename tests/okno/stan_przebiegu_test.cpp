#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>

#include "shell/przebieg/robotnik.h"

// No event loop and nothing of Qt here: the thread sanitizer sees all of it.

namespace {

TEST(StanPrzebiegu, PrzejsciaIZyczenieStopu) {
  using Ruch = void (*)(StanPrzebiegu&);
  const Ruch rozpocznij = [](StanPrzebiegu& s) { s.Rozpocznij(); };
  const Ruch stop = [](StanPrzebiegu& s) { s.ZazadajStopu(); };
  const Ruch zakoncz = [](StanPrzebiegu& s) { s.Zakoncz(); };
  const struct {
    std::vector<Ruch> ruchy;
    Stan stan;
    bool stop;
    bool przyjmieStop;  // another one
  } przypadki[] = {
      {{}, Stan::Zakonczony, false, false},
      {{stop}, Stan::Zakonczony, false, false},
      {{rozpocznij}, Stan::Trwa, false, true},
      {{rozpocznij, stop}, Stan::Zatrzymywany, true, false},
      {{rozpocznij, stop, stop}, Stan::Zatrzymywany, true, false},
      {{rozpocznij, zakoncz}, Stan::Zakonczony, false, false},
      {{rozpocznij, stop, zakoncz}, Stan::Zakonczony, true, false},
      {{rozpocznij, zakoncz, stop}, Stan::Zakonczony, false, false},
      {{rozpocznij, stop, zakoncz, rozpocznij}, Stan::Trwa, false, true},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(&p - przypadki);
    StanPrzebiegu stan;
    for (const Ruch ruch : p.ruchy) ruch(stan);
    EXPECT_EQ(stan.Get(), p.stan);
    EXPECT_EQ(stan.Stop(), p.stop);
    EXPECT_EQ(stan.ZazadajStopu(), p.przyjmieStop);
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
    ASSERT_EQ(stan.Get(), Stan::Zakonczony);
  }
}

TEST(Robotnik, KazdaDrogaPracyKonczySieStanemZakonczonym) {
  const struct {
    const char* nazwa;
    Robotnik::Praca praca;
    int pokazanych;
  } przypadki[] = {
      {"the end", [](auto&, auto&) {}, 0},
      {"an exception", [](auto&, auto&) { throw std::runtime_error("x"); }, 1},
      {"not an exception class", [](auto&, auto&) { throw 7; }, 1},
      {"one that came from the main thread",
       [](Przekazanie& p, auto&) { p.Wykonaj([] { throw std::logic_error("y"); }); }, 1},
      {"one that the work caught",
       [](Przekazanie& p, auto&) { EXPECT_ANY_THROW(p.Wykonaj([] { throw std::logic_error("y"); })); }, 0},
  };
  const auto glowny = std::this_thread::get_id();
  for (const bool pokazZawodzi : {false, true})
    for (const auto& p : przypadki) {
      SCOPED_TRACE(p.nazwa);
      StanPrzebiegu stan;
      int pokazanych = 0;
      Robotnik robotnik(
          stan, [] {},
          [&](const std::exception_ptr& wyjatek) {
            EXPECT_EQ(std::this_thread::get_id(), glowny);
            EXPECT_EQ(stan.Get(), Stan::Zatrzymywany) << "shown while the run is not over";
            pokazanych += wyjatek != nullptr;
            if (pokazZawodzi) throw std::bad_alloc();
          });
      robotnik.Uruchom([&](Przekazanie& doGlownego, const std::atomic<bool>& stop) {
        while (!stop) std::this_thread::yield();
        p.praca(doGlownego, stop);
      });
      EXPECT_EQ(stan.Get(), Stan::Trwa);
      robotnik.Dokoncz();
      EXPECT_EQ(stan.Get(), Stan::Zakonczony);
      EXPECT_EQ(pokazanych, p.pokazanych);
    }
}

TEST(Robotnik, ZniszczonyWTrakcieDoprowadzaPraceDoKonca) {
  StanPrzebiegu stan;
  int rekordow = 0;
  bool podsumowano = false;
  {
    Robotnik robotnik(
        stan, [] {}, [](auto&) { ADD_FAILURE(); });
    robotnik.Uruchom([&](Przekazanie& doGlownego, const std::atomic<bool>& stop) {
      while (!stop) doGlownego.Wykonaj([&] { ++rekordow; });
      doGlownego.Wykonaj([&] { podsumowano = true; });
    });
  }
  EXPECT_TRUE(podsumowano);
  EXPECT_EQ(stan.Get(), Stan::Zakonczony);
}

TEST(Robotnik, NieuruchomionyDajeSieZniszczyc) {
  StanPrzebiegu stan;
  {
    const Robotnik robotnik(
        stan, [] { ADD_FAILURE(); }, [](auto&) { ADD_FAILURE(); });
  }
  EXPECT_EQ(stan.Get(), Stan::Zakonczony);
  EXPECT_FALSE(stan.Stop());
}

}  // namespace
