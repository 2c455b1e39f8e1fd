#pragma once

#include <vector>

#include <QString>

#include "model/kontrahent.h"
#include "model/strumien_szczegolow.h"

// One contractor as it stands in the database, with what belongs to it in other tables.
struct DaneKontrahenta {
  using Kolumna = KolumnaKontrahenta::Numer;

  const Odczyt* wiersz = nullptr;  // columns of table Kontrahent, up to Rezerwa2
  bool sklep = false;
  std::vector<QString> osoby;  // in the order in which they were stored, each once

  const Wartosc& operator[](Kolumna kolumna) const { return (*wiersz)[kolumna]; }
  bool Flaga(Kolumna kolumna) const { return (*this)[kolumna].AsInteger() != 0; }
};

// Reads contractors by rising identifier, page by page, the tables side by side.
class OdczytKontrahentow {
 public:
  explicit OdczytKontrahentow(TVLTBazaDanych& baza);

  // Begins a page: of the contractors with these identifiers and those between them.
  void Strona(int od, int doId);
  // A contractor of the page; identifiers only rise from call to call. 2001 when the contractor is gone.
  const DaneKontrahenta& Wczytaj(int kontrId);
  const DaneKontrahenta& Biezacy() const { return m_kontrahent; }

 private:
  StrumienSzczegolow m_kontrahenci;
  StrumienSzczegolow m_sklepy;
  StrumienSzczegolow m_osoby;
  DaneKontrahenta m_kontrahent;
};
