#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/baza/wartosc.h"

namespace soci {
class session;
}

// One prepared statement with the buffers its placeholders and columns are bound to. Internal to the session.
// Failures leave as SOCI's own exceptions; the session translates them.
class Polecenie {
 public:
  Polecenie(soci::session& sesja, const std::string& sql, std::span<const TypPola> kolumny,
            std::span<const Parametr> parametry);
  ~Polecenie();
  Polecenie(const Polecenie&) = delete;
  Polecenie& operator=(const Polecenie&) = delete;

  const std::string& Sql() const { return m_sql; }
  // Binds the values and runs the statement; a select stands before its first row.
  void Wykonaj(std::span<const Parametr> parametry);
  bool Nastepny();
  long long Dotknietych();
  const std::vector<Wartosc>& Wiersz() const { return m_kolumny; }
  // Ends the read: a statement left in the middle would hold its read transaction open, even past a commit.
  void Zwolnij() noexcept;

  bool Zajete = false;

 private:
  struct Wnetrze;
  void Przypisz(std::span<const Parametr> parametry);

  std::string m_sql;
  std::vector<std::string> m_nazwy;
  std::vector<Wartosc> m_parametry;
  std::vector<Wartosc> m_kolumny;
  enum class Stan { Wolne, PrzedPierwszym, WTrakcie, Koniec } m_stan = Stan::Wolne;
  std::unique_ptr<Wnetrze> m;
};
