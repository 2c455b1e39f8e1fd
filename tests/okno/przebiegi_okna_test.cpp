#include <QComboBox>
#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTabWidget>
#include <QTreeWidget>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "shell/kontrolki/pamiec_okien.h"
#include "shell/kontrolki/pasek_przyciskow.h"
#include "tests/okno/okno_testowe.h"
#include "tests/okno/osoba_przy_oknie.h"
#include "tests/wspolne/przebieg_testowy.h"

using namespace std::string_literals;

namespace {

class PrzebiegiOkna : public OknoTestowe {
 protected:
  PrzebiegiOkna() { EXPECT_TRUE(Otworz()); }

  // Code, name and price; VAT, unit and assortment are made up.
  void UstawStrukture() { UstawStrukture(U().strukturaTow, {0, 1, 18}); }
  static void UstawStrukture(StrukturaPliku& s, std::initializer_list<int> pola) {
    s.CBTypPliku = TypPliku::Rozdzielany;
    s.separator = u";"_s;
    s.CBNieAnalizujPierwszejLinii = false;
    s.pola.clear();
    for (const int pole : pola) s.pola.emplace_back(pole, QString());
  }
  static QByteArray Wiersze(int ile) {
    QByteArray tresc;
    for (int i = 0; i < ile; ++i)
      tresc += QByteArray::number(100000 + i) + ";Towar " + QByteArray::number(i) + ";1.50\r\n";
    return tresc;
  }
  // Sees the run to its end; stops it once the database holds goods.
  void Czekaj(bool przerwij = false) {
    rozmowa.dialogi.push_back([this, przerwij](QDialog& postep) {
      auto& przycisk = *postep.findChild<QPushButton*>("button");
      postep.findChild<QTimer*>("timer")->setInterval(1);
      std::vector<Krok> kroki;
      if (przerwij) kroki.push_back({[this] { return Towarow() > 0; }, [&] { przycisk.click(); }});
      kroki.push_back({[&] { return przycisk.text() == u"Zamknij"; },
                       [&] {
                         pokazane = {postep.windowTitle()};
                         const auto& linie = *postep.findChild<QTreeWidget*>("linie");
                         for (int i = 0; i < linie.topLevelItemCount(); ++i)
                           pokazane << linie.topLevelItem(i)->text(1);
                         przycisk.click();
                       }});
      return Przejdz(postep, kroki);
    });
  }
  void Importuj(const QString& plik) {
    rozmowa.pliki.push_back(plik);
    Polecenie(u"ImportTowMenu"_s);
  }
  // The caption and the lines of the last progress window, at its end.
  QStringList pokazane;
  long long Towarow() { return b.Liczba("select count(*) from Towar"); }
};

TEST_F(PrzebiegiOkna, OdmowyPrzedImportemWKolejnosci) {
  StrukturaPliku& s = U().strukturaTow;
  const auto odmowa = [&](const QString& powod) {
    Polecenie(u"ImportTowMenu"_s);
    EXPECT_EQ(Komunikaty(), QStringList{u"BŁĄD: "_s + powod});
    EXPECT_TRUE(rozmowa.wybory.empty());
  };
  s.CBTypPliku = TypPliku::Rozdzielany;
  s.separator.clear();
  odmowa(u"Nie zdefiniowano listy pól"_s);
  s.pola = {WpisPola(0, {}), WpisPola(23, {})};
  odmowa(u"Nie zdefiniowano separatora"_s);
  s.CBTypPliku = TypPliku::StalaSzerokosc;
  odmowa(u"Nie zdefiniowano szerokości pola"_s);
  s.CBTypPliku = TypPliku::DBase;
  odmowa(u"Nie zdefiniowano nazwy pola"_s);
  s.CBTypPliku = TypPliku::Rozdzielany;
  s.separator = u";"_s;
  odmowa(u"Nie zdefiniowano opisu stawki VAT"_s);
  s.pola.pop_back();
  // The structure will do; now the file.
  Importuj(Sciezka(u"brak.txt"_s));
  EXPECT_EQ(Komunikaty(), QStringList{u"UWAGA: Plik "_s + Sciezka(u"brak.txt"_s) + u" nie istnieje"_s});
  Importuj(folder.path());
  EXPECT_EQ(Komunikaty(),
            QStringList{u"UWAGA: "_s + folder.path() +
                        u" jest folderem, a nie plikiem\nZapisz dane w zwykłym pliku i wskaż ten plik"_s});
  rozmowa.pliki.push_back(std::nullopt);
  Polecenie(u"ImportTowMenu"_s);
  EXPECT_TRUE(Komunikaty().isEmpty());
  s.CBTypPliku = TypPliku::DBase;
  s.pola = {WpisPola(0, u"KOD"_s)};
  rozmowa.pliki.push_back(std::nullopt);
  Polecenie(u"ImportTowMenu"_s);
  EXPECT_EQ(
      rozmowa.wybory.front().filtr,
      u"Pliki tekstowe (*.txt) (*.txt *.TXT);;Pliki CSV (*.csv) (*.csv *.CSV);;Wszystkie pliki (*.*) (*)"_s);
  EXPECT_EQ(rozmowa.wybory.back().filtr, u"Pliki DBF (*.dbf) (*.dbf *.DBF);;Wszystkie pliki (*.*) (*)"_s);
  EXPECT_EQ(rozmowa.wybory.front().rozszerzenie + rozmowa.wybory.back().rozszerzenie, u"txtdbf"_s);
}

// Whoever opens and closes the database's file takes away the locks that the engine holds in this process.
TEST_F(PrzebiegiOkna, PlikBazyNieJestNawetOtwierany) {
  const auto zablokowana = [this] {
    const pid_t obcy = fork();
    if (obcy == 0) {
      struct flock blokada = {.l_type = F_WRLCK, .l_whence = SEEK_SET, .l_start = 0, .l_len = 0, .l_pid = 0};
      const int plik = open(b.Sciezka().toLocal8Bit().constData(), O_RDWR);
      _exit(fcntl(plik, F_GETLK, &blokada) == 0 && blokada.l_type != F_UNLCK ? 0 : 1);
    }
    int status = -1;
    waitpid(obcy, &status, 0);
    return status == 0;
  };
  UstawStrukture();
  ASSERT_EQ(link(b.Sciezka().toLocal8Bit().constData(), Sciezka(u"dane.txt"_s).toLocal8Bit().constData()), 0);
  Importuj(Sciezka(u"dane.txt"_s));
  for (const char* polecenie : {"ImportZPlikuZorvik", "EksportDoPlikuZorvik"}) {
    rozmowa.pliki.push_back(Sciezka(u"dane.txt"_s));
    rozmowa.odpowiedzi = {QMessageBox::Yes};
    Polecenie(QString::fromLatin1(polecenie));
  }
  const QStringList odmowy = Komunikaty().filter(u"/dane.txt jest plikiem bazy danych\n"_s);
  EXPECT_EQ(odmowy.size(), 3);
  EXPECT_TRUE(zablokowana());
  EXPECT_EQ(Towarow(), 0);
}

TEST_F(PrzebiegiOkna, ZmienionaSciezkaJestProponowanaWCalosci) {
  UstawStrukture();
  const QDir tutaj(folder.path());
  ASSERT_TRUE(tutaj.mkpath(u"ostatni"_s) && tutaj.mkpath(u"dostawca"_s));
  PamiecOkien().setValue(u"foldery/import-towarow"_s, Sciezka(u"ostatni"_s));
  const QString bylo = U().plikImportuTow;
  const std::pair<QString, QString> przypadki[] = {
      {bylo, u"ostatni/TOWARY_I.txt"_s},
      {Sciezka(u"dostawca/cennik.csv"_s), u"dostawca/cennik.csv"_s},
      {Sciezka(u"nie ma/cennik.csv"_s), u"ostatni/cennik.csv"_s},
      {bylo, u"TOWARY_I.txt"_s},  // the last folder is gone
  };
  for (const auto& [ustawiona, proponowana] : przypadki) {
    if (!proponowana.contains(u'/')) tutaj.rmdir(u"ostatni"_s);
    U().plikImportuTow = QDir::toNativeSeparators(ustawiona);
    rozmowa.pliki.push_back(std::nullopt);
    Polecenie(u"ImportTowMenu"_s);
    EXPECT_EQ(rozmowa.wybory.back().sciezka, Sciezka(proponowana));
  }
}

TEST_F(PrzebiegiOkna, PytanieOLiczbePolKazdymPrzyciskiem) {
  UstawStrukture();
  const QString plik =
      Zapisz(u"towary.txt"_s, "100001;Pierwszy;1\r\n100002;Drugi\r\n100003;Trzeci\r\n100004;Czwarty;4\r\n");
  const struct {
    std::vector<Rozmowa::Przycisk> odpowiedzi;
    long long towarow;
  } przypadki[] = {
      {{QMessageBox::Abort}, 1},
      {{QMessageBox::Retry, QMessageBox::Retry}, 2},
      {{QMessageBox::Retry, QMessageBox::Ignore}, 3},
      {{QMessageBox::Ignore}, 4},
  };
  for (const auto& p : przypadki) {
    for (const char* tabela : {"Istw", "Towar"}) b.baza.ExecSQL("delete from "s + tabela);
    okno->Kontekst().bufor.Uniewaznij();
    rozmowa.odpowiedzi.assign(p.odpowiedzi.begin(), p.odpowiedzi.end());
    Czekaj();
    Importuj(plik);
    EXPECT_TRUE(rozmowa.odpowiedzi.empty());
    EXPECT_EQ(Towarow(), p.towarow);
    EXPECT_TRUE(Komunikaty().contains(u"Koniec: Aktualizację zakończono"_s));
  }
  EXPECT_EQ(U().plikImportuTow, QDir::toNativeSeparators(plik));
  // The folder is remembered beyond this session.
  ASSERT_TRUE(Otworz());
  rozmowa.pliki.push_back(std::nullopt);
  Polecenie(u"ImportTowMenu"_s);
  EXPECT_EQ(rozmowa.wybory.back().sciezka, Sciezka(u"TOWARY_I.txt"_s));
}

TEST_F(PrzebiegiOkna, PrzerwanyImportZostawiaCoZapisal) {
  UstawStrukture();
  const int ile = 60'000;
  Czekaj(true);
  Importuj(Zapisz(u"duzo.txt"_s, Wiersze(ile)));
  EXPECT_GT(Towarow(), 0);
  EXPECT_LT(Towarow(), ile);
  EXPECT_EQ(Towarow(), b.Liczba("select max(cast(Kod as integer)) - 99999 from Towar"));
}

TEST_F(PrzebiegiOkna, EksportPytaONadpisanieIZapisuje) {
  const QString plik = Zapisz(u"TOWARY_E.txt"_s, "stary");
  Znajdz<QTabWidget>(u"PageControl"_s).setCurrentIndex(1);
  rozmowa.pliki = {plik, plik};
  rozmowa.odpowiedzi = {QMessageBox::No, QMessageBox::Yes};
  Polecenie(u"EksportTowMenu"_s);
  EXPECT_EQ(Zawartosc(plik), "stary");
  Czekaj();
  Polecenie(u"EksportTowMenu"_s);
  EXPECT_TRUE(Zawartosc(plik).startsWith("Kod towaru\tNazwa towaru\t"));
  EXPECT_TRUE(Komunikaty().contains(u"Koniec: Eksport zakończono"_s));
  EXPECT_EQ(rozmowa.wybory[0].sciezka, plik);
  EXPECT_EQ(rozmowa.wybory[0].rozszerzenie, u"txt"_s);
}

TEST_F(PrzebiegiOkna, EdycjaStruktury) {
  const struct {
    int strona;
    const char *pasek, *przycisk;
    QString tytul;
    StrukturaPliku Ustawienia::*struktura;
    const char *aktywne, *wszystkie;
  } przypadki[] = {
      {2, "MStatusButtonBar4", "Strukturapliku", u"Struktura pliku importu kontrahentów"_s,
       &Ustawienia::strukturaKontr, "RBKontrahenciAktywni", "RBKontrahenciWszyscy"},
      {0, "MStatusButtonBar1", "StrukturaPliku", u"Struktura pliku importu towarów"_s,
       &Ustawienia::strukturaTow, "RBTowaryAktywne", "RBTowaryWszystkie"},
  };
  for (const auto& p : przypadki) {
    EXPECT_EQ(U().strukturaTow.CBTypPliku, TypPliku::Zorvik);
    Znajdz<QTabWidget>(u"PageControl"_s).setCurrentIndex(p.strona);
    Kliknij(p.aktywne);
    const auto osoba = [&](int typ, const char* przycisk) {
      rozmowa.dialogi.push_back([=](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), p.tytul);
        dialog.show();
        dialog.findChild<QComboBox*>("CBTypPliku")->setCurrentIndex(typ);
        dialog.findChild<QAbstractButton*>(przycisk)->click();
        return dialog.result();
      });
      Znajdz<TMStatusButtonBar>(p.pasek).findChild<QAbstractButton*>(p.przycisk)->click();
    };
    rozmowa.odpowiedzi = {QMessageBox::Yes};  // to what is thrown away
    osoba(3, "Wyjscie");
    EXPECT_EQ((U().*p.struktura).CBTypPliku, TypPliku::Zorvik);
    EXPECT_TRUE(Zaznaczony(p.aktywne));
    osoba(3, "Akceptuj");
    EXPECT_EQ((U().*p.struktura).CBTypPliku, TypPliku::DBase);
    // What the new structure does not carry.
    EXPECT_TRUE(Zaznaczony(p.wszystkie));
  }
  EXPECT_FALSE(U().strukturaTow.CBNieAnalizujPierwszejLinii);
  EXPECT_TRUE(Zaznaczony(u"RBDodajTowarZNazwaAuto"_s));
}

