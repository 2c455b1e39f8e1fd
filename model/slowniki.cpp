#include "model/slowniki.h"

#include <algorithm>
#include <string>

#include "model/bledy.h"
#include "model/kontekst.h"
#include "model/szerokosci.h"
#include "model/tabele_dziennika.h"
#include "platform/baza/sesja.h"

namespace {

constexpr std::size_t kKolumnaId = 0;
constexpr std::size_t kKolumnaNazwa = 1;

constexpr OpisPola kPolaAsortymentu[] = {{"AsId", TypPola::Calkowite}, {"Nazwa", TypPola::Tekst}};
constexpr OpisSlownika kAsortymenty{"Asort", kPolaAsortymentu, 2833, 2834, kDziennikAsortyment};

constexpr OpisPola kPolaJednostki[] = {
    {"JMId", TypPola::Calkowite}, {"Nazwa", TypPola::Tekst}, {"Precyzja", TypPola::Calkowite}};
constexpr OpisSlownika kJednostki{"JM", kPolaJednostki, 2837, 2838, kDziennikJednostka};
constexpr std::size_t kKolumnaPrecyzja = 2;

// "AsId, Nazwa": the columns from `pierwsza` on, each spelled by `napisz`.
template <typename Pisz>
std::string Lista(const OpisSlownika& opis, std::size_t pierwsza, Pisz napisz) {
  std::string lista;
  for (const OpisPola& pole : opis.pola.subspan(pierwsza))
    lista += (lista.empty() ? "" : ", ") + napisz(std::string(pole.nazwa));
  return lista;
}

std::string Select(const OpisSlownika& opis) {
  return "select " + Lista(opis, kKolumnaId, [](const std::string& n) { return n; }) + " from " + opis.tabela;
}

constexpr int kNajwiekszaPrecyzja = 3;

}  // namespace

TDmVLTWpisSlownika::TDmVLTWpisSlownika(KontekstSesji& context, const OpisSlownika& opis)
    : TDmVLTElement(context, opis.pola), m_opis(opis) {
  Query.SetSql(Select(opis) + " where " + opis.pola[kKolumnaId].nazwa + " = :Id");
}

QString TDmVLTWpisSlownika::Nazwa() const {
  return Query.Field(kKolumnaNazwa).AsString();
}
void TDmVLTWpisSlownika::UstawNazwe(const QString& nazwa) {
  Query.Field(kKolumnaNazwa).SetString(nazwa);
}

void TDmVLTWpisSlownika::SetLoadParams(int id) {
  Query.SetParam("Id", id);
}

void TDmVLTWpisSlownika::SprawdzNazwe(int wlasneId) const {
  if (Nazwa().trimmed().isEmpty()) throw EVLTWDError(m_opis.bladBrakuNazwy);
  WymagajDlugosci(m_opis.tabela, m_opis.pola[kKolumnaNazwa].nazwa, Nazwa());
  const std::string sql = std::string("select ") + IdFieldName() + " from " + m_opis.tabela +
                          " where Nazwa = :Nazwa and " + IdFieldName() + " <> :Id";
  if (Context.baza.Otworz(sql, {TypPola::Calkowite}, {{"Nazwa", Nazwa()}, {"Id", wlasneId}}).Nastepny())
    throw EVLTWDError(m_opis.bladZajetejNazwy);
}

int TDmVLTWpisSlownika::InsertRecord() {
  SprawdzNazwe(-1);
  Sprawdz();
  const int id = Context.baza.WstawOdRazu(
      IdFieldName(),
      std::string("insert into ") + m_opis.tabela + " (" +
          Lista(m_opis, kKolumnaNazwa, [](const std::string& n) { return n; }) + ") values (" +
          Lista(m_opis, kKolumnaNazwa, [](const std::string& n) { return ':' + n; }) + ')',
      Wartosci());
  ZapiszSzczegoly(id);
  Context.baza.RejestrujZmiane(m_opis.tabelaDziennika, QStringLiteral("Nowa pozycja: ") + Nazwa(), id, -1);
  return id;
}

void TDmVLTWpisSlownika::UpdateRecord(int id) {
  // A server keeps every version of a row that one transaction writes and looks through them all: an entry
  // that grows by thousands of details is not written with each.
  const bool wiersz = Query.GetUpdatesPending();
  if (wiersz) SprawdzNazwe(id);
  Sprawdz();
  if (wiersz) PoprawWiersz(id);
  ZapiszSzczegoly(id);
  const QString stara = Query.Field(kKolumnaNazwa).OldValue().AsString();
  Context.baza.RejestrujZmiane(m_opis.tabelaDziennika,
                               QStringLiteral("Zmiana pozycji: ") + stara +
                                   (stara == Nazwa() ? QString() : QStringLiteral(" na ") + Nazwa()),
                               id, -1);
}

