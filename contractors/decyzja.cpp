#include "contractors/decyzja.h"

#include "contractors/opcje_kontrahentow.h"

namespace {

using O = OpcjeImportuKontrahentow;

// The choices to add count only while nothing but adding is wanted.
struct Wiersz {
  StanNipu stan;
  bool O::*wybor;  // none: whatever was chosen
  bool samoDodawanie;
  Decyzja decyzja;
};

// The first row that fits decides.
constexpr Wiersz kTabela[] = {
    {StanNipu::Brak, &O::rb_dodajKontrBezNIPu, true, Decyzja::Dodaj},
    {StanNipu::Brak, nullptr, false, Decyzja::Pomin},
    {StanNipu::Nieznany, nullptr, false, Decyzja::Dodaj},
    {StanNipu::Znany, &O::rb_PominBoTakiNIPJuzJest, false, Decyzja::Popraw},
    {StanNipu::Znany, &O::rb_DodajChociazTakiNIPJuzJest, true, Decyzja::Dodaj},
    {StanNipu::Znany, &O::rb_DodajJesliMaInnyAdres, true, Decyzja::DodajJesliInnyAdres},
    {StanNipu::Znany, nullptr, false, Decyzja::Popraw},
};

}  // namespace

Decyzja Zdecyduj(StanNipu stan, const OpcjeImportuKontrahentow& opcje) {
  const bool samoDodawanie = opcje.cb_nowykontr && !opcje.cb_aktkontr;
  for (const Wiersz& wiersz : kTabela)
    if (wiersz.stan == stan && (!wiersz.wybor || opcje.*wiersz.wybor) &&
        (!wiersz.samoDodawanie || samoDodawanie))
      return wiersz.decyzja;
  return Decyzja::Pomin;
}
