#include <QComboBox>
#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>

#include <gtest/gtest.h>

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
  void UstawStrukture() {
    StrukturaPliku& s = U().strukturaTow;
    s.CBTypPliku = TypPliku::Rozdzielany;
    s.separator = u";"_s;
    s.CBNieAnalizujPierwszejLinii = false;
    s.pola = {WpisPola(0, {}), WpisPola(1, {}), WpisPola(18, {})};
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
      kroki.push_back({[&] { return przycisk.text() == u"Zamknij"; }, [&] { przycisk.click(); }});
      return Przejdz(postep, kroki);
    });
  }
  void Importuj(const QString& plik) {
    rozmowa.pliki.push_back(plik);
    Polecenie(u"ImportTowMenu"_s);
  }
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
  EXPECT_EQ(Komunikaty(), QStringList{u"UWAGA: Błąd otwarcia pliku "_s + folder.path() +
                                      u"\nByć może plik jest używany przez inną aplikację"_s});
  rozmowa.pliki.push_back(std::nullopt);
  Polecenie(u"ImportTowMenu"_s);
  EXPECT_TRUE(Komunikaty().isEmpty());
  s.CBTypPliku = TypPliku::DBase;
  s.pola = {WpisPola(0, u"KOD"_s)};
  rozmowa.pliki.push_back(std::nullopt);
  Polecenie(u"ImportTowMenu"_s);
  EXPECT_EQ(rozmowa.wybory.front().filtr, u"Pliki tekstowe (*.txt) (*.txt);;Wszystkie pliki (*.*) (*)"_s);
  EXPECT_EQ(rozmowa.wybory.back().filtr, u"Pliki DBF (*.dbf) (*.dbf);;Wszystkie pliki (*.*) (*)"_s);
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
  Kliknij(u"RBTowaryAktywne"_s);
  const auto osoba = [&](int typ, const char* przycisk) {
    rozmowa.dialogi.push_back([=](QDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), u"Struktura pliku importu towarów"_s);
      dialog.show();
      dialog.findChild<QComboBox*>("CBTypPliku")->setCurrentIndex(typ);
      dialog.findChild<QAbstractButton*>(przycisk)->click();
      return dialog.result();
    });
    Znajdz<TMStatusButtonBar>(u"MStatusButtonBar1"_s).findChild<QAbstractButton*>("StrukturaPliku")->click();
  };
  osoba(3, "Wyjscie");
  EXPECT_EQ(U().strukturaTow.CBTypPliku, TypPliku::Zorvik);
  EXPECT_TRUE(Zaznaczony(u"RBTowaryAktywne"_s));
  osoba(3, "Akceptuj");
  EXPECT_EQ(U().strukturaTow.CBTypPliku, TypPliku::DBase);
  EXPECT_FALSE(U().strukturaTow.CBNieAnalizujPierwszejLinii);
  // What the new structure does not carry.
  EXPECT_TRUE(Zaznaczony(u"RBTowaryWszystkie"_s) && Zaznaczony(u"RBDodajTowarZNazwaAuto"_s));
  EXPECT_EQ(U().strukturaKontr.CBTypPliku, TypPliku::Zorvik);
}

TEST_F(PrzebiegiOkna, PlikUpuszczonyNaStroneImportu) {
  UstawStrukture();
  QMimeData dane;
  dane.setUrls({QUrl::fromLocalFile(Zapisz(u"upuszczony.txt"_s, Wiersze(3)))});
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
