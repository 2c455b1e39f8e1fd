#pragma once

#include <optional>
#include <span>
#include <string_view>

#include <QStringView>

#include "exchange/komunikat.h"

struct Ustawienia;

// Which of the rules between options belongs to which control of the main window.
namespace wspolzaleznosci {

// To be called after a control has changed its member: its rule, if it has one, changes what has to follow.
// The message is for the person.
std::optional<Komunikat> PoZmianieKontrolki(Ustawienia& ustawienia, QStringView kontrolka);

// Controls that are not always enabled.
struct Dostepnosc {
  std::string_view kontrolka;
  bool (*dostepna)(const Ustawienia&);
};
std::span<const Dostepnosc> TabelaDostepnosci();

}  // namespace wspolzaleznosci
