#include "exchange/zapis_rekordow.h"

#include <utility>

#include "platform/windows1250.h"

namespace {

// One blank in place of CR LF, CR or LF.
void UsunZlamania(std::string& tekst, size_t od) {
  size_t cel = od;
  char poprzedni = '\0';
  for (size_t i = od; i < tekst.size(); ++i) {
    const char znak = tekst[i];
    if (znak != '\n' || poprzedni != '\r') tekst[cel++] = znak == '\r' || znak == '\n' ? ' ' : znak;
    poprzedni = znak;
  }
  tekst.resize(cel);
}

}  // namespace

bool ZapisRekordow::Otworz(const QString& sciezka) {
  m_linia.clear();
  m_pierwsze = true;
  m_brakujacych = m_brakujacychTeraz = 0;
  m_blad.clear();
  if (const auto powod = m_obok.Zacznij(sciezka)) {
    m_blad = *powod;
    return false;
  }
  if (!m_plik.Open(m_obok.Sciezka(), TMFile::Tryb::Zapis)) {
    m_obok.Porzuc();
    return false;
  }
  m_dawnyPozostal = m_obok.Obok();
  return true;
}

void ZapisRekordow::NastepnePole() {
  if (!std::exchange(m_pierwsze, false)) m_linia += '\t';
}

void ZapisRekordow::Pole(QStringView tekst) {
  NastepnePole();
  const size_t od = m_linia.size();
  m_brakujacychTeraz += windows1250::Dopisz(tekst, m_linia);
  if (m_linia.find('\n', od) != std::string::npos || m_linia.find('\r', od) != std::string::npos)
    UsunZlamania(m_linia, od);
}

void ZapisRekordow::PoleAscii(std::string_view tekst) {
  NastepnePole();
  m_linia += tekst;
}

bool ZapisRekordow::ZapiszRekord() {
  const bool zapisano = m_plik.WriteLine(m_linia);
  m_dawnyPozostal = false;
  m_linia.clear();
  m_pierwsze = true;
  m_brakujacych = std::exchange(m_brakujacychTeraz, 0);
  return zapisano;
}

bool ZapisRekordow::Zamknij() {
  const bool zapisano = m_plik.Close();
  if (m_dawnyPozostal)
    m_obok.Porzuc();
  else if (m_obok.Zaczety())
    m_blad = m_obok.Podmien().value_or(QString());
  return zapisano && m_blad.isEmpty();
}
