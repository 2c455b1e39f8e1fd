#include "platform/baza/sesja.h"

#include <ctime>
#include <string>
#include <unordered_map>

#include <QFileInfo>

#include <soci/soci.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include "platform/baza/dialekt.h"
#include "platform/baza/polecenie_sqlite.h"
#include "platform/baza/transakcja.h"
#include "platform/baza/zapytanie.h"
#include "platform/config.h"

using namespace sqlite_api;  // where SOCI puts SQLite's own header

namespace {

RodzajBleduBazy RodzajSqlite(int kod) {
  switch (kod & 0xff) {
    case SQLITE_FULL:
      return RodzajBleduBazy::PelnyDysk;
    case SQLITE_READONLY:
      return RodzajBleduBazy::TylkoOdczyt;
    case SQLITE_IOERR:
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return RodzajBleduBazy::Wejscie;
    case SQLITE_CANTOPEN:
      return RodzajBleduBazy::Polaczenie;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return RodzajBleduBazy::Blokada;
    case SQLITE_CONSTRAINT:
    case SQLITE_TOOBIG:
    case SQLITE_MISMATCH:
    case SQLITE_RANGE:
      return RodzajBleduBazy::Ograniczenie;
    default:
      return RodzajBleduBazy::Inny;
  }
}

// "insert into Towar": enough to name the table, too little to hold a value.
QString OpisOperacji(std::string_view sql) {
  constexpr int kSlow = 3;
  return QString::fromUtf8(sql.data(), static_cast<qsizetype>(std::min<std::size_t>(sql.size(), 200)))
      .simplified()
      .section(QLatin1Char(' '), 0, kSlow - 1);
}

// The server's clock of an embedded database: local time, once a second.
void GetDate(sqlite3_context* kontekst, int, sqlite3_value**) {
  thread_local std::time_t ostatnia = 0;
  thread_local char tekst[20] = "";
  const std::time_t teraz = std::time(nullptr);
  if (teraz != ostatnia) {
    std::tm czas{};
    localtime_r(&teraz, &czas);
    std::strftime(tekst, sizeof tekst, "%Y-%m-%d %H:%M:%S", &czas);
    ostatnia = teraz;
  }
  sqlite3_result_text(kontekst, tekst, -1, SQLITE_TRANSIENT);
}

const char* NazwaPunktu(int poziom, std::string& bufor, const char* slowo) {
  bufor = slowo;
  bufor += " p";
  bufor += std::to_string(poziom);
  return bufor.c_str();
}

// A session is used by one thread at a time, so SQLite need not lock its connections for every column it
// hands over, nor count its memory under a lock.
void UstawSqlite() {
  static const bool raz = [] {
    sqlite3_config(SQLITE_CONFIG_MULTITHREAD);
    sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    return true;
  }();
  (void)raz;
}

constexpr TypPola kLiczba[] = {TypPola::Calkowite};

}  // namespace

struct TVLTBazaDanych::Wnetrze {
  ParametryPolaczenia polaczenie;
  std::unique_ptr<soci::session> sesja;
  std::unordered_map<std::string, std::shared_ptr<Polecenie>> polecenia;
  std::string klucz;
  long long zatwierdzen = 0;
  long long polaczen = 0;
  Podsluch podsluch;

  soci::session& Sesja() const {
    if (!sesja)
      throw EBladBazy(RodzajBleduBazy::Polaczenie, QStringLiteral("Sesja nie jest otwarta"), QString());
    return *sesja;
  }

  sqlite3* Uchwyt() const {
    return sesja ? static_cast<soci::sqlite3_session_backend*>(sesja->get_backend())->conn_ : nullptr;
  }

  // Runs database work; whatever fails below leaves as EBladBazy.
  template <typename Praca>
  decltype(auto) Tlumacz(std::string_view sql, Praca&& praca) {
    try {
      return praca();
    } catch (const soci::sqlite3_soci_error& blad) {
      Rzuc(blad, sql, blad.result());
    } catch (const soci::soci_error& blad) {
      Rzuc(blad, sql, Uchwyt() ? sqlite3_errcode(Uchwyt()) : SQLITE_ERROR);
    }
  }

