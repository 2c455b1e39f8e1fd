#include "app/sprawdz_baze.h"

#include "app/argumenty.h"
#include "app/srodowisko.h"
#include "app/terminal.h"
#include "database/kontrola_bazy.h"

using namespace Qt::Literals::StringLiterals;

StatusWyjscia WykonajSprawdzBaze(const Argumenty& argumenty) {
  TVLTBazaDanych baza;
  WymagajBazy(argumenty, baza);
  try {
    baza.Polacz();
    const QStringList braki = SprawdzBaze(baza);
    for (const QString& brak : braki) terminal::Wypisz(brak + u'\n');
    if (!braki.isEmpty()) return StatusWyjscia::Odmowa;
    terminal::Wypisz(u"Baza danych %1 ma wszystko, czego potrzebuje program\n"_s.arg(baza.Nazwa()));
    return StatusWyjscia::Zakonczono;
  } catch (const EMException& blad) {
    terminal::WypiszBlad(terminal::JednaLinia(KomunikatBledu(blad)) + u'\n');
    return StatusWyjscia::Odmowa;
  }
}
