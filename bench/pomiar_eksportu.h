#pragma once

#include "bench/pomiar_importu.h"

// One kind of export; the plain program has a mode of the operation's name.
struct OpisEksportu {
  const char* operacja;
  const char* czego;
  Ustawienia ustawienia;
  const OpisImportu& import;                          // makes the database
  void (*uzupelnijBaze)(const std::string& sciezka);  // with what the import brings not; nullptr: nothing
  double granica;
};
const OpisEksportu& EksportTowarow();
const OpisEksportu& EksportKontrahentow();

// An export of `ile` records, the growth of the cost of a record from `mala` records on, and memory. Stops
// when the product's file and the plain program's are not the same bytes.
void ZmierzEksport(const Warsztat& warsztat, const OpisEksportu& opis, int ile, int mala, Tabela& tabela);
