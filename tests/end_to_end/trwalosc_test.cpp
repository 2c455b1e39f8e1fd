#include <csignal>

#include <QDir>
#include <QScopeGuard>
#include <QThread>

#include <sys/stat.h>
#include <unistd.h>

#include "platform/baza/transakcja.h"
#include "tests/end_to_end/ograniczenia.h"
#include "tests/end_to_end/pliki_towarow.h"

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
        std::string(600, '0') + "' from c");
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
  const std::tuple<const char16_t*, const char*, int> dzienniki[] = {{u"zamknięty/inna.db-wal", "coś", 3},
                                                                     {u"zamknięty/inna.db-shm", "", 3},
                                                                     {u"zamknięty/inna.db-wal", "", 0}};
  for (const auto& [plik, bajty, status] : dzienniki) {
    const QString nazwa = QString::fromUtf16(plik);
    chmod(folder.c_str(), 0755);
    s.Zapisz(nazwa, bajty);
    chmod(folder.c_str(), 0555);
    const Wynik wynik = s.Uruchom(Slowa(u"plik.txt"_s, u"zamknięty/inna.db"_s), BezWladzyNadPlikami);
    EXPECT_EQ(wynik.status, status) << nazwa.toStdString() << bajty;
    EXPECT_EQ(wynik.bledy.contains(u"jest dziennik"_s), status != 0) << wynik.bledy.toStdString();
    chmod(folder.c_str(), 0755);
    EXPECT_TRUE(QFile::remove(s.Sciezka(nazwa)));
  }
}

// Nothing keeps others from changing a file that is read without a log: it is looked at again at the end.
TEST_F(Trwalosc, BazaZmienionaPodczasOdczytuBezDziennika) {
  Napelnij();
  const std::string folder = s.Sciezka(u"."_s).toStdString();
  QFile potok(s.Sciezka(u"potok"_s));
  ASSERT_EQ(mkfifo(potok.fileName().toStdString().c_str(), 0600), 0);
  chmod(folder.c_str(), 0555);
  const auto eksport = s.Zacznij(Slowa(u"potok"_s), BezWladzyNadPlikami);
  ASSERT_TRUE(potok.open(QIODevice::ReadOnly));  // the export stands where the pipe is full
  EXPECT_EQ(potok.read(1).size(), 1);
  chmod(folder.c_str(), 0755);
  {
    TVLTBazaDanych inny;
    s.Polacz(inny);
    inny.ExecSQL("insert into Asort (Nazwa) values ('Nowy')");
  }
  EXPECT_EQ(potok.readAll().count("\r\n"), 8001);
  const Wynik wynik = Stanowisko::Zakoncz(*eksport);
  EXPECT_EQ(wynik.status, 4);
  EXPECT_TRUE(wynik.bledy.contains(u"Inny program zmienił bazę w trakcie odczytu"_s))
      << wynik.bledy.toStdString();
}

TEST_F(Trwalosc, DyskKtoryNiePotwierdzaZapisu) {
  TVLTBazaDanych czytelnik;
  std::optional<OdczytJednejChwili> chwila;
  // Whoever reads keeps the log from being moved: it is the log then that the disk has to confirm, for the
  // second time after the beginning of the log.
  for (const auto& [sciezka, po, rekordow] : {std::tuple{"/baza.db", 0, 10}, {"-wal", 1, 20}}) {
    SCOPED_TRACE(sciezka);
    s.Zapisz(u"plik"_s, DuzyPlik(rekordow));
    const Wynik import = PrzyZepsutymDysku(sciezka, s.SlowaImportu(u"plik"_s), po);
    EXPECT_EQ(import.status, 4);
    EXPECT_EQ(import.Liczba(u"dodanych"_s), 10);
    EXPECT_TRUE(import.MaKomunikat(u"Wystąpił błąd"_s, u"Dysk nie potwierdził zapisu bazy danych"_s));
    EXPECT_TRUE(
        import.bledy.contains(u"do rekordu %1 włącznie. Nie ma jednak pewności, że przetrwa"_s.arg(rekordow)))
        << import.bledy.toStdString();
    EXPECT_EQ(s.Uruchom(s.SlowaImportu(u"plik"_s)).status, 0);
    if (chwila) continue;
    s.Polacz(czytelnik);
    chwila.emplace(czytelnik);
    czytelnik.Otworz("select Nazwa from Towar", {TypPola::Tekst}).Nastepny();
  }

  const Wynik nowa = PrzyZepsutymDysku("/nowa.db", {u"nowa-baza"_s, u"nowa.db"_s}, 1);
  EXPECT_EQ(nowa.status, 4);
  EXPECT_TRUE(nowa.bledy.contains(u"Dysk nie potwierdził"_s)) << nowa.bledy.toStdString();
  const Wynik kopia = PrzyZepsutymDysku(".tmp", {u"kopia-bazy"_s, u"kopia.db"_s, u"--baza"_s, u"baza.db"_s});
  EXPECT_EQ(kopia.status, 4) << kopia.bledy.toStdString();
  const Wynik eksport = PrzyZepsutymDysku(".tmp", Slowa(u"plik.txt"_s));
  EXPECT_EQ(eksport.status, 4);
  EXPECT_EQ(eksport.Liczba(u"rekordow"_s), 0);
  EXPECT_TRUE(eksport.MaKomunikat(u"Wystąpił błąd"_s, u"Błąd zapisu do pliku plik.txt"_s));
  EXPECT_EQ(s.Odczytaj(u"plik.txt"_s).count("\r\n"), 21);
  for (const QString& nazwa : {u"nowa.db"_s, u"nowa.db-wal"_s, u"kopia.db"_s})
    EXPECT_FALSE(QFile::exists(s.Sciezka(nazwa))) << nazwa.toStdString();
  EXPECT_TRUE(Porzucone().isEmpty());
}

