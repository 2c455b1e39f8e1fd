#pragma once

#include <vector>

#include <QSet>
#include <QString>

// Fills a list of persons: non-empty ones in the order in which they come, each once.
class ZbieraczOsob {
 public:
  // Empties the list, which must outlive the object.
  explicit ZbieraczOsob(std::vector<QString>& osoby) : m_osoby(osoby) { m_osoby.clear(); }

  void Dodaj(const QString& osoba) {
    const qsizetype ile = m_widziane.size();
    if (osoba.trimmed().isEmpty() || (m_widziane.insert(osoba), m_widziane.size() == ile)) return;
    m_osoby.push_back(osoba);
  }

 private:
  std::vector<QString>& m_osoby;
  QSet<QString> m_widziane;
};
