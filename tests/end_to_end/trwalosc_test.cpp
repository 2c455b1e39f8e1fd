#include <csignal>

#include <QDir>
#include <QScopeGuard>
#include <QThread>

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/end_to_end/pliki_towarow.h"
#include "tests/end_to_end/stanowisko.h"

namespace {

// What was saved, copied or exported is there after a kill, a power cut or somebody else's hand, or the
// program says that it is not.
class Trwalosc : public testing::Test {
 protected:
  void SetUp() override {
    if (NaSerwerze()) GTEST_SKIP() << "files of an embedded database";
  }
  void Napelnij() const {
    TVLTBazaDanych baza;
    s.Polacz(baza);
    baza.ExecSQL(
        "with recursive c(n) as (select 1 union all select n + 1 from c where n < 8000)"
        " insert into Towar (Nazwa, Skrot, Kod, Opis1) select 'Żuk ' || n, n, n, '" +
        std::string(200, '0') + "' from c");
  }
  static QStringList Slowa(const QString& plik, const QString& baza = u"baza.db"_s) {
    return {u"eksport-towarow"_s, plik, u"--baza"_s, baza, u"--pominiete"_s, u"."_s, u"--json"_s};
  }
  QFileInfoList Porzucone(const QString& folder = u"."_s) const {
    return QDir(s.Sciezka(folder)).entryInfoList({u".zorvik-*"_s}, QDir::Files | QDir::Hidden);
  }
  mode_t Prawa(const QString& nazwa) const { return Opis(nazwa).st_mode & 07777; }
  struct stat Opis(const QString& nazwa) const {
    struct stat opis {};
    stat(s.Sciezka(nazwa).toStdString().c_str(), &opis);
    return opis;
  }
  // What the program does while the disk confirms writes to files whose path ends so only `po` times.
  Wynik PrzyZepsutymDysku(const char* sciezka, const QStringList& slowa, int po = 0) const {
    qputenv("LD_PRELOAD", ZORVIK_ZEPSUTY_FSYNC);
    qputenv("ASAN_OPTIONS", "verify_asan_link_order=0");
    qputenv("ZEPSUTY_FSYNC", sciezka);
    qputenv("ZEPSUTY_FSYNC_PO", QByteArray::number(po));
    const auto napraw = qScopeGuard([] {
      for (const char* nazwa : {"LD_PRELOAD", "ZEPSUTY_FSYNC", "ZEPSUTY_FSYNC_PO", "ASAN_OPTIONS"})
        qunsetenv(nazwa);
    });
    return s.Uruchom(slowa);
  }
  const Stanowisko s;
};

void BezWladzyNadPlikami() {
  // The superuser may write everything unless this is taken from him.
  if (geteuid() != 0) return;
  prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
  prctl(PR_CAPBSET_DROP, CAP_CHOWN);
}

TEST_F(Trwalosc, ZabityEksportZostawiaDawnyPlik) {
  Napelnij();
  s.Zapisz(u"plik.txt"_s, "dawny");
  int wPolowie = 0;
  for (const qint64 od : {10, 300'000, 600'000, 900'000, 1'200'000, 1'500'000}) {
    const auto proces = s.Zacznij(Slowa(u"plik.txt"_s));
    const auto urosl = [&] {
      const QFileInfoList pliki = Porzucone();
      return QFileInfo(pliki.isEmpty() ? s.Sciezka(u"plik.txt"_s) : pliki.first().filePath()).size() >= od;
    };
    while (proces->state() == QProcess::Running && !urosl()) proces->waitForFinished(1);
    proces->kill();
    proces->waitForFinished();
    if (proces->exitStatus() == QProcess::NormalExit) s.Zapisz(u"plik.txt"_s, "dawny");  // it was too fast
    EXPECT_EQ(s.Odczytaj(u"plik.txt"_s), "dawny");
    wPolowie += static_cast<int>(Porzucone().size());
    EXPECT_LE(Porzucone().size(), 1);  // the next export removes what this one has left
  }
  EXPECT_GT(wPolowie, 2);
  EXPECT_EQ(s.Uruchom(Slowa(u"plik.txt"_s)).status, 0);
  EXPECT_EQ(s.Odczytaj(u"plik.txt"_s).count("\r\n"), 8001);
  EXPECT_TRUE(Porzucone().isEmpty());
}

TEST_F(Trwalosc, PodmianaZachowujePrawaIDowiazania) {
  const auto sciezka = [&](const char* nazwa) { return s.Sciezka(QString::fromUtf8(nazwa)).toStdString(); };
  for (const char* nazwa : {"prawa", "cel", "drugi"}) s.Zapisz(QString::fromUtf8(nazwa), "dawny");
  chmod(sciezka("prawa").c_str(), 0640);
  const bool root = geteuid() == 0;
  EXPECT_EQ(root ? chown(sciezka("prawa").c_str(), 1234, 4321) : 0, 0);
  const struct stat przed = Opis(u"prawa"_s);
  EXPECT_EQ(symlink("cel", sciezka("dowiązanie").c_str()), 0);
  EXPECT_EQ(symlink("nowy", sciezka("w próżnię").c_str()), 0);
  EXPECT_EQ(link(sciezka("drugi").c_str(), sciezka("drugi z nazw").c_str()), 0);
  for (const char* nazwa : {"prawa", "dowiązanie", "w próżnię", "drugi"})
    EXPECT_EQ(s.Uruchom(Slowa(QString::fromUtf8(nazwa))).status, 0) << nazwa;
  for (const char* nazwa : {"prawa", "cel", "nowy", "drugi", "drugi z nazw"})
    EXPECT_TRUE(s.Odczytaj(QString::fromUtf8(nazwa)).startsWith("Kod towaru\t")) << nazwa;
  EXPECT_EQ(Prawa(u"prawa"_s), 0640u);
  EXPECT_EQ(Opis(u"prawa"_s).st_uid, przed.st_uid);
  EXPECT_EQ(Opis(u"prawa"_s).st_gid, przed.st_gid);
  EXPECT_NE(Opis(u"prawa"_s).st_ino, przed.st_ino);
  EXPECT_TRUE(QFileInfo(s.Sciezka(u"dowiązanie"_s)).isSymLink());
  // A file that may not be written is refused, though its folder would let it be replaced.
  chmod(sciezka("cel").c_str(), 0444);
  EXPECT_EQ(s.Uruchom(Slowa(u"cel"_s), BezWladzyNadPlikami).status, 3);
}

TEST_F(Trwalosc, FolderKtoryNiePrzyjmujePlikow) {
  ASSERT_TRUE(QDir(s.Sciezka(u"."_s)).mkdir(u"zamknięty"_s));
  const std::string folder = s.Sciezka(u"zamknięty"_s).toStdString();
  const auto otworz = qScopeGuard([&] { chmod(folder.c_str(), 0755); });
  s.Zapisz(u"zamknięty/plik.txt"_s, "dawny");
  EXPECT_TRUE(QFile::copy(s.Sciezka(u"baza.db"_s), s.Sciezka(u"zamknięty/inna.db"_s)));
  chmod(folder.c_str(), 0555);
  const Wynik wMiejscu = s.Uruchom(Slowa(u"zamknięty/plik.txt"_s), BezWladzyNadPlikami);
  EXPECT_EQ(wMiejscu.status, 0) << wMiejscu.bledy.toStdString();
  EXPECT_TRUE(s.Odczytaj(u"zamknięty/plik.txt"_s).startsWith("Kod towaru\t"));
  EXPECT_EQ(wMiejscu.Json()[u"uwagi"_s].toArray().at(0)[u"rodzaj"_s].toString(), u"zapis-w-miejscu"_s);
  EXPECT_TRUE(wMiejscu.bledy.contains(u"który nie przyjmuje nowych plików"_s))
      << wMiejscu.bledy.toStdString();

  // A database there can be read, but not written; with a log that nobody can use it is not whole.
  const Wynik eksport = s.Uruchom(Slowa(u"plik.txt"_s, u"zamknięty/inna.db"_s), BezWladzyNadPlikami);
  EXPECT_EQ(eksport.status, 0) << eksport.bledy.toStdString();
  EXPECT_EQ(s.Odczytaj(u"plik.txt"_s), s.Odczytaj(u"zamknięty/plik.txt"_s));
  s.Zapisz(u"plik"_s, DuzyPlik(1));
  QStringList import = s.SlowaImportu(u"plik"_s);
  import.replace(import.indexOf(u"baza.db"_s), u"zamknięty/inna.db"_s);
  const Wynik zapis = s.Uruchom(import, BezWladzyNadPlikami);
  EXPECT_EQ(zapis.status, 4);
  EXPECT_TRUE(zapis.bledy.contains(u"tylko do odczytu"_s)) << zapis.bledy.toStdString();
  chmod(folder.c_str(), 0755);
  s.Zapisz(u"zamknięty/inna.db-wal"_s, "coś");
  chmod(folder.c_str(), 0555);
  const Wynik dziennik = s.Uruchom(Slowa(u"plik.txt"_s, u"zamknięty/inna.db"_s), BezWladzyNadPlikami);
  EXPECT_EQ(dziennik.status, 3);
  EXPECT_TRUE(dziennik.bledy.contains(u"jest dziennik"_s)) << dziennik.bledy.toStdString();
}

TEST_F(Trwalosc, DyskKtoryNiePotwierdzaZapisu) {
  s.Zapisz(u"plik"_s, DuzyPlik(10));
  const Wynik import = PrzyZepsutymDysku("/baza.db", s.SlowaImportu(u"plik"_s));
  EXPECT_EQ(import.status, 4);
  EXPECT_EQ(import.Liczba(u"dodanych"_s), 10);
  EXPECT_TRUE(import.MaKomunikat(u"Wystąpił błąd"_s, u"Dysk nie potwierdził zapisu bazy danych"_s));
  EXPECT_TRUE(import.bledy.contains(u"do rekordu 10 włącznie. Nie ma jednak pewności, że przetrwa"_s))
      << import.bledy.toStdString();
  EXPECT_EQ(s.Uruchom(s.SlowaImportu(u"plik"_s)).status, 0);

  const Wynik nowa = PrzyZepsutymDysku("/nowa.db", {u"nowa-baza"_s, u"nowa.db"_s}, 1);
  EXPECT_EQ(nowa.status, 4);
  EXPECT_TRUE(nowa.bledy.contains(u"Dysk nie potwierdził"_s)) << nowa.bledy.toStdString();
  const Wynik kopia = PrzyZepsutymDysku(".tmp", {u"kopia-bazy"_s, u"kopia.db"_s, u"--baza"_s, u"baza.db"_s});
  EXPECT_EQ(kopia.status, 4) << kopia.bledy.toStdString();
  const Wynik eksport = PrzyZepsutymDysku(".tmp", Slowa(u"plik.txt"_s));
  EXPECT_EQ(eksport.status, 4);
  EXPECT_EQ(eksport.Liczba(u"rekordow"_s), 0);
  EXPECT_TRUE(eksport.MaKomunikat(u"Wystąpił błąd"_s, u"Błąd zapisu do pliku plik.txt"_s));
  EXPECT_EQ(s.Odczytaj(u"plik.txt"_s).count("\r\n"), 11);
  for (const QString& nazwa : {u"nowa.db"_s, u"nowa.db-wal"_s, u"kopia.db"_s})
    EXPECT_FALSE(QFile::exists(s.Sciezka(nazwa))) << nazwa.toStdString();
  EXPECT_TRUE(Porzucone().isEmpty());
}

TEST_F(Trwalosc, BazaZnikaWTrakcieImportu) {
  s.Zapisz(u"plik"_s, DuzyPlik(12'000));
  ASSERT_TRUE(QFile::copy(s.Sciezka(u"baza.db"_s), s.Sciezka(u"pusta.db"_s)));
  const std::string baza = s.Sciezka(u"baza.db"_s).toStdString();
  const std::pair<const char16_t*, std::function<void()>> przypadki[] = {
      {u"został usunięty", [&] { unlink(baza.c_str()); }},
      {u"jest teraz inny plik",
       [&] { rename(s.Sciezka(u"pusta.db"_s).toStdString().c_str(), baza.c_str()); }}};
  for (const auto& [powod, zniszcz] : przypadki) {
    const auto proces = s.Zacznij(s.SlowaImportu(u"plik"_s));
    while (proces->state() == QProcess::Running && s.Towarow() < 100) QThread::msleep(5);
    zniszcz();
    const Wynik wynik = Stanowisko::Zakoncz(*proces);
    EXPECT_EQ(wynik.status, 4);
    EXPECT_EQ(wynik.Liczba(u"dodanych"_s) + wynik.Liczba(u"rekordow"_s), 0);
    EXPECT_TRUE(wynik.bledy.contains(QStringView(powod))) << wynik.bledy.toStdString();
    EXPECT_TRUE(wynik.bledy.contains(u"Niczego z tego przebiegu nie można uznać za zapisane"_s));
    for (const QString& plik : {u"baza.db"_s, u"baza.db-wal"_s, u"baza.db-shm"_s})
      QFile::remove(s.Sciezka(plik));
    EXPECT_EQ(s.Uruchom({u"nowa-baza"_s, u"baza.db"_s}).status, 0);
  }
}

TEST_F(Trwalosc, KopiaBazyPodczasPracy) {
  s.Zapisz(u"plik"_s, DuzyPlik(12'000));
  const auto import = s.Zacznij(s.SlowaImportu(u"plik"_s));
  while (import->state() == QProcess::Running && s.Towarow() < 100) QThread::msleep(5);
  const QStringList kopiuj{u"kopia-bazy"_s, u"kopia.db"_s, u"--baza"_s, u"baza.db"_s};
  const Wynik kopia = s.Uruchom(kopiuj);
  EXPECT_EQ(kopia.status, 0) << kopia.bledy.toStdString();
  EXPECT_EQ(Stanowisko::Zakoncz(*import).status, 0);
  EXPECT_EQ(s.Towarow(), 12'000);
  const QByteArray bajty = s.Odczytaj(u"kopia.db"_s);
  {
    TVLTBazaDanych baza(*ParametryPolaczenia::ZTekstu(s.Sciezka(u"kopia.db"_s)));
    baza.Polacz();
    const auto jeden = [&](std::string_view sql) {
      auto odczyt = baza.Otworz(sql, {TypPola::Tekst});
      return odczyt.Nastepny() ? odczyt[0].AsString() : QString();
    };
    EXPECT_EQ(jeden("pragma integrity_check"), u"ok"_s);
    EXPECT_EQ(jeden("pragma journal_mode"), u"wal"_s);
    EXPECT_GE(jeden("select count(*) from Towar").toInt(), 100);
    EXPECT_EQ(jeden("select count(*) from Towar"), jeden("select count(*) from KodDod"));
  }
  const Wynik druga = s.Uruchom(kopiuj);
  EXPECT_EQ(druga.status, 3);
  EXPECT_TRUE(druga.bledy.contains(u"już istnieje"_s)) << druga.bledy.toStdString();
  EXPECT_EQ(s.Odczytaj(u"kopia.db"_s), bajty);
  EXPECT_TRUE(Porzucone().isEmpty());
  const Wynik serwera = s.Uruchom({u"kopia-bazy"_s, u"inna.db"_s, u"--baza"_s, u"odbc:DSN=brak"_s});
  EXPECT_EQ(serwera.status, 3);
  EXPECT_TRUE(serwera.bledy.contains(u"pg_dump"_s)) << serwera.bledy.toStdString();
}

}  // namespace
