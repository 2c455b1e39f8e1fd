#include <atomic>
#include <ctime>
#include <limits>
#include <utility>

#include <QDateTime>
#include <QFileInfo>
#include <QScopeGuard>

#include <soci/soci.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include "platform/baza/dialekt.h"
#include "platform/baza/kopia_sqlite.h"
#include "platform/baza/polaczenie.h"
#include "platform/baza/polecenie_sqlite.h"
#include "platform/baza/silnik.h"
#include "platform/baza/straz_bazy.h"
#include "platform/nazwa_pliku.h"
#include "platform/tozsamosc_pliku.h"
#include "platform/trwaly_zapis.h"

using namespace sqlite_api;  // where SOCI puts SQLite's own header

namespace {

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
    sqlite3_config(SQLITE_CONFIG_URI, 1);
    return true;
  }();
  (void)raz;
}

constexpr TypPola kTrzyLiczby[] = {TypPola::Calkowite, TypPola::Calkowite, TypPola::Calkowite};
// Pages of the log at which they are moved into the database. Few, long checkpoints: each waits for the disk.
constexpr int kStronDziennika = 32768;

enum class Dostep {
  Zwykly,
  // Without locks and without a log: for a file that nobody changes, in a folder where no log can be made.
  Niezmienna
};

std::string Adres(const QString& plik, Dostep dostep) {
  const QByteArray sciezka = BajtyNazwy(QFileInfo(plik).absoluteFilePath());
  if (dostep == Dostep::Zwykly) return sciezka.toStdString();
  return "file://" + sciezka.toPercentEncoding("/").toStdString() + "?mode=ro&immutable=1";
}

