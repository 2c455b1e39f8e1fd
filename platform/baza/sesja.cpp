#include "platform/baza/sesja.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/baza/dialekt.h"
#include "platform/baza/kolejka_zapisow.h"
#include "platform/baza/polecenie.h"
#include "platform/baza/silnik.h"
#include "platform/baza/transakcja.h"
#include "platform/baza/zapytanie.h"
#include "platform/config.h"

namespace {
constexpr TypPola kLiczba[] = {TypPola::Calkowite};
}  // namespace

struct TVLTBazaDanych::Wnetrze {
  ParametryPolaczenia polaczenie;
  Podsluch podsluch;
  std::unique_ptr<Silnik> silnik;
  long long zatwierdzen = 0;
  long long transakcja = 0;  // number of the last one begun
  std::set<QString>
      kolumny;  // "table.column" of the whole catalogue, in small letters; empty until asked for

  // Grouped writes. A unit's savepoint is set only when a statement of another kind comes: until
  // then the unit is undone by forgetting its rows.
  struct Jednostka {
    int poziom;
    std::size_t pierwszyWiersz;  // in the queue
    bool ustawiona;
  };
  bool grupuj = false;
  KolejkaZapisow kolejka;
  std::vector<Jednostka> jednostki;
  struct Klucze {
    std::vector<int> wolne;  // taken from the server, not used yet; the next one last
    int blok = 1;
  };
  std::map<std::string, Klucze> klucze;  // by table
  int autoId = -1;

  bool Grupuje() const { return grupuj && silnik && silnik->WTransakcji(); }
  // A row of a unit whose savepoint is set is written at once.
  bool MozeCzekac() const { return Grupuje() && (jednostki.empty() || !jednostki.back().ustawiona); }
  // Keys are taken in blocks which grow, so that a short import leaves few of them unused.
  int NastepnyKlucz(const char* tabela, const char* klucz) {
    constexpr int kNajwiecej = 256;
    Klucze& k = klucze[tabela];
    if (k.wolne.empty()) {
      k.blok = std::min(kNajwiecej, k.blok * 4);
      const auto polecenie = silnik->Wykonaj(silnik->Jezyk().NoweKlucze(tabela, klucz, k.blok), kLiczba, {});
      while (silnik->Nastepny(*polecenie))
        k.wolne.push_back(static_cast<int>(polecenie->Wiersz().front().AsInteger()));
      polecenie->Zwolnij();
      std::reverse(k.wolne.begin(), k.wolne.end());
    }
    const int id = k.wolne.back();
    k.wolne.pop_back();
    return id;
  }
  void Zapomnij() {
    kolejka.Utnij(0);
    jednostki.clear();
  }
  // Writes what waits, so that the statement that comes sees it and can be undone alone.
  void Dopisz() {
    if (kolejka.Ilosc() == 0 && (jednostki.empty() || jednostki.back().ustawiona)) return;
    std::size_t wykonanych = 0;
    for (Jednostka& jednostka : jednostki) {
      if (jednostka.ustawiona) continue;
      WykonajKolejke(jednostka.pierwszyWiersz - std::min(wykonanych, jednostka.pierwszyWiersz));
      wykonanych = std::max(wykonanych, jednostka.pierwszyWiersz);
      silnik->UstawPunkt(jednostka.poziom);
      jednostka.ustawiona = true;
      jednostka.pierwszyWiersz = 0;
    }
    WykonajKolejke(kolejka.Ilosc());
  }
  void Zapisz(std::size_t ile) {
    kolejka.Wykonaj(ile, [this](std::string_view sql, std::span<const Parametr> parametry) {
      silnik->Wykonaj(sql, {}, parametry)->Zwolnij();
    });
  }
  // Rows of several units: when they fail nobody knows what is there of which, so nothing stays.
  void WykonajKolejke(std::size_t ile) {
    try {
      Zapisz(ile);
    } catch (const EBladBazy& blad) {
      Wycofaj();
      if (blad.KonczyPrzebieg()) throw;
      throw EBladBazy(RodzajBleduBazy::Grupa, blad.Tresc(), {});
    }
  }
  void Wycofaj() noexcept {
    Zapomnij();
    try {
      if (silnik && silnik->WTransakcji()) silnik->Wycofaj();
    } catch (...) {
    }
  }

