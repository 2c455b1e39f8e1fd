#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>

#include <gtest/gtest.h>

#include "shell/kontrolki/pasek_przyciskow.h"
#include "shell/okno/okno_polaczenia.h"
#include "tests/okno/okno_testowe.h"
#include "ustawienia/wspolzaleznosci.h"

namespace {

using OknoGlowne = OknoTestowe;

TEST_F(OknoGlowne, UruchomienieBierzeUstawieniaWKolejnosci) {
  b.baza.ExecSQL("insert into Magazyn (MagId, Nazwa) values (3, 'Zaplecze')");
  b.baza.ExecSQL("insert into Magazyn (MagId, Nazwa) values (1, 'Żabka')");
  ASSERT_FALSE(plik_konfiguracji::Zapisz(Sciezka(u"ZorvikDef.cfg"_s), Config({{"ParNoweTowary", "0"},
                                                                              {"ParKodyKrotkie", "500"},
                                                                              {"ParImportStanow", "1"},
                                                                              {"ParJakieTowary", "3"},
                                                                              {"ParTowarBezNazwy", "1"},
                                                                              {"ParTypPlikuTow", "1"}}))
                   .blad);
  b.baza.ZapiszKonfiguracje(magazyn_ustawien::NazwaKonfiguracji(),
                            Config({{"ParKodyKrotkie", "700"}, {"ParActivePageIndex", "2"}}));
  ASSERT_TRUE(Otworz());
  EXPECT_TRUE(okno->isVisible());
  EXPECT_EQ(okno->windowTitle(), u"Import/Eksport bazy towarów/kontrahentów ("_s + b.baza.Nazwa() + u')');
  EXPECT_TRUE(Zaznaczony(u"cb_akttow"_s));
  EXPECT_FALSE(Zaznaczony(u"cb_nowetowary"_s));
  EXPECT_EQ(Znajdz<QLineEdit>(u"EdKodyKrotkie"_s).text(), u"700"_s);
  EXPECT_EQ(Znajdz<QTabWidget>(u"PageControl"_s).currentIndex(), 2);
  EXPECT_EQ(U().plikImportuTow, QDir::toNativeSeparators(Sciezka(u"TOWARY_I.txt"_s)));
  // The rules between options, once after everything was loaded: the structure has neither names nor a
  // status.
  EXPECT_TRUE(Zaznaczony(u"RBDodajTowarZNazwaAuto"_s) && Zaznaczony(u"RBTowaryWszystkie"_s));
  EXPECT_TRUE(Znajdz(u"cb_importStanowUjemnych"_s).isEnabled());
  EXPECT_TRUE(Komunikaty().isEmpty());
  // Import: the list in its order; export: all identifiers up to the highest.
  const auto pozycje = [&](const QString& nazwa) {
    QStringList teksty;
    const auto& lista = Znajdz<QComboBox>(nazwa);
    for (int i = 0; i < lista.count(); ++i) teksty << lista.itemText(i);
    return teksty;
  };
  EXPECT_EQ(pozycje(u"CBImportStanow"_s),
            (QStringList{u"NIE"_s, u"Magazyn 3 – Zaplecze"_s, u"Magazyn 1 – Żabka"_s}));
  EXPECT_EQ(pozycje(u"CBEksportStanow"_s), (QStringList{u"NIE"_s, u"Ogółem"_s, u"Magazyn 1 – Żabka"_s,
                                                        u"Magazyn 2"_s, u"Magazyn 3 – Zaplecze"_s}));
}

TEST_F(OknoGlowne, MagazynKtoregoNieMaZostajeWUstawieniach) {
  b.baza.ZapiszKonfiguracje(magazyn_ustawien::NazwaKonfiguracji(), Config({{"ParImportStanow", "2"}}));
  ASSERT_TRUE(Otworz());
  EXPECT_EQ(Znajdz<QComboBox>(u"CBImportStanow"_s).currentIndex(), -1);
  EXPECT_EQ(U().importTow.CBImportStanow, 2);
}

TEST_F(OknoGlowne, ConajmniejJednoPoleZostajeZaznaczone) {
  ASSERT_TRUE(Otworz());
  for (const auto& pole : wspolzaleznosci::TabelaConajmniejJednego()) {
    const QString nazwa = QStringView(pole.nazwa).toString(), zamiast = QStringView(pole.zamiast).toString();
    SCOPED_TRACE(nazwa.toStdString());
    for (const auto& inne : wspolzaleznosci::TabelaConajmniejJednego())
      if (inne.grupa == pole.grupa) {
        const QString nazwaInnego = QStringView(inne.nazwa).toString();
        if (Zaznaczony(nazwaInnego) != (nazwaInnego == nazwa)) Kliknij(nazwaInnego);
        if (!Zaznaczony(nazwa)) Kliknij(nazwa);
      }
    ASSERT_TRUE(Zaznaczony(nazwa));
    Kliknij(nazwa);
    EXPECT_FALSE(Zaznaczony(nazwa));
    EXPECT_TRUE(Zaznaczony(zamiast));
    for (const auto& inne : wspolzaleznosci::TabelaConajmniejJednego())
      if (inne.nazwa == pole.zamiast) {
        EXPECT_TRUE(inne.wartosc(U()));
      }
  }
}

TEST_F(OknoGlowne, WspolzaleznosciKontrolek) {
  ASSERT_TRUE(Otworz());
  // Tax numbers: nothing can be chosen until contractors are added but not updated.
  const auto dostepne = [&] { return Znajdz(u"rb_DodajJesliMaInnyAdres"_s).isEnabled(); };
  EXPECT_FALSE(dostepne());
  Kliknij(u"cb_nowykontr"_s);
  EXPECT_TRUE(dostepne());
  Kliknij(u"rb_DodajJesliMaInnyAdres"_s);
  Kliknij(u"cb_aktkontr"_s);
  EXPECT_FALSE(dostepne());
  EXPECT_TRUE(Zaznaczony(u"rb_PominBoTakiNIPJuzJest"_s) && Zaznaczony(u"rb_pominKontrBezNIPu"_s));
  EXPECT_FALSE(Zaznaczony(u"rb_DodajJesliMaInnyAdres"_s) || U().importKontr.rb_DodajJesliMaInnyAdres);
  Kliknij(u"cb_aktkontr"_s);
  EXPECT_TRUE(dostepne());

  // Stock.
  auto& stany = Znajdz<QComboBox>(u"CBImportStanow"_s);
  stany.addItem(u"Magazyn 1"_s);
  stany.setCurrentIndex(1);
  EXPECT_TRUE(Znajdz(u"cb_importStanowUjemnych"_s).isEnabled());
  EXPECT_TRUE(U().strukturaTow.CzyOferowane(PoleTowaru::Stan));
  stany.setCurrentIndex(0);
  EXPECT_FALSE(Znajdz(u"cb_importStanowUjemnych"_s).isEnabled());

  // Code lengths.
  auto& min = Znajdz<QSpinBox>(u"UpDownMinDlugoscKodu"_s);
  min.setValue(15);
  EXPECT_EQ(min.value(), 13);
  Znajdz<QSpinBox>(u"UpDownMaxDlugoscKodu"_s).setValue(2);
  EXPECT_EQ(Znajdz<QLineEdit>(u"EdMaxDlugoscKodu"_s).text(), u"13 znaków"_s);

  // Choices that the structure does not carry.
  const auto wybor = [&](const QString& przycisk, const QString& zostaje, const QStringList& komunikaty) {
    SCOPED_TRACE(przycisk.toStdString());
    Kliknij(przycisk);
    EXPECT_TRUE(Zaznaczony(zostaje));
    EXPECT_EQ(Zaznaczony(przycisk), przycisk == zostaje);
    EXPECT_EQ(Komunikaty(), komunikaty);
  };
  for (const char* nazwa :
       {"RBTowaryAktywne", "RBTowaryUsuniete", "RBKontrahenciAktywni", "RBKontrahenciUsunieci"})
    wybor(nazwa, nazwa, {});
  Kliknij(u"RBTowaryWszystkie"_s);
  Kliknij(u"RBKontrahenciWszyscy"_s);
  U().strukturaTow.CBTypPliku = U().strukturaKontr.CBTypPliku = TypPliku::DBase;
  for (const char* nazwa : {"RBTowaryAktywne", "RBTowaryUsuniete"})
    wybor(
        nazwa, u"RBTowaryWszystkie"_s,
        {u"BŁĄD: Struktura pliku importu towarów nie pozwala na odróżnianie towarów aktywnych i usuniętych"_s});
  for (const char* nazwa : {"RBKontrahenciAktywni", "RBKontrahenciUsunieci"})
    wybor(
        nazwa, u"RBKontrahenciWszyscy"_s,
        {u"BŁĄD: Struktura pliku importu kontrahentów nie pozwala na odróżnianie kontrahentów aktywnych i usuniętych"_s});
  Kliknij(u"RBDodajTowarBezNazwy"_s);
  wybor(u"RBPominTowarBezNazwy"_s, u"RBDodajTowarZNazwaAuto"_s, {});
}

TEST_F(OknoGlowne, PaskiDzialajaTylkoNaSwojejStronie) {
  ASSERT_TRUE(Otworz());
  auto& strony = Znajdz<QTabWidget>(u"PageControl"_s);
  const struct {
    int strona;
    const char* pasek;
    bool pyta;
  } paski[] = {{0, "MStatusButtonBar1", true},
               {1, "MStatusButtonBar2", false},
               {2, "MStatusButtonBar4", false},
               {3, "MStatusButtonBar5", false}};
  for (const auto& [strona, pasek, pyta] : paski) {
    SCOPED_TRACE(pasek);
    auto* const wyjscie = Znajdz<TMStatusButtonBar>(pasek).findChild<QAbstractButton*>("Wyjscie");
    okno->show();
    strony.setCurrentIndex(strona == 0 ? 1 : 0);
    wyjscie->click();
    EXPECT_TRUE(okno->isVisible());
    strony.setCurrentIndex(strona);
    if (pyta) {
      rozmowa.odpowiedzi.push_back(QMessageBox::No);
      wyjscie->click();
      EXPECT_TRUE(okno->isVisible());
      const auto& pytanie = rozmowa.pytania.back();
      EXPECT_EQ(pytanie.komunikat.tekst, u"Czy rzeczywiście chcesz opuścić program"_s);
      EXPECT_EQ(pytanie.domyslny, QMessageBox::No);
      rozmowa.odpowiedzi.push_back(QMessageBox::Yes);
    }
    wyjscie->click();
    EXPECT_FALSE(okno->isVisible());
  }
  // The close box asks on every page.
  rozmowa.odpowiedzi = {QMessageBox::No, QMessageBox::Yes};
  okno->show();
  EXPECT_FALSE(okno->close());
  EXPECT_EQ(rozmowa.pytania.back().komunikat.tekst, u"Czy rzeczywiście chcesz opuścić program"_s);
  EXPECT_TRUE(okno->close());
}

TEST_F(OknoGlowne, NieczytelneMagazynyNieZabierajaUstawien) {
  b.baza.ZapiszKonfiguracje(magazyn_ustawien::NazwaKonfiguracji(),
                            Config({{"ParMaxDlKodu", "9"}, {"ParImportStanow", "2"}}));
  b.baza.ExecSQL("drop table Magazyn");
  ASSERT_TRUE(Otworz());
  EXPECT_EQ(Komunikaty().size(), 1);
  EXPECT_EQ(Znajdz<QSpinBox>(u"UpDownMaxDlugoscKodu"_s).value(), 9);
  Polecenie(u"ZapisDoBazy"_s);
  EXPECT_EQ(b.Kolumna("select Wartosc from Konfiguracja where Nazwa = 'ZORVIK' and Parametr in "
                      "('ParMaxDlKodu', 'ParImportStanow') order by Parametr"),
            u"2,9"_s);
}

TEST_F(OknoGlowne, KonfiguracjaWBazieIWPliku) {
  ASSERT_TRUE(Otworz());
  Kliknij(u"cb_formatujJM"_s);
  Polecenie(u"ZapisDoBazy"_s);
  EXPECT_EQ(b.Tekst("select Wartosc from Konfiguracja where Nazwa = 'ZORVIK' and Parametr = 'ParFormatujJM'"),
            u"1"_s);
  // Into a file; an existing one is overwritten only on "Tak".
  const QString plik = Zapisz(u"moja.cfg"_s, "stary");
  for (const auto odpowiedz : {QMessageBox::No, QMessageBox::Yes}) {
    rozmowa.pytania.clear();
    rozmowa.pliki.push_back(plik);
    rozmowa.odpowiedzi.push_back(odpowiedz);
    Polecenie(u"EksportDoPlikuZorvik"_s);
    EXPECT_EQ(Komunikaty(), QStringList{u"Uwaga: Plik o podanej nazwie już istnieje. Czy nadpisać go"_s});
    EXPECT_EQ(QFileInfo(plik).size() > 1000, odpowiedz == QMessageBox::Yes);
  }
  EXPECT_EQ(rozmowa.wybory[0].filtr,
            u"Pliki konfiguracji Zorvika (Zorvik*.cfg) (*.cfg *.CFG);;Wszystkie pliki (*.*) (*)"_s);
  EXPECT_EQ(rozmowa.wybory[0].sciezka, Sciezka(u"Zorvik.cfg"_s));
  // Back from it.
  Kliknij(u"cb_formatujJM"_s);
  Kliknij(u"cb_akttow"_s);
  rozmowa.pliki.push_back(plik);
  Polecenie(u"ImportZPlikuZorvik"_s);
  EXPECT_TRUE(Zaznaczony(u"cb_formatujJM"_s) && Zaznaczony(u"cb_akttow"_s) && U().importTow.cb_akttow);
  EXPECT_EQ(rozmowa.wybory.back().sciezka, plik);
  // A choice that the loaded structure does not carry goes back without a word.
  ASSERT_FALSE(
      plik_konfiguracji::Zapisz(plik, Config({{"ParJakieTowary", "3"}, {"ParTypPlikuTow", "1"}})).blad);
  for (const QString& nazwa : {plik, Sciezka(u"brak.cfg"_s)}) {
    rozmowa.pliki.push_back(nazwa);
    Polecenie(u"ImportZPlikuZorvik"_s);
  }
  EXPECT_TRUE(Zaznaczony(u"RBTowaryWszystkie"_s));
  EXPECT_EQ(Komunikaty(), QStringList{u"UWAGA: Plik "_s + Sciezka(u"brak.cfg"_s) + u" nie istnieje"_s});
  // Another session finds what the database was given.
  ASSERT_TRUE(Otworz());
  EXPECT_TRUE(Zaznaczony(u"cb_formatujJM"_s));
}

TEST_F(OknoGlowne, BladPoleceniaJestPokazany) {
  ASSERT_TRUE(Otworz());
  b.baza.ExecSQL("drop table Konfiguracja");
  Polecenie(u"ZapisDoBazy"_s);
  ASSERT_EQ(rozmowa.pytania.size(), 1U);
  EXPECT_EQ(rozmowa.pytania[0].ikona, QMessageBox::Critical);
  Polecenie(u"OProgramie"_s);
  EXPECT_TRUE(rozmowa.pytania[1].komunikat.tekst.startsWith(u"Zorvik, wersja "));
}

// The dialog that asks for a database, and a person in front of it.
struct Polaczenie {
  QDialog& dialog;
  QLineEdit& baza = *dialog.findChild<QLineEdit*>("EdBaza");
  QLabel& powod = *dialog.findChild<QLabel*>("lbPowod");
  QPushButton& polacz = *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);

