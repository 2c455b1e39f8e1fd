#pragma once

#include "run/przebieg.h"

struct OpcjeEksportuTowarow;

// One goods export, from the database to the closed file: a header line, then every good, deleted ones
// included, by identifier. Nothing in the database changes.
WynikPrzebiegu EksportujTowary(const ParametryPrzebiegu& parametry, const OpcjeEksportuTowarow& opcje);
