#include <algorithm>
#include <array>
#include <atomic>
#include <cstring>

#include <QFile>

#include <soci/odbc/soci-odbc.h>
#include <soci/soci.h>

#include "platform/baza/dialekt_tsql.h"
#include "platform/baza/dziennik_sterownika.h"
#include "platform/baza/napis_odbc.h"
#include "platform/baza/polaczenie.h"
#include "platform/baza/polecenie_odbc.h"
#include "platform/baza/silnik.h"

namespace {

// The server's words without its details, which quote values, and without the driver's remark on where it
// was.
QString TrescBledu(const char* komunikat) {
  QString tresc = QString::fromUtf8(komunikat).section(u'\n', 0, 0).trimmed();
  if (tresc.endsWith(u';')) tresc.chop(1);
  return tresc;
}

// psqlODBC told to leave transactions alone (7.4-0: an error undoes nothing by itself; the program's own
// savepoints do), to hand texts over as they are and to write no log of its own. They stand behind the
// operator's own, also behind those that mean the same in other words.
constexpr char kNarzucone[] =
    "Protocol=7.4-0;UseServerSidePrepare=1;UseDeclareFetch=0;LFConversion=0;TrueIsMinus1=0;"
    "UpdatableCursors=0;ConnSettings=;CommLog=0;Debug=0";

QString NapisPolaczenia(const ParametryPolaczenia& parametry) {
  QString napis = parametry.cel;
  if (napis.startsWith(u'@')) {
    QFile plik(napis.mid(1));
    if (!plik.open(QIODevice::ReadOnly | QIODevice::Text))
      throw EBladBazy(RodzajBleduBazy::Polaczenie,
                      QStringLiteral("Nie można odczytać pliku %1").arg(plik.fileName()), plik.errorString());
    napis = QString::fromUtf8(plik.readLine(4096)).trimmed();
  }
  // Of equal keys only the last: the driver would not give back the memory of the others.
  std::vector<AtrybutOdbc> atrybuty;
  for (const QString& czesc : {napis, QString::fromLatin1(kNarzucone)})
    for (AtrybutOdbc& atrybut : RozbierzNapisOdbc(czesc)) {
      std::erase_if(atrybuty, [&](const AtrybutOdbc& a) {
        return a.klucz.compare(atrybut.klucz, Qt::CaseInsensitive) == 0;
      });
      atrybuty.push_back(std::move(atrybut));
    }
  return ZlozNapisOdbc(atrybuty);
}

// SOCI begins a connection by a setting, which the driver refuses to one that may only read, and says nothing
// of the reason: so the driver is asked alone.
bool TylkoDoOdczytu(const std::string& napis) {
  SQLHENV srodowisko = nullptr;
  SQLHDBC polaczenie = nullptr;
  if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_ENV, nullptr, &srodowisko))) return false;
  SQLSetEnvAttr(srodowisko, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
  bool tylkoOdczyt = false;
  if (SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_DBC, srodowisko, &polaczenie))) {
    std::array<SQLCHAR, 4096> odpowiedz{};
    auto* tekst = reinterpret_cast<SQLCHAR*>(const_cast<char*>(napis.data()));  // the C interface
    if (SQL_SUCCEEDED(SQLDriverConnect(polaczenie, nullptr, tekst, static_cast<SQLSMALLINT>(napis.size()),
                                       odpowiedz.data(), odpowiedz.size(), nullptr, SQL_DRIVER_NOPROMPT))) {
      const auto atrybuty =
          RozbierzNapisOdbc(QString::fromUtf8(reinterpret_cast<const char*>(odpowiedz.data())));
      tylkoOdczyt = std::any_of(atrybuty.begin(), atrybuty.end(), [](const AtrybutOdbc& a) {
        return a.klucz.compare(QLatin1String("ReadOnly"), Qt::CaseInsensitive) == 0 &&
               a.wartosc == QLatin1String("1");
      });
      SQLDisconnect(polaczenie);
    }
    SQLFreeHandle(SQL_HANDLE_DBC, polaczenie);
  }
  SQLFreeHandle(SQL_HANDLE_ENV, srodowisko);
  return tylkoOdczyt;
}

