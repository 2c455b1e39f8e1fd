#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "platform/baza/dialekt.h"
#include "platform/baza/napis_odbc.h"
#include "platform/baza/transakcja.h"
#include "tests/wspolne/baza_testowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(ParametryPolaczenia, TekstINapisDlaLudzi) {
  const struct {
    QString tekst, opis;
    bool haslo;
  } przypadki[] = {
      {u"/a/b.db"_s, u"/a/b.db"_s, false},
      {u"ODBC: sklep "_s, u"odbc:sklep"_s, false},
      {u"odbc:@/a/plik"_s, u"odbc:@/a/plik"_s, false},
      {u"odbc:DSN=sklep;UID=ja"_s, u"odbc:DSN=sklep;UID=ja"_s, false},
      {u"odbc:DSN=sklep;pwd={taj;n}}e};UID=ja"_s, u"odbc:DSN=sklep;UID=ja;"_s, true},
      {u"odbc:Driver={P;Q};PASSWORD=x"_s, u"odbc:Driver={P;Q};"_s, true},
  };
  for (const auto& p : przypadki) {
    const auto parametry = *ParametryPolaczenia::ZTekstu(p.tekst);
    EXPECT_EQ(parametry.Opis(), p.opis);
    EXPECT_EQ(parametry.MaHaslo(), p.haslo);
    EXPECT_EQ(ParametryPolaczenia::ZTekstu(parametry.Tekst())->cel, parametry.cel);
  }
  auto zHaslem = *ParametryPolaczenia::ZTekstu(u"odbc:sklep"_s);
  zHaslem.UstawHaslo(u"a;b}"_s);
  EXPECT_EQ(zHaslem.cel, u"DSN=sklep;PWD={a;b}}};");
  EXPECT_EQ(ParametryPolaczenia::ZTekstu(u"odbc:"_s), std::nullopt);
}

TEST(Dialekt, SlowaInneNaSerwerze) {
  EXPECT_EQ(DialektPostgresql().Przeloz("update P set Do = :Do where Nazwa = 'Do getdate()' and Dom = 1"),
            "update P set \"do\" = :Do where Nazwa = 'Do getdate()' and Dom = 1");
  EXPECT_EQ(DialektPostgresql().Przeloz("select P.Do from T order by rowid"),
            "select P.\"do\" from T order by ctid");
  EXPECT_EQ(DialektTsql().Przeloz("select 'ą''ę', 'c', '''ć', '' where A = :rowid and B = 'd''ń'"),
            "select N'ą''ę', 'c', N'''ć', '' where A = :rowid and B = N'd''ń'");
  EXPECT_EQ(DialektTsql().Pierwsze(3, "select A from T"), "select top 3 A from T");
}

// The driver keeps no log, neither in a file of its own nor where somebody has pointed its name to.
TEST(SterownikOdbc, NiePiszeDziennika) {
  if (!NaSerwerze()) GTEST_SKIP() << "of servers only";
  const QTemporaryDir folder;
  const QString cel = folder.filePath(u"cel.txt"_s);
  const QString koniec = QString::fromLocal8Bit(getpwuid(geteuid())->pw_name) + u"%1.log"_s.arg(getpid());
  const auto dzienniki = [&] {
    return QDir(u"/tmp"_s).entryList({u'*' + koniec}, QDir::System | QDir::Files);
  };
  // What another program, gone by now, has left under the number that is this one's today.
  for (const QString& dawny : dzienniki()) QFile::remove(u"/tmp/"_s + dawny);
  for (const QString& nazwa :
       {u"psqlodbc_"_s, u"mylog_"_s, u"psqlodbc_test_platform_"_s, u"mylog_test_platform_"_s})
    EXPECT_TRUE(QFile::link(cel, u"/tmp/"_s + nazwa + koniec));
  const QStringList podlozone = dzienniki();
  int polaczen = 0;
  for (const QString& dopisek :
       {QString(), u";CommLog=1;Debug=1"_s, u";B3=1;B2=1"_s, u";Database=nie_ma"_s}) {
    TVLTBazaDanych baza(*ParametryPolaczenia::ZTekstu(u"odbc:"_s + BazaSerwera::Serwer() + dopisek));
    try {
      baza.Polacz();
      ++polaczen;
    } catch (const EBladBazy&) {
    }
  }
  EXPECT_EQ(polaczen, 3);
  EXPECT_FALSE(QFile::exists(cel));
  EXPECT_EQ(podlozone.size(), 4);
  EXPECT_EQ(dzienniki(), podlozone);
  for (const QString& nazwa : dzienniki()) QFile::remove(u"/tmp/"_s + nazwa);
}

