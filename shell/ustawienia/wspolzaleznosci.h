#pragma once

#include <optional>
#include <span>
#include <string_view>

#include <QString>

#include "exchange/komunikat.h"

struct OpcjeImportuKontrahentow;
struct OpcjeImportuTowarow;
struct StrukturaPliku;
struct Ustawienia;

// The rules that keep options consistent with each other and with the structures. They know no controls: the
// window calls the rule of a control after the control has changed its member, and everybody who loads
// settings calls ZastosujWspolzaleznosci afterwards.
namespace wspolzaleznosci {

// After every load of settings; silently, for a message about a choice belongs to the click that made it.
// Code texts and header flags stay as loaded even when the file type fixes them: readers ask the structure
// for the flag in force and know the own layout's texts, and another file type finds its own again.
void ZastosujWspolzaleznosci(Ustawienia& ustawienia);

// After the goods structure has been edited, and after the contractor structure has been: what the accepted
// file type fixes, then the rules above.
void PoZmianieStrukturyTow(Ustawienia& ustawienia);
void PoZmianieStrukturyKontr(Ustawienia& ustawienia);

// CBImportStanowChange: the stock field is offered exactly when stock is imported.
void CBImportStanowChange(Ustawienia& ustawienia);
// Whether cb_importStanowUjemnych is enabled.
bool StanyUjemneDostepne(const OpcjeImportuTowarow& opcje);

// RBPominTowarBezNazwyClick: a structure without names leaves nothing to skip; names are then made up.
void RBPominTowarBezNazwyClick(Ustawienia& ustawienia);

// RBTowaryAktywneClick, RBTowaryUsunieteClick and the contractor pair: a choice by status needs a structure
// that tells the active from the deleted. Otherwise everything is imported again and the message is returned.
std::optional<Komunikat> RBTowaryClick(Ustawienia& ustawienia);
std::optional<Komunikat> RBKontrahenciClick(Ustawienia& ustawienia);

void cb_aktkontrClick(OpcjeImportuKontrahentow& opcje);
void cb_nowykontrClick(OpcjeImportuKontrahentow& opcje);
// Whether the six buttons of the two tax-number groups are enabled.
bool WyborNipDostepny(const OpcjeImportuKontrahentow& opcje);

void UpDownMinDlugoscKoduClick(OpcjeImportuTowarow& opcje);
void UpDownMaxDlugoscKoduClick(OpcjeImportuTowarow& opcje);
// "1 znak", "3 znaki", "4 znaków".
QString OpisDlugosciKodu(int dlugosc);

// Boxes of which at least one stays checked.
enum class GrupaPol { RodzajDomyslny, RodzajWysylany, Kontakty, ZnajomoscNip, ZakladPracyChronionej };

struct PoleWyboru {
  std::u16string_view nazwa;
  GrupaPol grupa;
  bool& (*wartosc)(Ustawienia&);
  // The box checked again when the click on this one left the whole group unchecked.
  std::u16string_view zamiast;
};

std::span<const PoleWyboru> TabelaConajmniejJednego();

// After a click on a box of the table; other names change nothing. Returns the box that was checked again, or
// null. Only a click does this: settings that leave a whole group unchecked are loaded as they are.
const PoleWyboru* PoKliknieciu(Ustawienia& ustawienia, QStringView nazwaPola);

}  // namespace wspolzaleznosci
