#include <csignal>

#include <QDir>
#include <QThread>

#include <sys/stat.h>

#include "tests/end_to_end/ograniczenia.h"
#include "tests/end_to_end/pliki_kontrahentow.h"
#include "tests/end_to_end/pliki_towarow.h"
#include "tests/end_to_end/wlasny_serwer.h"

namespace {

// What an import brings. Only the selects know what a whole record is: each counts what must not be there.
struct Rodzaj {
  const char* nazwa;
  const char16_t* polecenie;
  QStringList ustawienia;
  std::string (*plik)(int ile);
  int rekordow, naSerwerze;  // enough for several batches
  std::string_view zapisanych;

  int Ile() const { return NaSerwerze() ? naSerwerze : rekordow; }
  std::vector<std::string_view> niedozwolone;
};

const Rodzaj kRodzaje[] = {
    {"Towary",
     u"import-towarow",
     {},
     DuzyPlik,
     12000,
     12000,
     "select cast(count(*) as text) from Towar",
     {// Every good of the file has one additional code.
      "select cast(count(*) as text) from Towar t where (select count(*) from KodDod d "
      "where d.TowId = t.TowId and d.Kod = '591' || substr(t.Kod, 4)) <> 1",
      "select cast(count(*) as text) from (select Kod from Towar union all select Kod from KodDod) kody "
      "group by Kod having count(*) > 1",
      "select cast(count(*) as text) from Towar group by Skrot having count(*) > 1",
      "select cast(count(*) as text) from Asort where Nazwa like 'Asortyment%' having count(*) > 7"}},
    {"Kontrahenci",
     u"import-kontrahentow",
     kDodajIPopraw,
     DuzyPlikKontrahentow,
     30000,
     20000,
     "select cast(count(*) as text) from Kontrahent",
     {// Every contractor has two persons, a shop and a line of the change log; numbers are there once.
      "select cast(count(*) as text) from Kontrahent k where"
      " (select count(*) from Osoba o where o.KontrId = k.KontrId) <> 2"
      " or k.KontrId not in (select SklepId from Sklep) or k.KontrId not in (select Id1 from DziennikZmian)",
      "select cast(count(*) as text) from Kontrahent group by NIP having count(*) > 1",
      "select cast(count(*) as text) from Sklep group by NrSklepu having count(*) > 1"}},
};

class Awarie : public testing::TestWithParam<Rodzaj> {
 protected:
  int Zapisanych() const { return s.Ile(GetParam().zapisanych); }
  void ZapiszPlik(int ile = GetParam().Ile()) const { s.Zapisz(u"plik"_s, GetParam().plik(ile)); }
  QStringList Slowa() const {
    return s.SlowaImportu(u"plik"_s, GetParam().ustawienia, QString::fromUtf16(GetParam().polecenie));
  }

  // Waits until the run has committed at least `ile` records.
  void PoczekajNaZapisane(QProcess& proces, int ile) const {
    while (proces.state() == QProcess::Running && Zapisanych() < ile) QThread::msleep(5);
  }

  void SprawdzCalosc() const {
    if (!NaSerwerze()) {
      EXPECT_EQ(s.Zapytaj("pragma integrity_check"), QStringList{u"ok"_s});
      EXPECT_EQ(s.Zapytaj("select \"table\" from pragma_foreign_key_check"), QStringList());
    }
    for (const std::string_view sql : GetParam().niedozwolone) EXPECT_EQ(s.Ile(sql), 0) << sql;
  }

  // The same import brings the rest.
  void Dokoncz() const {
    const int bylo = Zapisanych();
    const Wynik wynik = s.Uruchom(Slowa());
    EXPECT_EQ(wynik.status, 0) << wynik.bledy.toStdString();
    EXPECT_EQ(wynik.Liczba(u"bezZmian"_s), bylo);
    EXPECT_EQ(wynik.Liczba(u"dodanych"_s), GetParam().Ile() - bylo);
    EXPECT_EQ(Zapisanych(), GetParam().Ile());
    SprawdzCalosc();
  }

  // The run ends with the reason and says how much is saved; what it says is there.
  void SprawdzKoniecZBledem(const Wynik& wynik, const QString& powod) const {
    EXPECT_EQ(wynik.status, 4);
    EXPECT_EQ(wynik.Koniec(), u"blad"_s);
    EXPECT_TRUE(wynik.bledy.contains(powod)) << wynik.bledy.toStdString();
    EXPECT_TRUE(wynik.bledy.contains(u"apisano w bazie"_s)) << wynik.bledy.toStdString();
    EXPECT_EQ(wynik.Liczba(u"dodanych"_s), Zapisanych());
    EXPECT_LT(Zapisanych(), GetParam().Ile());
    SprawdzCalosc();
  }

