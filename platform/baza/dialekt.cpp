#include "platform/baza/dialekt.h"

#include <cctype>

namespace {

bool ZnakNazwy(char znak) {
  return std::isalnum(static_cast<unsigned char>(znak)) != 0 || znak == '_';
}

}  // namespace

std::string Dialekt::Zamien(std::string tekst, std::string_view co, std::string_view na) {
  for (auto gdzie = tekst.find(co); gdzie != std::string::npos; gdzie = tekst.find(co, gdzie + na.size()))
    tekst.replace(gdzie, co.size(), na);
  return tekst;
}

std::string Dialekt::ZamienSlowa(std::string_view sql, std::span<const Slowo> slowa) {
  std::string wynik;
  wynik.reserve(sql.size() + 64);
  bool wCudzyslowie = false;
  for (std::size_t i = 0; i < sql.size();) {
    const char znak = sql[i];
    if (znak == '\'') wCudzyslowie = !wCudzyslowie;
    if (wCudzyslowie || !ZnakNazwy(znak)) {
      wynik += znak;
      ++i;
      continue;
    }
    std::size_t koniec = i;
    while (koniec < sql.size() && ZnakNazwy(sql[koniec])) ++koniec;
    if (sql.substr(koniec, 2) == "()") koniec += 2;
    std::string_view slowo = sql.substr(i, koniec - i);
    if (i == 0 || (sql[i - 1] != ':' && sql[i - 1] != '"'))
      for (const Slowo& s : slowa)
        if (slowo == s.nasze) slowo = s.tutejsze;
    wynik += slowo;
    i = koniec;
  }
  return wynik;
}
