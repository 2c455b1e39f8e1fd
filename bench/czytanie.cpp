#include <cstdio>
#include <cstdlib>

#include "bench/uklad.h"
#include "exchange/czytnik.h"

// czytanie PLIK UKLAD: reads the file to its end, every record to all its values, as an import does before it
// decides anything. Prints the number of records and of characters, so that no value can be left out unseen.
int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("Użycie: czytanie PLIK UKLAD\n", stderr);
    return 2;
  }
  const auto czytnik = UtworzCzytnik(Struktura(static_cast<TypPliku>(std::atoi(argv[2]))));
  if (const auto blad = czytnik->Otworz(QString::fromLocal8Bit(argv[1]))) {
    std::fprintf(stderr, "%s\n", qPrintable(blad->tekst));
    return 1;
  }
  long long rekordow = 0;
  long long znakow = 0;
  for (;;) {
    const WynikCzytania wynik = czytnik->Nastepny();
    if (wynik == WynikCzytania::Koniec) break;
    if (wynik == WynikCzytania::Blad) return 1;
    if (wynik != WynikCzytania::Rekord) continue;
    ++rekordow;
    for (int pole = 0; pole < PoleTowaru::LiczbaWartosci; ++pole) znakow += czytnik->Linia().Tekst().size();
  }
  std::printf("%lld %lld\n", rekordow, znakow);
  return 0;
}
