#pragma once

#include <thread>

#include "robotnik/przekazanie.h"
#include "robotnik/stan_przebiegu.h"

// One run on a thread of its own. Whatever way the work ends, the state is then finished. Plain C++: how the
// main thread is woken and how an exception is shown come from outside. Used by the main thread; the state
// outlives the worker.
class Robotnik {
 public:
  // On the worker.
  using Praca = std::function<void(Przekazanie&, const std::atomic<bool>& stop)>;
  // On the main thread, for an exception that ended the work.
  using PokazWyjatek = std::function<void(const std::exception_ptr&)>;

  Robotnik(StanPrzebiegu& stan, Przekazanie::Czynnosc obudz, PokazWyjatek pokazWyjatek);
  ~Robotnik() { Dokoncz(); }

  // Once.
  void Uruchom(Praca praca);
  void Obsluz() { m_przekazanie.Obsluz(); }
  // Asks it to stop if it still works, serves it to its end and waits for its thread. No event loop is
  // needed, so this also holds when the program is being closed.
  void Dokoncz();

 private:
  void Pracuj(const Praca& praca);

  StanPrzebiegu& m_stan;
  Przekazanie m_przekazanie;
  PokazWyjatek m_pokazWyjatek;
  std::thread m_watek;
};
