#pragma once

#include <span>
#include <string_view>

struct DaneTowaru;
struct OpcjeEksportuTowarow;
class SlownikiEksportu;
class ZapisRekordow;

// One line of a goods export in the making. Options are read when a column needs them.
struct WierszTowaru {
  const DaneTowaru& towar;
  const OpcjeEksportuTowarow& opcje;
  const SlownikiEksportu& slowniki;
  char separatorDziesietny;
  ZapisRekordow& zapis;
  // Why an import of the line would not give the good as it is; empty when it would.
  std::u16string_view powod = {};
};

struct KolumnaEksportu {
  std::u16string_view naglowek;
  void (*wpisz)(WierszTowaru&);
};

// The 32 columns of the file in their order.
std::span<const KolumnaEksportu> KolumnyTowaru();
