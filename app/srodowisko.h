#pragma once

#include <functional>

#include "app/polecenia.h"
#include "exchange/komunikat.h"
#include "model/parametry_systemu.h"
#include "platform/baza/sesja.h"
#include "ustawienia/ustawienia.h"

struct Argumenty;

// What a command works with: the session, what the database says of codes and prices, and the settings in
// force.
struct Srodowisko {
  TVLTBazaDanych baza;
  ParametrySystemu parametry;
  Ustawienia ustawienia;
};

// The database that the command line names. Throws BladUzycia: a password has no place where everybody can
// read it in the list of processes.
ParametryPolaczenia BazaZWierszaPolecen(const QString& tekst);
// Gives the session the named database or the remembered one. Throws BladUzycia when there is neither.
void WymagajBazy(const Argumenty& argumenty, TVLTBazaDanych& baza);

enum class PotrzebaBazy {
  Konieczna,
  Opcjonalna  // without a named or remembered database the settings come from the other places
};

using PokazKomunikat = std::function<void(const Komunikat&)>;

// Connects and loads the settings. False when the command cannot begin; the reason has been shown, as has
// everything else that there is to say about the settings. Throws BladUzycia.
bool Przygotuj(const Argumenty& argumenty, PotrzebaBazy potrzeba, const PokazKomunikat& pokaz,
               Srodowisko& srodowisko);

// Prints the settings in force: as text on a terminal, as the bytes of a configuration file elsewhere.
StatusWyjscia WykonajUstawienia(const Argumenty& argumenty);
