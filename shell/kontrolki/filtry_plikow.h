#pragma once

#include <initializer_list>
#include <string_view>

#include <QString>

#include "exchange/struktura_pliku.h"

// Files that a dialog offers: its caption and their extension.
struct PlikiFiltru {
  std::u16string_view podpis;
  std::u16string_view rozszerzenie;
};

// The filter of a file dialog: captions with the patterns, which the dialog hides, in both cases, for not
// every system takes them for one; then all files.
QString Filtr(std::initializer_list<PlikiFiltru> rodzaje);

// Of the dialogs that choose an import file.
QString FiltrImportu(TypPliku typ);
QString RozszerzenieImportu(TypPliku typ);
