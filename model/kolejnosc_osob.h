#pragma once

#include "platform/baza/sesja.h"

// The column of table Osoba by which a contractor's persons stand in the order of their entry. Databases made
// before there was one have the place of the row for it, which a server may change with every update.
inline const char* KolejnoscOsob(TVLTBazaDanych& baza) {
  return baza.MaKolumne("Osoba", "OsId") ? "OsId" : "rowid";
}