  [[noreturn]] static void Rzuc(const soci::soci_error& blad, std::string_view sql, int kod) {
    throw EBladBazy(RodzajSqlite(kod), QString::fromStdString(blad.get_error_message()), OpisOperacji(sql));
  }

  // A prepared statement for the text and the kinds of its values, free to be run.
  std::shared_ptr<Polecenie> Polecenie_(std::string_view sql, std::span<const TypPola> kolumny,
                                        std::span<const Parametr> parametry) {
    if (podsluch) podsluch(sql);
    klucz.assign(sql);
    for (const Parametr& p : parametry) klucz += static_cast<char>(1 + static_cast<int>(p.wartosc.Typ()));
    klucz += '\x10';
    for (const TypPola typ : kolumny) klucz += static_cast<char>(1 + static_cast<int>(typ));
    const auto znalezione = polecenia.find(klucz);
    if (znalezione != polecenia.end() && !znalezione->second->Zajete) {
      znalezione->second->Zajete = true;
      return znalezione->second;
    }
    auto nowe = std::make_shared<PolecenieSqlite>(*Uchwyt(), std::string(sql), kolumny, parametry);
    nowe->Zajete = true;
    // A text that is being read by somebody gets a second statement, which is not kept.
    if (znalezione == polecenia.end()) polecenia.emplace(klucz, nowe);
    return nowe;
  }

  std::shared_ptr<Polecenie> Wykonaj(std::string_view sql, std::span<const TypPola> kolumny,
                                     std::span<const Parametr> parametry) {
    Sesja();
    return Tlumacz(sql, [&] {
      auto polecenie = Polecenie_(sql, kolumny, parametry);
      try {
        polecenie->Wykonaj(parametry);
      } catch (...) {
        polecenie->Zwolnij();
        throw;
      }
      return polecenie;
    });
  }
};

Odczyt::Odczyt(std::shared_ptr<Polecenie> polecenie) : m_polecenie(std::move(polecenie)) {}
Odczyt::Odczyt(Odczyt&& inny) noexcept = default;
Odczyt::~Odczyt() {
  if (m_polecenie) m_polecenie->Zwolnij();
}

bool Odczyt::Nastepny() {
  try {
    return m_polecenie->Nastepny();
  } catch (const soci::sqlite3_soci_error& blad) {
    throw EBladBazy(RodzajSqlite(blad.result()), QString::fromStdString(blad.get_error_message()),
                    OpisOperacji(m_polecenie->Sql()));
  } catch (const soci::soci_error& blad) {
    throw EBladBazy(RodzajBleduBazy::Inny, QString::fromStdString(blad.get_error_message()),
                    OpisOperacji(m_polecenie->Sql()));
  }
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
  return m->sesja != nullptr;
}
QString TVLTBazaDanych::Nazwa() const {
  return QFileInfo(m->polaczenie.cel).completeBaseName();
}
const Dialekt& TVLTBazaDanych::Jezyk() const {
  return DialektSqlite();
}

void TVLTBazaDanych::Polacz() {
  UstawSqlite();
  Odlacz();
  const QString plik = m->polaczenie.cel;
  const auto odmow = [&](const QString& powod) {
    throw EBladBazy(RodzajBleduBazy::Polaczenie, powod, QString());
  };
  if (plik.isEmpty()) odmow(QStringLiteral("Nie wskazano bazy danych"));
  if (plik.contains(QLatin1Char('"')))
    odmow(QStringLiteral("Ścieżka bazy danych nie może zawierać cudzysłowu: ") + plik);
  if (!m->polaczenie.tworz && !QFileInfo(plik).isFile())
    odmow(QStringLiteral("Nie ma pliku bazy danych ") + plik);
  try {
    m->Tlumacz("", [&] {
      m->sesja = std::make_unique<soci::session>(
          soci::sqlite3,
          "db=\"" + plik.toStdString() + "\" timeout=" + std::to_string(m->polaczenie.limitBlokadySekund));
    });
    sqlite3_extended_result_codes(m->Uchwyt(), 0);
    sqlite3_create_function(m->Uchwyt(), "getdate", 0, SQLITE_UTF8, nullptr, GetDate, nullptr, nullptr);
    if (m->polaczenie.tworz) Otworz("pragma journal_mode = wal", {TypPola::Tekst}).Nastepny();
    // Whole pages reach the log at each commit and the disk at each checkpoint: a killed process loses
    // nothing that was committed; Utrwal closes the gap for a power cut.
    ExecSQL("pragma synchronous = normal");
    ExecSQL("pragma foreign_keys = on");
    ExecSQL("pragma cache_size = -131072");
    // Savepoints keep the old pages of each unit: in memory, or every save would write them to a file.
    ExecSQL("pragma temp_store = memory");
    // Fewer, longer checkpoints: each one waits for the disk.
    Otworz("pragma wal_autocheckpoint = 32768", kLiczba, {}).Nastepny();
    // The first read of the file: tells a database from any other file.
    Otworz("select count(*) from sqlite_master", kLiczba, {}).Nastepny();
    ++m->polaczen;
  } catch (...) {
    Odlacz();
    throw;
  }
}

