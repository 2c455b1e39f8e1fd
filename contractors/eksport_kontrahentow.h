#pragma once

#include "run/przebieg.h"

struct OpcjeEksportuKontrahentow;

// One contractor export, from the database to the closed file: a header line, then the contractors that meet
// the conditions, deleted ones included, by identifier. Nothing in the database changes.
WynikPrzebiegu EksportujKontrahentow(const ParametryPrzebiegu& parametry,
                                     const OpcjeEksportuKontrahentow& opcje);
