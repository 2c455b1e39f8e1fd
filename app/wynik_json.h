#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/komunikat.h"
#include "run/liczniki.h"

struct WynikPrzebiegu;

// One counter of the result object.
struct PozycjaJson {
  std::u16string_view klucz;
  Licznik licznik;
};

// The result of a run, its notices and the message boxes shown around it as one JSON object in one line of
// UTF-8, the line end included.
std::string WynikJson(std::u16string_view operacja, std::u16string_view koniec,
                      std::span<const PozycjaJson> liczniki, const WynikPrzebiegu& wynik,
                      const std::vector<Komunikat>& pokazane);
