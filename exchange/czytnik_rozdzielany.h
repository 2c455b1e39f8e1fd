#pragma once

#include <string>
#include <vector>

#include "exchange/czytnik_tekstowy.h"
#include "exchange/reguly_pol.h"

// Fields divided by the structure's separator, a text of any length. A separator within qualified text
// divides too.
class CzytnikRozdzielany final : public CzytnikTekstowy {
 public:
  explicit CzytnikRozdzielany(const StrukturaPliku& struktura);

 private:
  int Rozloz(std::string_view linia) override;

  RegulyPol m_reguly;
  std::string m_separator;
  std::vector<int> m_kolumny;  // catalogue numbers in file order, -1 for an unreadable one
};