TEST_F(PrzebiegiOkna, ImportIEksportKontrahentow) {
  UstawStrukture(U().strukturaKontr, {});
  Polecenie(u"ImportKontrMenu"_s);
  EXPECT_EQ(Komunikaty(), QStringList{u"BŁĄD: Nie zdefiniowano listy pól"_s});
  UstawStrukture(U().strukturaKontr, {0, 1});
  for (const char* opcja :
       {"cb_odbiorca", "cb_nowykontr", "rb_PominBoTakiNIPJuzJest", "rb_pominKontrBezNIPu"})
    Kliknij(opcja);
  const auto przebieg = [this](const QString& polecenie, const QString& plik) {
    rozmowa.pliki.push_back(plik);
    Czekaj();
    Polecenie(polecenie);
    return QFileInfo(rozmowa.wybory.back().sciezka).fileName();
  };
  EXPECT_EQ(przebieg(u"ImportKontrMenu"_s, Zapisz(u"k.txt"_s, "Alfa;1\r\nBeta;2\r\nInna;1\r\n")),
            u"KONTR_I.txt"_s);
  EXPECT_EQ(pokazane[0], u"Postęp aktualizacji kontrahentów"_s);
  EXPECT_THAT(pokazane, testing::IsSupersetOf({u"Ilość dodanych kontrahentów 2"_s,
                                               u"Ilość poprawionych kontrahentów 0"_s,
                                               u"Ilość pominiętych kontrahentów 1"_s}));
  for (auto* const opcja : okno->findChildren<QAbstractButton*>(QRegularExpression(u"^cb_gdy"_s)))
    if (!opcja->isChecked()) opcja->click();
  const QString plik = Sciezka(u"k_e.txt"_s);
  EXPECT_EQ(przebieg(u"EksportKontrMenu"_s, plik), u"KONTR_E.txt"_s);
  EXPECT_EQ(pokazane[0], u"Postęp eksportu kontrahentów"_s);
  EXPECT_EQ(Zawartosc(plik).count("\r\n"), 3);
  EXPECT_EQ(U().plikEksportuKontr, QDir::toNativeSeparators(plik));
}

