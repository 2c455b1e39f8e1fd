#include "robotnik/robotnik.h"

#include <utility>

Robotnik::Robotnik(StanPrzebiegu& stan, Przekazanie::Czynnosc obudz, PokazWyjatek pokazWyjatek)
    : m_stan(stan), m_przekazanie(std::move(obudz)), m_pokazWyjatek(std::move(pokazWyjatek)) {}

void Robotnik::Uruchom(Praca praca) {
  m_stan.Rozpocznij();
  try {
    m_watek = std::thread([this, praca = std::move(praca)] { Pracuj(praca); });
  } catch (...) {
    m_stan.Zakoncz();
    throw;
  }
}

void Robotnik::Pracuj(const Praca& praca) {
  try {
    praca(m_przekazanie, m_stan.Stop());
  } catch (...) {
    const std::exception_ptr wyjatek = std::current_exception();
    try {
      m_przekazanie.Wykonaj([&] { m_pokazWyjatek(wyjatek); });
    } catch (...) {
      // It cannot be shown; the window must be able to close all the same.
    }
  }
  m_stan.Zakoncz();
  m_przekazanie.Zamknij();
}

void Robotnik::Dokoncz() {
  if (!m_watek.joinable()) return;
  m_stan.ZazadajStopu();
  m_przekazanie.ObsluzDoZamkniecia();
  m_watek.join();
}
