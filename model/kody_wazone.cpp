#include "model/kody_wazone.h"

#include "model/kontekst.h"
#include "platform/baza/sesja.h"

namespace {

constexpr OpisPola kPola[] = {{"KWId", TypPola::Calkowite},           {"Nazwa", TypPola::Tekst},
                              {"Prefix", TypPola::Calkowite},         {"CzescStala", TypPola::Calkowite},
                              {"WartoscWKodzie", TypPola::Calkowite}, {"DodKontrola", TypPola::Calkowite}};
enum Pole : std::size_t { KWId, Nazwa_, Prefix, CzescStala, WartoscWKodzie_, DodKontrola_ };

constexpr char kSelect[] =
    "select KWId, Nazwa, Prefix, CzescStala, WartoscWKodzie, DodKontrola from KodWazony";

constexpr int kPrefiksZnakow = 2;
constexpr int kNajdluzszaStala = 31;

bool Cyfra(QChar znak) {
  return znak >= u'0' && znak <= u'9';
}

std::optional<int> Prefiks(QStringView kod) {
  if (kod.size() < kPrefiksZnakow || !Cyfra(kod[0]) || !Cyfra(kod[1])) return std::nullopt;
  return (kod[0].unicode() - u'0') * 10 + (kod[1].unicode() - u'0');
}

bool MoznaZapamietac(FormatKoduWazonego format) {
  return format.prefix >= 0 && format.prefix <= 99 && format.czescStala >= 0 &&
         format.czescStala <= kNajdluzszaStala;
}

int Liczba(const TMField& pole) {
  return static_cast<int>(pole.AsInteger());
}

}  // namespace

std::optional<FormatKoduWazonego> FormatZMaski(QStringView maska) {
  const auto prefiks = Prefiks(maska);
  const qsizetype znakZapytania = maska.indexOf(u'?');
  if (!prefiks || znakZapytania < 0) return std::nullopt;
  return FormatKoduWazonego{*prefiks, static_cast<int>(znakZapytania) - kPrefiksZnakow};
}

void FormatyKodowWazonych::Dodaj(FormatKoduWazonego format) {
  if (MoznaZapamietac(format)) m_dlugosci[static_cast<std::size_t>(format.prefix)] |= 1u << format.czescStala;
}

bool FormatyKodowWazonych::Zawiera(FormatKoduWazonego format) const {
  return MoznaZapamietac(format) &&
         (m_dlugosci[static_cast<std::size_t>(format.prefix)] >> format.czescStala & 1u) != 0;
}

std::optional<FormatKoduWazonego> FormatyKodowWazonych::Dopasuj(QStringView kod) const {
  const auto prefiks = Prefiks(kod);
  if (!prefiks || m_dlugosci[static_cast<std::size_t>(*prefiks)] == 0) return std::nullopt;
  const auto jesliJest = [this](FormatKoduWazonego format) {
    return Zawiera(format) ? std::optional(format) : std::nullopt;
  };
  if (const auto maska = FormatZMaski(kod)) return jesliJest(*maska);
  for (const QChar znak : kod)
    if (!Cyfra(znak)) return std::nullopt;
  if (kod.size() != kDlugosc) {
    // Without a constant part the bare prefix would name no good.
    const int czescStala = static_cast<int>(kod.size()) - kPrefiksZnakow;
    return czescStala > 0 ? jesliJest({*prefiks, czescStala}) : std::nullopt;
  }
  for (int czescStala = kDlugosc - kPrefiksZnakow; czescStala >= 0; --czescStala)
    if (const auto format = jesliJest({*prefiks, czescStala})) return format;
  return std::nullopt;
}

TDmVLTKodWazony::TDmVLTKodWazony(KontekstSesji& context) : TDmVLTElement(context, kPola) {}

TDmVLTKodWazony::~TDmVLTKodWazony() = default;

QString TDmVLTKodWazony::Nazwa() const {
  return Query.Field(Nazwa_).AsString();
}

FormatKoduWazonego TDmVLTKodWazony::Format() const {
  return {Liczba(Query.Field(Prefix)), Liczba(Query.Field(CzescStala))};
}

