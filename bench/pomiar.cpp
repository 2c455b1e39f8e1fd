#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>

#include "bench/pomiar_dlugich.h"
#include "bench/pomiar_eksportu.h"
#include "bench/pomiar_importu.h"
#include "bench/pomiar_okna.h"
#include "bench/pomiar_serwera.h"

// pomiar [N] [CZĘŚĆ]: how fast imports and exports are beside a plain program that leaves the same rows or
// the same file (wzorzec), how the cost of a record grows, what memory and waits for the disk they take,
// what very long records cost, what an import costs in the window, and how fast both are on a server beside
// psql. Goods are measured by N, contractors by half of it. Exit status 1 when a limit does not hold.

namespace {

void Towary(const Warsztat& warsztat, int ile, Tabela& tabela) {
  const double identyczne = ZmierzImport(warsztat, ImportTowarow(), ile, tabela);
  ZmierzCzytanie(warsztat, ile, identyczne, tabela);
}

void Kontrahenci(const Warsztat& warsztat, int ile, Tabela& tabela) {
  ZmierzImport(warsztat, ImportKontrahentow(), ile / 2, tabela);
}

void Eksport(const Warsztat& warsztat, int ile, Tabela& tabela) {
  ZmierzEksport(warsztat, EksportTowarow(), ile, ile / 2, tabela);
  ZmierzEksport(warsztat, EksportKontrahentow(), ile / 2, ile / 2, tabela);
}

constexpr struct {
  const char* nazwa;
  void (*zmierz)(const Warsztat&, int, Tabela&);
} kCzesci[] = {{"towary", Towary},       {"kontrahenci", Kontrahenci}, {"eksport", Eksport},
               {"dlugie", ZmierzDlugie}, {"okno", ZmierzOkno},         {"serwer", ZmierzSerwer}};

}  // namespace

int main(int argc, char** argv) {
  const int ile = argc > 1 ? std::atoi(argv[1]) : 100'000;
  const std::string wybrana = argc > 2 ? argv[2] : "";
  const auto wybierz = [&](const auto& czesc) { return wybrana.empty() || wybrana == czesc.nazwa; };
  if (ile < 2 || argc > 3 || std::none_of(std::begin(kCzesci), std::end(kCzesci), wybierz)) {
    std::fputs("Użycie: pomiar [N] [towary|kontrahenci|eksport|dlugie|okno|serwer]\n", stderr);
    return 2;
  }
  try {
    const Warsztat warsztat(std::filesystem::canonical(argv[0]).parent_path());
    Tabela tabela;
    for (const auto& czesc : kCzesci)
      if (wybierz(czesc)) czesc.zmierz(warsztat, ile, tabela);
    return tabela.Dobrze() ? 0 : 1;
  } catch (const std::exception& blad) {
    std::fprintf(stderr, "pomiar: %s\n", blad.what());
    return 2;
  }
}
