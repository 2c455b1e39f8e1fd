#pragma once

#include "bench/tabela.h"
#include "bench/warsztat.h"

// Goods imports in the real window (on a screen that nobody sees) beside the same on the command line: whole
// programs, and how long the window did not answer. Stops when the two leave different rows or different
// skipped-records files.
void ZmierzOkno(const Warsztat& warsztat, int ile, Tabela& tabela);
