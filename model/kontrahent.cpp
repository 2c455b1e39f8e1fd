#include "model/kontrahent.h"

#include "model/bledy.h"
#include "model/kontekst.h"
#include "model/tabele_dziennika.h"
#include "model/zakresy.h"
#include "model/zbieracz_osob.h"
#include "platform/baza/dialekt.h"
#include "platform/baza/sesja.h"
#include "platform/baza/transakcja.h"

namespace {

using K = KolumnaKontrahenta;

constexpr OpisPola kPola[] = {ZORVIK_POLA_KONTRAHENTA(ZORVIK_OPIS)};

// The columns of K.* come in the order of table Kontrahent.
#define ZORVIK_KOLUMNY_ODCZYTU                      \
  "select K.*, S.SklepId, S.NrSklepu, S.NrSeryjny," \
  "\r\n S.MagId,"                                   \
  "\r\n S.OstImport, S.WymImport, S.DataBO, S.KolejnyWDniuBO, S.PelnyImport, S.OstEksport, S.PotwEksport"
constexpr char kSelect[] = ZORVIK_KOLUMNY_ODCZYTU
    "\r\nfrom Kontrahent K left outer join Sklep S on (K.KontrId = S.SklepId)"
    "\r\nwhere K.KontrId = :KontrId";
constexpr char kSelectBezOuterJoin[] = ZORVIK_KOLUMNY_ODCZYTU
    "\r\nfrom Kontrahent K, Sklep S"
    "\r\nwhere K.KontrId = :KontrId"
    "\r\nand K.KontrId *= S.SklepId";
#undef ZORVIK_KOLUMNY_ODCZYTU

// A new contractor: active, in no account group, numbers 0, texts empty, no card date, no shop.
const std::vector<Wartosc>& NowyWiersz() {
  static const std::vector<Wartosc> wiersz = [] {
    std::vector<Wartosc> wartosci;
    for (const OpisPola& pole : kPola) wartosci.emplace_back(pole.typ).SetString(QString());
    for (std::size_t i = 0; i < K::kIlosc; ++i)
      if (i == K::KontrId || i >= K::SklepId || kPola[i].typ == TypPola::Czas) wartosci[i].Clear();
    wartosci[K::Aktywny].SetInteger(1);
    return wartosci;
  }();
  return wiersz;
}

}  // namespace

TDmVLTKontrahent::TDmVLTKontrahent(KontekstSesji& context) : TDmVLTElement(context, kPola) {
  const Dialekt& jezyk = context.baza.Jezyk();
  Query.SetSql(jezyk.ZnaOuterJoin() ? kSelect : kSelectBezOuterJoin);
}

TDmVLTKontrahent::~TDmVLTKontrahent() = default;

void TDmVLTKontrahent::SetLoadParams(int id) {
  Query.SetParam("KontrId", id);
}

void TDmVLTKontrahent::ClearDetails() {
  m_osoby.clear();
  m_osobyZBazy.clear();
}

// "select distinct" would lose the order of the persons.
void TDmVLTKontrahent::AfterLoad(bool isNew, int id) {
  if (isNew) {
    Query.UstawWiersz(NowyWiersz());
    return;
  }
  ZbieraczOsob osoby(m_osoby);
  for (auto odczyt = Context.baza.Otworz("select Nazwisko from Osoba where KontrId = :KontrId order by rowid",
                                         {TypPola::Tekst}, {{"KontrId", id}});
       odczyt.Nastepny();)
    osoby.Dodaj(odczyt[0].AsString());
  m_osobyZBazy = m_osoby;
}

bool TDmVLTKontrahent::Sklep() const {
  return !Query.Field(K::SklepId).IsNull();
}

bool TDmVLTKontrahent::BylSklepem() const {
  return !Query.Field(K::SklepId).OldValue().IsNull();
}

// A new contractor's shop takes over the real identifier when it is saved.
void TDmVLTKontrahent::UstawSklep(bool sklep) {
  if (sklep == Sklep()) return;
  if (sklep)
    Query.Field(K::SklepId).SetInteger(Id());
  else
    Query.Field(K::SklepId).Clear();
}

const QString& TDmVLTKontrahent::Osoba(int indeks) const {
  if (indeks < 0 || indeks >= IloscOsob()) throw EVLTWDError(2003, nullptr, QString::number(indeks));
  return m_osoby[static_cast<std::size_t>(indeks)];
}

void TDmVLTKontrahent::UstawOsoby(std::span<const QString> osoby) {
  std::vector<QString> nowe;
  ZbieraczOsob zbieracz(nowe);
  for (const QString& osoba : osoby) zbieracz.Dodaj(osoba);
  m_osoby = std::move(nowe);
}

bool TDmVLTKontrahent::TakiSamJakWBazie() const {
  for (std::size_t i = 0; i < K::kIlosc; ++i) {
    const TMField& pole = Query.Field(i);
    if (!pole.Zmienione()) continue;
    if (kPola[i].typ != TypPola::Dziesietne || !RowneKwoty(pole.AsFloat(), pole.OldValue().AsFloat()))
      return false;
  }
  return m_osoby == m_osobyZBazy;
}

void TDmVLTKontrahent::Usun() {
  if (!Aktywny()) throw EVLTWDError(2802);
  UstawStatus(false);
}

void TDmVLTKontrahent::Przywroc() {
  if (Aktywny()) throw EVLTWDError(2803);
  UstawStatus(true);
}

void TDmVLTKontrahent::UstawStatus(bool aktywny) {
  if (CzyKopia()) throw EVLTWDError(2033);
  JednostkaZapisu jednostka(Context.baza);
  const std::string_view sql =
      aktywny ? "update Kontrahent set Aktywny = 1, Zmiana = getdate() where KontrId = :KontrId"
              : "update Kontrahent set Aktywny = 0, Zmiana = getdate() where KontrId = :KontrId";
  if (Context.baza.ExecSQL(sql, {{"KontrId", Id()}}) == 0) throw EVLTWDError(2001);
  Context.baza.RejestrujZmiane(
      kDziennikKontrahent,
      aktywny ? QStringLiteral("Przywrócenie kontrahenta") : QStringLiteral("Usunięcie kontrahenta"), Id(),
      -1);
  jednostka.Zatwierdz();
  const bool bezZmian = !CzyZmieniony();
  UstawAktywny(aktywny);
  if (bezZmian) Query.ZatwierdzZmiany();
}
