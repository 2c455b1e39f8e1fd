#include <algorithm>
#include <array>

#include "model/bledy.h"
#include "model/kategorie.h"
#include "model/kontekst.h"
#include "model/nazwy_skrocone.h"
#include "model/stawki_vat.h"
#include "model/szerokosci.h"
#include "model/tabele_dziennika.h"
#include "model/towar.h"
#include "model/towar_plan.h"
#include "platform/baza/sesja.h"

namespace {

using K = KolumnaTowaru;

// The columns that an insert and an update write, in their order: those of table Towar without the key and
// without Zmiana, which the server's clock fills.
constexpr auto kZapisywane = [] {
  std::array<K::Numer, K::OpakId - 2> pola{};
  std::size_t ile = 0;
  for (std::size_t i = K::AsId; i < K::OpakId; ++i)
    if (i != K::Zmiana) pola[ile++] = static_cast<K::Numer>(i);
  return pola;
}();

// insert into Towar (AsId, ..., Rezerwa2, Zmiana) select :AsId, ..., :Rezerwa2, getdate()
std::string Insert(const TKMQuery& query) {
  std::string kolumny, wartosci;
  for (const auto pole : kZapisywane) {
    const char* nazwa = query.Field(pole).FieldName();
    kolumny += std::string(nazwa) + ", ";
    wartosci += ':' + std::string(nazwa) + ", ";
  }
  return "insert into Towar (" + kolumny + "Zmiana) select " + wartosci + "getdate()";
}

// update Towar set AsId = :AsId, ..., Rezerwa2 = :Rezerwa2, Zmiana = getdate() where TowId = :TowId
std::string Update(const TKMQuery& query) {
  std::string przypisania;
  for (const auto pole : kZapisywane) {
    const char* nazwa = query.Field(pole).FieldName();
    przypisania += std::string(nazwa) + " = :" + nazwa + ", ";
  }
  return "update Towar set " + przypisania + "Zmiana = getdate() where TowId = :TowId";
}

// A refusal of the values by the database is the record's fault; every other failure of it is not.
template <typename Praca>
auto ZOdmowaZapisu(Praca praca) {
  try {
    return praca();
  } catch (const EBladBazy& blad) {
    if (blad.KonczyPrzebieg()) throw;
    throw EVLTWDError(2007, std::make_shared<EBladBazy>(blad));
  }
}

// How the change log names a changed column and its two values.
struct OpisZmiany {
  K::Numer pole;
  const char16_t* nazwa;
  QString (*opis)(const Wartosc& bylo, const Wartosc& jest);
};

QString StaryNaNowy(const QString& bylo, const QString& jest) {
  return bylo + QStringLiteral(" na ") + jest;
}

QString OpisLiczby(const Wartosc& bylo, const Wartosc& jest) {
  return StaryNaNowy(bylo.AsString(), jest.AsString());
}

QString OpisStawki(const Wartosc& bylo, const Wartosc& jest) {
  const auto tekst = [](const Wartosc& w) {
    return w.IsNull() ? QString() : StawkaNaTekst(static_cast<int>(w.AsInteger()), true);
  };
  return StaryNaNowy(tekst(bylo), tekst(jest));
}

// All prices are stored net.
QString OpisCeny(const Wartosc& bylo, const Wartosc& jest) {
  return StaryNaNowy(bylo.AsString(), jest.AsString()) + QStringLiteral(" netto");
}

QString OpisKodu(const Wartosc& bylo, const Wartosc& jest) {
  return QStringLiteral("z '") + bylo.AsString() + QStringLiteral("' na '") + jest.AsString() + u'\'';
}

QString OpisTypu(const Wartosc& bylo, const Wartosc& jest) {
  const auto slowo = [](const Wartosc& typ) {
    return typ.AsInteger() == 1   ? QStringLiteral("opakowanie")
           : typ.AsInteger() == 2 ? QStringLiteral("usługa")
                                  : QStringLiteral("towar");
  };
  return StaryNaNowy(slowo(bylo), slowo(jest));
}

constexpr OpisZmiany kOpisyZmian[] = {
    {K::AsId, u"asortyment", OpisLiczby},       {K::JMId, u"jednostka miary", OpisLiczby},
    {K::KatId, u"kategoria", OpisLiczby},       {K::Kod, u"kod", OpisKodu},
    {K::TypTowaru, u"typ", OpisTypu},           {K::Stawka, u"stawka VAT", OpisStawki},
    {K::CenaEw, u"cena ewidencyjna", OpisCeny}, {K::CenaDet, u"cena detaliczna", OpisCeny},
    {K::CenaHurt, u"cena hurtowa", OpisCeny},   {K::CenaNoc, u"cena nocna", OpisCeny},
    {K::CenaDod, u"cena dodatkowa", OpisCeny}};

constexpr K::Numer kCenySprzedazy[] = {K::CenaDet, K::CenaHurt, K::CenaNoc, K::CenaDod};

bool CenaSprzedazy(std::size_t pole) {
  return std::find(std::begin(kCenySprzedazy), std::end(kCenySprzedazy), pole) != std::end(kCenySprzedazy);
}

}  // namespace

