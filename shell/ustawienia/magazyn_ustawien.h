#pragma once

#include <optional>
#include <utility>
#include <vector>

#include <QString>

#include "exchange/komunikat.h"

class TVLTBazaDanych;
struct Ustawienia;

// The places where settings are kept: the default file of the start-up folder, the database, files a person
// chooses. Loading never applies the rules between options; that is done once, after the last load.
namespace magazyn_ustawien {

// A message for every setting whose stored text was no value of it.
using Komunikaty = std::vector<Komunikat>;

// Name of the configuration in the database.
QString NazwaKonfiguracji();
// "ZorvikDef.cfg" of the start-up folder.
QString DomyslnyPlik(const QString& katalogStartowy);

// Applies the default file when it exists; a file that cannot be opened is a message and changes nothing.
Komunikaty WczytajDomyslnyPlik(const QString& katalogStartowy, Ustawienia& ustawienia);

// The state as it is, overlaid with what the database holds. EBladBazy as the session raises it.
Komunikaty WczytajZBazy(TVLTBazaDanych& baza, Ustawienia& ustawienia);
// Returns when the disk has them.
void ZapiszDoBazy(TVLTBazaDanych& baza, const Ustawienia& ustawienia);

struct WynikImportu {
  bool wczytano = false;
  Komunikaty komunikaty;
};
WynikImportu ImportujZPliku(const QString& sciezka, Ustawienia& ustawienia);

// The question to put before an existing file is overwritten; nothing when there is none.
std::optional<Komunikat> PytanieONadpisanie(const QString& sciezka);
// Overwrites. Messages: the file could not be written, or characters were lost in it.
Komunikaty EksportujDoPliku(const QString& sciezka, const Ustawienia& ustawienia);

// Where a program takes its settings from when it starts.
struct Zrodla {
  QString katalogStartowy;
  TVLTBazaDanych* baza = nullptr;                            // connected, or none
  std::optional<QString> plikKonfiguracji = std::nullopt;    // one named by a person
  std::vector<std::pair<QString, QString>> pojedyncze = {};  // whole key, value
};

struct WynikWczytania {
  Komunikaty komunikaty;
  bool brakPliku = false;               // the named configuration file could not be read, or is the database
  std::vector<QString> bledneKlucze;    // single settings with an unknown key
  std::vector<QString> bledneWartosci;  // single settings whose value is none of theirs, by key
};

// Defaults, the default file, the database, the named file, the single settings, and then the rules between
// options.
WynikWczytania WczytajUstawienia(const Zrodla& zrodla, Ustawienia& ustawienia);

}  // namespace magazyn_ustawien