  const Stanowisko s;
};

INSTANTIATE_TEST_SUITE_P(Importy, Awarie, testing::ValuesIn(kRodzaje),
                         [](const auto& rodzaj) { return std::string(rodzaj.param.nazwa); });

TEST_P(Awarie, CtrlCZostawiaToCoZapisano) {
  ZapiszPlik();
  const auto proces = s.Zacznij(Slowa());
  PoczekajNaZapisane(*proces, 1);
  for (const int sygnal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE, SIGXFSZ})
    kill(static_cast<pid_t>(proces->processId()), sygnal);
  const Wynik wynik = Stanowisko::Zakoncz(*proces);
  EXPECT_EQ(wynik.status, 5);
  EXPECT_EQ(wynik.Koniec(), u"przerwano"_s);
  EXPECT_TRUE(wynik.bledy.contains(u"Aktualizacja przerwana przez operatora"_s));
  EXPECT_EQ(wynik.Liczba(u"dodanych"_s), Zapisanych());
  EXPECT_GT(Zapisanych(), 0);
  EXPECT_LT(Zapisanych(), GetParam().Ile());
  Dokoncz();
}

TEST_P(Awarie, ZabityProgramNieZostawiaPolowyRekordu) {
  ZapiszPlik();
  const auto proces = s.Zacznij(Slowa());
  PoczekajNaZapisane(*proces, GetParam().Ile() / 30);
  proces->kill();
  proces->waitForFinished();
  ASSERT_EQ(proces->exitStatus(), QProcess::CrashExit);
  EXPECT_GE(Zapisanych(), GetParam().Ile() / 30);
  EXPECT_LT(Zapisanych(), GetParam().Ile());
  SprawdzCalosc();
  Dokoncz();
}

TEST_P(Awarie, DwaImportyNaRaz) {
  const int ile = GetParam().Ile() / 4;
  ZapiszPlik(ile);
  const auto pierwszy = s.Zacznij(Slowa());
  QStringList slowaDrugiego = Slowa();
  ASSERT_TRUE(QDir(s.Sciezka(u"."_s)).mkdir(u"drugi"_s));
  slowaDrugiego.replace(slowaDrugiego.indexOf(u"."_s), u"drugi"_s);
  const auto drugi = s.Zacznij(slowaDrugiego);
  const Wynik a = Stanowisko::Zakoncz(*pierwszy);
  const Wynik b = Stanowisko::Zakoncz(*drugi);
  EXPECT_EQ(a.status, 0) << a.bledy.toStdString();
  EXPECT_EQ(b.status, 0) << b.bledy.toStdString();
  EXPECT_EQ(a.Liczba(u"dodanych"_s) + b.Liczba(u"dodanych"_s), ile);
  EXPECT_EQ(Zapisanych(), ile);
  SprawdzCalosc();
}

class RestartSerwera : protected WlasnySerwer, public Awarie {};

INSTANTIATE_TEST_SUITE_P(Importy, RestartSerwera, testing::ValuesIn(kRodzaje),
                         [](const auto& rodzaj) { return std::string(rodzaj.param.nazwa); });

TEST_P(RestartSerwera, MowiCoZapisano) {
  if (!NaSerwerze()) GTEST_SKIP() << "of servers only";
  ZapiszPlik();
  const auto proces = s.Zacznij(Slowa());
  PoczekajNaZapisane(*proces, 1);
  Wznow();
  SprawdzKoniecZBledem(Stanowisko::Zakoncz(*proces), u"Brak połączenia z bazą"_s);
  EXPECT_GT(Zapisanych(), 0);
  Dokoncz();
}

TEST_P(Awarie, BazaPelnaZablokowanaTylkoDoOdczytu) {
  if (NaSerwerze()) GTEST_SKIP() << "rights and disk of a file";
  ZapiszPlik();
  const std::string baza = s.Sciezka(u"baza.db"_s).toStdString();
  chmod(baza.c_str(), 0444);
  SprawdzKoniecZBledem(s.Uruchom(Slowa(), BezWladzyNadPlikami), u"tylko do odczytu"_s);
  chmod(baza.c_str(), 0644);
  {
    TVLTBazaDanych inny;
    s.Polacz(inny);
    inny.StartTransakcji();
    SprawdzKoniecZBledem(s.Uruchom(Slowa()), u"zablokowana"_s);
    inny.WycofTransakcji();
  }
  SprawdzKoniecZBledem(s.Uruchom(Slowa(), MalyDysk), u"zapisu"_s);
  Dokoncz();
}

TEST(NowaBaza, NiedokonczonaZnika) {
  if (NaSerwerze()) GTEST_SKIP() << "disk of a file";
  const Stanowisko s;
  const auto ciasno = [] {
    const rlimit limit{20'000, 20'000};
    setrlimit(RLIMIT_FSIZE, &limit);
  };
  EXPECT_EQ(s.Uruchom({u"nowa-baza"_s, u"inna.db"_s}, ciasno).status, 4);
  for (const QString& nazwa : {u"inna.db"_s, u"inna.db-wal"_s, u"inna.db-shm"_s})
    EXPECT_FALSE(QFile::exists(s.Sciezka(nazwa))) << nazwa.toStdString();
}

}  // namespace
