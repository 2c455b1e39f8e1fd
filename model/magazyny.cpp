#include "model/magazyny.h"

#include "model/tabele_dziennika.h"

namespace {
constexpr OpisPola kPola[] = {{"MagId", TypPola::Calkowite}, {"Nazwa", TypPola::Tekst}};
constexpr OpisSlownika kMagazyny{"Magazyn", kPola, 2835, 2836, kDziennikMagazyn};
}  // namespace

TDmVLTMagazyn::TDmVLTMagazyn(KontekstSesji& context) : TDmVLTWpisSlownika(context, kMagazyny) {}

TDmVLTListaMagazynow::TDmVLTListaMagazynow(KontekstSesji& context)
    : TDmVLTListaSlownika(context, kMagazyny, "Nazwa, MagId") {}

std::unique_ptr<TDmVLTElement> TDmVLTListaMagazynow::CreateElement() {
  return std::make_unique<TDmVLTMagazyn>(Context);
}
