#pragma once

#include <QDir>

class Fotograf;

// Walks through the whole program: every page and dialog, an export and an import with its questions. The
// working folder is the current one, empty at first; `demo` holds the files of the demo shop.
void Zwiedz(Fotograf& fotograf, const QDir& demo);