  explicit Polaczenie(QDialog& okno) : dialog(okno) {
    okno.show();
    EXPECT_TRUE(polacz.isDefault());
  }
  void Wybierz(const char* rodzaj) { dialog.findChild<QAbstractButton*>(rodzaj)->click(); }
  // The attempt fails: the reason stands in the dialog, which stays as it was.
  void Nieudane(const QString& adres, const QString& przyczyna) {
    baza.setText(adres);
    polacz.click();
    EXPECT_TRUE(dialog.isVisible() && powod.isVisible());
    EXPECT_TRUE(powod.text().contains(przyczyna)) << powod.text().toStdString();
    EXPECT_EQ(baza.text(), adres);
  }
};

struct OknoIBazy : OknoTestowe {
  void Osoba(std::function<void(Polaczenie)> czynnosci) {
    rozmowa.dialogi.push_back([=](QDialog& dialog) {
      czynnosci(Polaczenie(dialog));
      return dialog.result();
    });
  }
  static QString Zapamietana() {
    QFile plik(ParametryPolaczenia::PlikDomyslnych());
    return plik.open(QIODevice::ReadOnly) ? QString::fromUtf8(plik.readAll()) : QString();
  }
  QString Adres() const { return Znajdz<QLineEdit>(u"EdAdresBazy"_s).text(); }