class SilnikOdbc final : public Silnik {
 public:
  SilnikOdbc(const ParametryPolaczenia& parametry, const Podsluch& podsluch) : Silnik(podsluch) {
    // The driver would take the encoding of texts from the process's locale.
    qputenv("PGCLIENTENCODING", "UTF8");
    WylaczDziennikSterownika();
    const std::string napis = NapisPolaczenia(parametry).toStdString();
    try {
      soci::connection_parameters polaczenie(soci::odbc, napis);
      polaczenie.set_option(soci::odbc_option_driver_complete, std::to_string(SQL_DRIVER_NOPROMPT));
      m_sesja.open(polaczenie);
      if (soci::is_odbc_error(SQLAllocHandle(SQL_HANDLE_STMT, Uchwyt(), &m_sterujace)))
        throw soci::odbc_soci_error(SQL_HANDLE_DBC, Uchwyt(), "allocating a statement");
      m_jezyk = WybierzJezyk();
    } catch (const soci::soci_error& blad) {
      if (!m_sesja.get_backend() && TylkoDoOdczytu(napis))
        throw EBladBazy(RodzajBleduBazy::TylkoOdczyt,
                        QStringLiteral("Opis połączenia albo źródło danych zawiera ustawienie ReadOnly=1; "
                                       "program go nie przyjmuje, trzeba je usunąć."),
                        {});
      Rzuc(blad, {});
    }
  }

  void Skonfiguruj(const ParametryPolaczenia& parametry) {
    if (m_jezyk == &DialektPostgresql()) WymagajNarzuconych();
    for (const std::string& sql : m_jezyk->UstawieniaSesji(parametry.limitBlokadySekund)) Steruj(sql);
    m_nazwa = Zapytaj(m_jezyk->NazwaBazy(), TypPola::Tekst).AsString();
  }

  // SOCI's session must find no transaction open when it disconnects: its destructor could not tell.
  ~SilnikOdbc() override {
    try {
      if (m_stan != Stan::Brak || m_bezAutomatu) Wycofaj();
    } catch (const EBladBazy&) {
    }
    PorzucPolecenia();
    if (m_sterujace) SQLFreeHandle(SQL_HANDLE_STMT, m_sterujace);
  }

  const Dialekt& Jezyk() const override { return *m_jezyk; }
  QString NazwaBazy() const override { return m_nazwa; }

  void Rozpocznij() override {
    Otworz([&] {
      Zapytaj(m_jezyk->BlokadaImportu());
      m_numer = Zapytaj(m_jezyk->NumerTransakcji());
      ++m_znacznik;
    });
  }

  void RozpocznijOdczyt() override {
    Otworz([&] { Steruj(m_jezyk->OdczytJednejChwili()); });
  }
  void ZakonczOdczyt() override {
    Silnik::ZakonczOdczyt();
    Steruj(m_jezyk->PoOdczycieChwili());
  }

  // The driver would report success for a transaction that the server has given up: so nothing is committed
  // unless no error stands in it and it is still the one that was begun.
  void Zatwierdz() override {
    if (m_stan == Stan::Zepsuta || !(Zapytaj(m_jezyk->NumerTransakcji()) == m_numer))
      throw EBladBazy(RodzajBleduBazy::Inny,
                      QStringLiteral("Serwer wycofał transakcję po wcześniejszym błędzie"), {});
    Oglos("commit");
    Tlumacz("commit", [&] { m_sesja.commit(); });
    m_stan = Stan::Brak;
    m_bezAutomatu = false;
  }