  Silnik& Polaczony() const {
    if (!silnik)
      throw EBladBazy(RodzajBleduBazy::Polaczenie, QStringLiteral("Sesja nie jest otwarta"), QString());
    return *silnik;
  }
};

Odczyt::Odczyt(Silnik& silnik, std::shared_ptr<Polecenie> polecenie)
    : m_silnik(&silnik), m_polecenie(std::move(polecenie)) {}
Odczyt::Odczyt(Odczyt&& inny) noexcept = default;
Odczyt::~Odczyt() {
  if (m_polecenie) m_polecenie->Zwolnij();
}

bool Odczyt::Nastepny() {
  return m_silnik->Nastepny(*m_polecenie);
}
const Wartosc& Odczyt::operator[](std::size_t kolumna) const {
  return m_polecenie->Wiersz()[kolumna];
}

TVLTBazaDanych::TVLTBazaDanych() : m(std::make_unique<Wnetrze>()) {}
TVLTBazaDanych::TVLTBazaDanych(ParametryPolaczenia parametry) : TVLTBazaDanych() {
  UstawPolaczenie(std::move(parametry));
}
TVLTBazaDanych::~TVLTBazaDanych() {
  Odlacz();
}

bool TVLTBazaDanych::WczytajDomyslnePolaczenie() {
  const auto domyslne = ParametryPolaczenia::Domyslne();
  if (!domyslne) return false;
  UstawPolaczenie(*domyslne);
  return true;
}

void TVLTBazaDanych::UstawPolaczenie(ParametryPolaczenia parametry) {
  m->polaczenie = std::move(parametry);
}
const ParametryPolaczenia& TVLTBazaDanych::Parametry() const {
  return m->polaczenie;
}
bool TVLTBazaDanych::Polaczona() const {
  return m->silnik && !m->silnik->Zerwany();
}
QString TVLTBazaDanych::Nazwa() const {
  return m->silnik ? m->silnik->NazwaBazy() : QString();
}
const Dialekt& TVLTBazaDanych::Jezyk() const {
  return m->Polaczony().Jezyk();
}

bool TVLTBazaDanych::MaKolumne(const char* tabela, const char* kolumna) {
  if (m->kolumny.empty())
    for (auto odczyt = Otworz(Jezyk().KolumnyBazy(),
                              {TypPola::Tekst, TypPola::Tekst, TypPola::Tekst, TypPola::Calkowite});
         odczyt.Nastepny();)
      m->kolumny.insert((odczyt[0].AsString() + u'.' + odczyt[1].AsString()).toLower());
  return m->kolumny.contains((QLatin1String(tabela) + u'.' + QLatin1String(kolumna)).toLower());
}

void TVLTBazaDanych::Polacz() {
  Odlacz();
  const bool odbc = m->polaczenie.rodzaj == ParametryPolaczenia::Rodzaj::Odbc;
  m->silnik = (odbc ? PolaczOdbc : PolaczSqlite)(m->polaczenie, m->podsluch);
}

void TVLTBazaDanych::Odlacz() {
  if (GetCzyWTransakcji()) WycofTransakcji();
  m->Zapomnij();
  m->klucze.clear();
  m->kolumny.clear();
  m->autoId = -1;
  m->silnik.reset();
}

long long TVLTBazaDanych::ExecSQL(std::string_view sql, std::initializer_list<Parametr> parametry) {
  return ExecSQL(sql, std::span<const Parametr>(parametry.begin(), parametry.size()));
}

long long TVLTBazaDanych::ExecSQL(std::string_view sql, std::span<const Parametr> parametry) {
  m->Dopisz();
  const auto polecenie = m->Polaczony().Wykonaj(sql, {}, parametry);
  const long long ile = polecenie->Dotknietych();
  polecenie->Zwolnij();
  return ile;
}

Odczyt TVLTBazaDanych::Otworz(std::string_view sql, std::initializer_list<TypPola> kolumny,
                              std::initializer_list<Parametr> parametry) {
  return Otworz(sql, std::span<const TypPola>(kolumny.begin(), kolumny.size()),
                std::span<const Parametr>(parametry.begin(), parametry.size()));
}

