#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include <QString>
#include <QStringList>

#include "run/operator.h"

// The command line was not understood, or a value in it is none that the program knows; the text says what.
struct BladUzycia {
  QString tekst;
};

// What the command line said. Options that a command does not have are refused before it runs.
struct Argumenty {
  QString polecenie;  // empty when none was named
  std::optional<QString> plik;

  std::optional<QString> baza;
  std::optional<QString> konfiguracja;
  std::vector<std::pair<QString, QString>> ustaw;  // key, value
  std::optional<QString> pominiete;
  OdpowiedzLiczbaPol liczbaPol = OdpowiedzLiczbaPol::Przerwij;
  std::optional<char> separatorDziesietny;
  bool json = false;
  bool demo = false;
  bool pomoc = false;
  bool wersja = false;
};

// Which options belong together; a command takes some of the groups, the window program its own.
namespace GrupaOpcji {
inline constexpr unsigned Ogolne = 1;
inline constexpr unsigned Ustawienia = 2;  // where settings come from
inline constexpr unsigned Przebieg = 4;
inline constexpr unsigned NowaBaza = 8;
inline constexpr unsigned Okno = 16;
inline constexpr unsigned Baza = 32;  // which database
}  // namespace GrupaOpcji

struct Opcja {
  std::u16string_view nazwa;    // without "--"
  std::u16string_view wartosc;  // what its value is called; empty: it has none
  std::u16string_view opis;
  unsigned grupy;
  // False when the text is no value of this option.
  bool (*przyjmij)(Argumenty&, const QString& wartosc);
};

std::span<const Opcja> TabelaOpcji();

// The words of the command line without the program's name. Names of files keep the bytes that are no UTF-8.
QStringList SlowaWierszaPolecen(int argc, const char* const* argv);

// Takes the words of the command line apart: "--option value" or
// "--option=value", in any order with the command and its file; "--" ends the options. Throws BladUzycia.
struct WynikRozbioru {
  Argumenty argumenty;
  std::vector<const Opcja*> uzyte;
};
WynikRozbioru RozbierzArgumenty(const QStringList& slowa);