TEST_F(Trwalosc, BazaZnikaWTrakcieImportu) {
  s.Zapisz(u"plik"_s, DuzyPlik(12'000));
  const auto proces = s.Zacznij(s.SlowaImportu(u"plik"_s));
  while (proces->state() == QProcess::Running && s.Towarow() < 100) QThread::msleep(5);
  EXPECT_TRUE(QFile::remove(s.Sciezka(u"baza.db"_s)));
  const Wynik wynik = Stanowisko::Zakoncz(*proces);
  EXPECT_EQ(wynik.status, 4);
  EXPECT_EQ(wynik.Liczba(u"dodanych"_s) + wynik.Liczba(u"rekordow"_s), 0);
  EXPECT_TRUE(wynik.bledy.contains(u"został usunięty"_s)) << wynik.bledy.toStdString();
  EXPECT_TRUE(wynik.bledy.contains(u"Niczego z tego przebiegu nie można uznać za zapisane"_s));
}

TEST_F(Trwalosc, KopiaBazyCalaAlboZadna) {
  Napelnij();  // more pages than are copied before a stop is looked for
  const QStringList kopiuj{u"kopia-bazy"_s, u"kopia.db"_s, u"--baza"_s, u"baza.db"_s};
  const auto sprawdz = [&](const Wynik& wynik, int status, const QString& powod) {
    EXPECT_EQ(wynik.status, status);
    EXPECT_TRUE(wynik.bledy.contains(powod)) << wynik.bledy.toStdString();
    EXPECT_EQ(QFile::exists(s.Sciezka(u"kopia.db"_s)), status == 0);
    EXPECT_TRUE(Porzucone().isEmpty());
  };
  sprawdz(s.Uruchom(kopiuj, MalyDysk), 4, u"Błąd odczytu lub zapisu pliku bazy danych"_s);

  // Ctrl-C while the program waits for the lock of the base: the copy is stopped after its first pages.
  QFile baza(s.Sciezka(u"baza.db"_s));
  ASSERT_TRUE(baza.open(QIODevice::ReadWrite));
  ASSERT_EQ(lseek(baza.handle(), 1 << 30, SEEK_SET), 1 << 30);  // where SQLite has its locks
  ASSERT_EQ(lockf(baza.handle(), F_TLOCK, 512), 0);
  const auto proces = s.Zacznij(kopiuj, [] { signal(SIGINT, SIG_IGN); });
  proces->setReadChannel(QProcess::StandardError);
  do kill(static_cast<pid_t>(proces->processId()), SIGINT);
  while (!proces->waitForReadyRead(20) && proces->state() == QProcess::Running);  // until it says so
  baza.close();
  sprawdz(Stanowisko::Zakoncz(*proces), 5, u"Kopiowanie przerwano, pliku nie utworzono"_s);

  sprawdz(s.Uruchom(kopiuj), 0, {});
  const QByteArray bajty = s.Odczytaj(u"kopia.db"_s);
  {
    TVLTBazaDanych kopia(*ParametryPolaczenia::ZTekstu(s.Sciezka(u"kopia.db"_s)));
    kopia.Polacz();
    for (const auto& [sql, wartosc] : {std::pair{"pragma integrity_check", u"ok"_s},
                                       {"pragma journal_mode", u"wal"_s},
                                       {"select count(*) from Towar", u"8000"_s}}) {
      auto odczyt = kopia.Otworz(sql, {TypPola::Tekst});
      EXPECT_TRUE(odczyt.Nastepny());
      EXPECT_EQ(odczyt[0].AsString(), wartosc);
    }
  }
  const Wynik druga = s.Uruchom(kopiuj);
  EXPECT_EQ(druga.status, 3);
  EXPECT_TRUE(druga.bledy.contains(u"już istnieje"_s)) << druga.bledy.toStdString();
  EXPECT_EQ(s.Odczytaj(u"kopia.db"_s), bajty);
  const Wynik serwera = s.Uruchom({u"kopia-bazy"_s, u"inna.db"_s, u"--baza"_s, u"odbc:DSN=brak"_s});
  EXPECT_EQ(serwera.status, 3);
  EXPECT_TRUE(serwera.bledy.contains(u"pg_dump"_s)) << serwera.bledy.toStdString();
}

}  // namespace
