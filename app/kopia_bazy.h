#pragma once

#include "app/polecenia.h"

// Copies an embedded database into a new file while others may work on it.
StatusWyjscia WykonajKopiaBazy(const Argumenty& argumenty);
