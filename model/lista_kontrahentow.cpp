#include "model/lista_kontrahentow.h"

#include "model/kontrahent.h"

namespace {
constexpr OpisPola kPola[] = {{"KontrId", TypPola::Calkowite}, {"NIP", TypPola::Tekst}};
enum Pole : std::size_t { KontrId, NIP_ };
}  // namespace

TDmVLTListaKontrahentow::TDmVLTListaKontrahentow(KontekstSesji& context)
    : TDmVLTListaElementow(context, kPola, "KontrId") {
  Query.SetSql("select KontrId, NIP from Kontrahent order by KontrId");
}

TDmVLTListaKontrahentow::~TDmVLTListaKontrahentow() = default;

QString TDmVLTListaKontrahentow::NIP() const {
  return Query.Field(NIP_).AsString();
}

void TDmVLTListaKontrahentow::FillRowFromElement(const TDmVLTElement& element) {
  Query.Field(NIP_).SetString(static_cast<const TDmVLTKontrahent&>(element).NIP());
}

std::unique_ptr<TDmVLTElement> TDmVLTListaKontrahentow::CreateElement() {
  return std::make_unique<TDmVLTKontrahent>(Context);
}
