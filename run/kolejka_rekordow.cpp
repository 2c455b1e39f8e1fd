#include "run/kolejka_rekordow.h"

#include <algorithm>

bool KolejkaRekordow::Nastepny() {
  if (m_rozpoczeta) ++m_biezacy;
  m_rozpoczeta = true;
  if (m_biezacy == m_rekordy.size()) CzytajBlok();
  return m_biezacy < m_rekordy.size();
}

std::span<const RekordPliku> KolejkaRekordow::NowyBlok() {
  if (m_biezacy < m_koniecBloku) return {};
  m_koniecBloku = std::min(m_rekordy.size(), m_biezacy + kBlok);
  return std::span(m_rekordy).subspan(m_biezacy, m_koniecBloku - m_biezacy);
}

bool KolejkaRekordow::Zapomnij() {
  const bool byly = m_biezacy > 0;
  m_rekordy.erase(m_rekordy.begin(), m_rekordy.begin() + static_cast<std::ptrdiff_t>(m_biezacy));
  m_biezacy = m_koniecBloku = 0;
  return byly;
}

void KolejkaRekordow::Wroc() {
  m_biezacy = m_koniecBloku = 0;
  m_rozpoczeta = false;
}

void KolejkaRekordow::CzytajBlok() {
  while (m_koniec == WynikCzytania::Rekord && m_rekordy.size() < m_biezacy + kBlok) {
    const WynikCzytania wynik = m_czytnik.Nastepny();
    if (wynik == WynikCzytania::Koniec || wynik == WynikCzytania::Blad) m_koniec = wynik;
    if (wynik != WynikCzytania::Rekord) continue;
    const LiniaRekordu& linia = m_czytnik.Linia();
    m_rekordy.push_back({std::string(linia.Reszta()), linia.Strona(), m_czytnik.NumerRekordu(),
                         m_czytnik.SprawdzLiczbePol(), m_czytnik.MaStatus(), m_czytnik.Spostrzezenia()});
  }
}
