#pragma once

#include <span>

#include "exchange/wiersz_eksportu.h"

struct DaneTowaru;
struct OpcjeEksportuTowarow;
class SlownikiEksportu;

// What the line of one good is written from. Options are read when a column needs them.
struct WierszTowaru {
  const DaneTowaru& towar;
  const OpcjeEksportuTowarow& opcje;
  const SlownikiEksportu& slowniki;
  WierszEksportu& pola;
};

// The 32 columns of the file in their order.
std::span<const KolumnaEksportu<WierszTowaru>> KolumnyTowaru();
