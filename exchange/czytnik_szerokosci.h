#pragma once

#include <vector>

#include "exchange/czytnik_tekstowy.h"
#include "exchange/reguly_pol.h"

// Columns of fixed width, one after another. A separator named by the structure plays no part.
class CzytnikSzerokosci final : public CzytnikTekstowy {
 public:
  explicit CzytnikSzerokosci(const StrukturaPliku& struktura);

 private:
  int Rozloz(std::string_view linia) override;

  struct Kolumna {
    int pole;  // -1 for an unreadable number
    size_t szerokosc;
  };
  RegulyPol m_reguly;
  std::vector<Kolumna> m_kolumny;
};
