#include <QRegularExpression>

#include "platform/baza/dialekt.h"
#include "tests/end_to_end/pliki_towarow.h"

namespace {

class Serwer : public testing::Test {
 protected:
  void SetUp() override {
    if (!NaSerwerze()) GTEST_SKIP() << "of servers only";
  }
};

// What the operator is told, and that no password is in it.
TEST_F(Serwer, PrzyczynyOdmowyPolaczenia) {
  const Stanowisko s;
  const QString haslo = BazaSerwera::Serwer().section(u"PWD="_s, 1).section(u';', 0, 0);
  const std::pair<QString, QString> przypadki[] = {
      {s.Serwer().Napis() + u";PWD=tajne"_s, u"odrzucił użytkownika lub hasło"_s},
      {s.Serwer().Napis() + u";Port=1"_s, u"Brak połączenia z bazą"_s},
      {s.Serwer().Napis() + u";Database=nie_ma"_s, u"Brak połączenia z bazą"_s},
      {u"Driver=nie ma;PWD="_s + haslo, u"Brak sterownika ODBC lub źródła danych"_s},
      {u"nie-ma-zrodla"_s, u"Brak sterownika ODBC lub źródła danych"_s},
      {s.Serwer().Napis() + u";pqopt={options=-cstatement_timeout=1 -csearch_path=pg_catalog}"_s, {}},
  };
  for (const auto& [napis, powod] : przypadki) {
    SCOPED_TRACE(powod.toStdString());
    s.Zapisz(u"inna.odbc"_s, napis.toStdString());
    const Wynik wynik = s.Uruchom({u"import-towarow"_s, u"x"_s, u"--baza"_s, u"odbc:@inna.odbc"_s});
    EXPECT_EQ(wynik.status, 3);
    EXPECT_TRUE(wynik.bledy.contains(powod)) << wynik.bledy.toStdString();
    EXPECT_FALSE((wynik.bledy + wynik.wyjscie).contains(haslo) || wynik.bledy.contains(u"tajne"_s));
    // What the driver says, for whoever looks after the server.
    for (const QString& linia : wynik.bledy.split(u'\n'))
      EXPECT_TRUE(linia.startsWith(u"Szczegóły: "_s) ||
                  !linia.contains(QRegularExpression(u"FATAL|ERROR|failed|select |Data source"_s)))
          << linia.toStdString();
  }
}

// Refused before anything is made.
TEST_F(Serwer, BazaTylkoWUnikodzie) {
  const Stanowisko s;
  const QString nazwa = s.Serwer().Nazwa() + u"_latin2"_s;
  BazaSerwera::Zlec(
      ("create database " + nazwa + " encoding 'LATIN2' locale_provider libc locale 'C' template template0")
          .toStdString());
  s.Zapisz(u"latin2.odbc"_s, (BazaSerwera::Serwer() + u";Database="_s + nazwa).toStdString());
  for (const QStringList& slowa :
       {QStringList{u"nowa-baza"_s}, QStringList{u"sprawdz-baze"_s, u"--baza"_s}}) {
    const Wynik wynik = s.Uruchom(slowa + QStringList{u"odbc:@latin2.odbc"_s});
    EXPECT_EQ(wynik.status, 3);
    EXPECT_TRUE((wynik.bledy + wynik.wyjscie).contains(u"koduje teksty jako LATIN2, a nie UTF8"_s))
        << wynik.bledy.toStdString();
  }
  {
    TVLTBazaDanych baza(
        *ParametryPolaczenia::ZTekstu(u"odbc:"_s + BazaSerwera::Serwer() + u";Database="_s + nazwa));
    baza.Polacz();
    EXPECT_FALSE(baza.Otworz(baza.Jezyk().ListaTabel(), {TypPola::Tekst}).Nastepny());
  }
  BazaSerwera::Zlec(("drop database " + nazwa).toStdString());
}

// The rights that the documentation names are enough, and the check misses every one that is taken away.
TEST_F(Serwer, WystarczajaPrawaZDokumentacji) {
  const QHash<QString, QString> kBraki{
      {u"insert"_s, u"dopisywania"_s}, {u"update"_s, u"poprawiania"_s}, {u"delete"_s, u"usuwania"_s}};
  const Stanowisko s(true);
  const QString rola = s.Serwer().Nazwa() + u"_osoba"_s;
  TVLTBazaDanych wlasciciel;
  s.Polacz(wlasciciel);
  const auto zlec = [&](const QString& sql) { wlasciciel.ExecSQL(sql.toStdString()); };
  zlec(u"create role %1 login password 'tajne'"_s.arg(rola));
  QFile opis(QStringLiteral(ZORVIK_ZRODLA "/docs/serwer.md"));
  ASSERT_TRUE(opis.open(QIODevice::ReadOnly));
  QStringList brakow;
  for (QString linia : QString::fromUtf8(opis.readAll()).split(u'\n')) {
    if (!linia.startsWith(u"    grant "_s)) continue;
    linia.replace(u" public "_s, u' ' + s.Serwer().Nazwa() + u' ')
        .replace(u" to zorvik;"_s, u" to "_s + rola);
    zlec(linia);
    static const QRegularExpression dane(u"grant (.*) on (.*) to "_s);
    const auto czesci = dane.match(linia);
    for (const QString& prawo : czesci.captured(1).split(u", "_s))
      if (const QString brak = kBraki.value(prawo); !brak.isEmpty())
        for (const QString& tabela : czesci.captured(2).split(u", "_s))
          brakow << u"Brak prawa "_s + brak + u" w tabeli "_s + tabela + u':';
  }
  EXPECT_EQ(brakow.size(), 46);
  s.Zapisz(u"baza.odbc"_s, (s.Serwer().Napis() + u";UID=%1;PWD=tajne"_s.arg(rola)).toStdString());
  const QStringList sprawdz{u"sprawdz-baze"_s, u"--baza"_s, s.Baza()};
  const Wynik dobrze = s.Uruchom(sprawdz);
  EXPECT_EQ(dobrze.status, 0) << dobrze.wyjscie.toStdString();
  for (const QString& rodzaj : {u"kontrahenci"_s, u"towary"_s}) {
    const QString plik = QStringLiteral(ZORVIK_ZRODLA "/database/demo/") + rodzaj;
    const bool towary = rodzaj == u"towary"_s;
    const Wynik wynik = s.Uruchom(s.SlowaImportu(plik + u".txt"_s, {u"--konfiguracja"_s, plik + u".cfg"_s},
                                                 towary ? u"import-towarow"_s : u"import-kontrahentow"_s));
    EXPECT_EQ(wynik.status, 0) << wynik.bledy.toStdString();
    EXPECT_GT(wynik.Liczba(u"dodanych"_s), 0);
    EXPECT_GT(wynik.Liczba(u"poprawionych"_s), 0);
  }
  for (const QString& prawo : {u"insert, update, delete on all tables"_s, u"usage on all sequences"_s})
    zlec(u"revoke "_s + prawo + u" in schema "_s + s.Serwer().Nazwa() + u" from "_s + rola);
  for (const char* klucz : {"Asort.AsId", "JM.JMId", "Magazyn.MagId", "Kategoria.KatId", "Parametr.ParId",
                            "KodWazony.KWId", "Kontrahent.KontrId", "Osoba.OsId", "Towar.TowId"})
    brakow << u"Brak prawa używania sekwencji kolumny %1: nie da się dopisać wiersza"_s.arg(
        QLatin1String(klucz));
  const Wynik zle = s.Uruchom(sprawdz);
  EXPECT_EQ(zle.status, 3);
  EXPECT_EQ(zle.wyjscie.count(u"Brak prawa "_s), brakow.size()) << zle.wyjscie.toStdString();
  for (const QString& brak : brakow) EXPECT_TRUE(zle.wyjscie.contains(brak)) << brak.toStdString();
  zlec(u"drop owned by "_s + rola);
  zlec(u"drop role "_s + rola);
}

TEST_F(Serwer, ZerwanePolaczenieMowiCoZapisano) {
  constexpr int kTowarow = 12'000;  // several batches
  const Stanowisko s;
  s.Zapisz(u"plik"_s, DuzyPlik(kTowarow));
  const auto proces = s.Zacznij(s.SlowaImportu(u"plik"_s));
  while (!proces->waitForFinished(20) && s.Towarow() == 0) {
  }
  // The one that holds the import lock of these tables.
  const auto zerwij = [&] {
    return s.Ile(
        "select cast(count(pg_terminate_backend(pid)) as text) from pg_locks where locktype = 'advisory'"
        " and granted and objid = cast(to_regnamespace(current_schema()) as oid)");
  };
  while (!proces->waitForFinished(1) && zerwij() == 0) {
  }
  const Wynik wynik = Stanowisko::Zakoncz(*proces);
  EXPECT_EQ(wynik.status, 4);
  EXPECT_TRUE(wynik.bledy.contains(u"Brak połączenia z bazą"_s)) << wynik.bledy.toStdString();
  EXPECT_TRUE(wynik.bledy.contains(u"Zapisano w bazie wynik pracy do rekordu"_s))
      << wynik.bledy.toStdString();
  EXPECT_EQ(wynik.Liczba(u"dodanych"_s), s.Towarow());
  EXPECT_EQ(s.Import(u"plik"_s).Liczba(u"bezZmian"_s), wynik.Liczba(u"dodanych"_s));
  EXPECT_EQ(s.Towarow(), kTowarow);
}

// Two operators import the same names while a third program sells: prices and stock are its own to change.
TEST_F(Serwer, DwaImportyISprzedaz) {
  constexpr int kTowarow = 300;
  const Stanowisko s;
  s.Zapisz(u"plik"_s, DuzyPlik(kTowarow));
  ASSERT_EQ(s.Import(u"plik"_s).Liczba(u"dodanych"_s), kTowarow);
  std::string nazwy;
  for (int i = 0; i < kTowarow * 2; ++i)
    nazwy += std::to_string(5900000000000 + i) + "#Zmieniony " + std::to_string(i) + "\r\n";
  s.Zapisz(u"nazwy"_s, nazwy);
  QStringList slowa = s.SlowaImportu(u"nazwy"_s);
  for (const QString& para :
       {u"ParTypPlikuTow=%1"_s.arg(static_cast<int>(TypPliku::Rozdzielany)), u"ParNieAnalPierwTow=0"_s,
        u"ParSeparatorTow=#"_s, u"ParIloscPolTow=2"_s, u"ParPoleTow0=00"_s, u"ParPoleTow1=01"_s})
    slowa << u"--ustaw"_s << para;

  TVLTBazaDanych sprzedaz;
  s.Polacz(sprzedaz);
  sprzedaz.ExecSQL("update Towar set CenaDet = 0");
  const auto pierwszy = s.Zacznij(slowa);
  slowa.replace(slowa.indexOf(u"."_s), u"/"_s);
  const auto drugi = s.Zacznij(slowa);
  int sprzedanych = 0;
  for (unsigned i = 1; pierwszy->state() == QProcess::Running || drugi->state() == QProcess::Running; ++i) {
    const int a = static_cast<int>(i * 7919 % kTowarow) + 1, b = static_cast<int>(i * 104729 % kTowarow) + 1;
    try {
      sprzedanych += static_cast<int>(sprzedaz.ExecSQL(
          "update Towar set CenaDet = CenaDet + 1 where TowId = :A or TowId = :B", {{"A", a}, {"B", b}}));
    } catch (const EBladBazy& blad) {
      EXPECT_EQ(blad.Rodzaj(), RodzajBleduBazy::Kolizja) << blad.MacDescription().toStdString();
    }
    for (const auto& proces : {pierwszy.get(), drugi.get()}) proces->waitForFinished(1);
  }
  const Wynik a = Stanowisko::Zakoncz(*pierwszy), b = Stanowisko::Zakoncz(*drugi);
  EXPECT_EQ(a.status, 0) << a.bledy.toStdString();
  EXPECT_EQ(b.status, 0) << b.bledy.toStdString();
  EXPECT_EQ(a.Liczba(u"poprawionych"_s) + b.Liczba(u"poprawionych"_s), kTowarow);
  EXPECT_EQ(a.Liczba(u"dodanych"_s) + b.Liczba(u"dodanych"_s), kTowarow);
  EXPECT_GT(sprzedanych, 0);
  EXPECT_EQ(s.Ile("select cast(cast(sum(CenaDet) as integer) as text) from Towar"), sprzedanych);
  for (const char* pole : {"Kod", "Skrot"})
    EXPECT_EQ(s.Zapytaj(std::string("select ") + pole + " from (select " + pole +
                        " from Towar union all select " + pole + " from KodDod) t where " + pole +
                        " <> '' group by " + pole + " having count(*) > 1"),
              QStringList());
}

}  // namespace
