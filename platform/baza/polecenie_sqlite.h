#pragma once

#include "platform/baza/polecenie.h"

namespace sqlite_api {
struct sqlite3;
struct sqlite3_stmt;
}  // namespace sqlite_api

// A statement of the embedded database. An import runs ten of them for a record, most in a few microseconds:
// values go from their places to SQLite and back without another copy on the way.
class PolecenieSqlite final : public Polecenie {
 public:
  PolecenieSqlite(sqlite_api::sqlite3& polaczenie, std::string sql, std::span<const TypPola> kolumny,
                  std::span<const Parametr> parametry);
  ~PolecenieSqlite() override;

  void Wykonaj(std::span<const Parametr> parametry) override;
  bool Nastepny() override;
  long long Dotknietych() override;
  void Zwolnij() noexcept override;

 private:
  void Powiaz(int indeks, const Wartosc& wartosc);
  bool Krok();
  void CzytajKolumne(int numer);
  [[noreturn]] void Rzuc(int wynik) const;

  sqlite_api::sqlite3& m_polaczenie;
  sqlite_api::sqlite3_stmt* m_polecenie = nullptr;
  std::vector<int> m_indeksy;        // of the placeholders, in the order of the names
  std::vector<Wartosc> m_parametry;  // of a select, which reads them for as long as its rows are read
};
