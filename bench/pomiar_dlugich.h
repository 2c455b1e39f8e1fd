#pragma once

#include "bench/tabela.h"
#include "bench/warsztat.h"

// Records and files that grow in one direction only: a line with thousands of additional codes, one with
// thousands of parameters, a file whose every record brings an assortment. Each has its limit in seconds, and
// a fifth of it beside it. `ile` plays no part: the lengths are those of the limits.
void ZmierzDlugie(const Warsztat& warsztat, int ile, Tabela& tabela);