  void Wycofaj() override {
    Oglos("rollback");
    m_stan = Stan::Brak;
    Tlumacz("rollback", [&] { m_sesja.rollback(); });
    m_bezAutomatu = false;
  }

  bool WTransakcji() const override { return m_stan != Stan::Brak; }
  bool Zerwany() const override { return m_zerwany; }

  void WycofDoPunktu(int poziom) override {
    Silnik::WycofDoPunktu(poziom);
    if (m_stan == Stan::Zepsuta) m_stan = Stan::Otwarta;
  }

  // Nobody can be asked whether others have written, and on a server somebody always does: whatever was not
  // read in the transaction at hand is old. The import lock keeps other importing programs out of it.
  long long ZnacznikObcychZmian() override { return m_stan == Stan::Brak ? ++m_znacznik : +m_znacznik; }

 protected:
  std::shared_ptr<Polecenie> Przygotuj(const std::string& sql, std::span<const TypPola> kolumny,
                                       std::span<const Parametr> parametry) override {
    return std::make_shared<PolecenieOdbc>(m_sesja, sql, *m_jezyk, kolumny, parametry);
  }

  // Not prepared: a prepared one could not be run where it is needed most, in a spoiled transaction.
  void Steruj(const std::string& sql) override {
    if (sql.empty()) return;
    Oglos(sql);
    Tlumacz(sql, [&] {
      if (!Przyjmuje(sql)) throw soci::odbc_soci_error(SQL_HANDLE_STMT, m_sterujace, "control");
      SQLFreeStmt(m_sterujace, SQL_CLOSE);
    });
  }

  PrzyczynaBledu Rozpoznaj(const soci::soci_error& blad) override {
    if (m_stan == Stan::Otwarta) m_stan = Stan::Zepsuta;
    const auto* odbc = dynamic_cast<const soci::odbc_soci_error*>(&blad);
    if (!odbc) return {.szczegoly = QString::fromStdString(blad.get_error_message())};
    const std::string_view stan = reinterpret_cast<const char*>(odbc->odbc_error_code());
    const QString tresc = TrescBledu(reinterpret_cast<const char*>(odbc->odbc_error_message()));
    PrzyczynaBledu przyczyna = Przyczyna(stan, tresc, odbc->native_error_code());
    przyczyna.szczegoly = tresc + QStringLiteral(" (%1)").arg(QLatin1String(stan));
    return przyczyna;
  }

 private:
  enum class Stan {
    Brak,
    Otwarta,
    Zepsuta  // a statement failed outside of a savepoint: the server keeps nothing of it
  };

  bool Przyjmuje(const std::string& sql) {
    auto* tekst = reinterpret_cast<SQLCHAR*>(const_cast<char*>(sql.data()));  // the C interface
    return !soci::is_odbc_error(SQLExecDirect(m_sterujace, tekst, static_cast<SQLINTEGER>(sql.size())));
  }

  template <typename Praca>
  void Tlumacz(std::string_view sql, Praca praca) {
    try {
      praca();
    } catch (const soci::soci_error& blad) {
      Rzuc(blad, sql);
    }
  }

  // A transaction that cannot be what it is begun for is none.
  template <typename Praca>
  void Otworz(Praca praca) {
    Oglos("begin");
    Tlumacz("begin", [&] { m_sesja.begin(); });
    m_bezAutomatu = true;
    m_stan = Stan::Otwarta;
    try {
      praca();
    } catch (...) {
      PorzucTransakcje();
      throw;
    }
  }

  void PorzucTransakcje() noexcept {
    try {
      Wycofaj();
    } catch (...) {
    }
  }

  PrzyczynaBledu Przyczyna(std::string_view stan, const QString& tresc, long numer) {
    if (!m_sesja.get_backend()) return PrzyczynaOdmowyPolaczenia(stan, tresc);
    if (Zerwane()) {
      m_zerwany = true;
      m_stan = Stan::Brak;  // the server undoes what it had of it
      return {.rodzaj = RodzajBleduBazy::Polaczenie};
    }
    if (const auto zNumeru = m_jezyk ? m_jezyk->RodzajBledu(numer) : std::nullopt)
      return {.rodzaj = *zNumeru};
    return PrzyczynaStanu(stan);
  }

