#pragma once

#include <memory>
#include <string>

#include <sqlite3.h>

// SQLite as the benchmark looks into the databases of its programs. Errors: std::runtime_error.
namespace sqlite {

struct Zamknij {
  void operator()(sqlite3* baza) const { sqlite3_close(baza); }
  void operator()(sqlite3_stmt* polecenie) const { sqlite3_finalize(polecenie); }
};
using Baza = std::unique_ptr<sqlite3, Zamknij>;
using Polecenie = std::unique_ptr<sqlite3_stmt, Zamknij>;

Baza Otworz(const std::string& sciezka);
Polecenie Przygotuj(const Baza& baza, const std::string& sql);
// Moves to the next row; false after the last one.
bool Nastepny(const Baza& baza, const Polecenie& polecenie);
// The first value of the first row; 0 without one.
long long Liczba(const Baza& baza, const std::string& sql);
void Wykonaj(const Baza& baza, const std::string& sql);

}  // namespace sqlite
