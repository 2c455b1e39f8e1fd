#pragma once

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include <QString>

#include "platform/tozsamosc_pliku.h"

// Watches that an embedded database is still the one that was opened. The system lets a program write on into
// a file that was deleted, or in whose place another stands, and reports success for what nobody will ever
// read. Order of calls: Zapamietaj when the connection stands, CoSieStalo whenever it matters.
class StrazBazy {
 public:
  // `naglowek`: how many bytes the database itself says its file should have at least; asked only when the
  // file has become shorter, as another program's vacuum makes it.
  void Zapamietaj(const QString& baza, std::function<qint64()> wedlugNaglowka);
  // What happened to the database, for people; nothing when it is as it was.
  std::optional<QString> CoSieStalo();

 private:
  QString m_baza;
  std::function<qint64()> m_wedlugNaglowka;
  std::vector<std::pair<QString, TozsamoscPliku>> m_pliki;
  qint64 m_rozmiar = 0;
};
