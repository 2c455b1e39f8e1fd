#pragma once

#include <optional>

#include <QString>

#include "platform/baza/polaczenie.h"
#include "shell/okno/okno_polaczenia.h"

// What the program starts its window with.
struct StartOkna {
  QString katalogStartowy;
  TworzenieBazy utworzBaze;
  std::optional<ParametryPolaczenia> baza = std::nullopt;  // named by the person; else the remembered one
  std::optional<QString> plikKonfiguracji = std::nullopt;  // read after what the database holds
  QString katalogPominietych = {};                         // empty: the program's folder
};
