#include <array>
#include <fstream>
#include <stdexcept>

#include "bench/dane.h"
#include "exchange/katalog_pol.h"

namespace {

using Wartosci = std::array<std::string, PoleTowaru::LiczbaWartosci>;

Wartosci Towar(long long kod, const std::string& nazwa) {
  Wartosci w;
  w[PoleTowaru::Kod] = std::to_string(kod);
  w[PoleTowaru::Nazwa] = nazwa;
  w[PoleTowaru::TypTowaru] = "0";
  w[PoleTowaru::StawkaVat] = "2300";
  w[PoleTowaru::Status] = "1";
  return w;
}

void Dopisz(std::ofstream& plik, const Wartosci& wartosci) {
  for (std::size_t i = 0; i < wartosci.size(); ++i) plik << (i == 0 ? "" : "\t") << wartosci[i];
  plik << "\r\n";
}

std::ofstream Otworz(const std::string& sciezka) {
  std::ofstream plik(sciezka, std::ios::binary);
  plik << "Kod towaru\r\n";
  return plik;
}

void Zamknij(std::ofstream& plik, const std::string& sciezka) {
  plik.close();
  if (!plik) throw std::runtime_error("Nie można zapisać pliku " + sciezka);
}

}  // namespace

void ZapiszPlikKodow(const std::string& sciezka, int ile) {
  std::ofstream plik = Otworz(sciezka);
  Wartosci w = Towar(590'000'000'000, "Zestaw");
  std::string& kody = w[PoleTowaru::KodyDodatkowe];
  for (int i = 0; i < ile; ++i) kody += (i == 0 ? "(" : ";(") + std::to_string(9'100'000'000 + i) + "||)";
  Dopisz(plik, w);
  Zamknij(plik, sciezka);
}

void ZapiszPlikParametrow(const std::string& sciezka, int ile) {
  std::ofstream plik = Otworz(sciezka);
  Wartosci w = Towar(590'000'000'000, "Zestaw");
  std::string& blok = w[PoleTowaru::KategoriaIParametry];
  for (int i = 0; i < ile; ++i)
    blok +=
        (i == 0 ? "Zestawy: Cecha " : ";Cecha ") + std::to_string(i) + (i % 2 == 0 ? "(2:a|b)" : "(5:1..9)");
  Dopisz(plik, w);
  Zamknij(plik, sciezka);
}

void ZapiszPlikAsortymentow(const std::string& sciezka, int ile) {
  std::ofstream plik = Otworz(sciezka);
  for (int i = 0; i < ile; ++i) {
    Wartosci w = Towar(590'000'000'000 + i, "Towar " + std::to_string(i));
    w[PoleTowaru::Asortyment] = "Dzial " + std::to_string(i);
    Dopisz(plik, w);
  }
  Zamknij(plik, sciezka);
}
