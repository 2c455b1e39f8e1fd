#include "run/liczniki.h"

void Liczniki::Zatwierdz() {
  for (std::size_t i = 0; i < m_otwarte.size(); ++i) m_zatwierdzone[i] += m_otwarte[i];
  m_otwarte = {};
}
