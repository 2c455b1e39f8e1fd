#pragma once

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

// An error of the database below us. Its texts name the cause and the statement's operation, never a bound
// value.
class EBladBazy final : public EVLTExceptionBase {
 public:
  EBladBazy(RodzajBleduBazy rodzaj, QString tresc, const QString& operacja);

  RodzajBleduBazy Rodzaj() const { return m_rodzaj; }
  // True for faults that every further record would meet as well: they end a run.
  bool KonczyPrzebieg() const { return m_rodzaj != RodzajBleduBazy::Ograniczenie; }

  QString Modul() const override { return QStringLiteral("Baza"); }
  std::unique_ptr<EMException> Clone() const override;
  void Assign(const EMException& zrodlo) override;

 private:
  RodzajBleduBazy m_rodzaj;
};