int TDmVLTTowar::InsertRecord() {
  m_plan = std::make_unique<Plan>(Zaplanuj());
  return ZOdmowaZapisu([&] {
    static const std::string sql = Insert(Query);
    const int id = Context.baza.WstawZKluczem("Towar", "TowId", sql, ParametryZapisu());
    ZapiszNotatke(id);
    WstawPowiazanie(id);
    ZapiszSzczegoly(id);
    Context.baza.RejestrujZmiane(kDziennikTowar, QStringLiteral("Nowy towar"), id, -1);
    return id;
  });
}

void TDmVLTTowar::UpdateRecord(int id) {
  ZapomnijOdczytany();
  m_plan = std::make_unique<Plan>(Zaplanuj());
  ZOdmowaZapisu([&] {
    SprawdzKasy(id);
    static const std::string sql = Update(Query);
    std::vector<Parametr>& parametry = ParametryZapisu();
    parametry.push_back({"TowId", id});
    if (!Context.baza.Popraw(sql, parametry)) throw EVLTWDError(2001);
    ZapiszNotatke(id);
    if (Zmienione({K::OpakId, K::IleWOpak, K::Tandem})) {
      Context.baza.ExecSQL("delete from Powiazanie where TowId = :TowId", {{"TowId", id}});
      WstawPowiazanie(id);
    }
    ZapiszSzczegoly(id);
    ZaznaczNaKasach(id);
    Context.baza.Popraw("update SklepFlagi set Zmiana = getdate() where TowId = :TowId", {{"TowId", id}});
    Context.baza.RejestrujZmiane(kDziennikTowar, OpisZmian(), id, -1);
  });
}

void TDmVLTTowar::AfterSave() {
  if (m_plan->kod != Kod()) {
    UstawKod(m_plan->kod);
    Query.ZatwierdzZmiany();
  }
  if (m_plan->kody) m_kody = std::move(*m_plan->kody);
  if (m_plan->wartosci) m_wartosci = std::move(*m_plan->wartosci);
  m_plan.reset();
  m_kody.ZatwierdzZmiany();
  m_wartosci.ZatwierdzZmiany();
  m_dostawcy.ZatwierdzZmiany();
  if (m_stany) m_stany->ZatwierdzZmiany();
  m_notatkaZmieniona = false;
  m_otoczenie.skroty.Potwierdz();
}

// Everything that can refuse the record without writing.
TDmVLTTowar::Plan TDmVLTTowar::Zaplanuj() const {
  Plan plan;
  if (const WynikWalidacji wynik = SprawdzDoPlanu(plan); !wynik.Dobry())
    throw EVLTWDError(wynik.kod, nullptr, wynik.szczegol);
  WymagajMiejsca("Towar", Query);
  (plan.kody ? *plan.kody : m_kody).WymagajMiejsca();
  if (m_notatkaZmieniona) WymagajDlugosci("Notatki", "Tekst", *m_notatka, kZnakowDlugiego);
  UzupelnijWartosci(plan);
  return plan;
}

std::vector<int> TDmVLTTowar::ParametryKategorii() const {
  TDmVLTListaKategorii* const kategorie = m_otoczenie.kategorie;
  if (kategorie && kategorie->Znajdz(KatId())) return kategorie->Parametry(KatId());
  return CzytajParametryKategorii(Context.baza, KatId()).id;
}

// Every parameter of the category has a value.
void TDmVLTTowar::UzupelnijWartosci(Plan& plan) const {
  if (KatId() < 0 || (!CzyNowy() && !Zmienione({K::KatId}))) return;
  WartosciParametrow wartosci = m_wartosci;
  for (const int parId : ParametryKategorii())
    if (!wartosci.Wartosc(parId)) wartosci.Ustaw(parId, 0);
  plan.wartosci = std::move(wartosci);
}

