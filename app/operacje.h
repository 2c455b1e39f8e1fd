#pragma once

#include <span>
#include <string_view>

#include "app/polecenia.h"
#include "app/wynik_json.h"

struct RodzajPrzebiegu;

// A kind of run as a command of its own, which bears the run's name.
struct Operacja {
  const RodzajPrzebiegu& rodzaj;
  std::u16string_view opis;       // one line of help
  std::u16string_view szczegoly;  // where the file comes from when none is named
  std::span<const PozycjaJson> liczniki;
  bool bezZmianWsrodPominietych = true;  // imports
};

std::span<const Operacja> TabelaOperacji();

StatusWyjscia WykonajOperacje(const Operacja& operacja, const Argumenty& argumenty);
