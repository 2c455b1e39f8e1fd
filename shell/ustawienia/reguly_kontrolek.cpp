#include "ustawienia/reguly_kontrolek.h"

#include "ustawienia/ustawienia.h"
#include "ustawienia/wspolzaleznosci.h"

namespace wspolzaleznosci {
namespace {

using U = Ustawienia;

struct RegulaKontrolki {
  std::u16string_view kontrolka;
  std::optional<Komunikat> (*zastosuj)(U&);
};

// Makes a rule without a message, or one of part of the settings, look like the others.
template <auto Regula>
std::optional<Komunikat> Cicha(U& u) {
  Regula(u);
  return std::nullopt;
}

template <auto Regula, auto Opcje>
std::optional<Komunikat> Cicha(U& u) {
  Regula(u.*Opcje);
  return std::nullopt;
}

constexpr RegulaKontrolki kReguly[] = {
    {u"CBImportStanow", Cicha<CBImportStanowChange>},
    {u"UpDownMinDlugoscKodu", Cicha<UpDownMinDlugoscKoduClick, &U::importTow>},
    {u"UpDownMaxDlugoscKodu", Cicha<UpDownMaxDlugoscKoduClick, &U::importTow>},
    {u"RBPominTowarBezNazwy", Cicha<RBPominTowarBezNazwyClick>},
    {u"RBTowaryAktywne", RBTowaryClick},
    {u"RBTowaryUsuniete", RBTowaryClick},
    {u"RBKontrahenciAktywni", RBKontrahenciClick},
    {u"RBKontrahenciUsunieci", RBKontrahenciClick},
    {u"cb_aktkontr", Cicha<cb_aktkontrClick, &U::importKontr>},
    {u"cb_nowykontr", Cicha<cb_nowykontrClick, &U::importKontr>},
};

bool StanyUjemne(const U& u) {
  return StanyUjemneDostepne(u.importTow);
}

bool WyborNip(const U& u) {
  return WyborNipDostepny(u.importKontr);
}

constexpr Dostepnosc kDostepnosci[] = {
    {"cb_importStanowUjemnych", StanyUjemne}, {"rb_pominKontrBezNIPu", WyborNip},
    {"rb_dodajKontrBezNIPu", WyborNip},       {"rb_dodajKontrBezNIPuJesliInnyAdres", WyborNip},
    {"rb_PominBoTakiNIPJuzJest", WyborNip},   {"rb_DodajChociazTakiNIPJuzJest", WyborNip},
    {"rb_DodajJesliMaInnyAdres", WyborNip},
};

}  // namespace

std::optional<Komunikat> PoZmianieKontrolki(Ustawienia& ustawienia, QStringView kontrolka) {
  PoKliknieciu(ustawienia, kontrolka);
  for (const RegulaKontrolki& regula : kReguly)
    if (kontrolka == QStringView(regula.kontrolka)) return regula.zastosuj(ustawienia);
  return std::nullopt;
}

std::span<const Dostepnosc> TabelaDostepnosci() {
  return kDostepnosci;
}

}  // namespace wspolzaleznosci
