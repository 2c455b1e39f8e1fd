#include "model/lista_elementow.h"

#include "model/bledy.h"
#include "model/element.h"
#include "model/kontekst.h"
#include "platform/baza/sesja.h"

TDmVLTListaElementow::TDmVLTListaElementow(KontekstSesji& context, std::span<const OpisPola> pola,
                                           const char* poleId)
    : Query(pola), Context(context), m_indeksId(Query.IndexOf(poleId)) {}

TDmVLTListaElementow::~TDmVLTListaElementow() = default;

void TDmVLTListaElementow::Otworz() {
  Query.Close();
  m_pierwszeZId.clear();
  m_zindeksowane = 0;
  ClearDetails();
  Context.baza.PowiazQuery(Query);
  Query.SetOpenEmpty(false);
  if (OnSetParams)
    OnSetParams(Query);
  else
    SetDefaultParams();
  Query.Open();
  AfterOpen(true);
}

int TDmVLTListaElementow::Ilosc() const {
  return Query.Active() ? Query.RecordCount() : 0;
}

void TDmVLTListaElementow::UstawPozycje(int index) {
  if (Ilosc() == 0 && index < 0) return;
  if (index < 0 || index >= Ilosc()) throw EVLTWDError(2003, nullptr, QString::number(index));
  Query.MoveTo(index);
}

int TDmVLTListaElementow::Pozycja() const {
  return Query.Active() ? Query.RecNo() : -1;
}

int TDmVLTListaElementow::IdBiezacego() const {
  return Pozycja() < 0 || IdField().IsNull() ? -1 : static_cast<int>(IdField().AsInteger());
}

bool TDmVLTListaElementow::Znajdz(int id) {
  if (Pozycja() >= 0 && !IdField().IsNull() && IdField().AsInteger() == id) return true;
  const int ilosc = Ilosc();
  if (ilosc == 0) return false;
  UzupelnijIndeks();
  const auto znaleziony = m_pierwszeZId.find(id);
  Query.MoveTo(znaleziony == m_pierwszeZId.end() ? ilosc - 1 : znaleziony->second);
  return znaleziony != m_pierwszeZId.end();
}

// Rows are only ever added behind the last one between two openings, so the index is made up row by row.
void TDmVLTListaElementow::UzupelnijIndeks() {
  const int biezaca = Query.RecNo();
  for (int i = m_zindeksowane; i < Query.RecordCount(); ++i) {
    Query.MoveTo(i);
    if (!IdField().IsNull()) m_pierwszeZId.emplace(IdField().AsInteger(), i);
  }
  m_zindeksowane = Query.RecordCount();
  Query.MoveTo(biezaca);
}

void TDmVLTListaElementow::DodajElement(int id) {
  const auto element = CreateElement();
  element->Wczytaj(id);
  Query.Append();
  Query.Field(m_indeksId).SetInteger(id);
  FillRowFromElement(*element);
}
