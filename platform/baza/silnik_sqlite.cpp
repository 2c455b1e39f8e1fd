#include <atomic>
#include <ctime>

#include <QFileInfo>

#include <soci/soci.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include "platform/baza/dialekt.h"
#include "platform/baza/polaczenie.h"
#include "platform/baza/polecenie_sqlite.h"
#include "platform/baza/silnik.h"
#include "platform/nazwa_pliku.h"
#include "platform/tozsamosc_pliku.h"

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

class SilnikSqlite final : public Silnik {
 public:
  SilnikSqlite(const ParametryPolaczenia& parametry, const Podsluch& podsluch)
      : Silnik(podsluch),
        m_jezyk(parametry.jezyk ? *parametry.jezyk : DialektSqlite()),
        m_nazwa(QFileInfo(parametry.cel).completeBaseName()),
        m_numer(NastepnyNumer()) {
    try {
      m_sesja.open(soci::sqlite3, "db=\"" + BajtyNazwy(parametry.cel).toStdString() +
                                      "\" timeout=" + std::to_string(parametry.limitBlokadySekund));
    } catch (const soci::soci_error& blad) {
      Rzuc(blad, {});
    }
  }

  void Skonfiguruj(const ParametryPolaczenia& parametry) {
    sqlite3_extended_result_codes(Uchwyt(), 0);
    sqlite3_create_function(Uchwyt(), "getdate", 0, SQLITE_UTF8, nullptr, GetDate, nullptr, nullptr);
    if (parametry.tworz) Zapytaj("pragma journal_mode = wal", TypPola::Tekst);
    // Whole pages reach the log at each commit and the disk at each checkpoint: a killed process loses
    // nothing that was committed; Utrwal closes the gap for a power cut.
    Wykonaj("pragma synchronous = normal", {}, {})->Zwolnij();
    Wykonaj("pragma foreign_keys = on", {}, {})->Zwolnij();
    Wykonaj("pragma cache_size = -131072", {}, {})->Zwolnij();
    // Savepoints keep the old pages of each unit: in memory, or every save would write them to a file.
    Wykonaj("pragma temp_store = memory", {}, {})->Zwolnij();
    // Fewer, longer checkpoints: each one waits for the disk.
    Zapytaj("pragma wal_autocheckpoint = 32768");
    // The first read of the file: tells a database from any other file.
    Zapytaj("select count(*) from sqlite_master");
  }

  ~SilnikSqlite() override { PorzucPolecenia(); }

  const Dialekt& Jezyk() const override { return m_jezyk; }
  QString NazwaBazy() const override { return m_nazwa; }

  // An immediate one, so that a lock is met here and not in the middle.
  void Rozpocznij() override { Wykonaj("begin immediate", {}, {})->Zwolnij(); }
  void Zatwierdz() override { Wykonaj("commit", {}, {})->Zwolnij(); }
  void Wycofaj() override { Wykonaj("rollback", {}, {})->Zwolnij(); }
  void RozpocznijOdczyt() override { Wykonaj("begin", {}, {})->Zwolnij(); }
  // Asked of the database, which may have ended the transaction by itself (a full disk).
  bool WTransakcji() const override { return sqlite3_get_autocommit(Uchwyt()) == 0; }

  long long ZnacznikObcychZmian() override {
    // Each connection counts from the start: without its own number a new one could repeat an old answer.
    constexpr long long kNaPolaczenie = 1LL << 32;
    return m_numer * kNaPolaczenie + Zapytaj("pragma data_version").AsInteger();
  }

  void Utrwal() override {
    try {
      Zapytaj("pragma wal_checkpoint(truncate)");
    } catch (const EBladBazy&) {
    }
  }

 protected:
  std::shared_ptr<Polecenie> Przygotuj(const std::string& sql, std::span<const TypPola> kolumny,
                                       std::span<const Parametr> parametry) override {
    return std::make_shared<PolecenieSqlite>(*Uchwyt(), m_jezyk.Przeloz(sql), kolumny, parametry);
  }

  Rozpoznanie Rozpoznaj(const soci::soci_error& blad) override {
    const auto* sqlite = dynamic_cast<const soci::sqlite3_soci_error*>(&blad);
    const int kod = sqlite ? sqlite->result() : Uchwyt() ? sqlite3_errcode(Uchwyt()) : SQLITE_ERROR;
    return {RodzajSqlite(kod), QString::fromStdString(blad.get_error_message())};
  }

 private:
  static long long NastepnyNumer() {
    static std::atomic<long long> numer = 0;
    return ++numer;
  }
  sqlite3* Uchwyt() const {
    const auto* backend = static_cast<const soci::sqlite3_session_backend*>(m_sesja.get_backend());
    return backend ? backend->conn_ : nullptr;
  }

  mutable soci::session m_sesja;  // asked for its handle by const members too
  const Dialekt& m_jezyk;
  const QString m_nazwa;
  const long long m_numer;
};

}  // namespace

std::unique_ptr<Silnik> PolaczSqlite(const ParametryPolaczenia& parametry, const Silnik::Podsluch& podsluch) {
  UstawSqlite();
  const QString& plik = parametry.cel;
  const auto odmow = [](const QString& powod) {
    throw EBladBazy(RodzajBleduBazy::Polaczenie, powod, QString());
  };
  if (plik.isEmpty()) odmow(QStringLiteral("Nie wskazano bazy danych"));
  if (plik.contains(QLatin1Char('"')))
    odmow(QStringLiteral("Ścieżka bazy danych nie może zawierać cudzysłowu: ") + plik);
  if (!parametry.tworz && RodzajPlikuSciezki(plik) != RodzajPliku::Zwykly)
    odmow(QStringLiteral("Nie ma pliku bazy danych ") + plik);
  auto silnik = std::make_unique<SilnikSqlite>(parametry, podsluch);
  silnik->Skonfiguruj(parametry);
  return silnik;
}
