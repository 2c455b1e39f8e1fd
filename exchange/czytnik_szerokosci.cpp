#include "exchange/czytnik_szerokosci.h"

#include <algorithm>

#include "exchange/bajty.h"

CzytnikSzerokosci::CzytnikSzerokosci(const StrukturaPliku& struktura)
    : CzytnikTekstowy(struktura, static_cast<int>(struktura.pola.size())),
      m_reguly(struktura, m_spostrzezenia) {
  for (const WpisPola& wpis : struktura.pola)
    m_kolumny.push_back(
        {wpis.Numer().value_or(-1), static_cast<size_t>(std::max(0, wpis.Szerokosc().value_or(0)))});
}

int CzytnikSzerokosci::Rozloz(std::string_view linia) {
  int pobrane = 0;
  m_reguly.Wyczysc();
  for (const Kolumna& kolumna : m_kolumny) {
    const std::string_view wartosc = linia.substr(0, kolumna.szerokosc);
    if (!linia.empty()) ++pobrane;
    linia.remove_prefix(wartosc.size());
    m_reguly.Zapisz(kolumna.pole, Przytnij(wartosc));
  }
  SprawdzReszte(linia);
  m_linia = LiniaRekordu(m_reguly.Zloz(), m_strona, pobrane);
  return pobrane;
}
