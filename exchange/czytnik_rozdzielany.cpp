#include "exchange/czytnik_rozdzielany.h"

#include "exchange/bajty.h"
#include "exchange/strony_kodowe.h"

CzytnikRozdzielany::CzytnikRozdzielany(const StrukturaPliku& struktura)
    : CzytnikTekstowy(struktura, static_cast<int>(struktura.pola.size())),
      m_reguly(struktura, m_spostrzezenia),
      m_separator(BajtyNaStronie(struktura.separator, struktura.CBPolskieZnaki)) {
  for (const WpisPola& wpis : struktura.pola) m_kolumny.push_back(wpis.Numer().value_or(-1));
}

int CzytnikRozdzielany::Rozloz(std::string_view linia) {
  int pobrane = 0;
  m_reguly.Wyczysc();
  for (const int pole : m_kolumny) {
    const size_t miejsce = m_separator.empty() ? std::string_view::npos : linia.find(m_separator);
    std::string_view wartosc = linia;
    if (miejsce == std::string_view::npos) {
      if (!linia.empty()) ++pobrane;
      linia = {};
    } else {
      // A longer separator takes its further characters from the field's end: files have been made to fit
      // this.
      const size_t zabrane = m_separator.size() - 1;
      wartosc = linia.substr(0, miejsce > zabrane ? miejsce - zabrane : 0);
      linia.remove_prefix(miejsce + m_separator.size());
      ++pobrane;
    }
    m_reguly.Zapisz(pole, Przytnij(wartosc));
  }
  SprawdzReszte(linia, m_separator);
  m_linia = LiniaRekordu(m_reguly.Zloz(), m_strona, pobrane);
  return pobrane;
}
