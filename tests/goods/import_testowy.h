#pragma once

#include "goods/import_towarow.h"
#include "goods/opcje_towarow.h"
#include "model/bufor_towarow.h"
#include "tests/wspolne/import_plikowy.h"

// Everything a goods import is started with.
struct ImportTestowy : ImportPlikowy {
  ImportTestowy() : ImportPlikowy(RodzajRekordu::Towary) {
    struktura.opisyVat = {OpisVat(QStringLiteral("23"), QStringLiteral("A")),
                          OpisVat(QStringLiteral("8"), QStringLiteral("B")),
                          OpisVat(QStringLiteral("-1"), QStringLiteral("ZW")),
                          OpisVat(QStringLiteral("7"), QStringLiteral("S"))};
  }

  WynikPrzebiegu Importuj(const char* rekordy) { return Importuj(QString::fromUtf8(rekordy)); }
  WynikPrzebiegu Importuj(const QString& rekordy) { return ImportujTowary(Parametry(rekordy), opcje, bufor); }
  QStringList Pominiete() const { return ImportPlikowy::Pominiete(kPominieteTowary); }

  OpcjeImportuTowarow opcje;
  TVLTBuforTowarow bufor;
};
