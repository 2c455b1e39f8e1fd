#include "robotnik/przekazanie.h"

#include <utility>

void Przekazanie::Wykonaj(const Czynnosc& czynnosc) {
  {
    const std::lock_guard zamek(m_straz);
    m_czynnosc = &czynnosc;
    m_gotowe = false;
  }
  m_zmiana.notify_all();
  try {
    m_obudz();
  } catch (...) {
    // Nobody may come for it any more, unless somebody has: then it is waited for as usual.
    const std::lock_guard zamek(m_straz);
    if (std::exchange(m_czynnosc, nullptr)) throw;
  }
  std::unique_lock zamek(m_straz);
  m_zmiana.wait(zamek, [this] { return m_gotowe; });
  if (m_wyjatek) std::rethrow_exception(std::exchange(m_wyjatek, nullptr));
}

void Przekazanie::Zamknij() {
  {
    const std::lock_guard zamek(m_straz);
    m_zamkniete = true;
  }
  m_zmiana.notify_all();
}

// The lock is not held meanwhile: the call may show a window, whose events lead back here.
void Przekazanie::Obsluz() {
  const Czynnosc* czynnosc = nullptr;
  {
    const std::lock_guard zamek(m_straz);
    czynnosc = std::exchange(m_czynnosc, nullptr);
  }
  if (!czynnosc) return;
  std::exception_ptr wyjatek;
  try {
    (*czynnosc)();
  } catch (...) {
    wyjatek = std::current_exception();
  }
  {
    const std::lock_guard zamek(m_straz);
    m_wyjatek = std::move(wyjatek);
    m_gotowe = true;
  }
  m_zmiana.notify_all();
}

void Przekazanie::ObsluzDoZamkniecia() {
  for (;;) {
    {
      std::unique_lock zamek(m_straz);
      m_zmiana.wait(zamek, [this] { return m_czynnosc || m_zamkniete; });
      if (!m_czynnosc) return;
    }
    Obsluz();
  }
}
