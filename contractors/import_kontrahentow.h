#pragma once

#include <span>

#include "run/przebieg.h"

struct OpcjeImportuKontrahentow;

// One contractor import, from the file to the summary.
WynikPrzebiegu ImportujKontrahentow(const ParametryPrzebiegu& parametry,
                                    const OpcjeImportuKontrahentow& opcje);

// The counters of a contractor import in the order of its summary.
std::span<const PozycjaPodsumowania> PodsumowanieImportuKontrahentow();
