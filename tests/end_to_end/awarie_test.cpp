#include <csignal>

#include <QThread>

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/end_to_end/pliki_towarow.h"

namespace {

constexpr int kTowarow = 12000;

// Waits until the run has committed at least `ile` goods.
void PoczekajNaTowary(const Stanowisko& s, QProcess& proces, int ile) {
  while (proces.state() == QProcess::Running && s.Towarow() < ile) QThread::msleep(5);
}

void SprawdzCalosc(const Stanowisko& s) {
  EXPECT_EQ(s.Zapytaj("pragma integrity_check"), QStringList{u"ok"_s});
  EXPECT_EQ(s.Zapytaj("select \"table\" from pragma_foreign_key_check"), QStringList());
  // Every good of the file has one additional code and one stock row per warehouse.
  EXPECT_EQ(s.Ile("select cast(count(*) as text) from Towar t where (select count(*) from KodDod d "
                  "where d.TowId = t.TowId and d.Kod = '591' || substr(t.Kod, 4)) <> 1"),
            0);
  EXPECT_EQ(
      s.Ile("select cast(count(*) as text) from (select Kod from Towar union all select Kod from KodDod "
            ") group by Kod having count(*) > 1"),
      0);
  EXPECT_EQ(s.Ile("select cast(count(*) as text) from Towar group by Skrot having count(*) > 1"), 0);
}

// The same import brings the rest.
void Dokoncz(const Stanowisko& s) {
  const int bylo = s.Towarow();
  const Wynik wynik = s.Import(u"towary"_s);
  EXPECT_EQ(wynik.status, 0) << wynik.bledy.toStdString();
  EXPECT_EQ(wynik.Liczba(u"bezZmian"_s), bylo);
  EXPECT_EQ(wynik.Liczba(u"dodanych"_s), kTowarow - bylo);
  EXPECT_EQ(s.Towarow(), kTowarow);
  SprawdzCalosc(s);
}

TEST(Awarie, CtrlCZostawiaToCoZapisano) {
  const Stanowisko s;
  s.Zapisz(u"towary"_s, DuzyPlik(kTowarow));
  const auto proces = s.Zacznij(s.SlowaImportu(u"towary"_s));
  PoczekajNaTowary(s, *proces, 1);
  kill(static_cast<pid_t>(proces->processId()), SIGINT);
  kill(static_cast<pid_t>(proces->processId()), SIGINT);
  const Wynik wynik = Stanowisko::Zakoncz(*proces);
  EXPECT_EQ(wynik.status, 5);
  EXPECT_EQ(wynik.Koniec(), u"przerwano"_s);
  EXPECT_TRUE(wynik.bledy.contains(u"Aktualizacja przerwana przez operatora"_s));
  EXPECT_EQ(wynik.Liczba(u"dodanych"_s), s.Towarow());
  EXPECT_GT(s.Towarow(), 0);
  EXPECT_LT(s.Towarow(), kTowarow);
  Dokoncz(s);
}

TEST(Awarie, ZabityProgramNieZostawiaPolowyRekordu) {
  const Stanowisko s;
  s.Zapisz(u"towary"_s, DuzyPlik(kTowarow));
  const auto proces = s.Zacznij(s.SlowaImportu(u"towary"_s));
  PoczekajNaTowary(s, *proces, 1000);
  proces->kill();
  proces->waitForFinished();
  ASSERT_EQ(proces->exitStatus(), QProcess::CrashExit);
  EXPECT_GE(s.Towarow(), 1000);
  EXPECT_LT(s.Towarow(), kTowarow);
  SprawdzCalosc(s);
  Dokoncz(s);
}

TEST(Awarie, DwaImportyNaRaz) {
  const Stanowisko s;
  s.Zapisz(u"towary"_s, DuzyPlik(kTowarow / 4));
  const auto pierwszy = s.Zacznij(s.SlowaImportu(u"towary"_s));
  const auto drugi = s.Zacznij(
      {u"import-towarow"_s, u"towary"_s, u"--baza"_s, u"baza.db"_s, u"--pominiete"_s, u"/"_s, u"--json"_s});
  const Wynik a = Stanowisko::Zakoncz(*pierwszy);
  const Wynik b = Stanowisko::Zakoncz(*drugi);
  EXPECT_EQ(a.status, 0) << a.bledy.toStdString();
  EXPECT_EQ(b.status, 0) << b.bledy.toStdString();
  EXPECT_EQ(a.Liczba(u"dodanych"_s) + b.Liczba(u"dodanych"_s), kTowarow / 4);
  EXPECT_EQ(s.Towarow(), kTowarow / 4);
  EXPECT_EQ(s.Ile("select cast(count(*) as text) from Asort where Nazwa like 'Asortyment%'"), 7);
  SprawdzCalosc(s);
}

void TylkoDoOdczytu() {
  // The superuser may write everything unless this is taken from him.
  if (geteuid() == 0) prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
}

void MalyDysk() {
  const rlimit limit{1 << 20, 1 << 20};
  setrlimit(RLIMIT_FSIZE, &limit);
}

// The run ends with the reason and says how much is saved; what it says is there.
void SprawdzKoniecZBledem(const Stanowisko& s, const Wynik& wynik, const QString& powod) {
  EXPECT_EQ(wynik.status, 4);
  EXPECT_EQ(wynik.Koniec(), u"blad"_s);
  EXPECT_TRUE(wynik.bledy.contains(powod)) << wynik.bledy.toStdString();
  EXPECT_TRUE(wynik.bledy.contains(u"apisano w bazie"_s)) << wynik.bledy.toStdString();
  EXPECT_EQ(wynik.Liczba(u"dodanych"_s), s.Towarow());
  EXPECT_LT(s.Towarow(), kTowarow);
  SprawdzCalosc(s);
}

TEST(Awarie, BazaPelnaZablokowanaTylkoDoOdczytu) {
  const Stanowisko s;
  s.Zapisz(u"towary"_s, DuzyPlik(kTowarow));
  const QStringList slowa = s.SlowaImportu(u"towary"_s);
  const std::string baza = s.Sciezka(u"baza.db"_s).toStdString();
  chmod(baza.c_str(), 0444);
  SprawdzKoniecZBledem(s, s.Uruchom(slowa, TylkoDoOdczytu), u"tylko do odczytu"_s);
  chmod(baza.c_str(), 0644);
  {
    TVLTBazaDanych inny;
    s.Polacz(inny);
    inny.StartTransakcji();
    SprawdzKoniecZBledem(s, s.Uruchom(slowa), u"zablokowana"_s);
    inny.WycofTransakcji();
  }
  SprawdzKoniecZBledem(s, s.Uruchom(slowa, MalyDysk), u"zapisu"_s);
  Dokoncz(s);
}

TEST(Awarie, NiedokonczonaNowaBazaZnika) {
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
