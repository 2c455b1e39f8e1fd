#pragma once

#include <vector>

class Liczniki;
struct KontekstSesji;

// Stock quantities written by an import, straight into the table of stocks: what the documents of the
// back-office system know of the stock has to be set right there afterwards.
class Stany {
 public:
  Stany(KontekstSesji& sesja, Liczniki& liczniki) : m_sesja(sesja), m_liczniki(liczniki) {}

  // Reads the warehouses; makes "Magazyn nr 1" when the database has none.
  void WczytajMagazyny();

  // Writes the quantity of a good into the N-th warehouse of the list (from 1), as one unit, and counts it
  // (Licznik::Stany). False when nothing changed: no such warehouse, or the quantity is there already. A good
  // without a stock row keeps none, though the answer is true. 2006 for a quantity that the column cannot
  // hold.
  bool Ustaw(int towId, int n, double ilosc);

 private:
  KontekstSesji& m_sesja;
  Liczniki& m_liczniki;
  std::vector<int> m_magazyny;  // identifiers in the list's order
};
