#include "robotnik/stan_przebiegu.h"

Stan StanPrzebiegu::Get() const {
  const std::lock_guard zamek(m_sekcja);
  return m_stan;
}

void StanPrzebiegu::Rozpocznij() {
  const std::lock_guard zamek(m_sekcja);
  m_stan = Stan::Trwa;
  m_stop = false;
}

bool StanPrzebiegu::ZazadajStopu() {
  const std::lock_guard zamek(m_sekcja);
  if (m_stan != Stan::Trwa) return false;
  m_stan = Stan::Zatrzymywany;
  m_stop = true;
  return true;
}

void StanPrzebiegu::Zakoncz() {
  const std::lock_guard zamek(m_sekcja);
  m_stan = Stan::Zakonczony;
}