class SilnikSqlite final : public Silnik {
 public:
  SilnikSqlite(const ParametryPolaczenia& parametry, const Podsluch& podsluch, Dostep dostep)
      : Silnik(podsluch),
        m_jezyk(parametry.jezyk ? *parametry.jezyk : DialektSqlite()),
        m_plik(parametry.cel),
        m_dziennik(parametry.PlikiOtwarte().at(1)),
        m_limitBlokady(parametry.limitBlokadySekund * 1000),
        m_dostep(dostep),
        m_numer(NastepnyNumer()) {
    try {
      m_sesja.open(soci::sqlite3, "db=\"" + Adres(parametry.cel, dostep) +
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
    sqlite3_wal_hook(Uchwyt(), PoZatwierdzeniu, this);
    // The first read of the file: tells a database from any other file.
    Zapytaj("select count(*) from sqlite_master");
    m_straz.Zapamietaj(m_plik, [this] { return RozmiarWedlugNaglowka(); });
    if (m_dostep == Dostep::Niezmienna) m_zmieniona = QFileInfo(m_plik).lastModified();
  }

  ~SilnikSqlite() override { PorzucPolecenia(); }

  const Dialekt& Jezyk() const override { return m_jezyk; }
  QString NazwaBazy() const override { return QFileInfo(m_plik).completeBaseName(); }
  bool Zerwany() const override { return m_zniknela; }

  // An immediate one, so that a lock is met here and not in the middle.
  void Rozpocznij() override {
    WymagajCalosci();
    if (const int wynik = std::exchange(m_bladPrzenoszenia, SQLITE_OK); wynik != SQLITE_OK)
      Nietrwaly(QString::fromUtf8(sqlite3_errstr(wynik)));
    Wykonaj("begin immediate", {}, {})->Zwolnij();
  }
  void Zatwierdz() override {
    WymagajCalosci();
    Wykonaj("commit", {}, {})->Zwolnij();
  }
  void Wycofaj() override { Wykonaj("rollback", {}, {})->Zwolnij(); }
  void RozpocznijOdczyt() override { Wykonaj("begin", {}, {})->Zwolnij(); }
  // Asked of the database, which may have ended the transaction by itself (a full disk).
  bool WTransakcji() const override { return sqlite3_get_autocommit(Uchwyt()) == 0; }

  long long ZnacznikObcychZmian() override {
    // Each connection counts from the start: without its own number a new one could repeat an old answer.
    constexpr long long kNaPolaczenie = 1LL << 32;
    return m_numer * kNaPolaczenie + Zapytaj("pragma data_version").AsInteger();
  }

  // Others who read keep the log from being moved, and so does a transaction of our own: then it is the log
  // that the disk has to confirm.
  void Utrwal() override {
    WymagajCalosci();
    if (!m_doUtrwalenia) return;
    if (WTransakcji() || !PrzeniesDziennik())
      if (const auto powod = UtrwalPlik(m_dziennik)) Nietrwaly(*powod);
    WymagajCalosci();
    m_doUtrwalenia = false;
    if (const int wynik = std::exchange(m_bladPrzenoszenia, SQLITE_OK); wynik != SQLITE_OK)
      Nietrwaly(QString::fromUtf8(sqlite3_errstr(wynik)));
  }

  // The open read keeps the moment: without it every write of another program would begin the copy anew.
  bool KopiujDo(const QString& plik, const PostepKopii& postep) override {
    RozpocznijOdczyt();
    const auto zakoncz = qScopeGuard([this] { ZakonczOdczyt(); });
    Zapytaj("select count(*) from sqlite_master");
    const int wynik = KopiujSqlite(*Uchwyt(), plik, postep);
    if (wynik != SQLITE_OK && wynik != SQLITE_ABORT) {
      const PrzyczynaBledu przyczyna = PrzyczynaStanu(StanSqlite(wynik));
      throw EBladBazy(przyczyna.rodzaj, przyczyna.powod,
                      QStringLiteral("kopia bazy: ") + QString::fromUtf8(sqlite3_errstr(wynik)));
    }
    return wynik == SQLITE_OK;
  }

 protected:
  std::shared_ptr<Polecenie> Przygotuj(const std::string& sql, std::span<const TypPola> kolumny,
                                       std::span<const Parametr> parametry) override {
    return std::make_shared<PolecenieSqlite>(*Uchwyt(), m_jezyk.Przeloz(sql), kolumny, parametry);
  }

  PrzyczynaBledu Rozpoznaj(const soci::soci_error& blad) override {
    const auto* sqlite = dynamic_cast<const soci::sqlite3_soci_error*>(&blad);
    const int kod = sqlite ? sqlite->result() : Uchwyt() ? sqlite3_errcode(Uchwyt()) : SQLITE_ERROR;
    const int dokladny = Uchwyt() ? sqlite3_extended_errcode(Uchwyt()) : kod;
    PrzyczynaBledu przyczyna = PrzyczynaStanu(StanSqlite((dokladny & 0xff) == (kod & 0xff) ? dokladny : kod));
    przyczyna.szczegoly = QString::fromStdString(blad.get_error_message());
    return przyczyna;
  }

 private:
  // Called after every commit with the length of the log. SQLite's own way would keep a failure to itself.
  static int PoZatwierdzeniu(void* silnik, sqlite3* polaczenie, const char* baza, int stron) {
    auto& ten = *static_cast<SilnikSqlite*>(silnik);
    ten.m_doUtrwalenia = true;
    if (stron < kStronDziennika) return SQLITE_OK;
    const int wynik =
        sqlite3_wal_checkpoint_v2(polaczenie, baza, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
    if (wynik != SQLITE_OK && wynik != SQLITE_BUSY) ten.m_bladPrzenoszenia = wynik;
    return SQLITE_OK;
  }
  // True when all of the log is in the database file, and the disk has it.
  bool PrzeniesDziennik() {
    // Whoever holds the log may go on reading.
    sqlite3_busy_timeout(Uchwyt(), 0);
    const auto czekajZnowu = qScopeGuard([this] { sqlite3_busy_timeout(Uchwyt(), m_limitBlokady); });
    try {
      const auto polecenie = Wykonaj("pragma wal_checkpoint(truncate)", kTrzyLiczby, {});
      const auto zwolnij = qScopeGuard([&] { polecenie->Zwolnij(); });
      Nastepny(*polecenie);
      const auto wiersz = polecenie->Wiersz();
      const bool zajety = wiersz[0].AsInteger() != 0;
      const long long stron = wiersz[1].AsInteger();
      return !zajety || (stron >= 0 && stron == wiersz[2].AsInteger());
    } catch (const EBladBazy& blad) {
      Nietrwaly(blad.Tresc());
    }
  }
  [[noreturn]] static void Nietrwaly(const QString& powod) {
    throw EBladBazy(RodzajBleduBazy::Nietrwaly, powod, {});
  }
  void WymagajCalosci() {
    if (const auto powod = m_straz.CoSieStalo()) {
      m_zniknela = true;
      throw EBladBazy(RodzajBleduBazy::Zniknela, *powod, {});
    }
    if (m_dostep == Dostep::Niezmienna && QFileInfo(m_plik).lastModified() != m_zmieniona)
      throw EBladBazy(
          RodzajBleduBazy::Kolizja,
          QStringLiteral("Inny program zmienił bazę w trakcie odczytu, a w jej folderze nie wolno "
                         "pisać, więc odczyt nie mógł się przed tym zabezpieczyć"),
          {});
  }
  // A header that cannot be read any more asks for more than there is.
  qint64 RozmiarWedlugNaglowka() {
    try {
      return Zapytaj("pragma page_count").AsInteger() * Zapytaj("pragma page_size").AsInteger();
    } catch (const EBladBazy&) {
      return std::numeric_limits<qint64>::max();
    }
  }
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
  const QString m_plik, m_dziennik;
  const int m_limitBlokady;  // milliseconds
  const Dostep m_dostep;
  QDateTime m_zmieniona;  // of a file that nobody should change
  const long long m_numer;
  StrazBazy m_straz;
  bool m_zniknela = false;
  bool m_doUtrwalenia = false;         // something was committed since the disk last confirmed
  int m_bladPrzenoszenia = SQLITE_OK;  // of a checkpoint behind a commit
};

std::unique_ptr<Silnik> Otworz(const ParametryPolaczenia& parametry, const Silnik::Podsluch& podsluch,
                               Dostep dostep) {
  auto silnik = std::make_unique<SilnikSqlite>(parametry, podsluch, dostep);
  silnik->Skonfiguruj(parametry);
  return silnik;
}

// SQLite makes its log beside the database even for a reader. Where it cannot, the file alone can be read,
// unless somebody who can write there is at work or has left a log: the file alone is then not the database.
std::unique_ptr<Silnik> OtworzBezDziennika(const ParametryPolaczenia& parametry,
                                           const Silnik::Podsluch& podsluch, const EBladBazy& blad) {
  const QString& plik = parametry.cel;
  const bool folderDoZapisu = QFileInfo(QFileInfo(plik).absolutePath()).isWritable();
  if (parametry.tworz || folderDoZapisu || !QFileInfo(plik).isReadable()) throw blad;
  const QStringList pliki = parametry.PlikiOtwarte();
  if (QFileInfo(pliki[1]).size() > 0 || QFileInfo::exists(pliki[2]))
    throw EBladBazy(
        RodzajBleduBazy::Polaczenie,
        QStringLiteral("Obok pliku %1 jest dziennik (-wal, -shm), którego w tym folderze nie można "
                       "użyć. Zamknij programy, które pracują na tej bazie, albo nadaj prawo zapisu "
                       "w folderze")
            .arg(plik),
        {});
  return Otworz(parametry, podsluch, Dostep::Niezmienna);
}

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
  try {
    return Otworz(parametry, podsluch, Dostep::Zwykly);
  } catch (const EBladBazy& blad) {
    if (blad.Rodzaj() != RodzajBleduBazy::Polaczenie && blad.Rodzaj() != RodzajBleduBazy::TylkoOdczyt) throw;
    return OtworzBezDziennika(parametry, podsluch, blad);
  }
}