TEST_F(PrzebiegiOkna, DziesiecPrzebiegowPodRzad) {
  for (int i = 1; i <= 10; ++i) {
    ASSERT_TRUE(Otworz());
    UstawStrukture();
    Czekaj();
    Importuj(Zapisz(u"towary.txt"_s, Wiersze(i)));
    okno.reset();
    EXPECT_EQ(Towarow(), i);
  }
}

TEST_F(PrzebiegiOkna, PlikUpuszczonyNaStroneImportu) {
  UstawStrukture();
  QMimeData dane;
  // A name that is no UTF-8 comes as the bytes of an address.
  const QByteArray plik = QFile::encodeName(Zapisz(u"upuszczony.txt"_s, Wiersze(3)));
  const QByteArray zmieniony = QByteArray(plik).replace("upuszczony", "upuszczon\xB3");
  ASSERT_EQ(rename(plik.constData(), zmieniony.constData()), 0);
  // Qt would leave such a name behind, and the folder with it.
  const auto usun = qScopeGuard([&] { unlink(zmieniony.constData()); });
  dane.setUrls({QUrl::fromEncoded("file://" + zmieniony.toPercentEncoding("/"))});
  const auto upusc = [&] {
    QDragEnterEvent wejscie({}, Qt::CopyAction, &dane, Qt::LeftButton, Qt::NoModifier);
    wejscie.ignore();
    QCoreApplication::sendEvent(okno.get(), &wejscie);
    if (!wejscie.isAccepted()) return false;
    QDropEvent upuszczenie({}, Qt::CopyAction, &dane, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(okno.get(), &upuszczenie);
    QCoreApplication::processEvents();
    return true;
  };
  QDialog otwarty(okno.get());
  otwarty.setModal(true);
  otwarty.show();
  EXPECT_FALSE(upusc());
  otwarty.close();
  rozmowa.odpowiedzi = {QMessageBox::No};
  EXPECT_TRUE(upusc());
  EXPECT_EQ(Towarow(), 0);
  rozmowa.odpowiedzi = {QMessageBox::Yes};
  Czekaj();
  EXPECT_TRUE(upusc());
  EXPECT_EQ(Towarow(), 3);
  U().strukturaTow.pola.clear();
  Komunikaty();
  EXPECT_TRUE(upusc());
  EXPECT_EQ(Komunikaty(), QStringList{u"BŁĄD: Nie zdefiniowano listy pól"_s});
  Znajdz<QTabWidget>(u"PageControl"_s).setCurrentIndex(1);
  EXPECT_FALSE(upusc());
}

}  // namespace
