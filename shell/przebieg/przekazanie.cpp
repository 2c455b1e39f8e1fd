#include "shell/przebieg/przekazanie.h"

#include <utility>

void Przekazanie::Wykonaj(const Czynnosc& czynnosc) {
  {
    const std::lock_guard zamek(m_straz);
    m_czynnosc = &czynnosc;
    m_gotowe = false;
  }
  m_obudz();
  std::unique_lock zamek(m_straz);
  m_zrobiono.wait(zamek, [this] { return m_gotowe; });
  if (m_wyjatek) std::rethrow_exception(std::exchange(m_wyjatek, nullptr));
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
  m_zrobiono.notify_one();
}