void TVLTBazaDanych::Odlacz() {
  if (!m->sesja) return;
  if (GetCzyWTransakcji()) WycofTransakcji();
  m->polecenia.clear();
  m->sesja.reset();
}

long long TVLTBazaDanych::ExecSQL(std::string_view sql, std::initializer_list<Parametr> parametry) {
  return ExecSQL(sql, std::span<const Parametr>(parametry.begin(), parametry.size()));
}

long long TVLTBazaDanych::ExecSQL(std::string_view sql, std::span<const Parametr> parametry) {
  const auto polecenie = m->Wykonaj(sql, {}, parametry);
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
  return Odczyt(m->Wykonaj(sql, kolumny, parametry));
}

void TVLTBazaDanych::PowiazQuery(TKMQuery& query) {
  query.Powiaz(*this);
}

int TVLTBazaDanych::PobierzAutoId() {
  auto odczyt = Otworz(Jezyk().OstatnieAutoId(), kLiczba, {});
  return odczyt.Nastepny() ? static_cast<int>(odczyt[0].AsInteger()) : -1;
}

void TVLTBazaDanych::StartTransakcji() {
  ExecSQL("begin immediate");
}

void TVLTBazaDanych::KoniecTransakcji() {
  ExecSQL("commit");
  ++m->zatwierdzen;
}

void TVLTBazaDanych::WycofTransakcji() noexcept {
  try {
    if (GetCzyWTransakcji()) ExecSQL("rollback");
  } catch (...) {
  }
}

bool TVLTBazaDanych::GetCzyWTransakcji() const {
  sqlite3* uchwyt = m->Uchwyt();
  return uchwyt && sqlite3_get_autocommit(uchwyt) == 0;
}

void TVLTBazaDanych::UstawPunkt(int poziom) {
  std::string bufor;
  ExecSQL(NazwaPunktu(poziom, bufor, "savepoint"));
}

void TVLTBazaDanych::ZwolnijPunkt(int poziom) {
  std::string bufor;
  ExecSQL(NazwaPunktu(poziom, bufor, "release"));
}

void TVLTBazaDanych::WycofDoPunktu(int poziom) noexcept {
  try {
    std::string bufor;
    ExecSQL(NazwaPunktu(poziom, bufor, "rollback to"));
    ExecSQL(NazwaPunktu(poziom, bufor, "release"));
  } catch (...) {
    // Half a unit must not be committed with what surrounds it.
    WycofTransakcji();
  }
}

long long TVLTBazaDanych::ZnacznikObcychZmian() {
  // Each connection counts from the start: without its own number a new one could repeat an old answer.
  constexpr long long kNaPolaczenie = 1LL << 32;
  auto odczyt = Otworz("pragma data_version", kLiczba, {});
  return m->polaczen * kNaPolaczenie + (odczyt.Nastepny() ? odczyt[0].AsInteger() : 0);
}

long long TVLTBazaDanych::LiczbaZatwierdzen() const {
  return m->zatwierdzen;
}

void TVLTBazaDanych::Utrwal() {
  try {
    Otworz("pragma wal_checkpoint(truncate)", kLiczba, {}).Nastepny();
  } catch (const EBladBazy&) {
  }
}

void TVLTBazaDanych::RejestrujZmiane(int tabela, const QString& opis, int id1, int id2) {
  ExecSQL(
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
