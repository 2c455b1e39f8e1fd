#pragma once

#include "contractors/import_kontrahentow.h"
#include "contractors/opcje_kontrahentow.h"
#include "tests/wspolne/import_plikowy.h"

// Everything a contractor import is started with: adding and updating by tax number, nobody without one.
struct ImportTestowy : ImportPlikowy {
  ImportTestowy() : ImportPlikowy(RodzajRekordu::Kontrahenci) {
    opcje.cb_aktkontr = opcje.cb_nowykontr = true;
    opcje.rb_pominKontrBezNIPu = opcje.rb_PominBoTakiNIPJuzJest = true;
    opcje.cb_odbiorca = true;
  }

  WynikPrzebiegu Importuj(const char* rekordy) { return Importuj(QString::fromUtf8(rekordy)); }
  WynikPrzebiegu Importuj(const QString& rekordy) { return ImportujKontrahentow(Parametry(rekordy), opcje); }
  QStringList Pominieci() const { return Pominiete(kPominieciKontrahenci); }

  OpcjeImportuKontrahentow opcje;
};