class Serwer : public testing::Test {
 protected:
  Serwer() { m_b.emplace(); }
  void SetUp() override {
    if (!NaSerwerze()) GTEST_SKIP() << "of servers only";
    const Dialekt& d = b().baza.Jezyk();
    b().baza.ExecSQL("create table T (Id " + d.TypAutoKlucz() + ", Nazwa " + d.TypTekst(1000) +
                     " unique, Opis " + d.TypTekst(100'000) + ", Liczba integer, Czas " + d.TypCzas() + ")");
  }
  BazaTestowa& b() { return *m_b; }
  void Dodaj(TVLTBazaDanych& baza, const QString& nazwa) {
    baza.ExecSQL("insert into T (Nazwa) values (:Nazwa)", {{"Nazwa", nazwa}});
  }
  // One record of a batch, as the program saves it.
  void Zapisz(TVLTBazaDanych& baza, const QString& nazwa) {
    try {
      JednostkaZapisu jednostka(baza);
      Dodaj(baza, nazwa);
      jednostka.Zatwierdz();
    } catch (const EBladBazy& blad) {
      EXPECT_EQ(blad.Rodzaj(), RodzajBleduBazy::Ograniczenie) << blad.MacDescription().toStdString();
      EXPECT_FALSE(blad.MacDescription().contains(nazwa)) << "a bound value";
    }
  }
  QString Nazwy() { return b().Kolumna("select Nazwa from T order by Nazwa"); }

 private:
  std::optional<BazaTestowa> m_b;
};

// Texts longer in bytes than in characters, and than any buffer; what does not fit is refused, never cut.
TEST_F(Serwer, TekstyWracajaCaleAlboWcale) {
  for (const qsizetype znakow : {1, 127, 128, 255, 256, 257, 1000}) {
    const QString nazwa(znakow, u'ż');
    const QString opis = QString(znakow * 100, u'ą') + u"\n\r\n'\"\\%_:;?"_s.left(znakow > 999 ? 0 : -1);
    b().baza.ExecSQL("insert into T (Nazwa, Opis) values (:Nazwa, :Opis)",
                     {{"Nazwa", nazwa}, {"Opis", opis}});
    auto odczyt = b().baza.Otworz("select Nazwa, Opis from T where Nazwa = :Nazwa",
                                  {TypPola::Tekst, TypPola::Tekst}, {{"Nazwa", nazwa}});
    ASSERT_TRUE(odczyt.Nastepny());
    EXPECT_TRUE(odczyt[0].AsString() == nazwa && odczyt[1].AsString() == opis) << znakow;
  }
  for (const QString& zla : {QString(1001, u'x'), u"a"_s + QChar(0) + u"b"_s}) {
    try {
      Dodaj(b().baza, zla);
      ADD_FAILURE() << "accepted";
    } catch (const EBladBazy& blad) {
      EXPECT_EQ(blad.Rodzaj(), RodzajBleduBazy::Ograniczenie);
    }
  }
  EXPECT_EQ(b().Liczba("select count(*) from T"), 7);
  EXPECT_EQ(b().Tekst("select getdate()").size(), 19);
  // By the codes of letters, whatever the server's language.
  b().baza.ExecSQL("delete from T");
  for (const QString& nazwa : {u"ł"_s, u"a"_s, u"B"_s, u"z"_s}) Dodaj(b().baza, nazwa);
  EXPECT_EQ(Nazwy(), u"B,a,z,ł"_s);
}

// The database of the test as data sources that ask the driver for what loses data.
void ZapiszZrodla(const QString& plik, const QString& napis) {
  constexpr std::pair<const char*, const char*> kNazwy[] = {
      {"Server", "Servername"}, {"UID", "Username"}, {"PWD", "Password"}};
  QString polaczenie;
  for (AtrybutOdbc a : RozbierzNapisOdbc(napis)) {
    for (const auto& [wNapisie, wPliku] : kNazwy)
      if (a.klucz == QLatin1String(wNapisie)) a.klucz = QLatin1String(wPliku);
    polaczenie += a.klucz + u" = "_s + a.wartosc + u'\n';
  }
  QFile zrodla(plik);
  ASSERT_TRUE(zrodla.open(QIODevice::WriteOnly));
  for (const QString& protokol : {u"7.4-1"_s, u"7.4-2"_s})
    zrodla.write((u"[zle%1]\n%2Protocol = %1\nUseServerSidePrepare = 0\nUseDeclareFetch = 1\nLFConversion = "
                  "1\nCX = 1c20502bb\n"_s.arg(protokol, polaczenie))
                     .toUtf8());
  qputenv("ODBCINI", plik.toUtf8());
}

// Whatever the operator's text or data source asks of the driver.
TEST_F(Serwer, OdrzuconyRekordNieZabieraSasiadow) {
  const QTemporaryDir folder;
  const QString napis = b().Parametry().cel;
  ZapiszZrodla(folder.filePath(u"odbc.ini"_s), napis);
  for (const QString& cel :
       {napis, napis + u";Protocol=7.4-1;A1=7.4-1"_s, napis + u";UseServerSidePrepare=0;LFConversion=1"_s,
        napis + u";CX=1c20502bb;A1=7.4-2"_s, u"zle7.4-1"_s, u"zle7.4-2"_s, u"DSN=zle7.4-2"_s,
        u"DSN=zle7.4-1;CX=1c20502bb;protocol=7.4-2;usedeclarefetch=1"_s}) {
    SCOPED_TRACE(cel.section(u"PWD="_s, 1).section(u';', 1).toStdString() + cel.left(20).toStdString());
    b().baza.ExecSQL("delete from T");
    ParametryPolaczenia parametry = b().Parametry();
    parametry.cel = cel;
    TVLTBazaDanych baza(parametry);
    baza.Polacz();
    baza.StartTransakcji();
    for (const char* nazwa : {"pierwszy", "drugi", "pierwszy", "trzeci"})
      Zapisz(baza, QString::fromUtf8(nazwa));
    baza.KoniecTransakcji();
    EXPECT_EQ(Nazwy(), u"drugi,pierwszy,trzeci"_s);

    // An error outside of a unit spoils all of it, and the commit says so.
    baza.StartTransakcji();
    Dodaj(baza, u"czwarty"_s);
    EXPECT_THROW(Dodaj(baza, u"drugi"_s), EBladBazy);
    EXPECT_THROW(Dodaj(baza, u"piąty"_s), EBladBazy);
    EXPECT_THROW(baza.KoniecTransakcji(), EBladBazy);
    baza.WycofTransakcji();
    EXPECT_FALSE(baza.GetCzyWTransakcji());
    // One that somebody ended behind our back is not the one that was begun.
    baza.StartTransakcji();
    Dodaj(baza, u"szósty"_s);
    baza.ExecSQL("rollback");
    baza.ExecSQL("begin");
    Dodaj(baza, u"siódmy"_s);
    EXPECT_THROW(baza.KoniecTransakcji(), EBladBazy);
    baza.WycofTransakcji();
    EXPECT_EQ(Nazwy(), u"drugi,pierwszy,trzeci"_s);
  }
}

// Rows that still wait go with the transaction; keys are given upwards, also out of a block taken ahead.
TEST_F(Serwer, CzekajaceWierszeGinaZTransakcja) {
  TVLTBazaDanych& baza = b().baza;
  baza.GrupujZapisy(true);
  for (const bool zatwierdz : {false, true}) {
    baza.StartTransakcji();
    for (int i = 0; i < 6; ++i) {
      const Parametr nazwa[] = {{"Nazwa", QString::number(i)}};
      baza.WstawZKluczem("T", "Id", "insert into T (Nazwa) values (:Nazwa)", nazwa);
    }
    zatwierdz ? baza.KoniecTransakcji() : baza.WycofTransakcji();
  }
  EXPECT_EQ(b().Kolumna("select Nazwa from T order by Id"), u"0,1,2,3,4,5"_s);
}

TEST_F(Serwer, ZerwanePolaczenieKonczyTransakcje) {
  TVLTBazaDanych inna;
  b().Polacz(inna);
  inna.StartTransakcji();
  Dodaj(inna, u"x"_s);
  b().baza.ExecSQL(
      "select pg_terminate_backend(pid) from pg_locks where locktype = 'advisory'"
      " and objid = cast(to_regnamespace(current_schema()) as oid)");
  try {
    inna.KoniecTransakcji();
    ADD_FAILURE() << "committed";
  } catch (const EBladBazy& blad) {
    EXPECT_EQ(blad.Rodzaj(), RodzajBleduBazy::Polaczenie);
  }
  EXPECT_FALSE(inna.GetCzyWTransakcji());
  b().Polacz(inna);
  EXPECT_EQ(Nazwy(), QString());
}

// Which fault ends the run, which costs one record and which has the batch repeated.
TEST_F(Serwer, RodzajBleduZeStanuSql) {
  using R = RodzajBleduBazy;
  const std::pair<const char*, R> stany[] = {
      {"53100", R::PelnyDysk},    {"40001", R::Kolizja},      {"40P01", R::Kolizja},
      {"25006", R::TylkoOdczyt},  {"55P03", R::Blokada},      {"57014", R::Czas},
      {"42501", R::Uprawnienia},  {"58030", R::Wejscie},      {"XX001", R::Wejscie},
      {"53300", R::Polaczenie},   {"23505", R::Ograniczenie}, {"22001", R::Ograniczenie},
      {"54000", R::Ograniczenie}, {"42P01", R::Inny}};
  for (const auto& [stan, rodzaj] : stany) try {
      b().baza.ExecSQL(std::string("do $$begin raise exception 'x' using errcode = '") + stan + "'; end$$");
      ADD_FAILURE() << "no error";
    } catch (const EBladBazy& blad) {
      EXPECT_EQ(blad.Rodzaj(), rodzaj) << stan;
    }
}

TEST_F(Serwer, PolaczenieTylkoDoOdczytuMowiCzemu) {
  ParametryPolaczenia parametry = b().baza.Parametry();
  parametry.cel += u";ReadOnly=1"_s;
  TVLTBazaDanych inna(parametry);
  try {
    inna.Polacz();
    ADD_FAILURE() << "connected";
  } catch (const EBladBazy& blad) {
    EXPECT_EQ(blad.Rodzaj(), RodzajBleduBazy::TylkoOdczyt);
    EXPECT_TRUE(blad.MacDescription().section(u'\r', 0, 0).contains(u"ReadOnly=1"_s)) << blad.what();
  }
}

// Two importing programs take turns; who waits for longer than allowed is told.
TEST_F(Serwer, JedenImportNaRaz) {
  TVLTBazaDanych inna;
  b().Polacz(inna);
  b().baza.StartTransakcji();
  try {
    inna.StartTransakcji();
    ADD_FAILURE() << "both write";
  } catch (const EBladBazy& blad) {
    EXPECT_EQ(blad.Rodzaj(), RodzajBleduBazy::Blokada);
  }
  b().baza.KoniecTransakcji();
  inna.StartTransakcji();
  inna.WycofTransakcji();
}

}  // namespace
