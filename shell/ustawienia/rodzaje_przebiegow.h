#pragma once

#include <string_view>

#include <QString>

#include "run/przebieg.h"

class TVLTBuforTowarow;
struct StrukturaPliku;
struct Ustawienia;

enum class Kierunek { Import, Eksport };

// A kind of run: what is moved, and which of the settings it works with.
struct RodzajPrzebiegu {
  std::u16string_view nazwa;         // "import-towarow"
  std::u16string_view tytul;         // "Import towarów"
  std::u16string_view tytulPostepu;  // caption of the progress window
  Kierunek kierunek;                 // the structure is checked before an import only
  QString Ustawienia::*plik;         // the file when none is named
  StrukturaPliku Ustawienia::*struktura;
  // The goods buffer lives as long as the program.
  WynikPrzebiegu (*wykonaj)(const ParametryPrzebiegu&, const Ustawienia&, TVLTBuforTowarow&);
};

// In the order of the main window's pages.
enum class KtoryPrzebieg { ImportTowarow, EksportTowarow, ImportKontrahentow, EksportKontrahentow };

const RodzajPrzebiegu& Rodzaj(KtoryPrzebieg ktory);
