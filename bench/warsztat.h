#pragma once

#include <filesystem>
#include <string>

#include "bench/uklad.h"

// What a run of the product took.
struct Zuzycie {
  double sekund;
  double procesora;  // seconds
  long oczekiwan;    // calls that wait for the disk
  double pamiecMb;   // the most it held in memory
  double stronyMb;   // of that: pages of the database, which SQLite keeps up to a limit of its own
};

// The measured programs and a folder for their files, emptied at the start. Errors: std::runtime_error.
class Warsztat {
 public:
  explicit Warsztat(const std::filesystem::path& programy);

  std::string Sciezka(const std::string& nazwa) const { return (m_folder / nazwa).string(); }
  std::string Program(const char* nazwa) const { return (m_programy / nazwa).string(); }

  // The bases that measured ones begin as: without a record, and with the suppliers of the goods.
  static constexpr const char* kPusta = "pusta.db";
  static constexpr const char* kZDostawcami = "dostawcy.db";
  // Imports the suppliers into the named base, or a server's; then its log is to be emptied.
  void WczytajDostawcow(const std::string& baza) const;
  static constexpr const char* kBezDziennika = "delete from DziennikZmian";
  void KopiujBaze(const std::string& skad, const std::string& dokad) const;
  void ZapiszKonfiguracje(const std::string& nazwa, const Ustawienia& ustawienia) const;

  // One run of zorvik-cli; the files are those of the folder.
  struct Zadanie {
    std::string operacja;
    std::string plik;
    std::string baza;  // or "odbc:...", a server's
    std::string konfiguracja;
    char separator;
    const char* licznik;  // of the result; it must have counted `ile`: a run that did something else would
    int ile;              // measure nothing
  };
  Zuzycie Zorvik(const Zadanie& zadanie) const;
  // One run of the plain program, in seconds.
  double Wzorzec(const std::string& tryb, const std::string& baza, const std::string& plik) const;

 private:
  std::filesystem::path m_programy, m_folder;
};
