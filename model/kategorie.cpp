#include "model/kategorie.h"

#include <algorithm>

#include "model/bledy.h"
#include "model/kontekst.h"
#include "model/szerokosci.h"
#include "model/tabele_dziennika.h"
#include "model/zakresy.h"
#include "platform/baza/sesja.h"

namespace {

constexpr OpisPola kPolaParametru[] = {{"ParId", TypPola::Calkowite},
                                       {"Nazwa", TypPola::Tekst},
                                       {"Typ", TypPola::Calkowite},
                                       {"Od", TypPola::Dziesietne},
                                       {"Do", TypPola::Dziesietne}};
enum Pole : std::size_t { ParId_, Nazwa_, Typ_, Od_, Do_ };
constexpr OpisSlownika kParametry{"Parametr", kPolaParametru, 2873, 2874, kDziennikParametr};

constexpr OpisPola kPolaKategorii[] = {{"KatId", TypPola::Calkowite}, {"Nazwa", TypPola::Tekst}};
constexpr OpisSlownika kKategorie{"Kategoria", kPolaKategorii, 2877, 2878, kDziennikKategoria};

constexpr int kBrakWartosciParametru = 2875;

template <typename Mapa>
const typename Mapa::mapped_type& ZMapy(const Mapa& mapa, int id) {
  static const typename Mapa::mapped_type puste;
  const auto znalezione = mapa.find(id);
  return znalezione == mapa.end() ? puste : znalezione->second;
}

}  // namespace

TDmVLTParametr::TDmVLTParametr(KontekstSesji& context) : TDmVLTWpisSlownika(context, kParametry) {}

TDmVLTParametr::Typ TDmVLTParametr::Rodzaj() const {
  return Query.Field(Typ_).AsInteger() == 0 ? Typ::Lista : Typ::Zakres;
}
double TDmVLTParametr::Od() const {
  return Query.Field(Od_).AsFloat();
}
double TDmVLTParametr::Do() const {
  return Query.Field(Do_).AsFloat();
}

void TDmVLTParametr::UstawListe(std::vector<QString> wartosci) {
  Query.Field(Typ_).SetInteger(static_cast<int>(Typ::Lista));
  Query.Field(Od_).SetFloat(0);
  Query.Field(Do_).SetFloat(0);
  m_wartosci = std::move(wartosci);
}

void TDmVLTParametr::UstawZakres(double od, double doo) {
  Query.Field(Typ_).SetInteger(static_cast<int>(Typ::Zakres));
  Query.Field(Od_).SetFloat(od);
  Query.Field(Do_).SetFloat(doo);
  m_wartosci.clear();
}

void TDmVLTParametr::AfterLoad(bool isNew, int id) {
  if (isNew) {
    UstawListe({});
    return;
  }
  for (auto odczyt =
           Context.baza.Otworz("select Wartosc from ParWartosc where ParId = :ParId order by Kolejnosc",
                               {TypPola::Tekst}, {{"ParId", id}});
       odczyt.Nastepny();)
    m_wartosci.push_back(odczyt[0].AsString());
}

void TDmVLTParametr::Sprawdz() const {
  if (Rodzaj() == Typ::Lista && m_wartosci.empty()) throw EVLTWDError(kBrakWartosciParametru);
  WymagajZakresu(Od());
  WymagajZakresu(Do());
  for (const QString& wartosc : m_wartosci) WymagajDlugosci("ParWartosc", "Wartosc", wartosc);
}

void TDmVLTParametr::ZapiszSzczegoly(int id) {
  Context.baza.ExecSQL("delete from ParWartosc where ParId = :ParId", {{"ParId", id}});
  int kolejnosc = 0;
  for (const QString& wartosc : m_wartosci)
    Context.baza.ExecSQL(
        "insert into ParWartosc (ParId, Kolejnosc, Wartosc) values (:ParId, :Kolejnosc, :Wartosc)",
        {{"ParId", id}, {"Kolejnosc", kolejnosc++}, {"Wartosc", wartosc}});
}

TDmVLTListaParametrow::TDmVLTListaParametrow(KontekstSesji& context)
    : TDmVLTListaSlownika(context, kParametry) {}

std::optional<TDmVLTParametr::Typ> TDmVLTListaParametrow::Rodzaj(int parId) {
  if (!Znajdz(parId)) return std::nullopt;
  return Query.Field(Typ_).AsInteger() == 0 ? TDmVLTParametr::Typ::Lista : TDmVLTParametr::Typ::Zakres;
}
double TDmVLTListaParametrow::Od(int parId) {
  return Znajdz(parId) ? Query.Field(Od_).AsFloat() : 0;
}
double TDmVLTListaParametrow::Do(int parId) {
  return Znajdz(parId) ? Query.Field(Do_).AsFloat() : 0;
}
const std::vector<QString>& TDmVLTListaParametrow::Wartosci(int parId) const {
  return ZMapy(m_wartosci, parId);
}