void TDmVLTWpisSlownika::PoprawWiersz(int id) {
  auto parametry = Wartosci();
  parametry.push_back({"Id", id});
  const long long zapisane = Context.baza.ExecSQL(
      std::string("update ") + m_opis.tabela + " set " +
          Lista(m_opis, kKolumnaNazwa, [](const std::string& n) { return n + " = :" + n; }) + " where " +
          IdFieldName() + " = :Id",
      parametry);
  if (zapisane == 0) throw EVLTWDError(2001);
}

std::vector<Parametr> TDmVLTWpisSlownika::Wartosci() const {
  std::vector<Parametr> parametry;
  for (std::size_t i = kKolumnaNazwa; i < m_opis.pola.size(); ++i)
    parametry.push_back({m_opis.pola[i].nazwa, Query.Field(i).Value()});
  return parametry;
}

TDmVLTListaSlownika::TDmVLTListaSlownika(KontekstSesji& context, const OpisSlownika& opis,
                                         const char* porzadek)
    : TDmVLTListaElementow(context, opis.pola, opis.pola[kKolumnaId].nazwa) {
  // By identifier a new entry stands where adding it in place puts it: at the end.
  Query.SetSql(Select(opis) + " order by " + (porzadek ? porzadek : opis.pola[kKolumnaId].nazwa));
}

int TDmVLTListaSlownika::ZnajdzNazwe(const QString& nazwa) {
  UzupelnijNazwy();
  return m_nazwy.value(nazwa.toCaseFolded(), -1);
}

QString TDmVLTListaSlownika::Nazwa(int id) {
  return Znajdz(id) ? Query.Field(kKolumnaNazwa).AsString() : QString();
}

void TDmVLTListaSlownika::Przyjmij(const TDmVLTWpisSlownika& wpis) {
  const QString stara = Nazwa(wpis.Id());
  if (stara.isNull()) {
    Query.Append();
    Query.Field(kKolumnaId).SetInteger(wpis.Id());
  } else if (stara.toCaseFolded() != wpis.Nazwa().toCaseFolded()) {
    m_nazwy.clear();
    m_zindeksowane = 0;
  }
  FillRowFromElement(wpis);
  Query.ZatwierdzWiersz();
}

void TDmVLTListaSlownika::ClearDetails() {
  m_nazwy.clear();
  m_zindeksowane = 0;
}

void TDmVLTListaSlownika::FillRowFromElement(const TDmVLTElement& element) {
  for (std::size_t i = kKolumnaNazwa; i < Query.FieldCount(); ++i) {
    const Wartosc& wartosc = element.Query.Field(i).Value();
    TMField& pole = Query.Field(i);
    if (wartosc.Typ() == TypPola::Dziesietne)
      pole.SetFloat(wartosc.AsFloat());
    else if (wartosc.Typ() == TypPola::Calkowite)
      pole.SetInteger(wartosc.AsInteger());
    else
      pole.SetString(wartosc.AsString());
  }
}

// Rows are only ever added at the end, so the names are made up row by row.
void TDmVLTListaSlownika::UzupelnijNazwy() {
  for (; m_zindeksowane < Ilosc(); ++m_zindeksowane) {
    UstawPozycje(m_zindeksowane);
    const QString nazwa = Query.Field(kKolumnaNazwa).AsString().toCaseFolded();
    if (!m_nazwy.contains(nazwa)) m_nazwy.insert(nazwa, IdBiezacego());
  }
}

TDmVLTAsortyment::TDmVLTAsortyment(KontekstSesji& context) : TDmVLTWpisSlownika(context, kAsortymenty) {}

TDmVLTListaAsortymentow::TDmVLTListaAsortymentow(KontekstSesji& context)
    : TDmVLTListaSlownika(context, kAsortymenty) {}

std::unique_ptr<TDmVLTElement> TDmVLTListaAsortymentow::CreateElement() {
  return std::make_unique<TDmVLTAsortyment>(Context);
}

TDmVLTJednostka::TDmVLTJednostka(KontekstSesji& context) : TDmVLTWpisSlownika(context, kJednostki) {}

int TDmVLTJednostka::Precyzja() const {
  return static_cast<int>(Query.Field(kKolumnaPrecyzja).AsInteger());
}

void TDmVLTJednostka::UstawPrecyzje(int precyzja) {
  Query.Field(kKolumnaPrecyzja).SetInteger(std::clamp(precyzja, 0, kNajwiekszaPrecyzja));
}

void TDmVLTJednostka::AfterLoad(bool isNew, int /*id*/) {
  if (isNew) UstawPrecyzje(0);
}

TDmVLTListaJednostek::TDmVLTListaJednostek(KontekstSesji& context)
    : TDmVLTListaSlownika(context, kJednostki) {}

int TDmVLTListaJednostek::Precyzja(int id) {
  return Znajdz(id) ? static_cast<int>(Query.Field(kKolumnaPrecyzja).AsInteger()) : 0;
}

std::unique_ptr<TDmVLTElement> TDmVLTListaJednostek::CreateElement() {
  return std::make_unique<TDmVLTJednostka>(Context);
}
