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
  return m_plik.Open(sciezka, TMFile::Tryb::Zapis);
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
  m_linia.clear();
  m_pierwsze = true;
  m_brakujacych = std::exchange(m_brakujacychTeraz, 0);
  return zapisano;
}

bool ZapisRekordow::Zamknij() {
  return m_plik.Close();
}
