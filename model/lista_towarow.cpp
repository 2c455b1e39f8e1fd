#include "model/lista_towarow.h"

namespace {
constexpr OpisPola kPola[] = {{"TowId", TypPola::Calkowite},
                              {"Kod", TypPola::Tekst},
                              {"Nazwa", TypPola::Tekst},
                              {"Aktywny", TypPola::Calkowite}};
enum Pole : std::size_t { TowId, Kod_, Nazwa_, Aktywny_ };
}  // namespace

TDmVLTListaTowarow::TDmVLTListaTowarow(KontekstSesji& context, const OtoczenieTowarow& otoczenie)
    : TDmVLTListaElementow(context, kPola, "TowId"), m_otoczenie(otoczenie) {
  Query.SetSql("select TowId, Kod, Nazwa, Aktywny from Towar order by TowId");
}

TDmVLTListaTowarow::~TDmVLTListaTowarow() = default;

QString TDmVLTListaTowarow::Kod() const {
  return Query.Field(Kod_).AsString();
}
QString TDmVLTListaTowarow::Nazwa() const {
  return Query.Field(Nazwa_).AsString();
}
bool TDmVLTListaTowarow::Aktywny() const {
  return Query.Field(Aktywny_).AsInteger() != 0;
}

void TDmVLTListaTowarow::FillRowFromElement(const TDmVLTElement& element) {
  const auto& towar = static_cast<const TDmVLTTowar&>(element);
  Query.Field(Kod_).SetString(towar.Kod());
  Query.Field(Nazwa_).SetString(towar.Nazwa());
  Query.Field(Aktywny_).SetInteger(towar.Aktywny());
}

std::unique_ptr<TDmVLTElement> TDmVLTListaTowarow::CreateElement() {
  return std::make_unique<TDmVLTTowar>(Context, m_otoczenie);
}