std::vector<Parametr>& TDmVLTTowar::ParametryZapisu() {
  m_parametry.resize(kZapisywane.size());
  for (std::size_t i = 0; i < kZapisywane.size(); ++i) {
    const TMField& pole = Query.Field(kZapisywane[i]);
    m_parametry[i].nazwa = pole.FieldName();
    if (kZapisywane[i] == K::Kod)
      m_parametry[i].wartosc = m_plan->kod;
    else
      m_parametry[i].wartosc = CzyNowy() || Zmieniona(kZapisywane[i]) ? pole.Value() : pole.OldValue();
  }
  return m_parametry;
}

void TDmVLTTowar::ZapiszNotatke(int id) const {
  if (!m_notatkaZmieniona) return;
  Context.baza.ExecSQL("delete from Notatki where TowId = :TowId", {{"TowId", id}});
  Context.baza.ExecSQL(
      "insert into Notatki (TowId, Kolejnosc, Tekst, KoniecLinii) values (:TowId, 0, :Tekst, 0)",
      {{"TowId", id}, {"Tekst", *m_notatka}});
}

bool TDmVLTTowar::Zmienione(std::initializer_list<KolumnaTowaru::Numer> kolumny) const {
  return std::any_of(kolumny.begin(), kolumny.end(), [&](auto k) { return Zmieniona(k); });
}

bool TDmVLTTowar::Zapisuje(std::size_t kolumna) const {
  return kolumna == K::Kod ? !RownyTekst(Query.Field(K::Kod).OldValue(), m_plan->kod) : Zmieniona(kolumna);
}

const KodyDodatkowe& TDmVLTTowar::ZapisywaneKody() const {
  return m_plan->kody ? *m_plan->kody : m_kody;
}

void TDmVLTTowar::WstawPowiazanie(int id) const {
  if (OpakId() < 0) return;
  Context.baza.Wstaw(
      "insert into Powiazanie (TowId, OpakId, IleWOpak, Tandem) values (:TowId, :OpakId, :IleWOpak, :Tandem)",
      {{"TowId", id}, {"OpakId", OpakId()}, {"IleWOpak", IleWOpak()}, {"Tandem", Tandem()}});
}

// Rows that did not change are left alone.
void TDmVLTTowar::ZapiszSzczegoly(int id) const {
  ZapisywaneKody().Zapisz(Context.baza, id);
  if (m_stany) m_stany->Zapisz(Context.baza, id);
  (m_plan->wartosci ? *m_plan->wartosci : m_wartosci).Zapisz(Context.baza, id);
  m_dostawcy.Zapisz(Context.baza, id);
}

// A good that a register holds keeps what the register knows it by.
void TDmVLTTowar::SprawdzKasy(int id) const {
  constexpr K::Numer kZnane[] = {K::TypTowaru, K::Kod, K::Stawka, K::Skrot};
  const bool zmiana = std::any_of(std::begin(kZnane), std::end(kZnane), [&](auto k) { return Zapisuje(k); });
  if (!zmiana && ZapisywaneKody().TakieSameJakWBazie()) return;
  if (Context.baza
          .Otworz("select KasaId from KasTow where TowId = :TowId and Wyslany <> 0", {TypPola::Calkowite},
                  {{"TowId", id}})
          .Nastepny())
    throw EVLTWDError(2820);
}

void TDmVLTTowar::ZaznaczNaKasach(int id) const {
  bool ceny = false;
  bool inne = ZapisywaneKody().Zmienione();
  for (std::size_t i = 0; i < K::kIlosc; ++i)
    if (Zapisuje(i)) (CenaSprzedazy(i) ? ceny : inne) = true;
  if (!ceny && !inne) return;
  Context.baza.Popraw(ceny && inne ? "update KasTow set ZmianyCen = 1, ZmianyInne = 1 where TowId = :TowId"
                      : ceny       ? "update KasTow set ZmianyCen = 1 where TowId = :TowId"
                                   : "update KasTow set ZmianyInne = 1 where TowId = :TowId",
                      {{"TowId", id}});
}

QString TDmVLTTowar::OpisZmian() const {
  QString opis = QStringLiteral("Zmiana towaru");
  QString lacznik = QStringLiteral(": ");
  for (const OpisZmiany& zmiana : kOpisyZmian) {
    if (!Zapisuje(zmiana.pole)) continue;
    const TMField& pole = Query.Field(zmiana.pole);
    const Wartosc jest = zmiana.pole == K::Kod ? Wartosc(m_plan->kod) : pole.Value();
    opis += lacznik + QString::fromUtf16(zmiana.nazwa) + u' ' + zmiana.opis(pole.OldValue(), jest);
    lacznik = QStringLiteral(", ");
  }
  return opis;
}
