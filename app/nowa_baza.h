#pragma once

#include "app/polecenia.h"

// Makes a new database file: schema, base data and, on demand, the data of a demo shop. A file that is there
// already is left alone; a file that could not be finished is removed.
StatusWyjscia WykonajNowaBaza(const Argumenty& argumenty);
