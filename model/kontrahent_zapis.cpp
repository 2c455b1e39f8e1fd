#include <algorithm>
#include <array>

#include "model/bledy.h"
#include "model/kontekst.h"
#include "model/kontrahent.h"
#include "model/numery_sklepow.h"
#include "model/szerokosci.h"
#include "model/tabele_dziennika.h"
#include "model/zakresy.h"
#include "platform/baza/sesja.h"

namespace {

using K = KolumnaKontrahenta;

// Every column of table Kontrahent without the key and without Zmiana, which the server's clock fills.
constexpr auto kZapisywane = [] {
  std::array<K::Numer, K::Zmiana - K::AkwId> pola{};
  for (std::size_t i = 0; i < pola.size(); ++i) pola[i] = static_cast<K::Numer>(K::AkwId + i);
  return pola;
}();

// The values follow in the order of the columns.
constexpr char kInsertKolumny[] =
    "insert into Kontrahent ("
    "\r\n AkwId, Nazwa, NaPrzelewie1, NaPrzelewie2, Skrot,"
    "\r\n Ulica, Kod, Miasto, Telefon, Fax, EMail, Bank, Konto,"
    "\r\n NIP, Staly, Dostawca, RabatDost, FormaPlatDost, TermPlatDost, CzasRealZam, Producent,"
    "\r\n Odbiorca, RabatOdb, FormaPlatOdb, TermPlatOdb, MaxKredyt, MaxPoTermPlat,"
    "\r\n KodKarty, KartaAktywna, TermWaznKarty, PoziomRabatu,"
    "\r\n NrAnalityki, KodKontr, ZakPracChron, Aktywny, Rezerwa1, Rezerwa2, Zmiana)"
    "\r\nselect\r\n";

std::string Insert(const TKMQuery& query) {
  std::string sql = kInsertKolumny;
  for (const auto pole : kZapisywane) sql += ':' + std::string(query.Field(pole).FieldName()) + ",\r\n";
  return sql + "getdate()";
}

std::string Update(const TKMQuery& query) {
  std::string sql = "update Kontrahent\r\nset ";
  for (const auto pole : kZapisywane) {
    const std::string nazwa = query.Field(pole).FieldName();
    if (pole != kZapisywane.front()) sql += "    ";
    sql.append(nazwa).append(" = :").append(nazwa).append(",\r\n");
  }
  return sql + "    Zmiana = getdate()\r\nwhere KontrId = :KontrId";
}

constexpr char kInnySklepZNumerem[] =
    "select S.SklepId, K.Nazwa from Sklep S, Kontrahent K"
    "\r\nwhere S.SklepId = K.KontrId and S.NrSklepu = :NrSklepu"
    "\r\nand   S.SklepId <> :SklepId"
    "\r\norder by S.SklepId";

constexpr char kInsertSklep[] =
    "insert into Sklep (SklepId, NrSklepu, NrSeryjny, WymImport, PelnyImport)"
    "\r\nvalues (:SklepId, :NrSklepu, :NrSeryjny, null, 1)";

#define ZORVIK_RESZTA_SKLEPU        \
  "\r\n NrSklepu = :NrSklepu,"      \
  "\r\n NrSeryjny = :NrSeryjny,"    \
  "\r\n WymImport = :WymImport,"    \
  "\r\n PelnyImport = :PelnyImport" \
  "\r\nwhere SklepId = :SklepId"
constexpr char kUpdateSklep[] = "update Sklep set" ZORVIK_RESZTA_SKLEPU;
constexpr char kUpdateSklepZMagazynem[] = "update Sklep set\r\n MagId = :MagId," ZORVIK_RESZTA_SKLEPU;
#undef ZORVIK_RESZTA_SKLEPU

struct TypKontrahenta {
  K::Numer pole;
  const char16_t* nazwa;
};
constexpr TypKontrahenta kTypy[] = {{K::Dostawca, u"dostawca"},
                                    {K::Producent, u"producent"},
                                    {K::Odbiorca, u"odbiorca"},
                                    {K::SklepId, u"sklep"}};

// The shop's identifier stands for its flag: zero or more, or null; a new one's is not known yet.
bool JestTypem(K::Numer pole, const Wartosc& wartosc) {
  return pole == K::SklepId ? !wartosc.IsNull() : wartosc.AsInteger() != 0;
}

// Changed columns that the change log tells of, with their old and new values.
struct OpisZmiany {
  K::Numer pole;
  const char16_t* nazwa;
};
constexpr OpisZmiany kOpisyZmian[] = {
    {K::Nazwa, u"nazwa"},      {K::AkwId, u"grupa kont"},           {K::NIP, u"NIP"},
    {K::Konto, u"konto"},      {K::RabatDost, u"rabat u dostawcy"}, {K::RabatOdb, u"rabat dla odbiorcy"},
    {K::MaxKredyt, u"kredyt"}, {K::KodKarty, u"kod karty"},         {K::PoziomRabatu, u"poziom rabatu"},
    {K::Aktywny, u"aktywny"},  {K::NrSklepu, u"numer sklepu"}};

// What the change log says of a save: a title and, behind a colon, its parts.
class OpisWpisu {
 public:
  explicit OpisWpisu(QStringView tytul) : m_tekst(tytul.toString()) {}
  void Dopisz(std::initializer_list<QStringView> czesc) {
    m_tekst += std::exchange(m_lacznik, u", ");
    for (const QStringView tekst : czesc) m_tekst += tekst;
  }
  QString Tekst() const { return m_tekst; }

