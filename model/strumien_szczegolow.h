#pragma once

#include <span>
#include <string_view>
#include <utility>

#include "platform/baza/sesja.h"
#include "platform/baza/zapytanie.h"

// Rows of a running select whose first column is the identifier of a record, by rising identifiers, taken
// record by record. Several of them side by side read a whole database, each table once, in memory that does
// not grow with the number of records.
class StrumienSzczegolow {
 public:
  explicit StrumienSzczegolow(Odczyt odczyt) : m_odczyt(std::move(odczyt)), m_jest(m_odczyt.Nastepny()) {}
  // All rows of a table with the given columns, the identifier first.
  StrumienSzczegolow(TVLTBazaDanych& baza, std::string_view tabela, std::span<const OpisPola> pola);

  // Moves to the rows of the record, past those of lower identifiers; false when it has none (left).
  bool Siegnij(int id) {
    while (m_jest && Id() < id) Dalej();
    return m_jest && Id() == id;
  }
  void Dalej() { m_jest = m_odczyt.Nastepny(); }
  const Odczyt& Wiersz() const { return m_odczyt; }

 private:
  long long Id() const { return m_odczyt[0].AsInteger(); }

  Odczyt m_odczyt;
  bool m_jest;
};
