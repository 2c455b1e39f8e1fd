#pragma once

#include <string>

#include "bench/tabela.h"
#include "bench/warsztat.h"
#include "bench/wiersze_bazy.h"

// One kind of import and the limits it is judged by.
struct OpisImportu {
  Rekordy rekordy;
  const char* operacja;
  const char* czego;
  void (*zapiszPlik)(const std::string& sciezka, int ile, bool zmieniony);
  const char* bazaPoczatkowa;  // of the workshop
  Ustawienia ustawienia;
  double granicaDodawania;
  double granicaIdentycznych;  // of the plain program's adding
  double granicaPoprawiania;
};
const OpisImportu& ImportTowarow();
const OpisImportu& ImportKontrahentow();

// Adding, finding all identical and updating `ile` records; the growth of the cost of adding, memory and
// waits for the disk. Returns the time of the import that finds all identical.
double ZmierzImport(const Warsztat& warsztat, const OpisImportu& opis, int ile, Tabela& tabela);

// Reading a goods file of each layout alone, beside the import that finds all identical.
void ZmierzCzytanie(const Warsztat& warsztat, int ile, double identyczne, Tabela& tabela);

// A database with `ile` records, made by an import.
void ImportujDo(const Warsztat& warsztat, const OpisImportu& opis, const std::string& baza, int ile);
