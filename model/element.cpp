#include "model/element.h"

#include "model/bledy.h"
#include "model/kontekst.h"
#include "platform/baza/dialekt.h"
#include "platform/baza/sesja.h"
#include "platform/baza/transakcja.h"

TDmVLTElement::TDmVLTElement(KontekstSesji& context, std::span<const OpisPola> pola)
    : Query(pola), Context(context) {
  Query.SetTylkoPierwszy(true);
}

// Subclasses clear their details with their own members; the base only gives the query back.
TDmVLTElement::~TDmVLTElement() {
  Query.Close();
}

void TDmVLTElement::Nowy() {
  m_sklepId = m_kopiaId = -1;
  ClearDetails();
  Query.Close();
  Context.baza.PowiazQuery(Query);
  Query.SetOpenEmpty(true);
  Query.Open();
  Query.Append();
  AfterLoad(true, 0);
}

void TDmVLTElement::Wczytaj(int id) {
  ClearDetails();
  Query.Close();
  Context.baza.PowiazQuery(Query);
  Query.SetOpenEmpty(false);
  m_sklepId = m_kopiaId = -1;
  SetLoadParams(id);
  if (const auto wiersz = OdczytanyWiersz(id); !wiersz.empty())
    Query.OpenZ(wiersz);
  else
    Query.Open();
  if (Query.IsEmpty()) throw EVLTWDError(2001);
  m_znanyW = Context.baza.Transakcja();
  AfterLoad(false, id);
}

void TDmVLTElement::WczytajKopie(int sklepId, int kopiaId, bool asNew) {
  ClearDetails();
  Query.Close();
  Context.baza.PowiazQuery(Query);
  Query.SetOpenEmpty(false);
  m_sklepId = sklepId;
  m_kopiaId = kopiaId;
  if (!CzyKopia()) throw EVLTWDError(2034);
  PrepareCopyQuery();
  Query.Open();
  if (Query.IsEmpty()) throw EVLTWDError(2031);
  AfterCopyLoad(asNew);
  if (asNew) {
    m_sklepId = m_kopiaId = -1;
    PoleId().Clear();
  }
}

int TDmVLTElement::Zapisz() {
  if (CzyKopia()) throw EVLTWDError(2033);
  // A record that was never loaded has nothing to save.
  if (Query.IsEmpty()) throw EVLTWDError(2001);
  const bool nowy = CzyNowy();
  if (!nowy) PrzedJednostka();
  JednostkaZapisu jednostka(Context.baza);
  int id = Id();
  if (nowy)
    id = InsertRecord();
  else {
    PrzyjmijCudzeZmiany();
    UpdateRecord(id);
  }
  const long long transakcja = Context.baza.Transakcja();
  jednostka.Zatwierdz();
  m_znanyW = transakcja;
  if (nowy) PoleId().SetInteger(id);
  Query.ZatwierdzZmiany();
  AfterSave();
  return id;
}

void TDmVLTElement::PrzyjmijCudzeZmiany() {
  const auto zrodlo = BlokowanyWiersz();
  if (!zrodlo) return;
  if (const auto wiersz = ZablokowanyWiersz(Id()); !wiersz.empty())
    return Query.Odswiez(wiersz.first(zrodlo->kolumn));
  const std::string select = Context.baza.Jezyk().ZBlokadaWierszy(Query.Sql(), zrodlo->tabela, zrodlo->alias);
  // Where a write transaction keeps everybody else out, what was read inside of it still holds.
  if (select.empty() && Context.baza.Transakcja() == m_znanyW) return;
  SetLoadParams(Id());  // a record that was new has none yet
  if (!Query.OdswiezZ(select.empty() ? Query.Sql() : select, zrodlo->kolumn)) throw EVLTWDError(2001);
  PrzyjmijCudzeSzczegoly(Id());
}

int TDmVLTElement::Id() const {
  return CzyNowy() ? -1 : static_cast<int>(PoleId().AsInteger());
}

bool TDmVLTElement::CzyNowy() const {
  return Query.IsEmpty() || PoleId().IsNull();
}

bool TDmVLTElement::Edytuj() {
  const auto formularz = CreateEditor();
  return formularz && formularz->PokazModalnie();
}

std::unique_ptr<TFmVLTFormularzElementu> TDmVLTElement::CreateEditor() {
  return Context.fabrykaFormularzy ? Context.fabrykaFormularzy(*this) : nullptr;
}

void TDmVLTElement::PrepareCopyQuery() {
  throw EVLTWDError(2032);
}

TMField& TDmVLTElement::PoleId() {
  return Query.FieldByName(IdFieldName());
}
const TMField& TDmVLTElement::PoleId() const {
  return Query.FieldByName(IdFieldName());
}
