#pragma once

#include <array>

#include "exchange/linia_rekordu.h"

// The values of one record by catalogue number, converted when they are asked for: most decisions need a few
// of them only. Valid as long as the line it was made of.
class PolaRekordu {
 public:
  // `separator`: the system's decimal mark.
  PolaRekordu(LiniaRekordu linia, RodzajRekordu rodzaj, char separator) : m_separator(separator) {
    for (int pole = 0; pole < LiczbaWartosci(rodzaj); ++pole) {
      m_pola[static_cast<std::size_t>(pole)] = linia;
      linia.Pomin();
    }
  }

  QString Tekst(int pole) const { return Token(pole).Tekst(); }
  // Without the blanks around it.
  QString Trim(int pole) const { return Tekst(pole).trimmed(); }
  TokenLiczby<int> Calkowita(int pole, int domyslna = 0) const { return Token(pole).Calkowita(domyslna); }
  TokenLiczby<double> Liczba(int pole) const { return Token(pole).Liczba(m_separator); }

 private:
  LiniaRekordu Token(int pole) const { return m_pola[static_cast<std::size_t>(pole)]; }

  // Copies of the line, each standing before its field.
  std::array<LiniaRekordu, PoleKontrahenta::LiczbaWartosci> m_pola;
  char m_separator;
};
