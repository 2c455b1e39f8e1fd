#pragma once

#include <optional>

#include <QString>
#include <QStringView>

class TVLTBazaDanych;

// A contractor as people know it; the tax number as it was entered, empty when there is none.
struct ZnalezionyKontrahent {
  int kontrId;
  QString nip;
  QString nazwa;
};

// The same contractor that TVLTBuforNip finds: numbers are compared by their digits, of several contractors
// the one with the lowest identifier counts, deleted ones are among them. One statement: for single numbers.
std::optional<ZnalezionyKontrahent> KontrahentZNipem(TVLTBazaDanych& baza, QStringView nip);
std::optional<ZnalezionyKontrahent> KontrahentZId(TVLTBazaDanych& baza, int kontrId);
