#include "run/tempo.h"

#include <gtest/gtest.h>

namespace {

using std::chrono::milliseconds;

TEST(Tempo, LiczyRekordyNaSekundeIPozostalyCzas) {
  const struct {
    int ms;
    long long pozycja, maksimum;
    long long naSekunde;  // -1: nothing to say yet
    QString zostalo;
  } przypadki[] = {
      {499, 100, 1000, -1, ""},        {500, 0, 1000, -1, ""},
      {500, 100, 1000, 200, "0:05"},   {2000, 1000, 1000, 500, "0:00"},
      {2000, 1001, 1000, 501, "0:00"}, {1000, 1, 66, 1, "1:05"},
      {1000, 1, 3601, 1, "1:00:00"},   {1000, 1, 3 * 3600 + 66, 1, "3:01:05"},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(&p - przypadki);
    const Tempo::Chwila poczatek{};
    const auto odczyt = Tempo(poczatek).Odczytaj(p.pozycja, p.maksimum, poczatek + milliseconds(p.ms));
    ASSERT_EQ(odczyt.has_value(), p.naSekunde >= 0);
    if (!odczyt) continue;
    EXPECT_EQ(odczyt->naSekunde, p.naSekunde);
    EXPECT_EQ(odczyt->zostalo, p.zostalo);
  }
}

TEST(Tempo, CzasPytaniaNieJestCzasemPracy) {
  const Tempo::Chwila poczatek{};
  const auto po = [&](int ms) { return poczatek + milliseconds(ms); };
  Tempo tempo(poczatek);
  tempo.Wznow(po(500));
  tempo.Wstrzymaj(po(1000));
  EXPECT_EQ(tempo.Odczytaj(100, 200, po(60000))->naSekunde, 100);
  tempo.Wznow(po(61000));
  EXPECT_EQ(tempo.Odczytaj(200, 200, po(62000))->naSekunde, 100);
}

}  // namespace
