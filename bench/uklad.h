#pragma once

#include <string>
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
// The same structure and the options of the run as a configuration file.
std::string PlikKonfiguracji(TypPliku typ);
