#pragma once

#include <span>
#include <string_view>
#include <vector>

#include <QString>

class TMConfig;
struct Ustawienia;

enum class RodzajUstawienia {
  Flaga,        // "0" or "1"
  Liczba,       // a whole number within its bounds: positions, item indexes, three-way groups
  Tekst,        // any text
  Cyfry,        // digits, kept as they were typed; may be empty
  Separator,    // any text; a tabulator is "tab", one space is "spac"
  PlikWymiany,  // a path; the default is a name in the start-up folder
  Lista         // the number of entries; the entries follow under a stem and their number from 0
};

// One line of the table of settings.
struct Ustawienie {
  std::u16string_view klucz;
  RodzajUstawienia rodzaj;
  std::u16string_view domyslna;
  QString (*odczytaj)(const Ustawienia&);
  // False, and nothing changed, when the text is no value of this setting.
  bool (*wpisz)(Ustawienia&, const QString&);
  // The control of the main window that shows it, named like the member. Empty: none; structures have a
  // dialog of their own.
  std::string_view kontrolka = {};
  // Three-way groups have three buttons instead, in the order of the stored numbers 1, 2, 3.
  std::span<const std::string_view> przyciski = {};

  // Lists only.
  std::u16string_view rdzen = {};
  int (*liczbaWpisow)(const Ustawienia&) = nullptr;
  QString (*odczytajWpis)(const Ustawienia&, int numer) = nullptr;
  void (*wpiszWpis)(Ustawienia&, int numer, const QString&) = nullptr;
};

// The most entries a list of a configuration can have; a larger number is taken as this one.
inline constexpr int kNajdluzszaLista = 1000;

// Every setting once, in the order of saving.
std::span<const Ustawienie> TabelaUstawien();

// Gives every setting its default; exchange files and the configuration file lie in the start-up folder.
void WypelnijDomyslne(Ustawienia& ustawienia, const QString& katalogStartowy);

// Adds every setting under its key, in the order of the table.
void ZapiszUstawienia(const Ustawienia& ustawienia, TMConfig& config);

// Takes over the settings that the configuration holds; the others keep their values, unknown names are
// ignored. Returns the keys whose text is no value of the setting: those keep their values too.
std::vector<QString> ZastosujUstawienia(const TMConfig& config, Ustawienia& ustawienia);

// Whether the key holds the length of a list.
bool JestDlugosciaListy(const QString& klucz);

enum class WynikUstawienia { Ustawiono, NieznanyKlucz, ZlaWartosc };

// Sets one setting by its whole key. A list entry is known while its number is below the length of the list.
WynikUstawienia UstawKlucz(Ustawienia& ustawienia, const QString& klucz, const QString& wartosc);

// All settings in the form of the configuration file.
QString WydrukUstawien(const Ustawienia& ustawienia);