  const QString nowa = Sciezka(u"nowa.db"_s);
};

TEST_F(OknoIBazy, PierwszeUruchomienie) {
  StartOkna start = Start();
  start.baza.reset();
  int tworzonych = 0;
  start.utworzBaze = [&](const ParametryPolaczenia& parametry) -> std::optional<Komunikat> {
    if (++tworzonych == 1) return Komunikat{u"UWAGA"_s, u"zajęta"_s};
    EXPECT_TRUE(QFile::copy(b.Sciezka(), parametry.cel));
    return std::nullopt;
  };
  Osoba([](Polaczenie p) {
    EXPECT_FALSE(p.polacz.isEnabled() || p.powod.isVisible());  // Enter makes no database
    p.dialog.reject();
  });
  EXPECT_FALSE(Otworz(start));
  EXPECT_FALSE(okno->isVisible());

  b.baza.Odlacz();  // all of it is in its file now
  Osoba([&](Polaczenie p) {
    p.Nieudane(u"odbc:DSN=x"_s, u"ODBC"_s);
    p.Nieudane(Sciezka(u"brak.db"_s), u"brak.db"_s);
    EXPECT_EQ(p.polacz.text(), u"&Spróbuj ponownie"_s);
    p.Wybierz("rbNowaBaza");
    p.Nieudane(nowa, u"zajęta"_s);
    p.Wybierz("rbInnaBaza");
    EXPECT_EQ(p.baza.text(), Sciezka(u"brak.db"_s));
    p.Wybierz("rbNowaBaza");
    EXPECT_EQ(p.baza.text(), nowa);
    p.polacz.click();
  });
  EXPECT_TRUE(Otworz(start));
  EXPECT_EQ(tworzonych, 2);
  EXPECT_TRUE(rozmowa.pytania.empty());
  EXPECT_EQ(Zapamietana(), u"sqlite:"_s + nowa + u'\n');
  const auto prawa = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
  EXPECT_EQ(QFile(ParametryPolaczenia::PlikDomyslnych()).permissions(), prawa);
}

