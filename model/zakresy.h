#pragma once

#include <cmath>
#include <limits>

#include "model/bledy.h"

// Limits of the columns of the back-office tables, the same for every database kind: embedded ones would
// store more than the servers, and such rows could not move between them.
inline constexpr double kNajwiekszaKwota = 922'337'203'685'477.0;

inline bool LiczbaWZakresie(long long liczba) {
  return liczba >= std::numeric_limits<int>::min() && liczba <= std::numeric_limits<int>::max();
}
// False for a value that is not a number as well.
inline bool KwotaWZakresie(double kwota) {
  return std::abs(kwota) <= kNajwiekszaKwota;
}

// The value itself, or 2006.
inline double WymagajZakresu(double kwota) {
  if (!KwotaWZakresie(kwota)) throw EVLTWDError(2006);
  return kwota;
}

// Decimal numbers are compared as what they are after a way through a file.
inline bool RowneKwoty(double a, double b) {
  return a == b || std::abs(a - b) <= 1e-6;
}
