#include "ustawienia/wspolzaleznosci.h"

#include <algorithm>

#include "ustawienia/ustawienia.h"

namespace wspolzaleznosci {
namespace {

using U = Ustawienia;

// What the structure says of itself when it has been loaded or edited: the own layout carries the fields that
// are offered, every other layout what its field list says.
bool MaPole(const StrukturaPliku& struktura, int pole) {
  return struktura.CBTypPliku == TypPliku::Zorvik ? struktura.CzyOferowane(pole)
                                                  : struktura.ZawieraPole(pole);
}

bool MaNazwe(const StrukturaPliku& struktura) {
  return MaPole(struktura, PoleTowaru::Nazwa);
}

bool MaStatus(const StrukturaPliku& struktura) {
  return MaPole(struktura, PoleStatusu(struktura.rodzaj));
}

// What a click on a status choice asks: the field list may still vouch for the own layout.
bool WyborStatusuDozwolony(const StrukturaPliku& struktura) {
  return MaStatus(struktura) || struktura.ZawieraPole(PoleStatusu(struktura.rodzaj));
}

Komunikat BrakStatusuTowarow() {
  return {QStringLiteral("BŁĄD"),
          QStringLiteral(
              "Struktura pliku importu towarów nie pozwala na odróżnianie towarów aktywnych i usuniętych")};
}

Komunikat BrakStatusuKontrahentow() {
  return {QStringLiteral("BŁĄD"),
          QStringLiteral("Struktura pliku importu kontrahentów nie pozwala na odróżnianie "
                         "kontrahentów aktywnych i usuniętych")};
}

// The group goes back to its first button when another one is chosen and not allowed.
template <typename Wybor>
std::optional<Komunikat> CofnijWybor(Wybor& wybor, Wybor wszystkie, bool dozwolony,
                                     Komunikat (*komunikat)()) {
  if (dozwolony || wybor == wszystkie) return std::nullopt;
  wybor = wszystkie;
  return komunikat();
}

std::optional<Komunikat> DopasujTowary(Ustawienia& u, bool dozwolony) {
  return CofnijWybor(u.importTow.jakieTowary, JakieTowary::RBTowaryWszystkie, dozwolony, BrakStatusuTowarow);
}

std::optional<Komunikat> DopasujKontrahentow(Ustawienia& u, bool dozwolony) {
  return CofnijWybor(u.importKontr.jacyKontrahenci, JacyKontrahenci::RBKontrahenciWszyscy, dozwolony,
                     BrakStatusuKontrahentow);
}

void WymusPomijanie(OpcjeImportuKontrahentow& opcje) {
  opcje.rb_pominKontrBezNIPu = true;
  opcje.rb_dodajKontrBezNIPu = false;
  opcje.rb_dodajKontrBezNIPuJesliInnyAdres = false;
  opcje.rb_PominBoTakiNIPJuzJest = true;
  opcje.rb_DodajChociazTakiNIPJuzJest = false;
  opcje.rb_DodajJesliMaInnyAdres = false;
}

template <auto... Kroki>
bool& Pole(U& ustawienia) {
  return Czlon<Kroki...>(ustawienia);
}

template <bool OpcjeImportuKontrahentow::*Pole_>
constexpr auto Import = &Pole<&U::importKontr, Pole_>;
template <bool OpcjeEksportuKontrahentow::*Pole_>
constexpr auto Eksport = &Pole<&U::eksportKontr, Pole_>;

using OI = OpcjeImportuKontrahentow;
using OE = OpcjeEksportuKontrahentow;

constexpr PoleWyboru kConajmniejJedno[] = {
    {u"cb_dostawca", GrupaPol::RodzajDomyslny, Import<&OI::cb_dostawca>, u"cb_odbiorca"},
    {u"cb_odbiorca", GrupaPol::RodzajDomyslny, Import<&OI::cb_odbiorca>, u"cb_dostawca"},
    {u"cb_producent", GrupaPol::RodzajDomyslny, Import<&OI::cb_producent>, u"cb_odbiorca"},
    {u"cb_sklep", GrupaPol::RodzajDomyslny, Import<&OI::cb_sklep>, u"cb_odbiorca"},
    {u"cb_gdyOdbiorca", GrupaPol::RodzajWysylany, Eksport<&OE::cb_gdyOdbiorca>, u"cb_gdyDostawca"},
    {u"cb_gdyDostawca", GrupaPol::RodzajWysylany, Eksport<&OE::cb_gdyDostawca>, u"cb_gdyOdbiorca"},
    {u"cb_gdyProducent", GrupaPol::RodzajWysylany, Eksport<&OE::cb_gdyProducent>, u"cb_gdyOdbiorca"},
    {u"cb_gdySklep", GrupaPol::RodzajWysylany, Eksport<&OE::cb_gdySklep>, u"cb_gdyOdbiorca"},
    {u"cb_gdyStale", GrupaPol::Kontakty, Eksport<&OE::cb_gdyStale>, u"cb_gdyTymczasowe"},
    {u"cb_gdyTymczasowe", GrupaPol::Kontakty, Eksport<&OE::cb_gdyTymczasowe>, u"cb_gdyStale"},
    {u"cb_gdyZnamyNIP", GrupaPol::ZnajomoscNip, Eksport<&OE::cb_gdyZnamyNIP>, u"cb_gdyNieZnamyNIPu"},
    {u"cb_gdyNieZnamyNIPu", GrupaPol::ZnajomoscNip, Eksport<&OE::cb_gdyNieZnamyNIPu>, u"cb_gdyZnamyNIP"},
    {u"cb_gdyZakladPracyChr", GrupaPol::ZakladPracyChronionej, Eksport<&OE::cb_gdyZakladPracyChr>,
     u"cb_gdyNieZakladPracyChr"},
    {u"cb_gdyNieZakladPracyChr", GrupaPol::ZakladPracyChronionej, Eksport<&OE::cb_gdyNieZakladPracyChr>,
     u"cb_gdyZakladPracyChr"},
};

const PoleWyboru* ZnajdzPole(QStringView nazwa) {
  const auto pole = std::find_if(std::begin(kConajmniejJedno), std::end(kConajmniejJedno),
                                 [nazwa](const PoleWyboru& p) { return nazwa == QStringView(p.nazwa); });
  return pole == std::end(kConajmniejJedno) ? nullptr : pole;
}

}  // namespace

void ZastosujWspolzaleznosci(Ustawienia& ustawienia) {
  CBImportStanowChange(ustawienia);
  RBPominTowarBezNazwyClick(ustawienia);
  DopasujTowary(ustawienia, MaStatus(ustawienia.strukturaTow));
  DopasujKontrahentow(ustawienia, MaStatus(ustawienia.strukturaKontr));
  // Without an update of contractors the tax-number choices stay as they were saved, even while they are
  // disabled.
  if (ustawienia.importKontr.cb_aktkontr) WymusPomijanie(ustawienia.importKontr);
  UpDownMaxDlugoscKoduClick(ustawienia.importTow);
}

void PoZmianieStrukturyTow(Ustawienia& ustawienia) {
  ustawienia.strukturaTow.PrzyjmijTypPliku(ustawienia.strukturaTow.CBTypPliku);
  RBPominTowarBezNazwyClick(ustawienia);
  DopasujTowary(ustawienia, MaStatus(ustawienia.strukturaTow));
}

void PoZmianieStrukturyKontr(Ustawienia& ustawienia) {
  ustawienia.strukturaKontr.PrzyjmijTypPliku(ustawienia.strukturaKontr.CBTypPliku);
  DopasujKontrahentow(ustawienia, MaStatus(ustawienia.strukturaKontr));
}

void CBImportStanowChange(Ustawienia& ustawienia) {
  ustawienia.strukturaTow.UstawOferowane(PoleTowaru::Stan, ustawienia.importTow.CBImportStanow != 0);
}

bool StanyUjemneDostepne(const OpcjeImportuTowarow& opcje) {
  return opcje.CBImportStanow != 0;
}

void RBPominTowarBezNazwyClick(Ustawienia& ustawienia) {
  TowarBezNazwy& wybor = ustawienia.importTow.towarBezNazwy;
  if (wybor == TowarBezNazwy::RBPominTowarBezNazwy && !MaNazwe(ustawienia.strukturaTow))
    wybor = TowarBezNazwy::RBDodajTowarZNazwaAuto;
}

std::optional<Komunikat> RBTowaryClick(Ustawienia& ustawienia) {
  return DopasujTowary(ustawienia, WyborStatusuDozwolony(ustawienia.strukturaTow));
}

std::optional<Komunikat> RBKontrahenciClick(Ustawienia& ustawienia) {
  return DopasujKontrahentow(ustawienia, WyborStatusuDozwolony(ustawienia.strukturaKontr));
}

void cb_aktkontrClick(OpcjeImportuKontrahentow& opcje) {
  if (opcje.cb_aktkontr) WymusPomijanie(opcje);
}

void cb_nowykontrClick(OpcjeImportuKontrahentow& opcje) {
  if (!WyborNipDostepny(opcje)) WymusPomijanie(opcje);
}

bool WyborNipDostepny(const OpcjeImportuKontrahentow& opcje) {
  return opcje.cb_nowykontr && !opcje.cb_aktkontr;
}

void UpDownMinDlugoscKoduClick(OpcjeImportuTowarow& opcje) {
  opcje.UpDownMinDlugoscKodu = std::min(opcje.UpDownMinDlugoscKodu, opcje.UpDownMaxDlugoscKodu);
}

void UpDownMaxDlugoscKoduClick(OpcjeImportuTowarow& opcje) {
  opcje.UpDownMaxDlugoscKodu = std::max(opcje.UpDownMinDlugoscKodu, opcje.UpDownMaxDlugoscKodu);
}

QString OpisDlugosciKodu(int dlugosc) {
  if (dlugosc == 1) return QStringLiteral("1 znak");
  const QLatin1String slowo(" znaki");
  if (dlugosc < 4) return QString::number(dlugosc) + slowo;
  return QString::number(dlugosc) + QStringLiteral(" znaków");
}

std::span<const PoleWyboru> TabelaConajmniejJednego() {
  return kConajmniejJedno;
}

const PoleWyboru* PoKliknieciu(Ustawienia& ustawienia, QStringView nazwaPola) {
  const PoleWyboru* klikniete = ZnajdzPole(nazwaPola);
  if (!klikniete) return nullptr;
  for (const PoleWyboru& pole : kConajmniejJedno)
    if (pole.grupa == klikniete->grupa && pole.wartosc(ustawienia)) return nullptr;
  const PoleWyboru* zamiast = ZnajdzPole(QStringView(klikniete->zamiast));
  zamiast->wartosc(ustawienia) = true;
  return zamiast;
}

}  // namespace wspolzaleznosci
