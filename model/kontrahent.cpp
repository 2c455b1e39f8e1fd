#include "model/kontrahent.h"

#include <algorithm>
#include <array>

#include "model/bledy.h"
#include "model/kolejnosc_osob.h"
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
#define ZORVIK_KOLUMNY_SKLEPU           \
  "S.SklepId, S.NrSklepu, S.NrSeryjny," \
  "\r\n S.MagId,"                       \
  "\r\n S.OstImport, S.WymImport, S.DataBO, S.KolejnyWDniuBO, S.PelnyImport, S.OstEksport, S.PotwEksport"
#define ZORVIK_KOLUMNY_ODCZYTU "select K.*, " ZORVIK_KOLUMNY_SKLEPU
constexpr char kSelectSklepu[] =
    "select " ZORVIK_KOLUMNY_SKLEPU "\r\nfrom Sklep S\r\nwhere S.SklepId = :KontrId";
constexpr char kSelect[] = ZORVIK_KOLUMNY_ODCZYTU
    "\r\nfrom Kontrahent K left outer join Sklep S on (K.KontrId = S.SklepId)"
    "\r\nwhere K.KontrId = :KontrId";
constexpr char kSelectBezOuterJoin[] = ZORVIK_KOLUMNY_ODCZYTU
    "\r\nfrom Kontrahent K, Sklep S"
    "\r\nwhere K.KontrId = :KontrId"
    "\r\nand K.KontrId *= S.SklepId";
#undef ZORVIK_KOLUMNY_ODCZYTU
#undef ZORVIK_KOLUMNY_SKLEPU

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

void TDmVLTKontrahent::AfterLoad(bool isNew, int id) {
  if (isNew) {
    Query.UstawWiersz(NowyWiersz());
    m_wierszSklepu = false;
    return;
  }
  m_wierszSklepu = Sklep();
  m_osoby = m_osobyZBazy = WczytajOsoby(id);
}

// "select distinct" would lose their order.
std::vector<QString> TDmVLTKontrahent::WczytajOsoby(int id) {
  if (m_selectOsob.empty())
    m_selectOsob = std::string("select Nazwisko from Osoba where KontrId = :KontrId order by ") +
                   KolejnoscOsob(Context.baza);
  std::vector<QString> osoby;
  ZbieraczOsob zbieracz(osoby);
  for (auto odczyt = Context.baza.Otworz(m_selectOsob, {TypPola::Tekst}, {{"KontrId", id}});
       odczyt.Nastepny();)
    zbieracz.Dodaj(odczyt[0].AsString());
  return osoby;
}

// What the save is going to write, as it stands under the lock. What the record leaves as it was is not
// written and need not be known.
void TDmVLTKontrahent::PrzyjmijCudzeSzczegoly(int id) {
  if (Sklep() || BylSklepem()) {
    const Dialekt& jezyk = Context.baza.Jezyk();
    const std::string blokada = jezyk.ZBlokadaWierszy(kSelectSklepu, "Sklep", "S");
    constexpr auto kSklep = std::span(kPola).subspan(K::SklepId);
    std::array<TypPola, kSklep.size()> typy{};
    std::transform(kSklep.begin(), kSklep.end(), typy.begin(), [](const OpisPola& p) { return p.typ; });
    const Parametr parametr[] = {{"KontrId", id}};
    auto odczyt = Context.baza.Otworz(blokada.empty() ? kSelectSklepu : blokada, typy, parametr);
    m_wierszSklepu = odczyt.Nastepny();
    for (std::size_t i = 0; m_wierszSklepu && i < kSklep.size(); ++i)
      Query.Odswiez(K::SklepId + i, odczyt[i]);
  }
  if (m_osoby != m_osobyZBazy) m_osobyZBazy = WczytajOsoby(id);
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
