#pragma once

#include <atomic>
#include <mutex>

enum class Stan : unsigned char {
  Trwa = 0,
  Zakonczony = 1,
  Zatrzymywany = 2  // the operator wants it to stop
};

// The one variable that both the worker and the main thread write. A state that was never started is
// finished, so that a worker without work can be thrown away and a window may close.
class StanPrzebiegu {
 public:
  Stan Get() const;
  // To running.
  void Rozpocznij();
  // Running to stopping; false when there is nothing to stop or it is being stopped already.
  bool ZazadajStopu();
  // From whatever state: the end of a run prevails over a wish to stop it.
  void Zakoncz();

  // Raised by ZazadajStopu; what a run looks at between records, without taking the lock.
  const std::atomic<bool>& Stop() const { return m_stop; }

 private:
  mutable std::mutex m_sekcja;
  Stan m_stan = Stan::Zakonczony;
  std::atomic<bool> m_stop = false;
};
