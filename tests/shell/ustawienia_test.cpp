#include "ustawienia/ustawienia.h"

#include <map>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/config.h"
#include "tests/wspolne/baza_testowa.h"
#include "ustawienia/magazyn_ustawien.h"
#include "ustawienia/tabela_ustawien.h"

namespace {

QString Klucz(const Ustawienie& ustawienie) {
  return QStringView(ustawienie.klucz).toString();
}

TMConfig Config(const Ustawienia& ustawienia) {
  TMConfig config;
  ZapiszUstawienia(ustawienia, config);
  return config;
}

std::map<QString, QString> Teksty(const Ustawienia& ustawienia) {
  std::map<QString, QString> teksty;
  const TMConfig config = Config(ustawienia);
  for (const TMCfgParam& parametr : config.Params()) teksty[parametr.Nazwa()] = parametr.Wartosc();
  return teksty;
}

Ustawienia Domyslne() {
  Ustawienia ustawienia;
  WypelnijDomyslne(ustawienia, QStringLiteral("/start"));
  return ustawienia;
}

// A value of the setting other than its default.
QString InnaWartosc(const Ustawienie& ustawienie) {
  switch (ustawienie.rodzaj) {
    case RodzajUstawienia::Flaga:
      return ustawienie.domyslna == u"1" ? QStringLiteral("0") : QStringLiteral("1");
    case RodzajUstawienia::Liczba:
      return ustawienie.domyslna == u"2"                                 ? QStringLiteral("1")
             : ustawienie.klucz.find(u"Poziom") != ustawienie.klucz.npos ? QStringLiteral("1")
                                                                         : QStringLiteral("2");
    case RodzajUstawienia::Tekst:
    case RodzajUstawienia::PlikWymiany:
      return QStringLiteral("ż ") + Klucz(ustawienie);
    case RodzajUstawienia::Cyfry:
      return QStringLiteral("0123456789012");
    case RodzajUstawienia::Separator:
      return QStringLiteral("spac");
    case RodzajUstawienia::Lista:
      return QStringLiteral("3");
  }
  return {};
}

TEST(TabelaUstawien, KazdyKluczZmieniaTylkoSwojCzlon) {
  const auto domyslne = Teksty(Domyslne());
  EXPECT_EQ(TabelaUstawien().size(), 153U);
  EXPECT_EQ(domyslne.size(), 153U) << "a key stands in the table twice";
  for (const Ustawienie& ustawienie : TabelaUstawien()) {
    SCOPED_TRACE(Klucz(ustawienie).toStdString());
    Ustawienia ustawienia = Domyslne();
    auto oczekiwane = domyslne;
    oczekiwane[Klucz(ustawienie)] = InnaWartosc(ustawienie);
    if (ustawienie.rodzaj == RodzajUstawienia::Lista)
      for (const char* numer : {"0", "1", "2"})
        oczekiwane[QStringView(ustawienie.rdzen).toString() + QLatin1String(numer)] = QString();
    ASSERT_EQ(UstawKlucz(ustawienia, Klucz(ustawienie), InnaWartosc(ustawienie)), WynikUstawienia::Ustawiono);
    auto teksty = Teksty(ustawienia);
    for (auto& [klucz, tekst] : teksty) tekst = tekst.trimmed();
    EXPECT_EQ(teksty, oczekiwane);
  }
}

Ustawienia Inne() {
  Ustawienia ustawienia = Domyslne();
  for (const Ustawienie& ustawienie : TabelaUstawien()) {
    ustawienie.wpisz(ustawienia, InnaWartosc(ustawienie));
    if (ustawienie.rodzaj != RodzajUstawienia::Lista) continue;
    for (int numer = 0; numer < 3; ++numer)
      ustawienie.wpiszWpis(ustawienia, numer, QStringLiteral("0%1ą").arg(numer));
  }
  return ustawienia;
}

TEST(TabelaUstawien, WszystkoWracaZKonfiguracjiIZPliku) {
  const auto inne = Teksty(Inne());
  Ustawienia zConfig = Domyslne();
  EXPECT_TRUE(ZastosujUstawienia(Config(Inne()), zConfig).empty());
  EXPECT_EQ(Teksty(zConfig), inne);

  const QTemporaryDir folder;
  const QString sciezka = folder.filePath(QStringLiteral("Zorvik.cfg"));
  EXPECT_FALSE(magazyn_ustawien::PytanieONadpisanie(sciezka));
  EXPECT_TRUE(magazyn_ustawien::EksportujDoPliku(sciezka, Inne()).empty());
  EXPECT_TRUE(magazyn_ustawien::PytanieONadpisanie(sciezka));
  Ustawienia zPliku = Domyslne();
  ASSERT_TRUE(magazyn_ustawien::ImportujZPliku(sciezka, zPliku).wczytano);
  // The one key that is too long for the file keeps its value.
  auto oczekiwane = inne;
  oczekiwane[QStringLiteral("ParDodajKontrBezNIPuJesliInnyAdres")] = QStringLiteral("0");
  EXPECT_EQ(Teksty(zPliku), oczekiwane);
}

TEST(TabelaUstawien, KolejnoscZapisu) {
  const QStringList fragmenty[] = {
      {QStringLiteral("ParActivePageIndex"), QStringLiteral("ParAktualTow")},
      {QStringLiteral("ParJakieTowary"), QStringLiteral("ParPoziomCenyZakEksp")},
      {QStringLiteral("ParJednostka"), QStringLiteral("ParKategorie"), QStringLiteral("ParKodyDodatkowe"),
       QStringLiteral("ParImportProducentaTow")},
      {QStringLiteral("ParJacyKontrahenci"), QStringLiteral("ParNazwaKontr"),
       QStringLiteral("ParNaPrzelewie1"), QStringLiteral("ParNaPrzelewie2"),
       QStringLiteral("ParSkrotNazwyKontr")},
      {QStringLiteral("ParKonto"), QStringLiteral("ParNIP"), QStringLiteral("ParKontakty")},
      {QStringLiteral("ParZakladPrChron"), QStringLiteral("ParDostawca")},
      {QStringLiteral("ParSklep"), QStringLiteral("ParRabatUDostawcy")},
      {QStringLiteral("ParAktywny"), QStringLiteral("ParGdyOdbiorca")},
      {QStringLiteral("ParIloscPolTow"), QStringLiteral("ParPoleTow0"), QStringLiteral("ParPoleTow1"),
       QStringLiteral("ParPoleTow2"), QStringLiteral("ParIloscOpisowVAT"), QStringLiteral("ParOpisVAT0")},
      {QStringLiteral("ParPoleAktywnyTow"), QStringLiteral("ParPoleUsunietyTow"),
       QStringLiteral("ParPoleAktywnyKontr"), QStringLiteral("ParPoleTypTowar")},
      {QStringLiteral("ParPoleSklep"), QStringLiteral("ParPoleUsunietyKontr")},
  };
  QStringList klucze;
  const TMConfig config = Config(Inne());
  for (const TMCfgParam& parametr : config.Params()) klucze << parametr.Nazwa();
  EXPECT_EQ(klucze.first(), QStringLiteral("ParNazwaPlikuImportuTow"));
  EXPECT_EQ(klucze.last(), QStringLiteral("ParPoleUsunietyKontr"));
  for (const QStringList& fragment : fragmenty)
    EXPECT_EQ(klucze.mid(klucze.indexOf(fragment.first()), fragment.size()), fragment);
}

// Keys whose place in the structs is not told by their name.
TEST(TabelaUstawien, NieregularneKlucze) {
  Ustawienia u = Domyslne();
  const auto ustaw = [&u](const char* klucz, const char* wartosc) {
    EXPECT_EQ(UstawKlucz(u, QLatin1String(klucz), QLatin1String(wartosc)), WynikUstawienia::Ustawiono)
        << klucz;
  };
  ustaw("ParTowarBezNazwy", "2");
  EXPECT_EQ(u.importTow.towarBezNazwy, TowarBezNazwy::RBDodajTowarZNazwaAuto);
  ustaw("ParSeparatorTow", "spac");
  EXPECT_EQ(u.strukturaTow.separator, QStringLiteral(" "));
  ustaw("ParSeparatorTow", "tab");
  EXPECT_EQ(u.strukturaTow.separator, QStringLiteral("\t"));
  ustaw("ParPoleUsunietyKontr", "N");
  EXPECT_EQ(u.strukturaKontr.EdPoleUsuniety, QStringLiteral("N"));
  ustaw("ParIloscOpisowVAT", "1");
  ustaw("ParOpisVAT0", " 8A");
  EXPECT_EQ(Teksty(u)[QStringLiteral("ParOpisVAT0")], QStringLiteral("8 A"));
}

// The manual's tables of fields: a number, a name, the key that lets the field change a stored record.
TEST(TabelaUstawien, PolaJakWInstrukcji) {
  QFile plik(QStringLiteral(ZORVIK_ZRODLA "/docs/pliki.md"));
  ASSERT_TRUE(plik.open(QIODevice::ReadOnly));
  const auto bezDopisku = [](const QString& nazwa) { return nazwa.section(QStringLiteral(" ("), 0, 0); };
  auto rodzaj = RodzajRekordu::Towary;
  int nazw = 0, kluczy = 0;
  for (const QString& linia :
       QString::fromUtf8(plik.readAll()).section(QStringLiteral("## Pola towaru"), 1).split(u'\n')) {
    if (linia.startsWith(QStringLiteral("## Pola kontrahenta"))) rodzaj = RodzajRekordu::Kontrahenci;
    const QStringList komorki = linia.split(QStringLiteral(" | "));
    bool liczba = false;
    const int pole = komorki[0].mid(2).toInt(&liczba);
    if (!liczba || komorki.size() < 4) continue;
    EXPECT_EQ(bezDopisku(QStringView(KatalogPol(rodzaj)[static_cast<size_t>(pole)].nazwa).toString()),
              bezDopisku(komorki[1]));
    ++nazw;
    const QString klucz = komorki.last().section(u'`', 1, 1);
    // Some keys stand in a sentence; the stock has an option of its own.
    if (klucz.isEmpty() || komorki.last().count(u'`') > 2 || klucz == QStringLiteral("ParImportStanow"))
      continue;
    Ustawienia u = Domyslne();
    EXPECT_EQ(UstawKlucz(u, klucz, QStringLiteral("0")), WynikUstawienia::Ustawiono) << klucz.toStdString();
    EXPECT_FALSE((rodzaj == RodzajRekordu::Towary ? u.strukturaTow : u.strukturaKontr).CzyOferowane(pole))
        << klucz.toStdString();
    ++kluczy;
  }
  EXPECT_EQ(std::pair(nazw, kluczy), std::pair(64, 61));
}

TEST(TabelaUstawien, NieprzyjmowaneKluczeIWartosci) {
  using enum WynikUstawienia;
  const struct {
    const char* klucz;
    const char* wartosc;
    WynikUstawienia wynik;
  } przypadki[] = {
      {"ParMinDlKodu", "0", ZlaWartosc},      {"ParMinDlKodu", "21", ZlaWartosc},
      {"ParMaxDlKodu", "20", Ustawiono},      {"ParTowarBezKodu", "4", ZlaWartosc},
      {"ParTypPlikuTow", "", ZlaWartosc},     {"ParAktualTow", "tak", ZlaWartosc},
      {"ParImportStanow", "-1", ZlaWartosc},  {"paraktualtow", "1", NieznanyKlucz},
      {"ParAktualTo", "1", NieznanyKlucz},    {"ParPoleTow0", "00", NieznanyKlucz},
      {"ParIloscPolTow", "2", Ustawiono},     {"ParPoleTow1", "01", Ustawiono},
      {"ParPoleTow2", "01", NieznanyKlucz},   {"ParPoleTow01", "01", NieznanyKlucz},
      {"ParPoleTow-1", "01", NieznanyKlucz},  {"ParPoleTow", "01", NieznanyKlucz},
      {"ParIloscPolTow", "x", ZlaWartosc},    {"ParIloscPolKontr", "99999999", Ustawiono},
      {"ParIloscOpisowVAT", "-3", Ustawiono}, {"ParKodyKrotkie", "", Ustawiono},
      {"ParKodyKrotkie", "12 ", ZlaWartosc},  {"ParKodyKrotkie", "12345678901234", ZlaWartosc},
  };
  Ustawienia u = Domyslne();
  for (const auto& p : przypadki)
    EXPECT_EQ(UstawKlucz(u, QLatin1String(p.klucz), QLatin1String(p.wartosc)), p.wynik)
        << p.klucz << "=" << p.wartosc;
  EXPECT_EQ(u.importTow.UpDownMinDlugoscKodu, 1);
  EXPECT_EQ(u.strukturaTow.pola.size(), 2U);
  EXPECT_EQ(u.strukturaKontr.pola.size(), 1000U);
}

// The structs begin with the values of the table, so a run without a configuration behaves like the program.
TEST(TabelaUstawien, DomyslneWartosciStruktur) {
  auto swieze = Teksty(Ustawienia{});
  for (const auto& [klucz, tekst] : Teksty(Domyslne()))
    if (!klucz.startsWith(QLatin1String("ParNazwaPliku"))) {
      EXPECT_EQ(swieze[klucz], tekst) << klucz.toStdString();
    }
  EXPECT_EQ(Domyslne().plikEksportuKontr, QDir::toNativeSeparators(QStringLiteral("/start/KONTR_E.txt")));
}

class Zrodla : public testing::Test {
 protected:
  QString Plik(const char* nazwa, std::initializer_list<std::pair<const char*, const char*>> parametry) {
    TMConfig config;
    for (const auto& [klucz, wartosc] : parametry) config.Ustaw(QLatin1String(klucz), QLatin1String(wartosc));
    const QString sciezka = m_folder.filePath(QLatin1String(nazwa));
    EXPECT_FALSE(plik_konfiguracji::Zapisz(sciezka, config).blad);
    return sciezka;
  }
  QTemporaryDir m_folder;
  Ustawienia u;
};

TEST_F(Zrodla, PozniejszeZrodloMaPierwszenstwo) {
  BazaTestowa test;
  test.baza.ExecSQL("create table Konfiguracja (Nazwa text, Kolejnosc integer, Parametr text, Wartosc text)");
  TMConfig wBazie;
  for (const char* klucz : {"ParPoleTypUsluga", "ParPoleAktywnyTow", "ParPoleUsunietyTow", "ParObcy"})
    wBazie.Ustaw(QLatin1String(klucz), QStringLiteral("baza"));
  wBazie.Ustaw(QStringLiteral("ParAktualTow"), QStringLiteral("tak"));
  test.baza.ZapiszKonfiguracje(magazyn_ustawien::NazwaKonfiguracji(), wBazie);
  Plik("ZorvikDef.cfg", {{"ParTypPlikuTow", "1"}, {"ParPoleTypTowar", "def"}, {"ParPoleTypUsluga", "def"}});

  magazyn_ustawien::Zrodla zrodla;
  zrodla.katalogStartowy = m_folder.path();
  zrodla.baza = &test.baza;
  zrodla.plikKonfiguracji = Plik("inny.cfg", {{"ParPoleAktywnyTow", "plik"}, {"ParPoleUsunietyTow", "plik"}});
  zrodla.pojedyncze = {{QStringLiteral("ParPoleUsunietyTow"), QStringLiteral("klucz")},
                       {QStringLiteral("ParJakieTowary"), QStringLiteral("2")},
                       {QStringLiteral("ParNieMa"), QStringLiteral("1")},
                       {QStringLiteral("ParAktualTow"), QStringLiteral("x")}};
  const magazyn_ustawien::WynikWczytania wynik = WczytajUstawienia(zrodla, u);

  EXPECT_EQ(u.strukturaTow.EdPoleTypTowar, QStringLiteral("def"));
  EXPECT_EQ(u.strukturaTow.EdPoleTypUsluga, QStringLiteral("baza"));
  EXPECT_EQ(u.strukturaTow.EdPoleAktywny, QStringLiteral("plik"));
  EXPECT_EQ(u.strukturaTow.EdPoleUsuniety, QStringLiteral("klucz"));
  EXPECT_EQ(wynik.bledneKlucze, std::vector{QStringLiteral("ParNieMa")});
  EXPECT_EQ(wynik.bledneWartosci, std::vector{QStringLiteral("ParAktualTow")});
  EXPECT_FALSE(wynik.brakPliku);
  // The unreadable flag of the database; the status choice that the structure does not allow goes silently.
  ASSERT_EQ(wynik.komunikaty.size(), 1U);
  EXPECT_TRUE(wynik.komunikaty[0].tekst.contains(QStringLiteral("ParAktualTow")));
  EXPECT_TRUE(u.importTow.cb_akttow);
  EXPECT_EQ(u.importTow.jakieTowary, JakieTowary::RBTowaryWszystkie);

  magazyn_ustawien::ZapiszDoBazy(test.baza, u);
  Ustawienia zBazy = Domyslne();
  EXPECT_TRUE(magazyn_ustawien::WczytajZBazy(test.baza, zBazy).empty());
  EXPECT_EQ(Teksty(zBazy), Teksty(u));
  if (NaSerwerze()) return;
  EXPECT_EQ(QFileInfo(test.Sciezka() + QStringLiteral("-wal")).size(), 0)
      << "what is saved lies in the database file";
  // Nothing is told as saved in a file that is gone.
  ASSERT_TRUE(QFile::remove(test.Sciezka()));
  EXPECT_THROW(magazyn_ustawien::ZapiszDoBazy(test.baza, u), EBladBazy);
}

TEST_F(Zrodla, WyborNipJestJedenIPochodziZPozniejszegoZrodla) {
  BazaTestowa test;
  test.baza.ExecSQL("create table Konfiguracja (Nazwa text, Kolejnosc integer, Parametr text, Wartosc text)");
  const auto wybrane = [this] {
    QStringList klucze;
    for (const auto& [klucz, tekst] : Teksty(u))
      if (klucz.contains(QLatin1String("NIP")) && klucz.size() > 10 && tekst == u"1") klucze << klucz;
    return klucze.join(u' ');
  };
  magazyn_ustawien::Zrodla zrodla{.katalogStartowy = m_folder.path(), .baza = &test.baza};
  Plik("ZorvikDef.cfg", {{"ParPominKontrBezNIPu", "1"}, {"ParDodajChociazTakiNIPJuzJest", "1"}});
  WczytajUstawienia(zrodla, u);
  EXPECT_EQ(wybrane(), u"ParDodajChociazTakiNIPJuzJest ParPominKontrBezNIPu");
  // The database names one group only, and another choice of it.
  TMConfig wBazie;
  wBazie.Ustaw(QStringLiteral("ParDodajKontrBezNIPu"), QStringLiteral("1"));
  test.baza.ZapiszKonfiguracje(magazyn_ustawien::NazwaKonfiguracji(), wBazie);
  WczytajUstawienia(zrodla, u);
  EXPECT_EQ(wybrane(), u"ParDodajChociazTakiNIPJuzJest ParDodajKontrBezNIPu");
  zrodla.plikKonfiguracji =
      Plik("inny.cfg", {{"ParPominBoTakiNIPJuzJest", "1"}, {"ParPominKontrBezNIPu", "0"}});
  WczytajUstawienia(zrodla, u);
  EXPECT_EQ(wybrane(), u"ParDodajKontrBezNIPu ParPominBoTakiNIPJuzJest");
  for (const char* klucz :
       {"ParDodajKontrBezNIPuJesliInnyAdres", "ParPominKontrBezNIPu", "ParDodajJesliMaInnyAdres"})
    zrodla.pojedyncze.emplace_back(QLatin1String(klucz), QStringLiteral("1"));
  WczytajUstawienia(zrodla, u);
  EXPECT_EQ(wybrane(), u"ParPominKontrBezNIPu");
  EXPECT_TRUE(u.importKontr.rb_DodajJesliMaInnyAdres && !u.importKontr.rb_PominBoTakiNIPJuzJest);
}

TEST_F(Zrodla, PlikiNieDoOdczytaniaNiczegoNieZmieniaja) {
  magazyn_ustawien::Zrodla zrodla;
  zrodla.katalogStartowy = m_folder.path();
  EXPECT_TRUE(WczytajUstawienia(zrodla, u).komunikaty.empty());

  const QString domyslny = magazyn_ustawien::DomyslnyPlik(m_folder.path());
  ASSERT_TRUE(QDir().mkdir(domyslny));
  zrodla.plikKonfiguracji = m_folder.filePath(QStringLiteral("brak.cfg"));
  const auto przed = Teksty(u);
  const magazyn_ustawien::WynikWczytania wynik = WczytajUstawienia(zrodla, u);
  EXPECT_EQ(Teksty(u), przed);
  EXPECT_TRUE(wynik.brakPliku);
  ASSERT_EQ(wynik.komunikaty.size(), 2U);
  EXPECT_EQ(wynik.komunikaty[0].naglowek, QStringLiteral("UWAGA"));
  EXPECT_EQ(wynik.komunikaty[0].tekst,
            QStringLiteral("Błąd otwarcia pliku ") + domyslny +
                QStringLiteral("\nByć może plik jest używany przez inną aplikację"));
  EXPECT_EQ(wynik.komunikaty[1].tekst,
            QStringLiteral("Plik ") + *zrodla.plikKonfiguracji + QStringLiteral(" nie istnieje"));
}

}  // namespace