  // Without a connection the driver has no state of the standard's for a refused user.
  static PrzyczynaBledu PrzyczynaOdmowyPolaczenia(std::string_view stan, const QString& tresc) {
    if (stan == "01000") return {.rodzaj = RodzajBleduBazy::Sterownik};  // the driver's library
    const bool haslo = tresc.contains(QLatin1String("password")) || tresc.contains(QLatin1String("hasł"));
    return haslo ? PrzyczynaBledu{.rodzaj = RodzajBleduBazy::Logowanie} : PrzyczynaStanu(stan);
  }

  const Dialekt* WybierzJezyk() {
    using Sesja = soci::odbc_session_backend;
    switch (Sterownik().get_database_product()) {
      case Sesja::prod_postgresql:
        return &DialektPostgresql();
      case Sesja::prod_mssql: {
        const bool znaOuterJoin = Przyjmuje(Tsql::ProbaOuterJoin());
        SQLFreeStmt(m_sterujace, SQL_CLOSE);
        return &DialektTsql(znaOuterJoin);
      }
      default:
        throw EBladBazy(RodzajBleduBazy::Sterownik,
                        QStringLiteral("Program nie zna rodzaju tego serwera bazy danych"), {});
    }
  }

  // The driver tells which settings are in force, the first of them even where its answer is too long to be
  // whole. One that does not tell is another one, of which nobody knows what it keeps of a transaction.
  void WymagajNarzuconych() {
    const std::string odpowiedz = Sterownik().get_connection_string();
    const auto wMocy = RozbierzNapisOdbc(QString::fromUtf8(odpowiedz.c_str()));
    const auto narzucone = RozbierzNapisOdbc(QLatin1String(kNarzucone));
    for (const AtrybutOdbc& nasz : narzucone) {
      const auto jest = std::find_if(wMocy.begin(), wMocy.end(), [&](const AtrybutOdbc& a) {
        return a.klucz.compare(nasz.klucz, Qt::CaseInsensitive) == 0;
      });
      const bool konieczny = &nasz == &narzucone.front();
      if (jest == wMocy.end() ? konieczny : jest->wartosc != nasz.wartosc)
        throw EBladBazy(
            RodzajBleduBazy::Sterownik,
            QStringLiteral("Sterownik nie przyjął ustawienia %1=%2").arg(nasz.klucz, nasz.wartosc), {});
    }
  }

  soci::odbc_session_backend& Sterownik() {
    return *static_cast<soci::odbc_session_backend*>(m_sesja.get_backend());
  }
  SQLHDBC Uchwyt() { return Sterownik().hdbc_; }

  bool Zerwane() {
    SQLUINTEGER zerwane = SQL_CD_FALSE;
    SQLGetConnectAttr(Uchwyt(), SQL_ATTR_CONNECTION_DEAD, &zerwane, 0, nullptr);
    return zerwane == SQL_CD_TRUE;
  }

  soci::session m_sesja;
  SQLHSTMT m_sterujace = nullptr;
  const Dialekt* m_jezyk = nullptr;
  QString m_nazwa;
  Stan m_stan = Stan::Brak;
  bool m_bezAutomatu = false;  // SOCI has switched the automatic commit off
  bool m_zerwany = false;
  Wartosc m_numer;
  inline static std::atomic<long long> m_znacznik = 0;
};

}  // namespace

std::unique_ptr<Silnik> PolaczOdbc(const ParametryPolaczenia& parametry, const Silnik::Podsluch& podsluch) {
  auto silnik = std::make_unique<SilnikOdbc>(parametry, podsluch);
  silnik->Skonfiguruj(parametry);
  return silnik;
}
