#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "model/kody_dodatkowe.h"
#include "model/strumien_szczegolow.h"

// Columns of table Towar that an export needs, in the order of the select.
#define ZORVIK_POLA_EKSPORTU(POLE) \
  POLE(TowId, Calkowite)           \
  POLE(Kod, Tekst)                 \
  POLE(Nazwa, Tekst)               \
  POLE(Skrot, Tekst)               \
  POLE(TypTowaru, Calkowite)       \
  POLE(Indeks1, Tekst)             \
  POLE(Indeks2, Tekst)             \
  POLE(Opis1, Tekst)               \
  POLE(Opis2, Tekst)               \
  POLE(Opis3, Tekst)               \
  POLE(Opis4, Tekst)               \
  POLE(IleWZgrzewce, Dziesietne)   \
  POLE(IleWCalosci, Dziesietne)    \
  POLE(TermWazn, Calkowite)        \
  POLE(PrefPLU, Calkowite)         \
  POLE(Marza, Dziesietne)          \
  POLE(HurtRabat, Dziesietne)      \
  POLE(NocNarzut, Dziesietne)      \
  POLE(CenaEw, Dziesietne)         \
  POLE(CenaDet, Dziesietne)        \
  POLE(CenaHurt, Dziesietne)       \
  POLE(CenaNoc, Dziesietne)        \
  POLE(CenaDod, Dziesietne)        \
  POLE(CenaOtwarta, Calkowite)     \
  POLE(Stawka, Calkowite)          \
  POLE(AsId, Calkowite)            \
  POLE(JMId, Calkowite)            \
  POLE(KatId, Calkowite)           \
  POLE(Producent, Calkowite)       \
  POLE(Aktywny, Calkowite)

struct PoleEksportu {
#define ZORVIK_POLE(nazwa, typ) nazwa,
  enum Numer : std::size_t { ZORVIK_POLA_EKSPORTU(ZORVIK_POLE) };
#undef ZORVIK_POLE
};

// One good as it stands in the database, with what belongs to it in other tables.
struct DaneTowaru {
  const Odczyt* wiersz = nullptr;                   // columns of PoleEksportu
  std::vector<KodDodatkowy> kody;                   // in their order
  std::vector<std::pair<int, long long>> wartosci;  // ParId, value
  std::vector<int> dostawcy;                        // contractors in their order
  std::optional<double> stan;                       // nothing when no stock was asked for
};

// Reads goods by rising identifier, page by page, the tables side by side.
class OdczytTowarow {
 public:
  // `stany`: 0 none, 1 of all warehouses together, k from 2: of the warehouse with identifier k - 1.
  OdczytTowarow(TVLTBazaDanych& baza, int stany);

  // Begins a page: of the goods with these identifiers and those between them.
  void Strona(int od, int doId);
  // A good of the page; identifiers only rise from call to call. 2001 when the good is gone.
  const DaneTowaru& Wczytaj(int towId);
  const DaneTowaru& Biezacy() const { return m_towar; }

 private:
  StrumienSzczegolow m_towary;
  StrumienSzczegolow m_kody;
  StrumienSzczegolow m_wartosci;
  StrumienSzczegolow m_dostawcy;
  std::optional<StrumienSzczegolow> m_stany;
  bool m_jedenMagazyn;
  DaneTowaru m_towar;
};
