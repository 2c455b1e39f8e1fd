#pragma once

#include <cstdlib>
#include <string_view>

#include <QString>

#include <sys/mman.h>
#include <unistd.h>

// A file that never reaches a disk; one serves a whole fuzzing run.
class PlikWPamieci {
 public:
  PlikWPamieci() : m_plik(memfd_create("fuzz", 0)) {}
  ~PlikWPamieci() { close(m_plik); }
  PlikWPamieci(const PlikWPamieci&) = delete;
  PlikWPamieci& operator=(const PlikWPamieci&) = delete;

  void Ustaw(std::string_view tresc) const {
    const auto dlugosc = static_cast<ssize_t>(tresc.size());
    if (ftruncate(m_plik, 0) != 0 || pwrite(m_plik, tresc.data(), tresc.size(), 0) != dlugosc) std::abort();
  }
  QString Sciezka() const { return QStringLiteral("/proc/self/fd/%1").arg(m_plik); }

 private:
  int m_plik;
};

// What must hold whatever the input.
inline void Wymagaj(bool warunek) {
  if (!warunek) std::abort();
}
