#include "platform/config.h"
#include "tests/end_to_end/pliki_towarow.h"

namespace {

QStringList Slowa(const char* linia) {
  return QString::fromUtf8(linia).replace(u"baza.db"_s, Stanowisko::Baza()).split(u' ', Qt::SkipEmptyParts);
}

TEST(WierszPolecen, BledneUzycie) {
  const Stanowisko s;
  const struct {
    const char* slowa;
    QString tekst;
  } kPrzypadki[] = {
      {"", u"Nie podano polecenia"_s},
      {"eksportuj", u"Nieznane polecenie \"eksportuj\""_s},
      {"import-towarow --baza", u"Brak wartości opcji --baza"_s},
      {"import-towarow --cos", u"Nieznana opcja --cos"_s},
      {"import-towarow -x", u"Nieznana opcja -x"_s},
      {"import-towarow a b", u"Zbędny argument \"b\""_s},
      {"import-towarow a --demo", u"nie ma opcji --demo"_s},
      {"import-towarow a", u"Nie wskazano bazy"_s},
      {"import-towarow a --baza odbc:DSN=x;PWD=tajne", u"Hasła nie podaje się w wierszu poleceń"_s},
      {"import-towarow a --baza baza.db --liczba-pol nie", u"--liczba-pol"_s},
      {"import-towarow a --baza baza.db --separator-dziesietny ;", u"--separator-dziesietny"_s},
      {"import-towarow a --baza baza.db --ustaw Par", u"--ustaw"_s},
      {"import-towarow a --baza baza.db --ustaw ParNieMa=1", u"Nieznane ustawienie \"ParNieMa\""_s},
      {"import-towarow a --baza baza.db --ustaw ParPoleTow3=01", u"\"ParPoleTow3\""_s},
      {"import-towarow a --baza baza.db --ustaw ParAktualTow=tak", u"wartość ustawienia ParAktualTow"_s},
      {"nowa-baza", u"Nie podano nazwy pliku"_s},
      {"nowa-baza --json x.db", u"nie ma opcji --json"_s},
      {"ustawienia plik", u"Zbędny argument"_s},
      {"ustawienia --json=1", u"Opcja --json nie ma wartości"_s},
  };
  for (const auto& [slowa, tekst] : kPrzypadki) {
    const Wynik wynik = s.Uruchom(Slowa(slowa));
    EXPECT_EQ(wynik.status, 2) << slowa;
    EXPECT_TRUE(wynik.bledy.contains(tekst)) << slowa << ": " << wynik.bledy.toStdString();
    EXPECT_EQ(wynik.wyjscie, QString()) << slowa;
  }
}

TEST(WierszPolecen, PomocWszedzie) {
  const Stanowisko s;
  EXPECT_TRUE(s.Uruchom(Slowa("--wersja")).wyjscie.startsWith(u"zorvik-cli "_s));
  const Wynik ogolna = s.Uruchom(Slowa("--help"));
  EXPECT_EQ(ogolna.status, 0);
  EXPECT_EQ(ogolna.bledy, QString());
  for (const char* polecenie : {"nowa-baza", "ustawienia", "import-towarow", "eksport-towarow",
                                "import-kontrahentow", "eksport-kontrahentow"}) {
    EXPECT_TRUE(ogolna.wyjscie.contains(QString::fromUtf8(polecenie)));
    const Wynik pomoc = s.Uruchom({QString::fromUtf8(polecenie), u"--help"_s});
    EXPECT_EQ(pomoc.status, 0);
    EXPECT_TRUE(pomoc.wyjscie.contains(u"Opcje:"_s)) << polecenie;
  }
}

TEST(WierszPolecen, KazdyKoniecMaStatusIObiekt) {
  const Stanowisko s;
  s.Zapisz(u"dobry"_s, DuzyPlik(2));
  s.Zapisz(u"krotki"_s, DuzyPlik(2) + "5900000000077\tMało pól\r\n5900000000078\tZnów mało\r\n");
  s.Zapisz(u"nie.db"_s, "to nie jest baza danych");
  const QString liczbaPol = u"Liczba pól w rekordzie 3 wynosi 2, deklarowana liczba pól wynosi 31."_s;
  const struct {
    const char* slowa;
    int status;
    const char* koniec;
    int rekordow, dodanych, pominietych;
    QString tytul, tekst;
  } kPrzypadki[] = {
      {"brak", 3, "odmowa", 0, 0, 0, u"UWAGA"_s, u"Plik brak nie istnieje"_s},
      {"dobry --ustaw ParTypPlikuTow=1", 3, "odmowa", 0, 0, 0, u"BŁĄD"_s, u"Nie zdefiniowano listy pól"_s},
      {"dobry --baza brak.db", 3, "odmowa", 0, 0, 0, u"Wystąpił błąd"_s, u"Brak połączenia z bazą"_s},
      {"dobry --baza nie.db", 3, "odmowa", 0, 0, 0, u"Wystąpił błąd"_s, u"Błąd odczytu"_s},
      {"dobry --konfiguracja brak.cfg", 3, "odmowa", 0, 0, 0, u"UWAGA"_s, u"Plik brak.cfg nie istnieje"_s},
      {"dobry --ustaw ParNoweTowary=0", 0, "zakonczono", 2, 0, 0, u"Koniec"_s, u"Aktualizację zakończono"_s},
      {"dobry", 0, "zakonczono", 2, 2, 0, u"Koniec"_s, u"Aktualizację zakończono"_s},
      {"krotki", 5, "przerwano", 2, 0, 2, u"Uwaga"_s, liczbaPol},
      {"krotki --liczba-pol pomin", 0, "zakonczono", 4, 0, 4, u"Uwaga"_s, liczbaPol},
      {"krotki --liczba-pol pomiń", 0, "zakonczono", 4, 0, 4, u"Uwaga"_s, liczbaPol},
      {"krotki --liczba-pol=ignoruj", 0, "zakonczono", 4, 2, 2, u"Uwaga"_s, liczbaPol},
  };
  for (const auto& p : kPrzypadki) {
    SCOPED_TRACE(p.slowa);
    const Wynik wynik =
        s.Uruchom(Slowa("import-towarow --baza baza.db --pominiete . --json") + Slowa(p.slowa));
    EXPECT_EQ(wynik.status, p.status);
    EXPECT_EQ(wynik.Koniec(), QString::fromUtf8(p.koniec));
    EXPECT_EQ(wynik.Liczba(u"rekordow"_s), p.rekordow);
    EXPECT_EQ(wynik.Liczba(u"dodanych"_s), p.dodanych);
    EXPECT_EQ(wynik.Liczba(u"pominietych"_s), p.pominietych);
    EXPECT_TRUE(wynik.MaKomunikat(p.tytul, p.tekst)) << wynik.wyjscie.toStdString();
    EXPECT_TRUE(wynik.bledy.contains(p.tytul + u": "_s + p.tekst)) << wynik.bledy.toStdString();
    QStringList klucze = wynik.Json().keys();
    EXPECT_EQ(
        klucze.join(u' '),
        u"asortymentow bezZmian czasSekund dodanych formatowKodowWazonych jednostek kategorii komunikaty "
        "koniec operacja parametrow plikPominietych pominietych poprawionych rekordow stawek uwagi"_s);
  }
  if (NaSerwerze()) return;
  const Wynik wynik =
      s.Uruchom(Slowa("import-towarow dobry --baza baza.db --pominiete . --json --konfiguracja baza.db"));
  EXPECT_EQ(wynik.status, 3);
  EXPECT_TRUE(wynik.MaKomunikat(u"UWAGA"_s, u"Plik baza.db jest plikiem bazy danych\nWskaż inny plik"_s));
}

// Between the end and the summary on standard error, and in the object.
TEST(WierszPolecen, UwagiStojaZaKoncemPrzedPodsumowaniem) {
  const Stanowisko s;
  s.Zapisz(u"plik"_s, "kod;nazwa\n1000;a;x\n1001;b;;\n1002;c;;x\n");
  const Wynik wynik =
      s.Import(u"plik"_s, {u"--ustaw"_s, u"ParTypPlikuTow=1"_s, u"--ustaw"_s, u"ParSeparatorTow=;"_s,
                           u"--ustaw"_s, u"ParNieAnalPierwTow=1"_s, u"--ustaw"_s, u"ParIloscPolTow=2"_s,
                           u"--ustaw"_s, u"ParPoleTow0=00"_s, u"--ustaw"_s, u"ParPoleTow1=01"_s});
  const QJsonObject uwaga = wynik.Json()[u"uwagi"_s].toArray().at(0).toObject();
  EXPECT_EQ(uwaga[u"rodzaj"_s].toString(), u"wiecej-pol"_s);
  EXPECT_EQ(uwaga[u"ile"_s].toInt(), 2);
  EXPECT_EQ(uwaga[u"rekordy"_s].toArray(), QJsonArray({1, 3}));
  const qsizetype miejsce = wynik.bledy.indexOf(u"\nUwaga: "_s + uwaga[u"tekst"_s].toString());
  EXPECT_GT(miejsce, wynik.bledy.indexOf(u"\nKoniec: "_s)) << wynik.bledy.toStdString();
  EXPECT_LT(miejsce, wynik.bledy.indexOf(u"\nIlość dodanych towarów"_s)) << wynik.bledy.toStdString();
}

TEST(WierszPolecen, KolejnoscUstawien) {
  const Stanowisko s;
  const auto wartosc = [&](const char* dalsze) {
    const Wynik wynik = s.Uruchom(Slowa("ustawienia") + Slowa(dalsze));
    EXPECT_EQ(wynik.status, 0) << wynik.bledy.toStdString();
    TMConfig config;
    plik_konfiguracji::Czytaj(wynik.wyjscie.toStdString(), config);
    return config.Tekst(u"ParMinDlKodu"_s);
  };
  TMConfig config;
  config.Ustaw(u"ParMinDlKodu"_s, u"2"_s);
  EXPECT_EQ(wartosc("--baza baza.db"), u"1"_s);
  plik_konfiguracji::Zapisz(s.Sciezka(u"ZorvikDef.cfg"_s), config);
  EXPECT_EQ(wartosc("--baza baza.db"), u"2"_s);
  EXPECT_EQ(wartosc(""), u"2"_s);
  {
    TVLTBazaDanych baza;
    s.Polacz(baza);
    config.Ustaw(u"ParMinDlKodu"_s, u"3"_s);
    baza.ZapiszKonfiguracje(u"ZORVIK"_s, config);
  }
  EXPECT_EQ(wartosc("--baza baza.db"), u"3"_s);
  config.Ustaw(u"ParMinDlKodu"_s, u"4"_s);
  plik_konfiguracji::Zapisz(s.Sciezka(u"inna.cfg"_s), config);
  EXPECT_EQ(wartosc("--baza baza.db --konfiguracja inna.cfg"), u"4"_s);
  EXPECT_EQ(wartosc("--ustaw ParMinDlKodu=5 --baza baza.db --konfiguracja inna.cfg"), u"5"_s);

  // Last of all the rules between options; they switch silently, as for every load.
  const Wynik wynik = s.Uruchom(Slowa("ustawienia --ustaw ParTypPlikuTow=1 --ustaw ParJakieTowary=2"));
  EXPECT_EQ(wynik.bledy, u""_s);
  TMConfig poRegulach;
  plik_konfiguracji::Czytaj(wynik.wyjscie.toStdString(), poRegulach);
  EXPECT_EQ(poRegulach.Tekst(u"ParJakieTowary"_s), u"1"_s);

  // Entries may stand before the length of their list. What Windows-1250 lacks is not lost silently.
  const Wynik lista = s.Uruchom(
      Slowa("ustawienia --ustaw ParPoleTow0=00 --ustaw ParIloscPolTow=1 --ustaw ParPoleTypUsluga=Ω"));
  EXPECT_TRUE(lista.wyjscie.contains(u"ParPoleTow0                        00\r\n"_s));
  EXPECT_TRUE(lista.bledy.contains(u"UWAGA: Znaki spoza strony kodowej Windows-1250"_s));

  // What is printed can be used again.
  s.Zapisz(u"wydruk.cfg"_s, wynik.wyjscie.toStdString());
  EXPECT_EQ(s.Uruchom(Slowa("ustawienia --konfiguracja wydruk.cfg")).wyjscie, wynik.wyjscie);
}

TEST(WierszPolecen, DokumentacjaZnaKazdeUstawienie) {
  QFile plik(QStringLiteral(ZORVIK_ZRODLA "/docs/ustawienia.md"));
  ASSERT_TRUE(plik.open(QIODevice::ReadOnly));
  const QString opis = QString::fromUtf8(plik.readAll());
  const QString wydruk = Stanowisko().Uruchom(Slowa("ustawienia")).wyjscie;
  EXPECT_GT(wydruk.count(u'\n'), 100);
  for (const QString& linia : wydruk.split(u'\n', Qt::SkipEmptyParts))
    EXPECT_TRUE(opis.contains(u'`' + linia.left(35).trimmed() + u'`')) << linia.toStdString();
}

// Whatever a database or another file has set before, nothing but names of files and of a page stays open.
TEST(WierszPolecen, KonfiguracjaPonownegoImportuUstalaWszystko) {
  const QString plik = QStringLiteral(ZORVIK_ZRODLA "/docs/ponowny-import.cfg");
  TMConfig konfiguracja;
  EXPECT_EQ(plik_konfiguracji::Wczytaj(plik, konfiguracja), std::nullopt);
  const Wynik wynik = Stanowisko().Uruchom({u"ustawienia"_s, u"--konfiguracja"_s, plik});
  EXPECT_EQ(wynik.bledy, QString());
  for (const QString& linia : wynik.wyjscie.split(u"\r\n"_s, Qt::SkipEmptyParts)) {
    const QString klucz = linia.left(35).trimmed();
    // A configuration file cannot carry a name of more than 30 characters; updating contractors resets it.
    const bool wolny =
        klucz.startsWith(u"ParNazwaPliku"_s) || klucz == u"ParActivePageIndex"_s || klucz.size() > 30;
    EXPECT_EQ(konfiguracja.Tekst(klucz), wolny ? QString() : linia.mid(35)) << klucz.toStdString();
  }
}

TEST(WierszPolecen, NowaBazaNieNadpisuje) {
  const Stanowisko s;
  const QByteArray przed = s.Odczytaj(u"baza.db"_s);
  const Wynik wynik = s.Uruchom(Slowa("nowa-baza baza.db"));
  EXPECT_EQ(wynik.status, 3);
  EXPECT_TRUE(
      wynik.bledy.contains(NaSerwerze() ? u"nie jest pusta"_s : u"UWAGA: Plik baza.db już istnieje"_s));
  EXPECT_EQ(s.Odczytaj(u"baza.db"_s), przed);
  EXPECT_EQ(s.Uruchom(Slowa("nowa-baza nie/ma/x.db")).status, 3);
  EXPECT_EQ(s.Uruchom(Slowa("sprawdz-baze --baza baza.db")).status, 0);
  TVLTBazaDanych baza;
  s.Polacz(baza);
  baza.ExecSQL("drop index TowarNazwa");
  EXPECT_EQ(s.Uruchom(Slowa("sprawdz-baze --baza baza.db")).status, 3);
  EXPECT_EQ(s.Zapytaj(NaSerwerze() ? "select 'wal'" : "pragma journal_mode"), QStringList{u"wal"_s});
  EXPECT_EQ(s.Ile("select cast(count(*) as text) from Konfiguracja where Parametr = 'PrefixKoduWlasnego' and "
                  "Wartosc = '200'"),
            1);
}

}  // namespace
