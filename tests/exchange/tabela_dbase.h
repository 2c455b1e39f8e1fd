#pragma once

#include <string>
#include <utility>
#include <vector>

// A table as bytes; a length given as -1 is the right one.
struct Tabela {
  std::vector<std::pair<std::string, int>> pola{};
  std::vector<std::string> rekordy{};
  int dlugoscNaglowka = -1;
  int dlugoscRekordu = -1;
  std::string koniec = "\x1A";
  std::string typy{};  // of the fields from the first on; C for the rest

  static std::string Slowo(size_t wartosc) {
    return {static_cast<char>(wartosc & 0xFF), static_cast<char>(wartosc >> 8 & 0xFF)};
  }
  std::string Bajty() const {
    size_t rekord = 1;
    std::string opisy;
    for (const auto& [nazwa, dlugosc] : pola) {
      std::string opis = nazwa;
      opis.resize(32, '\0');
      const size_t numer = opisy.size() / 32;
      opis[11] = numer < typy.size() ? typy[numer] : 'C';
      opis.replace(16, 2, Slowo(static_cast<size_t>(dlugosc)));
      opisy += opis;
      rekord += static_cast<size_t>(dlugosc);
    }
    const size_t naglowek = dlugoscNaglowka < 0 ? 33 + opisy.size() : static_cast<size_t>(dlugoscNaglowka);
    if (dlugoscRekordu >= 0) rekord = static_cast<size_t>(dlugoscRekordu);
    // The header's own record count is a lie.
    std::string bajty = "\x03\x01\x01\x01\x0A" + std::string(3, '\0') + Slowo(naglowek) + Slowo(rekord);
    bajty.resize(32, '\0');
    bajty += opisy + "\r";
    for (const std::string& r : rekordy) bajty += r;
    return bajty + koniec;
  }
};
