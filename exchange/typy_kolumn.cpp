#include "exchange/typy_kolumn.h"

#include <algorithm>
#include <initializer_list>

#include "exchange/struktura_pliku.h"

namespace {

using S = StrukturaPliku;

// The words of a field; a field without words takes numbers.
struct PoleZnaczace {
  int pole;
  std::initializer_list<QString S::*> slowa;
};

const std::initializer_list<PoleZnaczace> kLogiczneTowarow = {
    {PoleTowaru::Status, {&S::EdPoleAktywny, &S::EdPoleUsuniety}},
    {PoleTowaru::TypTowaru, {&S::EdPoleTypTowar, &S::EdPoleTypOpakowanie, &S::EdPoleTypUsluga}},
    {PoleTowaru::CenaOtwarta, {}},
};
const std::initializer_list<PoleZnaczace> kLogiczneKontrahentow = {
    {PoleKontrahenta::Status, {&S::EdPoleAktywny, &S::EdPoleUsuniety}},
    {PoleKontrahenta::Dostawca, {&S::EdPoleDostawca}},
    {PoleKontrahenta::Odbiorca, {&S::EdPoleOdbiorca}},
    {PoleKontrahenta::Producent, {&S::EdPoleProducent}},
    {PoleKontrahenta::Sklep, {&S::EdPoleSklep}},
    {PoleKontrahenta::Kontakty, {}},
    {PoleKontrahenta::ZakladPracyChronionej, {}},
    {PoleKontrahenta::KartaAktywna, {}},
};

bool PrzyjmieLogiczne(const StrukturaPliku& struktura, int pole) {
  const auto& pola = struktura.rodzaj == RodzajRekordu::Towary ? kLogiczneTowarow : kLogiczneKontrahentow;
  const auto znaczace =
      std::find_if(pola.begin(), pola.end(), [pole](const PoleZnaczace& p) { return p.pole == pole; });
  if (znaczace == pola.end()) return true;
  return znaczace->slowa.size() > 0 &&
         std::all_of(znaczace->slowa.begin(), znaczace->slowa.end(), [&](QString S::*slowo) {
           const QString tekst = (struktura.*slowo).trimmed();
           return tekst.size() == 1 && QStringLiteral("TFYN").contains(tekst, Qt::CaseInsensitive);
         });
}

bool PrzyjmieDate(const StrukturaPliku& struktura, int pole) {
  return pole != (struktura.rodzaj == RodzajRekordu::Towary ? PoleTowaru::TermWazn
                                                            : PoleKontrahenta::TerminWaznosciKarty);
}

}  // namespace

std::optional<Spostrzezenie> SprawdzTypKolumny(const StrukturaPliku& struktura, int pole, char typ,
                                               const QString& kolumna) {
  if (typ == 'L' && !PrzyjmieLogiczne(struktura, pole))
    return Spostrzezenie{Spostrzezenie::Rodzaj::DbaseLogiczna, pole, kolumna};
  if (typ == 'D' && !PrzyjmieDate(struktura, pole))
    return Spostrzezenie{Spostrzezenie::Rodzaj::DbaseData, pole, kolumna};
  return std::nullopt;
}
