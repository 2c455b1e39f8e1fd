#include "bench/baza.h"

#include <stdexcept>

namespace sqlite {

Baza Otworz(const std::string& sciezka) {
  sqlite3* baza = nullptr;
  const int wynik = sqlite3_open_v2(sciezka.c_str(), &baza, SQLITE_OPEN_READWRITE, nullptr);
  Baza wlasciciel(baza);
  if (wynik != SQLITE_OK) throw std::runtime_error("Nie można otworzyć bazy " + sciezka);
  return wlasciciel;
}

Polecenie Przygotuj(const Baza& baza, const std::string& sql) {
  sqlite3_stmt* polecenie = nullptr;
  if (sqlite3_prepare_v2(baza.get(), sql.c_str(), -1, &polecenie, nullptr) != SQLITE_OK)
    throw std::runtime_error(std::string(sqlite3_errmsg(baza.get())) + ": " + sql);
  return Polecenie(polecenie);
}

bool Nastepny(const Baza& baza, const Polecenie& polecenie) {
  const int wynik = sqlite3_step(polecenie.get());
  if (wynik == SQLITE_ROW) return true;
  if (wynik != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(baza.get()));
  return false;
}

long long Liczba(const Baza& baza, const std::string& sql) {
  const Polecenie polecenie = Przygotuj(baza, sql);
  return Nastepny(baza, polecenie) ? sqlite3_column_int64(polecenie.get(), 0) : 0;
}

void Wykonaj(const Baza& baza, const std::string& sql) {
  const Polecenie polecenie = Przygotuj(baza, sql);
  while (Nastepny(baza, polecenie)) continue;
}

}  // namespace sqlite
