#pragma once

#include <algorithm>
#include <optional>

// The highest number of all shops, read once for a batch of saves: asking the database for it would make
// every new shop wait for the rows before it to be written. Forgotten at the start of every batch.
class NumerySklepow {
 public:
  std::optional<long long> Najwyzszy() const { return m_najwyzszy; }
  void Przyjmij(long long najwyzszy) { m_najwyzszy = najwyzszy; }
  // A shop was stored; nothing when the highest number is not known.
  void Dodaj(long long numer) {
    if (m_najwyzszy) m_najwyzszy = std::max(*m_najwyzszy, numer);
  }
  void Zapomnij() { m_najwyzszy.reset(); }

 private:
  std::optional<long long> m_najwyzszy;
};
