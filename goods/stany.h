#pragma once

#include <map>
#include <optional>
#include <span>
#include <utility>
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

  // Reads what the N-th warehouse holds of these goods, so that setting it asks the database nothing. Holds
  // inside the transaction it was read in; at most as many goods as ListaId takes.
  void CzytajZWyprzedzeniem(std::span<const int> towary, int n);
  // A good that was added in this transaction: there is nothing of it yet.
  void PrzyjmijNowy(int towId, int n) { m_odczytane[{towId, n}] = 0; }
  // What was read is old: another transaction has begun.
  void Zapomnij() { m_odczytane.clear(); }

  // 2006 for a quantity that the N-th warehouse cannot hold; nothing is asked of a warehouse that is not
  // there.
  void WymagajIlosci(int n, double ilosc) const;

  // Writes the quantity of a good into the N-th warehouse of the list (from 1), as one unit, and counts it
  // (Licznik::Stany). False when nothing changed: no such warehouse, or the quantity is there already. A good
  // without a stock row keeps none, though the answer is true. 2006 for a quantity that the column cannot
  // hold.
  bool Ustaw(int towId, int n, double ilosc);

 private:
  // Identifier of the N-th warehouse; nothing when there is no such.
  std::optional<int> Magazyn(int n) const;
  // What the warehouse holds of a good now. What was read ahead serves once: after that it is set.
  double Obecny(int towId, int n, int magId);

  KontekstSesji& m_sesja;
  Liczniki& m_liczniki;
  std::vector<int> m_magazyny;                        // identifiers in the list's order
  std::map<std::pair<int, int>, double> m_odczytane;  // by good and N
};
