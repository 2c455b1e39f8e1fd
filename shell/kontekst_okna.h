#pragma once

#include <functional>

#include "model/bufor_towarow.h"
#include "model/parametry_systemu.h"
#include "platform/baza/sesja.h"
#include "ustawienia/ustawienia.h"

class Rozmowa;

// What the main window owns and its dialogs share. Runs have a session of their own.
struct KontekstOkna {
  Rozmowa& rozmowa;
  TVLTBazaDanych baza = {};
  ParametrySystemu parametry = {};
  Ustawienia ustawienia = {};
  TVLTBuforTowarow bufor = {};  // filled by the first goods run
};
