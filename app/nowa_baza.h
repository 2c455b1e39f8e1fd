#pragma once

#include "app/polecenia.h"
#include "exchange/komunikat.h"

struct ParametryPolaczenia;

struct WynikNowejBazy {
  StatusWyjscia status = StatusWyjscia::Zakonczono;
  Komunikat powod = {};  // when it was not made
};

// Makes a new database: schema, base data and, on demand, the data of a demo shop. A file that is there
// already and a server's database that holds tables are left alone; a file that could not be finished is
// removed, a server's database stays empty.
WynikNowejBazy UtworzNowaBaze(ParametryPolaczenia parametry, bool demo);

// The command that does it.
StatusWyjscia WykonajNowaBaza(const Argumenty& argumenty);