Odczyt TVLTBazaDanych::Otworz(std::string_view sql, std::span<const TypPola> kolumny,
                              std::span<const Parametr> parametry) {
  Silnik& silnik = m->Polaczony();
  m->Dopisz();
  return {silnik, silnik.Wykonaj(sql, kolumny, parametry)};
}

void TVLTBazaDanych::PowiazQuery(TKMQuery& query) {
  query.Powiaz(*this);
}

int TVLTBazaDanych::WstawOdRazu(const char* klucz, std::string_view sql,
                                std::initializer_list<Parametr> parametry) {
  return WstawOdRazu(klucz, sql, std::span<const Parametr>(parametry.begin(), parametry.size()));
}

int TVLTBazaDanych::WstawOdRazu(const char* klucz, std::string_view sql,
                                std::span<const Parametr> parametry) {
  const std::string zKluczem = Jezyk().InsertZKluczem(std::string(sql), klucz);
  if (zKluczem.empty()) {
    ExecSQL(sql, parametry);
    return m->autoId = static_cast<int>(m->silnik->Zapytaj(Jezyk().OstatnieAutoId()).AsInteger());
  }
  Odczyt odczyt = Otworz(zKluczem, kLiczba, parametry);
  return m->autoId = odczyt.Nastepny() ? static_cast<int>(odczyt[0].AsInteger()) : -1;
}

int TVLTBazaDanych::PobierzAutoId() const {
  return m->autoId;
}

void TVLTBazaDanych::Wstaw(std::string_view sql, std::initializer_list<Parametr> parametry) {
  const std::span<const Parametr> wartosci(parametry.begin(), parametry.size());
  if (m->MozeCzekac())
    m->kolejka.Wstaw(sql, wartosci);
  else
    ExecSQL(sql, wartosci);
}

int TVLTBazaDanych::WstawZKluczem(const char* tabela, const char* klucz, std::string_view sql,
                                  std::span<const Parametr> parametry) {
  if (!GetCzyWTransakcji() || Jezyk().NoweKlucze(tabela, klucz, 1).empty())
    return WstawOdRazu(klucz, sql, parametry);
  const bool czeka = m->MozeCzekac();
  if (!czeka) m->Dopisz();
  const int id = m->NastepnyKlucz(tabela, klucz);
  m->kolejka.Wstaw(sql, parametry, klucz, id);
  if (!czeka) m->Zapisz(1);
  return m->autoId = id;
}

bool TVLTBazaDanych::Popraw(std::string_view sql, std::span<const Parametr> parametry) {
  if (!m->MozeCzekac()) return ExecSQL(sql, parametry) != 0;
  m->kolejka.Popraw(sql, parametry);
  return true;
}

bool TVLTBazaDanych::Popraw(std::string_view sql, std::initializer_list<Parametr> parametry) {
  return Popraw(sql, std::span<const Parametr>(parametry.begin(), parametry.size()));
}

void TVLTBazaDanych::NowyRekord() {
  m->kolejka.NowyRekord();
}

void TVLTBazaDanych::GrupujZapisy(bool grupuj) {
  // Only servers that hand out keys ahead: elsewhere every record asks for its key at once.
  m->grupuj = grupuj && !Jezyk().NoweKlucze({}, {}, 1).empty();
}

void TVLTBazaDanych::StartTransakcji() {
  m->Zapomnij();
  m->Polaczony().Rozpocznij();
  ++m->transakcja;
}

void TVLTBazaDanych::KoniecTransakcji() {
  m->Dopisz();
  m->Polaczony().Zatwierdz();
  ++m->zatwierdzen;
}

void TVLTBazaDanych::WycofTransakcji() noexcept {
  m->Wycofaj();
}

void TVLTBazaDanych::RozpocznijOdczyt() {
  m->Polaczony().RozpocznijOdczyt();
}

void TVLTBazaDanych::ZakonczOdczyt() {
  m->Polaczony().ZakonczOdczyt();
}

bool TVLTBazaDanych::GetCzyWTransakcji() const {
  return m->silnik && m->silnik->WTransakcji();
}

