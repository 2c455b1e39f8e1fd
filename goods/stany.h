#pragma once

#include <vector>

#include "model/kontekst.h"

// Stock quantities written by an import, straight into the table of stocks.
class Stany {
 public:
  explicit Stany(KontekstSesji& sesja) : m_sesja(sesja) {}

  // Reads the warehouses; makes "Magazyn nr 1" when the database has none.
  void WczytajMagazyny();

  // Writes the quantity of a good into the N-th warehouse of the list, as one unit. False when nothing
  // changed: no such warehouse, or the quantity is there already. A good without a stock row keeps none,
  // though the answer is true.
  bool Ustaw(int towId, int n, double ilosc);

 private:
  KontekstSesji& m_sesja;
  std::vector<int> m_magazyny;  // identifiers in the list's order
};
