#include "exchange/czytnik_wlasny.h"

#include <algorithm>

namespace {

// Files from before the status column are no reason to ask.
int DeklarowanaLiczbaPol(RodzajRekordu rodzaj) {
  return rodzaj == RodzajRekordu::Towary ? PoleTowaru::Status : PoleKontrahenta::LiczbaWartosci;
}

// What stands behind so many fields.
std::string_view ZaOstatnim(std::string_view linia, int pol) {
  for (; pol > 0; --pol) linia.remove_prefix(linia.find('\t') + 1);
  return linia;
}

}  // namespace

CzytnikWlasny::CzytnikWlasny(const StrukturaPliku& struktura)
    : CzytnikTekstowy(struktura, DeklarowanaLiczbaPol(struktura.rodzaj)) {
  m_pola.set();
}

bool CzytnikWlasny::MaStatus() const {
  if (m_rodzaj == RodzajRekordu::Kontrahenci) return true;
  return m_naglowekMaStatus && m_polWLinii > PoleTowaru::Status;
}

void CzytnikWlasny::PierwszaLinia(std::string_view linia) {
  m_naglowekMaStatus = linia.find("Status towaru") != std::string_view::npos;
}

void CzytnikWlasny::Przewin() {
  CzytnikTekstowy::Przewin();
  m_naglowekMaStatus = false;
  m_puste = 0;
  m_wczytanaDalsza = false;
}

WynikCzytania CzytnikWlasny::NastepnaLinia(std::string_view& linia) {
  if (!m_wczytanaDalsza) {
    m_puste = 0;
    while ((m_wynikDalszej = WczytajLinie(m_dalsza)) == WynikCzytania::Rekord && m_dalsza.empty()) ++m_puste;
    if (m_wynikDalszej == WynikCzytania::Koniec) m_puste = 0;
    m_wczytanaDalsza = true;
  }
  if (m_puste > 0) {
    --m_puste;
    linia = {};
    return WynikCzytania::Rekord;
  }
  m_wczytanaDalsza = false;
  linia = m_dalsza;
  if (m_wynikDalszej == WynikCzytania::Rekord && Komentarz(linia)) return WynikCzytania::Pominiety;
  return m_wynikDalszej;
}

int CzytnikWlasny::Rozloz(std::string_view linia) {
  m_linia = LiniaRekordu(linia, m_strona);
  // Contractors: a tab that ends the line does not begin a field.
  const std::string_view liczona =
      m_rodzaj == RodzajRekordu::Kontrahenci ? linia.substr(0, linia.empty() ? 0 : linia.size() - 1) : linia;
  m_polWLinii = static_cast<int>(std::count(liczona.begin(), liczona.end(), '\t')) + 1;
  if (m_polWLinii > LiczbaWartosci(m_rodzaj)) SprawdzReszte(ZaOstatnim(linia, LiczbaWartosci(m_rodzaj)));
  return m_polWLinii;
}