void TDmVLTListaParametrow::ClearDetails() {
  TDmVLTListaSlownika::ClearDetails();
  m_wartosci.clear();
}

void TDmVLTListaParametrow::AfterOpen(bool /*flag*/) {
  for (auto odczyt = Context.baza.Otworz("select ParId, Wartosc from ParWartosc order by ParId, Kolejnosc",
                                         {TypPola::Calkowite, TypPola::Tekst});
       odczyt.Nastepny();)
    m_wartosci[static_cast<int>(odczyt[0].AsInteger())].push_back(odczyt[1].AsString());
}

void TDmVLTListaParametrow::FillRowFromElement(const TDmVLTElement& element) {
  TDmVLTListaSlownika::FillRowFromElement(element);
  m_wartosci[element.Id()] = static_cast<const TDmVLTParametr&>(element).Wartosci();
}

std::unique_ptr<TDmVLTElement> TDmVLTListaParametrow::CreateElement() {
  return std::make_unique<TDmVLTParametr>(Context);
}

TDmVLTKategoria::TDmVLTKategoria(KontekstSesji& context) : TDmVLTWpisSlownika(context, kKategorie) {}

void TDmVLTKategoria::DodajParametr(int parId) {
  if (std::find(m_parametry.begin(), m_parametry.end(), parId) == m_parametry.end())
    m_parametry.push_back(parId);
}

void TDmVLTKategoria::ClearDetails() {
  m_parametry.clear();
  m_zapisane = 0;
  m_nastepnaKolejnosc = 0;
}

ZapisaneParametry CzytajParametryKategorii(TVLTBazaDanych& baza, int katId) {
  ZapisaneParametry parametry;
  for (auto odczyt =
           baza.Otworz("select ParId, Kolejnosc from KatParam where KatId = :KatId order by Kolejnosc, ParId",
                       {TypPola::Calkowite, TypPola::Calkowite}, {{"KatId", katId}});
       odczyt.Nastepny();) {
    parametry.id.push_back(static_cast<int>(odczyt[0].AsInteger()));
    parametry.nastepnaKolejnosc = static_cast<int>(odczyt[1].AsInteger()) + 1;
  }
  return parametry;
}

void TDmVLTKategoria::AfterLoad(bool isNew, int id) {
  if (isNew) return;
  ZapisaneParametry zapisane = CzytajParametryKategorii(Context.baza, id);
  m_parametry = std::move(zapisane.id);
  m_zapisane = m_parametry.size();
  m_nastepnaKolejnosc = zapisane.nastepnaKolejnosc;
}

void TDmVLTKategoria::ZapiszSzczegoly(int id) {
  int kolejnosc = m_nastepnaKolejnosc;
  for (std::size_t i = m_zapisane; i < m_parametry.size(); ++i)
    Context.baza.ExecSQL("insert into KatParam (KatId, ParId, Kolejnosc) values (:KatId, :ParId, :Kolejnosc)",
                         {{"KatId", id}, {"ParId", m_parametry[i]}, {"Kolejnosc", kolejnosc++}});
}

void TDmVLTKategoria::AfterSave() {
  m_nastepnaKolejnosc += static_cast<int>(m_parametry.size() - m_zapisane);
  m_zapisane = m_parametry.size();
}

TDmVLTListaKategorii::TDmVLTListaKategorii(KontekstSesji& context)
    : TDmVLTListaSlownika(context, kKategorie) {}

const std::vector<int>& TDmVLTListaKategorii::Parametry(int katId) const {
  return ZMapy(m_parametry, katId);
}

void TDmVLTListaKategorii::ClearDetails() {
  TDmVLTListaSlownika::ClearDetails();
  m_parametry.clear();
}

void TDmVLTListaKategorii::AfterOpen(bool /*flag*/) {
  for (auto odczyt = Context.baza.Otworz("select KatId, ParId from KatParam order by KatId, Kolejnosc, ParId",
                                         {TypPola::Calkowite, TypPola::Calkowite});
       odczyt.Nastepny();)
    m_parametry[static_cast<int>(odczyt[0].AsInteger())].push_back(static_cast<int>(odczyt[1].AsInteger()));
}

void TDmVLTListaKategorii::FillRowFromElement(const TDmVLTElement& element) {
  TDmVLTListaSlownika::FillRowFromElement(element);
  m_parametry[element.Id()] = static_cast<const TDmVLTKategoria&>(element).Parametry();
}

std::unique_ptr<TDmVLTElement> TDmVLTListaKategorii::CreateElement() {
  return std::make_unique<TDmVLTKategoria>(Context);
}
