#pragma once

#include <QString>
#include <QStringView>

class TVLTBazaDanych;

// Names for goods without one: "Towar bez nazwy 0001" and so on, after the highest such name that the
// database has or this run has stored, whoever gave it. A name is proposed until it was saved.
class NumeracjaNazw {
 public:
  explicit NumeracjaNazw(TVLTBazaDanych& baza) : m_baza(baza) {}

  QString Zaproponuj();
  // A good with that name is stored.
  void Zapisana(QStringView nazwa);
  // Others have written: the database is asked again.
  void Zapomnij() { m_odczytany = false; }
  // The names told since the last of these two calls are stored for good; or their saves were undone.
  void ZatwierdzPaczke() { m_zatwierdzony = m_najwyzszy; }
  void CofnijPaczke();

 private:
  TVLTBazaDanych& m_baza;
  // Never goes down when a good is renamed: the next name does not depend on when the database was asked.
  long long m_najwyzszy = 0;
  long long m_zatwierdzony = 0;
  bool m_odczytany = false;
};
