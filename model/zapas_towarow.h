#pragma once

#include <string>
#include <vector>

#include "model/kody_dodatkowe.h"
#include "model/szczegoly_towaru.h"
#include "platform/baza/wartosc.h"

class TVLTBazaDanych;

// A good as it was read: its main row by the columns of KolumnaTowaru and its details.
struct OdczytanyTowar {
  bool aktualny = true;  // not written since
  bool zablokowany = false;
  std::vector<Wartosc> wiersz;
  std::vector<KodDodatkowy> kody;
  std::vector<WartosciParametrow::Pozycja> wartosci;
  std::vector<DostawcyTowaru::Dostawca> dostawcy;
};

// Goods read ahead, many with one statement for each of their tables, so that loading them asks the database
// nothing. Holds inside the write transaction it was read in; a good that is written is forgotten.
class ZapasTowarow {
 public:
  // Takes the place of what was read before. Repeats are read once; what goes beyond ListaId is left out.
  void Wczytaj(TVLTBazaDanych& baza, std::vector<int> towary);
  // Where others may write meanwhile: locks all of them with one statement, their main rows read again,
  // before the first one of them is written. Nothing inside of a unit, whose undoing would give the locks
  // back, and nothing for a good that is not among them.
  void Zablokuj(TVLTBazaDanych& baza, int towId);
  // Null for a good that is not among them or not in the database.
  const OdczytanyTowar* Znajdz(int towId) const;
  void Zapomnij(int towId);
  void Wyczysc();

 private:
  // Takes over the main rows that a select returns; how many there are.
  std::size_t CzytajWiersze(TVLTBazaDanych& baza, const std::string& select, bool zablokowane);
  // Of a good that is among them.
  OdczytanyTowar& Miejsce(long long towId);

  bool m_zablokowane = false;
  std::vector<int> m_id;                 // rising
  std::vector<OdczytanyTowar> m_towary;  // in the same order; more of them than identifiers wait for the next
};
