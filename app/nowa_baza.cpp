#include "app/nowa_baza.h"

#include <vector>

#include <QFile>

#include "app/argumenty.h"
#include "app/terminal.h"
#include "database/schemat.h"
#include "model/parametry_systemu.h"
#include "platform/baza/sesja.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void Pokaz(const Komunikat& komunikat) {
  terminal::WypiszBlad(terminal::JednaLinia(komunikat) + u'\n');
}

// Takes the name before anything is written into it, so that whatever has to be removed later is ours.
bool ZajmijNazwe(const QString& sciezka) {
  QFile plik(sciezka);
  if (plik.open(QIODevice::NewOnly)) return true;
  Pokaz({u"UWAGA"_s, QFile::exists(sciezka)
                         ? u"Plik %1 już istnieje"_s.arg(sciezka)
                         : u"Nie można utworzyć pliku %1\n%2"_s.arg(sciezka, plik.errorString())});
  return false;
}

void Usun(const ParametryPolaczenia& parametry) {
  for (const QString& plik : parametry.Pliki()) QFile::remove(plik);
}

void Zapelnij(TVLTBazaDanych& baza, bool demo) {
  std::vector<WpisKonfiguracji> wpisy;
  for (const auto& [parametr, wartosc] : ParametrySystemu::DomyslneKodowICen())
    wpisy.push_back({ParametrySystemu::KonfiguracjaKodow(), parametr, wartosc});
  UtworzBaze(baza, wpisy);
  if (demo) DodajDaneDemo(baza);
  baza.Utrwal();
}

}  // namespace

StatusWyjscia WykonajNowaBaza(const Argumenty& argumenty) {
  auto parametry = ParametryPolaczenia::ZTekstu(*argumenty.plik);
  if (!parametry) throw BladUzycia{u"Nieobsługiwany rodzaj bazy: \"%1\""_s.arg(*argumenty.plik)};
  parametry->tworz = true;
  const QString sciezka = parametry->cel;
  if (!ZajmijNazwe(sciezka)) return StatusWyjscia::Odmowa;
  TVLTBazaDanych baza(*parametry);
  try {
    baza.Polacz();
    Zapelnij(baza, argumenty.demo);
    baza.Odlacz();
  } catch (const EMException& blad) {
    Pokaz(KomunikatBledu(blad));
    baza.Odlacz();
    Usun(*parametry);
    return StatusWyjscia::Blad;
  }
  terminal::Wypisz(
      u"Utworzono bazę %1%2\n"_s.arg(sciezka, argumenty.demo ? u" z danymi pokazowymi"_s : u""_s));
  return StatusWyjscia::Zakonczono;
}
