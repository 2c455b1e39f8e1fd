#include "app/srodowisko.h"

#include <QDir>

#include "app/argumenty.h"
#include "app/terminal.h"
#include "platform/windows1250.h"
#include "ustawienia/magazyn_ustawien.h"
#include "ustawienia/tabela_ustawien.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// False when no database was named and none is remembered.
bool WskazBaze(const Argumenty& argumenty, TVLTBazaDanych& baza) {
  if (!argumenty.baza) return baza.WczytajDomyslnePolaczenie();
  baza.UstawPolaczenie(BazaZWierszaPolecen(*argumenty.baza));
  return true;
}

void OdrzucBledneUstawienia(const magazyn_ustawien::WynikWczytania& wynik) {
  QStringList bledy;
  for (const QString& klucz : wynik.bledneKlucze) bledy += u"Nieznane ustawienie \"%1\""_s.arg(klucz);
  for (const QString& klucz : wynik.bledneWartosci)
    bledy += u"Niewłaściwa wartość ustawienia %1"_s.arg(klucz);
  if (!bledy.isEmpty()) throw BladUzycia{bledy.join(u'\n')};
}

bool WczytajUstawienia(const Argumenty& argumenty, const PokazKomunikat& pokaz, Srodowisko& srodowisko) {
  magazyn_ustawien::Zrodla zrodla;
  zrodla.katalogStartowy = QDir::currentPath();
  zrodla.baza = srodowisko.baza.Polaczona() ? &srodowisko.baza : nullptr;
  zrodla.plikKonfiguracji = argumenty.konfiguracja;
  zrodla.pojedyncze = argumenty.ustaw;
  const auto wynik = magazyn_ustawien::WczytajUstawienia(zrodla, srodowisko.ustawienia);
  for (const Komunikat& komunikat : wynik.komunikaty) pokaz(komunikat);
  OdrzucBledneUstawienia(wynik);
  return !wynik.brakPliku;
}

}  // namespace

ParametryPolaczenia BazaZWierszaPolecen(const QString& tekst) {
  const auto parametry = ParametryPolaczenia::ZTekstu(tekst);
  if (!parametry) throw BladUzycia{u"Nie wskazano bazy danych: \"%1\""_s.arg(tekst)};
  if (parametry->MaHaslo())
    throw BladUzycia{
        u"Hasła nie podaje się w wierszu poleceń, bo widać je na liście procesów: zapisz je w źródle danych "
        u"(odbc:DSN=...) albo cały opis połączenia w pliku (odbc:@PLIK)"_s};
  return *parametry;
}

void WymagajBazy(const Argumenty& argumenty, TVLTBazaDanych& baza) {
  if (!WskazBaze(argumenty, baza))
    throw BladUzycia{u"Nie wskazano bazy danych (--baza), a domyślnego połączenia nie zapamiętano"_s};
}

bool Przygotuj(const Argumenty& argumenty, PotrzebaBazy potrzeba, const PokazKomunikat& pokaz,
               Srodowisko& srodowisko) {
  if (potrzeba == PotrzebaBazy::Konieczna) WymagajBazy(argumenty, srodowisko.baza);
  const bool wskazana = potrzeba == PotrzebaBazy::Konieczna || WskazBaze(argumenty, srodowisko.baza);
  try {
    if (wskazana) {
      srodowisko.baza.Polacz();
      srodowisko.parametry.Wczytaj(srodowisko.baza);
    }
    return WczytajUstawienia(argumenty, pokaz, srodowisko);
  } catch (const EMException& blad) {
    pokaz(KomunikatBledu(blad));
    return false;
  }
}

StatusWyjscia WykonajUstawienia(const Argumenty& argumenty) {
  Srodowisko srodowisko;
  const auto pokaz = [](const Komunikat& k) { terminal::WypiszBlad(terminal::JednaLinia(k) + u'\n'); };
  if (!Przygotuj(argumenty, PotrzebaBazy::Opcjonalna, pokaz, srodowisko)) return StatusWyjscia::Odmowa;
  QString wydruk = WydrukUstawien(srodowisko.ustawienia);
  if (terminal::WyjscieJestTerminalem()) {
    terminal::Wypisz(wydruk.remove(u'\r'));
    return StatusWyjscia::Zakonczono;
  }
  std::string bajty;
  if (windows1250::Dopisz(wydruk, bajty) > 0)
    pokaz({u"UWAGA"_s, u"Znaki spoza strony kodowej Windows-1250 wypisano jako \"?\""_s});
  terminal::WypiszBajty(bajty);
  return StatusWyjscia::Zakonczono;
}