int TDmVLTKodWazony::WartoscWKodzie() const {
  return Liczba(Query.Field(WartoscWKodzie_));
}

int TDmVLTKodWazony::DodKontrola() const {
  return Liczba(Query.Field(DodKontrola_));
}

void TDmVLTKodWazony::UstawNazwe(const QString& nazwa) {
  Query.Field(Nazwa_).SetString(nazwa);
}

void TDmVLTKodWazony::UstawFormat(FormatKoduWazonego format) {
  Query.Field(Prefix).SetInteger(format.prefix);
  Query.Field(CzescStala).SetInteger(format.czescStala);
}

void TDmVLTKodWazony::UstawWartoscWKodzie(int wartosc) {
  Query.Field(WartoscWKodzie_).SetInteger(wartosc);
}

void TDmVLTKodWazony::UstawDodKontrola(int wartosc) {
  Query.Field(DodKontrola_).SetInteger(wartosc);
}

void TDmVLTKodWazony::SetLoadParams(int id) {
  Query.SetSql(std::string(kSelect) + " where KWId = :KWId");
  Query.SetParam("KWId", id);
}

void TDmVLTKodWazony::AfterLoad(bool isNew, int /*id*/) {
  if (!isNew) return;
  UstawFormat({});
  UstawWartoscWKodzie(0);
  UstawDodKontrola(0);
}

int TDmVLTKodWazony::InsertRecord() {
  return Context.baza.WstawOdRazu(
      "KWId",
      "insert into KodWazony (Nazwa, Prefix, CzescStala, WartoscWKodzie, DodKontrola)"
      " values (:Nazwa, :Prefix, :CzescStala, :WartoscWKodzie, :DodKontrola)",
      {{"Nazwa", Nazwa()},
       {"Prefix", Format().prefix},
       {"CzescStala", Format().czescStala},
       {"WartoscWKodzie", WartoscWKodzie()},
       {"DodKontrola", DodKontrola()}});
}

void TDmVLTKodWazony::UpdateRecord(int id) {
  Context.baza.ExecSQL(
      "update KodWazony set Nazwa = :Nazwa, Prefix = :Prefix, CzescStala = :CzescStala,"
      " WartoscWKodzie = :WartoscWKodzie, DodKontrola = :DodKontrola where KWId = :KWId",
      {{"Nazwa", Nazwa()},
       {"Prefix", Format().prefix},
       {"CzescStala", Format().czescStala},
       {"WartoscWKodzie", WartoscWKodzie()},
       {"DodKontrola", DodKontrola()},
       {"KWId", id}});
}

TDmVLTListaKodowWazonych::TDmVLTListaKodowWazonych(KontekstSesji& context)
    : TDmVLTListaElementow(context, kPola, "KWId") {
  Query.SetSql(std::string(kSelect) + " order by KWId");
}

TDmVLTListaKodowWazonych::~TDmVLTListaKodowWazonych() = default;

FormatyKodowWazonych TDmVLTListaKodowWazonych::Formaty() {
  FormatyKodowWazonych formaty;
  const int pozycja = Pozycja();
  for (int i = 0; i < Ilosc(); ++i) {
    UstawPozycje(i);
    formaty.Dodaj({Liczba(Query.Field(Prefix)), Liczba(Query.Field(CzescStala))});
  }
  UstawPozycje(pozycja);
  return formaty;
}

void TDmVLTListaKodowWazonych::FillRowFromElement(const TDmVLTElement& element) {
  const auto& kod = static_cast<const TDmVLTKodWazony&>(element);
  Query.Field(Nazwa_).SetString(kod.Nazwa());
  Query.Field(Prefix).SetInteger(kod.Format().prefix);
  Query.Field(CzescStala).SetInteger(kod.Format().czescStala);
  Query.Field(WartoscWKodzie_).SetInteger(kod.WartoscWKodzie());
  Query.Field(DodKontrola_).SetInteger(kod.DodKontrola());
}

std::unique_ptr<TDmVLTElement> TDmVLTListaKodowWazonych::CreateElement() {
  return std::make_unique<TDmVLTKodWazony>(Context);
}
