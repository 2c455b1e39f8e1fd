#pragma once

#include <QString>

// What a person has to be told: caption and text of a message box. Nothing here shows it; the caller does.
struct Komunikat {
  QString naglowek;
  QString tekst;
};