 private:
  QString m_tekst;
  QStringView m_lacznik = u": ";
};

}  // namespace

int TDmVLTKontrahent::InsertRecord() {
  Sprawdz();
  static const std::string sql = Insert(Query);
  const int id = Context.baza.WstawZKluczem("Kontrahent", "KontrId", sql, ParametryZapisu());
  WstawOsoby(id);
  if (Sklep()) WstawSklep(id);
  Context.baza.RejestrujZmiane(kDziennikKontrahent, OpisNowego(), id, -1);
  return id;
}

void TDmVLTKontrahent::UpdateRecord(int id) {
  Sprawdz();
  static const std::string sql = Update(Query);
  std::vector<Parametr>& parametry = ParametryZapisu();
  parametry.push_back({"KontrId", id});
  if (Context.baza.ExecSQL(sql, parametry) == 0) throw EVLTWDError(2001);
  PoprawOsoby(id);
  ZapiszSklep(id);
  if (m_numery && (Sklep() || BylSklepem())) m_numery->Zapomnij();
  Context.baza.RejestrujZmiane(kDziennikKontrahent, OpisZmian(), id, -1);
}

// The shop's columns become what its row holds now; without a row there is nothing to hold.
void TDmVLTKontrahent::AfterSave() {
  m_osobyZBazy = m_osoby;
  m_wierszSklepu = Sklep();
  if (!Sklep()) {
    for (std::size_t i = K::NrSklepu; i < K::kIlosc; ++i)
      if (TMField& pole = Query.Field(i); !pole.IsNull()) pole.Clear();
  } else {
    Query.Field(K::SklepId).SetInteger(Id());
    Query.Field(K::NrSklepu).SetInteger(m_nrSklepu);
    if (m_numery) m_numery->Dodaj(m_nrSklepu);
    if (m_nowySklep) {
      Query.Field(K::WymImport).Clear();
      Query.Field(K::PelnyImport).SetInteger(1);
    }
  }
  Query.ZatwierdzZmiany();
}

// Everything that can refuse the record without writing.
void TDmVLTKontrahent::Sprawdz() {
  if (Nazwa().trimmed().isEmpty()) throw EVLTWDError(2839);
  WymagajMiejsca("Kontrahent", Query);
  if (m_osoby != m_osobyZBazy)
    for (const QString& osoba : m_osoby) WymagajDlugosci("Osoba", "Nazwisko", osoba);
  m_nowySklep = false;
  if (!Sklep()) return;
  if (!Query.Field(K::NrSklepu).IsNull()) {
    m_nrSklepu = NrSklepu();
    auto inny = Context.baza.Otworz(kInnySklepZNumerem, {TypPola::Calkowite, TypPola::Tekst},
                                    {{"NrSklepu", m_nrSklepu}, {"SklepId", Id()}});
    if (inny.Nastepny())
      throw EVLTWDError(
          2860, nullptr,
          QStringLiteral("[") + inny[0].AsString() + QStringLiteral("]: ") + inny[1].AsString());
    return;
  }
  m_nrSklepu = NajwyzszyNumerSklepu() + 1;
  if (!LiczbaWZakresie(m_nrSklepu)) throw EVLTWDError(2006);
}

long long TDmVLTKontrahent::NajwyzszyNumerSklepu() {
  if (m_numery && m_numery->Najwyzszy()) return *m_numery->Najwyzszy();
  auto odczyt = Context.baza.Otworz("select max(NrSklepu) from Sklep", {TypPola::Calkowite});
  const long long najwyzszy = odczyt.Nastepny() ? odczyt[0].AsInteger() : 0;
  if (m_numery) m_numery->Przyjmij(najwyzszy);
  return najwyzszy;
}

