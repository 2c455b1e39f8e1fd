#pragma once

#include <QString>

#include "contractors/opcje_kontrahentow.h"
#include "exchange/struktura_pliku.h"
#include "goods/opcje_towarow.h"

// Everything the program remembers. Controls show these members and runs read them; the table of settings
// says under which key each of them is stored. VAT descriptions and offered fields are parts of the
// structures.
struct Ustawienia {
  QString plikImportuTow;
  QString plikEksportuTow;
  QString plikImportuKontr;
  QString plikEksportuKontr;
  QString plikKonfiguracji;  // the one chosen last
  int aktywnaStrona = 0;

  OpcjeImportuTowarow importTow;
  OpcjeEksportuTowarow eksportTow;
  OpcjeImportuKontrahentow importKontr;
  OpcjeEksportuKontrahentow eksportKontr;

  StrukturaPliku strukturaTow{RodzajRekordu::Towary};
  StrukturaPliku strukturaKontr{RodzajRekordu::Kontrahenci};
};

// A member reached step by step: Czlon<&Ustawienia::importTow, &OpcjeImportuTowarow::cb_akttow>(ustawienia).
template <auto... Kroki>
auto& Czlon(auto& obiekt) {
  // clang-format off
  return (obiekt .* ... .* Kroki);
  // clang-format on
}
