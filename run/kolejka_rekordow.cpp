#include "run/kolejka_rekordow.h"

bool KolejkaRekordow::Nastepny() {
  if (m_rozpoczeta) ++m_biezacy;
  m_rozpoczeta = true;
  if (m_biezacy == m_rekordy.size()) CzytajBlok();
  return m_biezacy < m_rekordy.size();
}

void KolejkaRekordow::Zapomnij() {
  m_rekordy.erase(m_rekordy.begin(), m_rekordy.begin() + static_cast<std::ptrdiff_t>(m_biezacy));
  m_poczatekBloku = m_poczatekBloku > m_biezacy ? m_poczatekBloku - m_biezacy : 0;
  m_biezacy = 0;
}

void KolejkaRekordow::CzytajBlok() {
  m_poczatekBloku = m_biezacy;
  while (m_koniec == WynikCzytania::Rekord && m_rekordy.size() < m_biezacy + kBlok) {
    const WynikCzytania wynik = m_czytnik.Nastepny();
    if (wynik == WynikCzytania::Koniec || wynik == WynikCzytania::Blad) m_koniec = wynik;
    if (wynik != WynikCzytania::Rekord) continue;
    const LiniaRekordu& linia = m_czytnik.Linia();
    m_rekordy.push_back({std::string(linia.Reszta()), linia.Strona(), m_czytnik.NumerRekordu(),
                         m_czytnik.SprawdzLiczbePol(), m_czytnik.MaStatus()});
  }
}