TEST_F(OknoIBazy, NieosiagalnaBazaJestProponowanaJeszczeRaz) {
  b.baza.Odlacz();
  ASSERT_TRUE(QFile::copy(b.Sciezka(), nowa));
  ASSERT_FALSE(ParametryPolaczenia::ZTekstu(nowa)->Zapamietaj());
  StartOkna start = Start();
  start.baza.reset();
  start.utworzBaze = [](const ParametryPolaczenia&) { return Komunikat{{}, u"nie teraz"_s}; };
  EXPECT_TRUE(Otworz(start));
  okno.reset();
  const QString gdzieIndziej = Sciezka(u"schowana.db"_s);
  ASSERT_TRUE(QFile::rename(nowa, gdzieIndziej));
  rozmowa.odpowiedzi = {QMessageBox::No};
  Osoba([&](Polaczenie p) {
    EXPECT_EQ(p.baza.text(), nowa);
    EXPECT_EQ(p.polacz.text(), u"&Spróbuj ponownie"_s);
    EXPECT_TRUE(p.powod.text().contains(nowa));
    p.Wybierz("rbNowaBaza");
    p.baza.setText(Sciezka(u"pusta.db"_s));
    p.polacz.click();  // asks, with "Nie" as the default, and goes no further
    EXPECT_FALSE(p.powod.text().contains(u"nie teraz"_s));
    p.Wybierz("rbInnaBaza");
    ASSERT_TRUE(QFile::rename(gdzieIndziej, nowa));
    p.polacz.click();
  });
  EXPECT_TRUE(Otworz(start));
  ASSERT_EQ(rozmowa.pytania.size(), 1U);
  EXPECT_EQ(rozmowa.pytania[0].domyslny, QMessageBox::No);
  EXPECT_EQ(Zapamietana(), u"sqlite:"_s + nowa + u'\n');
  // A database named by the person is not argued about.
  start.baza = ParametryPolaczenia::ZTekstu(gdzieIndziej);
  EXPECT_FALSE(Otworz(start));
  EXPECT_EQ(rozmowa.pytania.size(), 2U);
}

