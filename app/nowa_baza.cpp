#include "app/nowa_baza.h"

#include <vector>

#include <QFile>

#include "app/argumenty.h"
#include "app/srodowisko.h"
#include "app/terminal.h"
#include "database/kontrola_bazy.h"
#include "database/schemat.h"
#include "model/parametry_systemu.h"
#include "platform/baza/sesja.h"
#include "platform/baza/transakcja.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Takes the name before anything is written into it, so that whatever has to be removed later is ours.
std::optional<Komunikat> ZajmijNazwe(const QString& sciezka) {
  QFile plik(sciezka);
  if (plik.open(QIODevice::NewOnly)) return std::nullopt;
  return Komunikat{u"UWAGA"_s, QFile::exists(sciezka)
                                   ? u"Plik %1 już istnieje"_s.arg(sciezka)
                                   : u"Nie można utworzyć pliku %1\n%2"_s.arg(sciezka, plik.errorString())};
}

void Usun(const ParametryPolaczenia& parametry) {
  for (const QString& plik : parametry.Pliki()) QFile::remove(plik);
}

void Zapelnij(TVLTBazaDanych& baza, bool demo) {
  std::vector<WpisKonfiguracji> wpisy;
  for (const auto& [parametr, wartosc] : ParametrySystemu::DomyslneKodowICen())
    wpisy.push_back({ParametrySystemu::KonfiguracjaKodow(), parametr, wartosc});
  JednostkaZapisu calosc(baza);
  UtworzBaze(baza, wpisy);
  if (demo) DodajDaneDemo(baza);
  calosc.Zatwierdz();
  baza.Utrwal();
}

}  // namespace

WynikNowejBazy UtworzNowaBaze(ParametryPolaczenia parametry, bool demo) {
  const bool plik = parametry.rodzaj == ParametryPolaczenia::Rodzaj::Sqlite;
  if (plik)
    if (const auto powod = ZajmijNazwe(parametry.cel)) return {StatusWyjscia::Odmowa, *powod};
  parametry.tworz = plik;
  TVLTBazaDanych baza(parametry);
  try {
    baza.Polacz();
    if (!BazaPusta(baza))
      return {StatusWyjscia::Odmowa, {u"UWAGA"_s, u"Baza danych %1 nie jest pusta"_s.arg(baza.Nazwa())}};
    if (const auto powod = BladKodowania(baza))
      return {StatusWyjscia::Odmowa,
              {u"UWAGA"_s, *powod + u"\nBazę zakłada się poleceniem createdb -E UTF8 -T template0 NAZWA"_s}};
    Zapelnij(baza, demo);
    baza.Odlacz();
  } catch (const EMException& blad) {
    baza.Odlacz();
    if (plik) Usun(parametry);
    return {StatusWyjscia::Blad, KomunikatBledu(blad)};
  }
  return {};
}

StatusWyjscia WykonajNowaBaza(const Argumenty& argumenty) {
  const ParametryPolaczenia parametry = BazaZWierszaPolecen(*argumenty.plik);
  const WynikNowejBazy wynik = UtworzNowaBaze(parametry, argumenty.demo);
  if (wynik.status != StatusWyjscia::Zakonczono)
    terminal::WypiszBlad(terminal::JednaLinia(wynik.powod) + u'\n');
  else
    terminal::Wypisz(
        u"Utworzono bazę %1%2\n"_s.arg(parametry.Opis(), argumenty.demo ? u" z danymi pokazowymi"_s : u""_s));
  return wynik.status;
}
