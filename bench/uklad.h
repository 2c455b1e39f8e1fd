#pragma once

#include <string>
#include <utility>
#include <vector>

#include "exchange/struktura_pliku.h"

// The goods file of the benchmark: its columns in each layout and the settings that read it.
struct Kolumna {
  int pole;  // catalogue number
  const char* nazwaDBase;
  int szerokosc;  // characters
};
const std::vector<Kolumna>& Kolumny();

StrukturaPliku Struktura(TypPliku typ);

// Settings of zorvik-cli, name and value.
using Ustawienia = std::vector<std::pair<std::string, std::string>>;
// The structure above and the options of the run.
Ustawienia UstawieniaImportuTowarow(TypPliku typ);
// Found contractors are updated, the others added.
Ustawienia UstawieniaImportuKontrahentow();
std::string PlikKonfiguracji(const Ustawienia& ustawienia);