// It is not shown, and serves the address it was given for until another one is typed.
TEST_F(OknoIBazy, ZapamietaneHasloZostajePrzySwoimAdresie) {
  QStringList proby;
  Tfrm_polaczenie okienko(
      nullptr, rozmowa,
      {.adres = ParametryPolaczenia::ZTekstu(u"odbc:DSN=x;UID=u;PWD=tajne"_s), .powod = u"brak"_s},
      [&](const ParametryPolaczenia& parametry, bool) {
        proby << parametry.Tekst();
        return u"nadal brak"_s;
      });
  Polaczenie p(okienko);
  auto& haslo = *okienko.findChild<QLineEdit*>("EdHaslo");
  EXPECT_EQ(p.baza.text() + haslo.text(), u"odbc:DSN=x;UID=u;"_s);
  p.polacz.click();
  haslo.setText(u"nowe"_s);
  p.polacz.click();
  haslo.clear();
  p.Nieudane(u"odbc:DSN=y"_s, u"nadal brak"_s);
  EXPECT_EQ(proby,
            (QStringList{u"odbc:DSN=x;UID=u;PWD=tajne"_s, u"odbc:DSN=x;UID=u;PWD=nowe;"_s, u"odbc:DSN=y"_s}));
}

TEST_F(OknoIBazy, ZmianaBazyWczytujeJejUstawienia) {
  BazaTestowa druga;
  UtworzBaze(druga.baza, {});
  druga.baza.ZapiszKonfiguracje(magazyn_ustawien::NazwaKonfiguracji(), Config({{"ParMaxDlKodu", "9"}}));
  druga.baza.ExecSQL("insert into Magazyn (MagId, Nazwa) values (5, 'Hala')");
  druga.baza.ZapiszKonfiguracje(ParametrySystemu::KonfiguracjaKodow(), Config({{"MinKodKreskowy", "7"}}));
  ASSERT_TRUE(Otworz());
  ASSERT_TRUE(okno->Kontekst().bufor.Napelnij(b.baza));
  EXPECT_EQ(Adres(), b.Sciezka());
  Kliknij(u"cb_formatujJM"_s);
  Osoba([&](Polaczenie p) {
    EXPECT_EQ(p.baza.text(), b.Sciezka());
    EXPECT_EQ(p.polacz.text(), u"&Połącz"_s);
    p.Nieudane(Sciezka(u"brak.db"_s), u"brak.db"_s);
    // The one worked with so far is still there.
    EXPECT_EQ(okno->Kontekst().baza.Parametry().cel, b.Sciezka());
    EXPECT_TRUE(okno->Kontekst().baza.Polaczona());
    p.baza.setText(QDir().relativeFilePath(druga.Sciezka()));
    p.polacz.click();
  });
  Polecenie(u"ZmienBaze"_s);
  EXPECT_EQ(Adres(), druga.Sciezka());
  EXPECT_EQ(okno->windowTitle(), u"Import/Eksport bazy towarów/kontrahentów ("_s + druga.baza.Nazwa() + u')');
  EXPECT_EQ(Znajdz<QSpinBox>(u"UpDownMaxDlugoscKodu"_s).value(), 9);
  EXPECT_FALSE(Zaznaczony(u"cb_formatujJM"_s) || okno->Kontekst().bufor.Gotowy());
  EXPECT_EQ(okno->Kontekst().parametry[IdParametru::MinKodKreskowy].AsInteger(), 7);
  EXPECT_EQ(Znajdz<QComboBox>(u"CBImportStanow"_s).itemText(1), u"Magazyn 5 – Hala"_s);
  EXPECT_EQ(Zapamietana(), u"sqlite:"_s + druga.Sciezka() + u'\n');
  Kliknij(u"cb_formatujJM"_s);
  Polecenie(u"ZapisDoBazy"_s);
  EXPECT_EQ(
      druga.Liczba("select count(*) from Konfiguracja where Parametr = 'ParFormatujJM' and Wartosc = '1'"),
      1);
  EXPECT_EQ(b.Liczba("select count(*) from Konfiguracja where Nazwa = 'ZORVIK'"), 0);
}

}  // namespace
