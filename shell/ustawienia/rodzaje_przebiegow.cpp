#include "ustawienia/rodzaje_przebiegow.h"

#include "goods/eksport_towarow.h"
#include "goods/import_towarow.h"
#include "ustawienia/ustawienia.h"

namespace {

using U = Ustawienia;

WynikPrzebiegu ImportTowarow(const ParametryPrzebiegu& parametry, const U& u, TVLTBuforTowarow& bufor) {
  return ImportujTowary(parametry, u.importTow, bufor);
}

WynikPrzebiegu EksportTowarow(const ParametryPrzebiegu& parametry, const U& u, TVLTBuforTowarow& /*bufor*/) {
  return EksportujTowary(parametry, u.eksportTow);
}

constexpr RodzajPrzebiegu kRodzaje[] = {
    {u"import-towarow", u"Import towarów", u"Postęp aktualizacji towarów", Kierunek::Import,
     &U::plikImportuTow, &U::strukturaTow, ImportTowarow},
    {u"eksport-towarow", u"Eksport towarów", u"Postęp eksportu towarów", Kierunek::Eksport,
     &U::plikEksportuTow, &U::strukturaTow, EksportTowarow},
};

}  // namespace

std::span<const RodzajPrzebiegu> TabelaRodzajowPrzebiegow() {
  return kRodzaje;
}
