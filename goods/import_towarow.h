#pragma once

#include <span>

#include "run/przebieg.h"

class TVLTBuforTowarow;
struct OpcjeImportuTowarow;

// One goods import, from the file to the summary. The goods buffer belongs to the caller and lives as long as
// the program: the first run fills it, a run that an error ended leaves it not ready.
WynikPrzebiegu ImportujTowary(const ParametryPrzebiegu& parametry, const OpcjeImportuTowarow& opcje,
                              TVLTBuforTowarow& bufor);

// The counters of a goods import in the order of its summary.
std::span<const PozycjaPodsumowania> PodsumowanieImportuTowarow();
