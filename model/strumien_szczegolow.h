#pragma once

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/baza/sesja.h"
#include "platform/baza/zapytanie.h"

// Rows whose first column is the identifier of a record, by rising identifiers, taken record by record.
// Several of these side by side read a whole database in memory that does not grow with the number of
// records: a server's driver keeps a whole result, so they are read page by page, a page being a range of
// identifiers.
class StrumienSzczegolow {
 public:
  // `select` returns the rows with identifiers from :Od to :Do, by rising identifiers.
  StrumienSzczegolow(TVLTBazaDanych& baza, std::string select, std::vector<TypPola> kolumny,
                     std::vector<Parametr> parametry = {});
  // All rows of a table with the given columns, the identifier first.
  StrumienSzczegolow(TVLTBazaDanych& baza, std::string_view tabela, std::span<const OpisPola> pola);

  // Gives back the page that was read.
  void Oddaj() { m_odczyt.reset(); }
  // Begins a page; pages rise.
  void Strona(int od, int doId);
  // Moves to the rows of the record, past those of lower identifiers; false when it has none (left).
  bool Siegnij(int id) {
    while (m_jest && Id() < id) Dalej();
    return m_jest && Id() == id;
  }
  void Dalej() { m_jest = m_odczyt->Nastepny(); }
  const Odczyt& Wiersz() const { return *m_odczyt; }

 private:
  long long Id() const { return (*m_odczyt)[0].AsInteger(); }

  TVLTBazaDanych& m_baza;
  const std::string m_select;
  const std::vector<TypPola> m_kolumny;
  std::vector<Parametr> m_parametry;  // :Od and :Do first
  std::optional<Odczyt> m_odczyt;
  bool m_jest = false;
};

// Begins a page of several, of which some may be null; all give back the page before first.
void OtworzStrone(std::initializer_list<StrumienSzczegolow*> strumienie, int od, int doId);