long long TVLTBazaDanych::Transakcja() const {
  return GetCzyWTransakcji() ? m->transakcja : 0;
}

void TVLTBazaDanych::UstawPunkt(int poziom) {
  const bool odlozona = m->Grupuje();
  if (!odlozona) m->Polaczony().UstawPunkt(poziom);
  m->jednostki.push_back({poziom, m->kolejka.Ilosc(), !odlozona});
}

void TVLTBazaDanych::ZwolnijPunkt(int poziom) {
  // Many rows would make the last ones wait for a long time.
  constexpr std::size_t kNajwiecejWierszy = 1000;
  if (m->jednostki.empty() || m->jednostki.back().ustawiona) {
    m->Dopisz();
    m->Polaczony().ZwolnijPunkt(poziom);
  }
  if (!m->jednostki.empty()) m->jednostki.pop_back();
  if (m->jednostki.empty() && m->kolejka.Ilosc() >= kNajwiecejWierszy) m->Dopisz();
}

void TVLTBazaDanych::WycofDoPunktu(int poziom) noexcept {
  try {
    const auto jednostka = m->jednostki.empty() ? Wnetrze::Jednostka{poziom, 0, true} : m->jednostki.back();
    m->kolejka.Utnij(jednostka.pierwszyWiersz);
    if (!m->jednostki.empty()) m->jednostki.pop_back();
    if (!jednostka.ustawiona) return;
    m->Polaczony().WycofDoPunktu(poziom);
    m->silnik->ZwolnijPunkt(poziom);
  } catch (...) {
    // Half a unit must not be committed with what surrounds it.
    WycofTransakcji();
  }
}

bool TVLTBazaDanych::WJednostce() const {
  return !m->jednostki.empty();
}

long long TVLTBazaDanych::ZnacznikObcychZmian() {
  return m->Polaczony().ZnacznikObcychZmian();
}

long long TVLTBazaDanych::LiczbaZatwierdzen() const {
  return m->zatwierdzen;
}

void TVLTBazaDanych::Utrwal() {
  m->Polaczony().Utrwal();
}

bool TVLTBazaDanych::KopiujDo(const QString& plik, const PostepKopii& postep) {
  return m->Polaczony().KopiujDo(plik, postep);
}

void TVLTBazaDanych::RejestrujZmiane(int tabela, const QString& opis, int id1, int id2) {
  Wstaw(
      "insert into DziennikZmian (Czas, Tabela, Opis, Id1, Id2)"
      " values (getdate(), :Tabela, :Opis, :Id1, :Id2)",
      {{"Tabela", tabela}, {"Opis", opis}, {"Id1", id1}, {"Id2", id2}});
}

void TVLTBazaDanych::WczytajKonfiguracje(const QString& nazwa, TMConfig& config) {
  auto odczyt = Otworz("select Parametr, Wartosc from Konfiguracja where Nazwa = :Nazwa order by Kolejnosc",
                       {TypPola::Tekst, TypPola::Tekst}, {{"Nazwa", nazwa}});
  while (odczyt.Nastepny()) config.Ustaw(odczyt[0].AsString(), odczyt[1].AsString());
}

void TVLTBazaDanych::ZapiszKonfiguracje(const QString& nazwa, const TMConfig& config) {
  JednostkaZapisu jednostka(*this);
  ExecSQL("delete from Konfiguracja where Nazwa = :Nazwa", {{"Nazwa", nazwa}});
  int kolejnosc = 0;
  for (const TMCfgParam& parametr : config.Params())
    ExecSQL(
        "insert into Konfiguracja (Nazwa, Kolejnosc, Parametr, Wartosc)"
        " values (:Nazwa, :Kolejnosc, :Parametr, :Wartosc)",
        {{"Nazwa", nazwa},
         {"Kolejnosc", kolejnosc++},
         {"Parametr", parametr.Nazwa()},
         {"Wartosc", parametr.Wartosc()}});
  jednostka.Zatwierdz();
}

void TVLTBazaDanych::UstawPodsluch(Podsluch podsluch) {
  m->podsluch = std::move(podsluch);
}
