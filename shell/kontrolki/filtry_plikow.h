#pragma once

#include <QString>

#include "exchange/struktura_pliku.h"

// The filter of the dialog that chooses an import file: the caption shown, then the pattern, which the dialog
// hides.
inline QString FiltrImportu(TypPliku typ) {
  return typ == TypPliku::DBase ? QStringLiteral("Pliki DBF (*.dbf) (*.dbf);;Wszystkie pliki (*.*) (*)")
                                : QStringLiteral("Pliki tekstowe (*.txt) (*.txt);;Wszystkie pliki (*.*) (*)");
}