std::vector<Parametr>& TDmVLTKontrahent::ParametryZapisu() {
  m_parametry.resize(kZapisywane.size());
  for (std::size_t i = 0; i < kZapisywane.size(); ++i) {
    const TMField& pole = Query.Field(kZapisywane[i]);
    m_parametry[i].nazwa = pole.FieldName();
    m_parametry[i].wartosc = pole.Value();
  }
  return m_parametry;
}

void TDmVLTKontrahent::PoprawOsoby(int id) const {
  if (m_osoby == m_osobyZBazy) return;
  Context.baza.ExecSQL("delete from Osoba where KontrId = :KontrId", {{"KontrId", id}});
  WstawOsoby(id);
}

void TDmVLTKontrahent::WstawOsoby(int id) const {
  for (const QString& osoba : m_osoby)
    Context.baza.Wstaw("insert into Osoba (KontrId, Nazwisko) values (:KontrId, :Nazwisko)",
                       {{"KontrId", id}, {"Nazwisko", osoba}});
}

bool TDmVLTKontrahent::ZmienionySklep() const {
  constexpr K::Numer kZapisywaneSklepu[] = {K::NrSklepu, K::NrSeryjny, K::MagId, K::WymImport,
                                            K::PelnyImport};
  return std::any_of(std::begin(kZapisywaneSklepu), std::end(kZapisywaneSklepu),
                     [this](K::Numer pole) { return Query.Field(pole).Zmienione(); });
}

void TDmVLTKontrahent::ZapiszSklep(int id) {
  if (!Sklep()) {
    if (!BylSklepem()) return;
    // Marks of goods that were to be sent to the shop hold its row.
    Context.baza.ExecSQL("delete from SklepFlagi where SklepId = :SklepId", {{"SklepId", id}});
    Context.baza.ExecSQL("delete from Sklep where SklepId = :SklepId", {{"SklepId", id}});
    return;
  }
  if (!m_wierszSklepu) return WstawSklep(id);
  if (!ZmienionySklep()) return;
  std::vector<Parametr> parametry;
  if (MagId() >= 0) parametry.push_back({"MagId", MagId()});
  parametry.push_back({"NrSklepu", m_nrSklepu});
  for (const auto pole : {K::NrSeryjny, K::WymImport, K::PelnyImport})
    parametry.push_back({Query.Field(pole).FieldName(), Query.Field(pole).Value()});
  parametry.push_back({"SklepId", id});
  Context.baza.ExecSQL(MagId() >= 0 ? kUpdateSklepZMagazynem : kUpdateSklep, parametry);
}

void TDmVLTKontrahent::WstawSklep(int id) {
  m_nowySklep = true;
  Context.baza.Wstaw(kInsertSklep, {{"SklepId", id}, {"NrSklepu", m_nrSklepu}, {"NrSeryjny", NrSeryjny()}});
  if (MagId() >= 0)
    Context.baza.ExecSQL("update Sklep set MagId = :MagId where SklepId = :SklepId",
                         {{"MagId", MagId()}, {"SklepId", id}});
}

// Nowy kontrahent: dostawca, sklep, karta '123'
QString TDmVLTKontrahent::OpisNowego() const {
  OpisWpisu opis(u"Nowy kontrahent");
  for (const TypKontrahenta& typ : kTypy)
    if (JestTypem(typ.pole, Query.Field(typ.pole).Value())) opis.Dopisz({typ.nazwa});
  if (const QString karta = KodKarty(); !karta.isEmpty()) opis.Dopisz({u"karta '", karta, u"'"});
  return opis.Tekst();
}

// Zmiana kontrahenta: nazwa z 'A' na 'B', dostawca: nie
QString TDmVLTKontrahent::OpisZmian() const {
  OpisWpisu opis(u"Zmiana kontrahenta");
  for (const OpisZmiany& zmiana : kOpisyZmian)
    if (const TMField& pole = Query.Field(zmiana.pole); pole.Zmienione())
      opis.Dopisz({zmiana.nazwa, u" z '", pole.OldValue().AsString(), u"' na '", pole.AsString(), u"'"});
  for (const TypKontrahenta& typ : kTypy) {
    const TMField& pole = Query.Field(typ.pole);
    const bool jest = JestTypem(typ.pole, pole.Value());
    if (jest != JestTypem(typ.pole, pole.OldValue())) opis.Dopisz({typ.nazwa, jest ? u": tak" : u": nie"});
  }
  if (m_osoby != m_osobyZBazy) opis.Dopisz({u"osoby uprawnione"});
  return opis.Tekst();
}
