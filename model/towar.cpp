#include "model/towar.h"

#include "model/bledy.h"
#include "model/kody_wazone.h"
#include "model/kontekst.h"
#include "model/nazwy_skrocone.h"
#include "model/parametry_systemu.h"
#include "model/reguly_kodow.h"
#include "model/szukanie_towaru.h"
#include "model/tabele_dziennika.h"
#include "model/towar_plan.h"
#include "model/towar_select.h"
#include "model/zakresy.h"
#include "model/zapas_towarow.h"
#include "platform/baza/dialekt.h"
#include "platform/baza/sesja.h"
#include "platform/baza/transakcja.h"

namespace {

namespace rodzaje {
using namespace ::rodzaje;
constexpr TypPola Typ = TypPola::Calkowite;
constexpr TypPola Stawka = TypPola::Calkowite;
constexpr TypPola Nazwa = TypPola::Tekst;
}  // namespace rodzaje

constexpr OpisPola kPola[] = {ZORVIK_POLA_TOWARU(ZORVIK_OPIS)};

// Columns that a new good leaves null: nothing chosen yet, or the server's to fill.
constexpr KolumnaTowaru::Numer kPusteWNowym[] = {
    KolumnaTowaru::TowId,     KolumnaTowaru::AsId,   KolumnaTowaru::JMId,   KolumnaTowaru::KatId,
    KolumnaTowaru::Producent, KolumnaTowaru::Stawka, KolumnaTowaru::Zmiana, KolumnaTowaru::OpakId};

std::vector<Wartosc> NowyWiersz(const ParametrySystemu& parametry) {
  std::vector<Wartosc> wiersz;
  for (const OpisPola& pole : kPola) wiersz.emplace_back(pole.typ).SetString(QString());
  for (const auto pole : kPusteWNowym) wiersz[pole].Clear();
  wiersz[KolumnaTowaru::Aktywny].SetInteger(1);
  constexpr std::pair<KolumnaTowaru::Numer, IdParametru> kZParametrow[] = {
      {KolumnaTowaru::CenaOtwarta, IdParametru::DomyslnieCenaOtwarta},
      {KolumnaTowaru::OpcjaMarzy, IdParametru::RachunekMarzy},
      {KolumnaTowaru::OpcjaRabatu, IdParametru::RachunekRabatuHurtowego},
      {KolumnaTowaru::OpcjaNarzutu, IdParametru::RachunekNarzutuNocnego}};
  for (const auto& [pole, parametr] : kZParametrow) wiersz[pole].SetInteger(parametry[parametr].AsInteger());
  return wiersz;
}

QString Tekst(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

bool Pusty(const QString& tekst) {
  return tekst.trimmed().isEmpty();
}

TypTowaru TypZLiczby(long long liczba) {
  return liczba == 1 || liczba == 2 ? static_cast<TypTowaru>(liczba) : TypTowaru::Towar;
}

TVLTBuforTowarow::Teksty ZbierzTeksty(const TKMQuery& query, const std::vector<KodDodatkowy>& kody,
                                      const Wartosc& (TMField::*wartosc)() const) {
  const auto tekst = [&](KolumnaTowaru::Numer pole) {
    return Tekst((query.Field(pole).*wartosc)().AsUtf8());
  };
  TVLTBuforTowarow::Teksty teksty{
      tekst(KolumnaTowaru::Nazwa), tekst(KolumnaTowaru::Kod), tekst(KolumnaTowaru::Skrot), {}, {}};
  for (const KodDodatkowy& kod : kody) {
    teksty.dodatkowe.push_back(kod.kod);
    teksty.dodSkroty.push_back(kod.skrot);
  }
  return teksty;
}

}  // namespace

std::span<const OpisPola> PolaTowaru() {
  return kPola;
}

OtoczenieZParametrow::OtoczenieZParametrow(KontekstSesji& context) {
  TDmVLTListaKodowWazonych formaty(context);
  formaty.Otworz();
  m_reguly = std::make_unique<RegulyKodow>(RegulyKodow::ZParametrow(context.parametry, formaty.Formaty()));
  m_skroty = std::make_unique<TDmVLTNazwySkrocone>(context.baza);
}

OtoczenieZParametrow::~OtoczenieZParametrow() = default;

TDmVLTTowar::TDmVLTTowar(KontekstSesji& context, const OtoczenieTowarow& otoczenie)
    : TDmVLTElement(context, kPola), m_otoczenie(otoczenie), m_nowyWiersz(NowyWiersz(context.parametry)) {
  const char* const select = context.baza.Jezyk().ZnaOuterJoin() ? kSelectTowaru : kSelectTowaruBezOuterJoin;
  Query.SetSql(std::string(select) + "= :TowId");
}

TDmVLTTowar::~TDmVLTTowar() = default;

void TDmVLTTowar::SetLoadParams(int id) {
  Query.SetParam("TowId", id);
}

const OdczytanyTowar* TDmVLTTowar::Odczytany(int id) const {
  return m_otoczenie.zapas ? m_otoczenie.zapas->Znajdz(id) : nullptr;
}

void TDmVLTTowar::PrzedJednostka() {
  if (m_otoczenie.zapas) m_otoczenie.zapas->Zablokuj(Context.baza, Id());
}

std::span<const Wartosc> TDmVLTTowar::ZablokowanyWiersz(int id) const {
  const OdczytanyTowar* const towar = Odczytany(id);
  return towar && towar->zablokowany ? std::span<const Wartosc>(towar->wiersz) : std::span<const Wartosc>();
}

std::span<const Wartosc> TDmVLTTowar::OdczytanyWiersz(int id) const {
  const OdczytanyTowar* const towar = Odczytany(id);
  return towar ? std::span<const Wartosc>(towar->wiersz) : std::span<const Wartosc>();
}

void TDmVLTTowar::ClearDetails() {
  m_kody.Wyczysc();
  m_wartosci.Wyczysc();
  m_dostawcy.Wyczysc();
  m_stany.reset();
  m_notatka.reset();
  m_notatkaZmieniona = false;
}

void TDmVLTTowar::AfterLoad(bool isNew, int id) {
  if (isNew) {
    Query.UstawWiersz(m_nowyWiersz);
    return;
  }
  if (const OdczytanyTowar* const towar = Odczytany(id)) {
    m_kody.UstawZBazy(towar->kody);
    m_wartosci.UstawZBazy(towar->wartosci);
    m_dostawcy.UstawZBazy(towar->dostawcy);
    return;
  }
  m_kody.Wczytaj(Context.baza, id);
  m_wartosci.Wczytaj(Context.baza, id);
  m_dostawcy.Wczytaj(Context.baza, id);
}

void TDmVLTTowar::UstawNazwa(const QString& tekst) {
  if (RownyTekst(Query.Field(KolumnaTowaru::Nazwa).Value(), tekst)) return;
  Query.Field(KolumnaTowaru::Nazwa).SetString(tekst);
  if (Pusty(Skrot())) UtworzSkrot();
}

TypTowaru TDmVLTTowar::TypTowaru() const {
  return TypZLiczby(Query.Field(KolumnaTowaru::TypTowaru).AsInteger());
}

void TDmVLTTowar::UstawTypTowaru(::TypTowaru typ) {
  if (TypTowaru() != typ) Query.Field(KolumnaTowaru::TypTowaru).SetInteger(static_cast<int>(typ));
}

std::optional<int> TDmVLTTowar::Stawka() const {
  const TMField& pole = Query.Field(KolumnaTowaru::Stawka);
  return pole.IsNull() ? std::nullopt : std::optional(static_cast<int>(pole.AsInteger()));
}

void TDmVLTTowar::UstawStawka(std::optional<int> stawka) {
  if (Stawka() == stawka) return;
  if (stawka)
    Query.Field(KolumnaTowaru::Stawka).SetInteger(*stawka);
  else
    Query.Field(KolumnaTowaru::Stawka).Clear();
}

StanyTowaru& TDmVLTTowar::Stany() {
  if (!m_stany) m_stany.emplace().Wczytaj(Context.baza, Id());
  return *m_stany;
}

void TDmVLTTowar::ZapomnijOdczytany() const {
  if (m_otoczenie.zapas) m_otoczenie.zapas->Zapomnij(Id());
}

QString TDmVLTTowar::Notatka() {
  if (!m_notatka) {
    m_notatka.emplace();
    if (!CzyNowy()) {
      auto odczyt = Context.baza.Otworz("select Tekst from Notatki where TowId = :TowId and Kolejnosc = 0",
                                        {TypPola::Tekst}, {{"TowId", Id()}});
      if (odczyt.Nastepny()) m_notatka = odczyt[0].AsString();
    }
  }
  return *m_notatka;
}

void TDmVLTTowar::UstawNotatka(const QString& tekst) {
  m_notatkaZmieniona = m_notatkaZmieniona || Notatka() != tekst;
  m_notatka = tekst;
}

SkrotyTowaru TDmVLTTowar::Skroty(int jeszcze) const {
  std::vector<QString> dodatkowe;
  dodatkowe.reserve(m_kody.Wszystkie().size() + static_cast<std::size_t>(jeszcze));
  for (const KodDodatkowy& kod : m_kody.Wszystkie()) dodatkowe.push_back(kod.skrot);
  dodatkowe.resize(dodatkowe.size() + static_cast<std::size_t>(jeszcze));
  return {Skrot(), dodatkowe};
}

std::optional<QString> TDmVLTTowar::ZaproponujSkrot(const QString& nazwa, const SkrotyTowaru& skroty,
                                                    int indeks) const {
  auto skrot = m_otoczenie.skroty.Utworz(nazwa, skroty, indeks, Id(), true);
  return skrot && !skrot->isEmpty() ? std::move(skrot) : std::nullopt;
}

bool TDmVLTTowar::SkrotDoPoprawy(int indeks) const {
  const bool dodatkowy = indeks >= 0;
  const QString skrot = dodatkowy ? m_kody[indeks].skrot : Skrot();
  const TDmVLTNazwySkrocone& skroty = m_otoczenie.skroty;
  if (!skroty.Poprawny(skrot) || skroty.SprawdzUnikalnosc(skrot, Id(), dodatkowy).towId >= 0) return true;
  return dodatkowy && !TDmVLTNazwySkrocone::SprawdzWsrodKodow(skrot, Skroty(), indeks).dobry;
}

bool TDmVLTTowar::UtworzSkrot(int indeks) {
  const auto skrot = ZaproponujSkrot(Nazwa(), Skroty(), indeks);
  if (!skrot) return false;
  if (indeks < 0)
    UstawSkrot(*skrot);
  else
    m_kody.UstawSkrot(indeks, *skrot);
  return true;
}

bool TDmVLTTowar::UtworzBrakujaceSkroty() {
  if (Pusty(Skrot()) && !UtworzSkrot()) return false;
  SkrotyTowaru skroty = Skroty();
  SprawdzoneNumery sprawdzone;
  for (int i = 0; i < m_kody.Ilosc(); ++i) {
    if (!Pusty(m_kody[i].skrot)) continue;
    const auto skrot = m_otoczenie.skroty.Utworz(Nazwa(), skroty, i, Id(), true, -1, &sprawdzone);
    if (!skrot || skrot->isEmpty()) return false;
    skroty.Zmien(i, *skrot);
    m_kody.UstawSkrot(i, *skrot);
  }
  return true;
}

bool TDmVLTTowar::Centralny() const {
  return !Pusty(CKU());
}

bool TDmVLTTowar::MaKod(const QString& kod) const {
  return RownyTekst(Query.Field(KolumnaTowaru::Kod).Value(), kod) || m_kody.Indeks(kod) >= 0;
}

bool TDmVLTTowar::Zmieniona(std::size_t kolumna) const {
  const TMField& pole = Query.Field(kolumna);
  return pole.Zmienione() && (kPola[kolumna].typ != TypPola::Dziesietne ||
                              !RowneKwoty(pole.AsFloat(), pole.OldValue().AsFloat()));
}

bool TDmVLTTowar::TakiSamJakWBazie() const {
  for (std::size_t i = 0; i < KolumnaTowaru::kIlosc; ++i)
    if (i != KolumnaTowaru::Aktywny && Zmieniona(i)) return false;
  return m_kody.TakieSameJakWBazie() && m_wartosci.TakieSameJakWBazie() && m_dostawcy.TakieSameJakWBazie();
}

TVLTBuforTowarow::Teksty TDmVLTTowar::Teksty() const {
  return ZbierzTeksty(Query, m_kody.Wszystkie(), &TMField::Value);
}

TVLTBuforTowarow::Teksty TDmVLTTowar::TekstyZBazy() const {
  return ZbierzTeksty(Query, m_kody.ZBazy(), &TMField::OldValue);
}

void TDmVLTTowar::Usun() {
  JednostkaZapisu jednostka(Context.baza);
  if (Aktywny() == 0) throw EVLTWDError(2802);
  switch (SprawdzUsuwanie(Context.baza, Id())) {
    case PrzeszkodaUsuniecia::Centralny:
      throw EVLTWDError(2868);
    case PrzeszkodaUsuniecia::Stan:
      throw EVLTWDError(2867);
    case PrzeszkodaUsuniecia::Brak:
      break;
  }
  UstawStatus(false);
  jednostka.Zatwierdz();
  Query.Field(KolumnaTowaru::Aktywny).SetInteger(0);
}

void TDmVLTTowar::Przywroc() {
  JednostkaZapisu jednostka(Context.baza);
  if (Aktywny() != 0) throw EVLTWDError(2803);
  UstawStatus(true);
  jednostka.Zatwierdz();
  Query.Field(KolumnaTowaru::Aktywny).SetInteger(1);
}

void TDmVLTTowar::UstawStatus(bool aktywny) {
  if (CzyKopia()) throw EVLTWDError(2033);
  ZapomnijOdczytany();
  const std::string_view sql = aktywny
                                   ? "update Towar set Aktywny = 1, Zmiana = getdate() where TowId = :TowId"
                                   : "update Towar set Aktywny = 0, Zmiana = getdate() where TowId = :TowId";
  if (Context.baza.ExecSQL(sql, {{"TowId", Id()}}) == 0) throw EVLTWDError(2001);
  Context.baza.ExecSQL("update SklepFlagi set Zmiana = getdate() where TowId = :TowId", {{"TowId", Id()}});
  Context.baza.RejestrujZmiane(
      kDziennikTowar, aktywny ? QStringLiteral("Przywrócenie towaru") : QStringLiteral("Usunięcie towaru"),
      Id(), -1);
}

PrzeszkodaUsuniecia SprawdzUsuwanie(TVLTBazaDanych& baza, int towId) {
  JednostkaZapisu jednostka(baza);
  const Parametr parametr[] = {{"TowId", towId}};
  const auto przeszkoda = [&] {
    {
      auto odczyt = baza.Otworz("select TypTowaru, CKU from Towar where TowId = :TowId",
                                {{TypPola::Calkowite, TypPola::Tekst}}, parametr);
      if (!odczyt.Nastepny()) return PrzeszkodaUsuniecia::Brak;
      if (!Pusty(odczyt[1].AsString())) return PrzeszkodaUsuniecia::Centralny;
      // Services keep no stock: what a former type left behind does not hold them.
      if (TypZLiczby(odczyt[0].AsInteger()) == TypTowaru::Usluga) return PrzeszkodaUsuniecia::Brak;
    }
    for (auto odczyt =
             baza.Otworz("select StanMag, BlokadaMag from Istw\r\nwhere TowId = :TowId order by TowId, MagId",
                         {{TypPola::Dziesietne, TypPola::Dziesietne}}, parametr);
         odczyt.Nastepny();)
      if (odczyt[0].AsFloat() != 0 || odczyt[1].AsFloat() != 0) return PrzeszkodaUsuniecia::Stan;
    return PrzeszkodaUsuniecia::Brak;
  }();
  jednostka.Zatwierdz();
  return przeszkoda;
}
