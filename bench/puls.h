#pragma once

#include <chrono>
#include <ctime>

#include <QTimer>

// How long the main thread stays away from its event loop: a timer that is always due notes when it is
// served. A stay is told too long by its period at most, never too short.
class Puls {
 public:
  Puls() {
    m_zegar.setTimerType(Qt::PreciseTimer);
    m_zegar.callOnTimeout([this] { Uderz(); });
  }

  // From here on; forgets what was before.
  void Zacznij() {
    m_najdluzsza = {};
    m_poczatek = m_ostatnio = Chwila::Teraz();
    m_zegar.start(kOkres);
  }
  void Uderz() {
    const Chwila teraz = Chwila::Teraz();
    const double ms = teraz.ms - m_ostatnio.ms;
    if (ms > m_najdluzsza.ms)
      m_najdluzsza = {ms, teraz.procesoraMs - m_ostatnio.procesoraMs, m_ostatnio.ms - m_poczatek.ms};
    m_ostatnio = teraz;
  }

  struct Przerwa {
    double ms = 0;
    double procesoraMs = 0;  // of that: the thread was running
    double poMs = 0;         // when it began
  };
  const Przerwa& Najdluzsza() const { return m_najdluzsza; }
  double OdPoczatkuMs() const { return Chwila::Teraz().ms - m_poczatek.ms; }

 private:
  static constexpr std::chrono::milliseconds kOkres{2};

  struct Chwila {
    double ms = 0;
    double procesoraMs = 0;
    static Chwila Teraz() { return {Ms(CLOCK_MONOTONIC), Ms(CLOCK_THREAD_CPUTIME_ID)}; }
    static double Ms(clockid_t zegar) {
      std::timespec czas{};
      ::clock_gettime(zegar, &czas);
      return static_cast<double>(czas.tv_sec) * 1e3 + static_cast<double>(czas.tv_nsec) / 1e6;
    }
  };

  QTimer m_zegar;
  Chwila m_poczatek, m_ostatnio;
  Przerwa m_najdluzsza;
};
