#pragma once

#include <optional>

#include <QString>

class TVLTBazaDanych;

// Names for goods without one: "Towar bez nazwy 0001" and so on, after the highest such name in the database.
// A name is proposed until it was saved.
class NumeracjaNazw {
 public:
  explicit NumeracjaNazw(TVLTBazaDanych& baza) : m_baza(baza) {}

  QString Zaproponuj();
  // The good with that name is stored.
  void Potwierdz();
  // Others have written: the highest number is looked for again.
  void Zapomnij() { m_najwyzszy.reset(); }

 private:
  TVLTBazaDanych& m_baza;
  std::optional<long long> m_najwyzszy;
};
