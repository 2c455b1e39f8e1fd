#include "ustawienia/rodzaje_przebiegow.h"

#include "contractors/eksport_kontrahentow.h"
#include "contractors/import_kontrahentow.h"
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

WynikPrzebiegu ImportKontrahentow(const ParametryPrzebiegu& parametry, const U& u,
                                  TVLTBuforTowarow& /*bufor*/) {
  return ImportujKontrahentow(parametry, u.importKontr);
}

WynikPrzebiegu EksportKontrahentow(const ParametryPrzebiegu& parametry, const U& u,
                                   TVLTBuforTowarow& /*bufor*/) {
  return EksportujKontrahentow(parametry, u.eksportKontr);
}

// In the order of KtoryPrzebieg.
constexpr RodzajPrzebiegu kRodzaje[] = {
    {u"import-towarow", u"Import towarów", u"Postęp aktualizacji towarów", Kierunek::Import,
     &U::plikImportuTow, &U::strukturaTow, ImportTowarow},
    {u"eksport-towarow", u"Eksport towarów", u"Postęp eksportu towarów", Kierunek::Eksport,
     &U::plikEksportuTow, &U::strukturaTow, EksportTowarow},
    {u"import-kontrahentow", u"Import kontrahentów", u"Postęp aktualizacji kontrahentów", Kierunek::Import,
     &U::plikImportuKontr, &U::strukturaKontr, ImportKontrahentow},
    {u"eksport-kontrahentow", u"Eksport kontrahentów", u"Postęp eksportu kontrahentów", Kierunek::Eksport,
     &U::plikEksportuKontr, &U::strukturaKontr, EksportKontrahentow},
};

}  // namespace

const RodzajPrzebiegu& Rodzaj(KtoryPrzebieg ktory) {
  return kRodzaje[static_cast<std::size_t>(ktory)];
}
