#pragma once

#include "app/polecenia.h"

// The command that says what the named, or remembered, database lacks.
StatusWyjscia WykonajSprawdzBaze(const Argumenty& argumenty);
