#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "exchange/struktura_pliku.h"

// Counts the bytes from 128 up of a file and judges by them whether its code page was chosen well.
class OcenaStrony {
 public:
  void Dodaj(std::string_view bajty);
  // The page of which most of these bytes are Polish letters, when most are none of `wybrana`.
  std::optional<StronaKodowa> Lepsza(StronaKodowa wybrana) const;

 private:
  long long PolskichLiter(StronaKodowa strona) const;

  std::array<long long, 128> m_ile{};
  long long m_razem = 0;
};

// As the structure dialog calls it.
QString NazwaStrony(StronaKodowa strona);
