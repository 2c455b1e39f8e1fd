#include "app/kopia_bazy.h"

#include <utility>

#include <QFileInfo>

#include "app/argumenty.h"
#include "app/postep_terminala.h"
#include "app/przerwanie.h"
#include "app/srodowisko.h"
#include "app/terminal.h"
#include "platform/baza/sesja.h"
#include "platform/plik_obok.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Komunikat NieMoznaUtworzyc(const QString& plik, const QString& powod) {
  return {u"UWAGA"_s, u"Nie można utworzyć pliku %1\n%2"_s.arg(plik, powod)};
}

// The file gets its name when the disk has all of it.
StatusWyjscia Kopiuj(TVLTBazaDanych& baza, const QString& plik, PostepTerminala& postep) {
  const auto zakoncz = [&](StatusWyjscia status, const Komunikat& komunikat) {
    postep.Pokaz(komunikat.naglowek, komunikat.tekst);
    return status;
  };
  if (QFileInfo(plik).isSymLink() || QFileInfo::exists(plik))
    return zakoncz(StatusWyjscia::Odmowa, {u"UWAGA"_s, u"Plik %1 już istnieje"_s.arg(plik)});
  PlikObok kopia;
  const auto odmowa = kopia.Zacznij(plik);
  if (odmowa || !kopia.Obok())
    return zakoncz(
        StatusWyjscia::Odmowa,
        NieMoznaUtworzyc(plik, odmowa.value_or(u"Folder nie istnieje albo nie przyjmuje nowych plików"_s)));

  bool zaczeta = false;
  const bool cala = baza.KopiujDo(kopia.Sciezka(), [&](long long zrobionych, long long wszystkich) {
    if (!std::exchange(zaczeta, true)) postep.Faza(u"kopiowanie bazy danych"_s, wszystkich);
    postep.Pozycja(zrobionych);
    return !przerwanie::Zazadane();
  });
  if (!cala)
    return zakoncz(StatusWyjscia::Przerwano, {u"UWAGA"_s, u"Kopiowanie przerwano, pliku nie utworzono"_s});
  baza.Utrwal();
  if (const auto powod = kopia.Podmien(PlikObok::Istniejacy::Zachowaj))
    return zakoncz(StatusWyjscia::Blad, NieMoznaUtworzyc(plik, *powod));
  postep.Gotowe();
  return StatusWyjscia::Zakonczono;
}

}  // namespace

StatusWyjscia WykonajKopiaBazy(const Argumenty& argumenty) {
  TVLTBazaDanych baza;
  WymagajBazy(argumenty, baza);
  PostepTerminala postep;
  if (baza.Parametry().rodzaj != ParametryPolaczenia::Rodzaj::Sqlite) {
    postep.Pokaz(u"UWAGA"_s,
                 u"Bazę na serwerze kopiuje się programem serwera, na przykład pg_dump; to polecenie kopiuje "
                 u"bazę w pliku"_s);
    return StatusWyjscia::Odmowa;
  }
  bool polaczona = false;
  StatusWyjscia status = StatusWyjscia::Odmowa;
  try {
    baza.Polacz();
    polaczona = true;
    status = Kopiuj(baza, *argumenty.plik, postep);
  } catch (const EMException& blad) {
    const Komunikat komunikat = KomunikatBledu(blad);
    postep.Pokaz(komunikat.naglowek, komunikat.tekst);
    return polaczona ? StatusWyjscia::Blad : StatusWyjscia::Odmowa;
  }
  postep.Koniec();
  if (status == StatusWyjscia::Zakonczono)
    terminal::Wypisz(u"Skopiowano bazę %1 do pliku %2\n"_s.arg(baza.Parametry().Opis(), *argumenty.plik));
  return status;
}
