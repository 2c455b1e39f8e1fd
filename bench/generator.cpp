#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <string>

#include "bench/dane.h"
#include "bench/uklad.h"

// generator N PLIK [UKLAD|kontrahenci] [zmieniony]: writes an import file and, beside it as PLIK.cfg, the
// settings that read it.
int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs(
        "Użycie: generator N PLIK [0 własny | 1 rozdzielany | 2 stała szerokość | 3 dBase | kontrahenci]"
        " [zmieniony]\n",
        stderr);
    return 2;
  }
  try {
    const int ile = std::atoi(argv[1]);
    const std::string sciezka = argv[2], rodzaj = argc > 3 ? argv[3] : "1";
    const bool zmieniony = argc > 4;
    Ustawienia ustawienia;
    if (rodzaj == "kontrahenci") {
      ZapiszPlikKontrahentow(sciezka, ile, zmieniony);
      ustawienia = UstawieniaImportuKontrahentow();
    } else {
      const auto typ = static_cast<TypPliku>(std::atoi(rodzaj.c_str()));
      ZapiszPlikTowarow(sciezka, ile, typ, zmieniony);
      ustawienia = UstawieniaImportuTowarow(typ);
    }
    std::ofstream(sciezka + ".cfg", std::ios::binary) << PlikKonfiguracji(ustawienia);
  } catch (const std::exception& blad) {
    std::fprintf(stderr, "%s\n", blad.what());
    return 1;
  }
  return 0;
}
