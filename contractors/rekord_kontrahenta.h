#pragma once

#include <QString>

#include "contractors/decyzja.h"
#include "contractors/transfer_kontrahenta.h"
#include "model/kontrahent.h"

struct RekordPliku;

// Decides what one record of a contractor file does: it is skipped, adds a contractor or changes the one with
// its tax number. Every refusal becomes a line of the report and the run goes on; faults of the database
// leave as exceptions.
class RekordKontrahenta {
 public:
  explicit RekordKontrahenta(KontekstImportuKontrahentow& import);

  void Przetworz(const RekordPliku& rekord);

 private:
  Odmowa Przeprowadz(const PolaRekordu& pola);
  Odmowa Przygotuj(Decyzja decyzja, int znaleziony);
  Odmowa Wypelnij(const PolaRekordu& pola, Decyzja decyzja);
  Odmowa SprawdzAdres() const;
  Odmowa UstalTyp();
  Odmowa FiltrujStatus(const PolaRekordu& pola) const;
  void Zapisz();

  KontekstImportuKontrahentow& m_import;
  TDmVLTKontrahent m_kontrahent;

  // Of the record in hand.
  QString m_nazwa;
  int m_numer = 0;  // in the file
  QString m_nip;    // as entered, without the blanks around it
  QString m_cyfry;  // by which it is compared
};
