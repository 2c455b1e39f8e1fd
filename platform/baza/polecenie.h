#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/baza/wartosc.h"

// One prepared statement of a session with the buffers of its placeholders and columns. Internal to the
// session. Failures leave as SOCI's exceptions, which the session translates.
class Polecenie {
 public:
  virtual ~Polecenie() = default;
  Polecenie(const Polecenie&) = delete;
  Polecenie& operator=(const Polecenie&) = delete;

  const std::string& Sql() const { return m_sql; }
  // Binds the values and runs the statement; a select stands before its first row. Every caller of one text
  // names the placeholders in one order: anything else is a mistake in the program.
  virtual void Wykonaj(std::span<const Parametr> parametry) = 0;
  virtual bool Nastepny() = 0;
  virtual long long Dotknietych() = 0;
  const std::vector<Wartosc>& Wiersz() const { return m_kolumny; }
  // Ends the read: a statement left in the middle would hold its read transaction open, even past a commit.
  virtual void Zwolnij() noexcept = 0;

  bool Zajete = false;

 protected:
  Polecenie(std::string sql, std::span<const TypPola> kolumny, std::span<const Parametr> parametry);
  // Throws unless these are the placeholders that the statement was prepared with.
  void WymagajNazw(std::span<const Parametr> parametry) const;

  std::string m_sql;
  std::vector<std::string> m_nazwy;
  std::vector<const char*> m_wskazniki;  // the names as first given: mostly the same literals come again
  std::vector<Wartosc> m_kolumny;
  enum class Stan { Wolne, PrzedPierwszym, WTrakcie, Koniec } m_stan = Stan::Wolne;
};
