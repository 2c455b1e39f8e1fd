#pragma once

#include <span>
#include <string_view>

#include "app/polecenia.h"
#include "app/wynik_json.h"

struct ParametryPrzebiegu;
struct StrukturaPliku;
struct Ustawienia;
class QString;

enum class Kierunek { Import, Eksport };

// An operation that moves records between the database and a file; each is a command of its own.
struct Operacja {
  std::u16string_view nazwa;      // of the command, and value of "operacja" in the result
  std::u16string_view opis;       // one line of help
  std::u16string_view szczegoly;  // where the file comes from when none is named
  std::u16string_view tytul;      // begins the closing line for people
  Kierunek kierunek;              // the structure is checked before an import only
  QString Ustawienia::*plik;      // the file when none is named
  StrukturaPliku Ustawienia::*struktura;
  std::span<const PozycjaJson> liczniki;
  WynikPrzebiegu (*uruchom)(const ParametryPrzebiegu&, Ustawienia&);
  bool bezZmianWsrodPominietych = true;  // imports
};

std::span<const Operacja> TabelaOperacji();

StatusWyjscia WykonajOperacje(const Operacja& operacja, const Argumenty& argumenty);
