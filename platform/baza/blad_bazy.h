#pragma once

#include <string_view>

#include <QString>

#include "platform/wyjatek.h"

// What a database failure means for a run.
enum class RodzajBleduBazy {
  Polaczenie,    // the connection is lost or cannot be made
  Logowanie,     // the server knows no such user or password
  Sterownik,     // the ODBC driver or data source is missing
  PelnyDysk,     // no room for the data
  TylkoOdczyt,   // the database may not be written
  Zniknela,      // its file was deleted, replaced or cut: nothing that was written may be there
  Nietrwaly,     // what was committed may not outlive a power cut: the disk did not confirm it
  Wejscie,       // reading or writing the medium failed, the file is damaged or is no database
  Blokada,       // somebody else held a lock for longer than the time-out
  Czas,          // a statement took longer than the server allows, or was cancelled there
  Kolizja,       // a deadlock or a serialisation failure: the transaction may be tried again
  Uprawnienia,   // the database user may not do this
  Grupa,         // one of several rows that were written together was refused; which one is not known
  Ograniczenie,  // a constraint, range or length refused the values
  Inny
};

// What a failure means: by the five characters of the standard (SQLSTATE) that servers give, and into which
// the embedded database's codes are put. One table for all databases.
struct PrzyczynaBledu {
  RodzajBleduBazy rodzaj = RodzajBleduBazy::Inny;
  QString powod = {};      // for a person, beyond the words for the kind; may be empty
  QString szczegoly = {};  // the driver's own words
};
PrzyczynaBledu PrzyczynaStanu(std::string_view stan);
// The state for a code of SQLite, extended or not.
std::string_view StanSqlite(int kod);

// An error of the database below us. Its texts name the cause in a person's words; what the driver says and
// the statement's operation stand behind them, on a line of their own (kSzczegoly). Never a bound value.
class EBladBazy final : public EVLTExceptionBase {
 public:
  // `tresc`: for a person; `szczegoly`: for whoever looks after the database.
  EBladBazy(RodzajBleduBazy rodzaj, QString tresc, const QString& szczegoly);

  RodzajBleduBazy Rodzaj() const { return m_rodzaj; }
  // True for faults that every further record would meet as well: they end a run.
  bool KonczyPrzebieg() const { return m_rodzaj != RodzajBleduBazy::Ograniczenie; }

  QString Modul() const override { return QStringLiteral("Baza"); }
  std::unique_ptr<EMException> Clone() const override;
  void Assign(const EMException& zrodlo) override;

 private:
  RodzajBleduBazy m_rodzaj;
};
