#pragma once

#include <string>
#include <vector>

#include "bench/warsztat.h"
#include "platform/baza/napis_odbc.h"

// The throw-away PostgreSQL whose maintenance database ZORVIK_TEST_ODBC names: databases with the product's
// tables on it, and psql, the plain program beside the product. Errors: std::runtime_error.
class Serwer {
 public:
  explicit Serwer(const Warsztat& warsztat);

  // An empty one, in place of what had the name.
  void NowaBaza(const std::string& nazwa) const;

  std::string Port() const { return Wartosc("Port"); }
  // Where the product finds a database of the server, or of the one behind another port of this machine:
  // "odbc:@FILE", for a password among the arguments is in the list of processes.
  std::string Polaczenie(const std::string& baza, const std::string& port) const;
  std::string Polaczenie(const std::string& baza) const { return Polaczenie(baza, Port()); }

  // One run of psql, in seconds; it stops at the first error.
  double Psql(const std::string& baza, const std::string& skrypt) const;

 private:
  std::string Wartosc(const char* klucz) const;
  void Zaloz(const std::string& nazwa, const std::string& wzor) const;

  const Warsztat& m_warsztat;
  std::vector<AtrybutOdbc> m_polaczenie;
};
