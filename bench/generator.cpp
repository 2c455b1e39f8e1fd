#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <string>

#include "bench/dane.h"
#include "bench/uklad.h"

// generator N PLIK [UKLAD] [nowe-ceny]: writes a goods file and, beside it as PLIK.cfg, the settings that
// read it.
int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs(
        "Użycie: generator N PLIK [0 własny | 1 rozdzielany | 2 stała szerokość | 3 dBase] [nowe-ceny]\n",
        stderr);
    return 2;
  }
  try {
    const std::string sciezka = argv[2];
    const auto typ = static_cast<TypPliku>(argc > 3 ? std::atoi(argv[3]) : 1);
    ZapiszPlikTowarow(sciezka, std::atoi(argv[1]), typ, argc > 4);
    std::ofstream(sciezka + ".cfg", std::ios::binary) << PlikKonfiguracji(typ);
  } catch (const std::exception& blad) {
    std::fprintf(stderr, "%s\n", blad.what());
    return 1;
  }
  return 0;
}
