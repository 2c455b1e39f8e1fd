#pragma once

#include <span>

#include "exchange/wiersz_eksportu.h"

struct DaneKontrahenta;
struct OpcjeEksportuKontrahentow;

// What the line of one contractor is written from. Options are read when a column needs them.
struct WierszKontrahenta {
  const DaneKontrahenta& kontrahent;
  const OpcjeEksportuKontrahentow& opcje;
  WierszEksportu& pola;
};

// The 36 columns of the file in their order.
std::span<const KolumnaEksportu<WierszKontrahenta>> KolumnyKontrahenta();
