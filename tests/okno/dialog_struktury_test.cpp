#include "shell/dialogi/dialog_struktury.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "shell/dialogi/dialog_listy_pol.h"
#include "shell/dialogi/dialog_opisow_vat.h"
#include "shell/dialogi/dialog_pol_standardowych.h"
#include "shell/dialogi/stawki_vat.h"
#include "tests/exchange/pliki_probne.h"
#include "tests/okno/dialogi_testowe.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kKontrolki =
    "rbTabulator rbSrednik rbInny rbBrakSeparatora EdInnySeparator CBKwalifikatorTekstu "
    "CBNieAnalizujPierwszejLinii EdPoleAktywny gbTypTowaru gbWartosciPol";

void WybierzTyp(QDialog& dialog, TypPliku typ) {
  DialogiTestowe::Znajdz<QComboBox>(dialog, "CBTypPliku").setCurrentIndex(static_cast<int>(typ));
}

struct DialogStrukturyTest : DialogiTestowe {
  StrukturaPliku towary = Struktura(RodzajRekordu::Towary, TypPliku::Rozdzielany, {"00", "01"});
  StrukturaPliku kontrahenci{RodzajRekordu::Kontrahenci};

  bool Edytuj(StrukturaPliku& struktura, const std::function<void(QDialog&)>& czynnosci,
              const QString& przycisk = "Akceptuj", const QString& plik = {}) {
    Osoba(czynnosci, przycisk);
    return EdytujStrukture(nullptr, kontekst, struktura, plik);
  }
};

TEST_F(DialogStrukturyTest, TypPlikuMowiCoMoznaWpisac) {
  // "+" enabled, in the order of the controls; what the others show
  const struct {
    TypPliku typ;
    const char* dostepne;
    const char* zaznaczony;
    bool pierwszaLinia;
    QString inny, aktywny;
  } kTypy[] = {
      {TypPliku::Zorvik, "----------", "rbTabulator", true, u""_s, u"1"_s},
      {TypPliku::Rozdzielany, "+++-++++++", "rbInny", false, u"::"_s, u"tak"_s},
      {TypPliku::StalaSzerokosc, "++++++++++", "rbInny", false, u"::"_s, u"tak"_s},
      {TypPliku::DBase, "-------+++", "rbInny", false, u""_s, u"tak"_s},
      {TypPliku::Rozdzielany, "+++-++++++", "rbInny", false, u"::"_s, u"tak"_s},
  };
  for (StrukturaPliku* const struktura : {&towary, &kontrahenci}) {
    struktura->CBTypPliku = TypPliku::StalaSzerokosc;
    struktura->separator = u"::"_s;
    struktura->CBNieAnalizujPierwszejLinii = false;
    struktura->EdPoleAktywny = u"tak"_s;
    DialogStruktury dialog(nullptr, kontekst, *struktura, {});
    EXPECT_EQ(Znajdz<QWidget>(dialog, "gbTypTowaru").isVisibleTo(&dialog), struktura == &towary);
    EXPECT_EQ(Znajdz<QWidget>(dialog, "gbWartosciPol").isVisibleTo(&dialog), struktura == &kontrahenci);
    for (const auto& t : kTypy) {
      SCOPED_TRACE(static_cast<int>(t.typ));
      WybierzTyp(dialog, t.typ);
      QString dostepne;
      for (const QString& nazwa : kKontrolki.split(u' '))
        dostepne += Znajdz<QWidget>(dialog, nazwa).isEnabled() ? u'+' : u'-';
      EXPECT_EQ(dostepne, t.dostepne);
      EXPECT_TRUE(Znajdz<QAbstractButton>(dialog, t.zaznaczony).isChecked());
      EXPECT_EQ(Znajdz<QAbstractButton>(dialog, "CBNieAnalizujPierwszejLinii").isChecked(), t.pierwszaLinia);
      EXPECT_EQ(Znajdz<QLineEdit>(dialog, "EdInnySeparator").text(), t.inny);
      EXPECT_EQ(Znajdz<QLineEdit>(dialog, "EdPoleAktywny").text(), t.aktywny);
      EXPECT_EQ(dialog.Wynik().CBTypPliku, t.typ);
      EXPECT_EQ(dialog.Wynik().separator, u"::"_s);
    }
  }
}

TEST_F(DialogStrukturyTest, SeparatorZWyboruIZPowrotem) {
  const struct {
    QString wybor, inny, separator;
  } kWybory[] = {{"rbTabulator", "", "\t"},
                 {"rbSrednik", "", ";"},
                 {"rbInny", "||", "||"},
                 {"rbInny", " ", " "},
                 {"rbBrakSeparatora", "", ""}};
  for (const auto& w : kWybory) {
    towary.CBTypPliku = TypPliku::StalaSzerokosc;
    EXPECT_TRUE(Edytuj(towary, [&](QDialog& dialog) {
      Kliknij(dialog, w.wybor);
      Wpisz(dialog, "EdInnySeparator", w.inny);
    }));
    EXPECT_EQ(towary.separator, w.separator);
    DialogStruktury ponownie(nullptr, kontekst, towary, {});
    EXPECT_TRUE(Znajdz<QAbstractButton>(ponownie, w.wybor).isChecked());
    EXPECT_EQ(Znajdz<QLineEdit>(ponownie, "EdInnySeparator").text(), w.inny);
  }
}

TEST_F(DialogStrukturyTest, ZaakceptowanePrzechodziDoStruktury) {
  using S = StrukturaPliku;
  const auto sprawdz = [this](S& struktura,
                              std::initializer_list<std::pair<const char*, QString S::*>> pola) {
    EXPECT_TRUE(Edytuj(struktura, [&pola](QDialog& dialog) {
      WybierzTyp(dialog, TypPliku::DBase);
      Znajdz<QComboBox>(dialog, "CBPolskieZnaki").setCurrentIndex(2);
      for (const auto& [nazwa, slowo] : pola) Wpisz(dialog, nazwa, nazwa);
    }));
    EXPECT_EQ(struktura.CBTypPliku, TypPliku::DBase);
    EXPECT_EQ(struktura.CBPolskieZnaki, StronaKodowa::Mazovia);
    EXPECT_FALSE(struktura.CBNieAnalizujPierwszejLinii);
    for (const auto& [nazwa, slowo] : pola) EXPECT_EQ(struktura.*slowo, nazwa);
  };
  sprawdz(kontrahenci, {{"EdPoleAktywny", &S::EdPoleAktywny},
                        {"EdPoleUsuniety", &S::EdPoleUsuniety},
                        {"EdPoleDostawca", &S::EdPoleDostawca},
                        {"EdPoleOdbiorca", &S::EdPoleOdbiorca},
                        {"EdPoleProducent", &S::EdPoleProducent},
                        {"EdPoleSklep", &S::EdPoleSklep}});
  sprawdz(towary, {{"EdPoleTypTowar", &S::EdPoleTypTowar},
                   {"EdPoleTypUsluga", &S::EdPoleTypUsluga},
                   {"EdPoleTypOpakowanie", &S::EdPoleTypOpakowanie}});
  EXPECT_TRUE(Edytuj(towary, [](QDialog& dialog) {
    WybierzTyp(dialog, TypPliku::Rozdzielany);
    Znajdz<QComboBox>(dialog, "CBKwalifikatorTekstu").setCurrentIndex(1);
    Kliknij(dialog, "CBNieAnalizujPierwszejLinii");
  }));
  EXPECT_EQ(towary.CBKwalifikatorTekstu, KwalifikatorTekstu::Apostrof);
  EXPECT_TRUE(towary.CBNieAnalizujPierwszejLinii);
  EXPECT_TRUE(Edytuj(towary, [](QDialog& dialog) { WybierzTyp(dialog, TypPliku::Zorvik); }));
  EXPECT_EQ(towary.EdPoleTypTowar + towary.EdPoleTypUsluga + towary.EdPoleTypOpakowanie, "021");
}

TEST_F(DialogStrukturyTest, RowneSlowaStatusuZatrzymuja) {
  rozmowa.odpowiedzi = {QMessageBox::Yes};
  EXPECT_FALSE(Edytuj(
      towary,
      [](QDialog& dialog) {
        Wpisz(dialog, "EdPoleAktywny", "");
        Wpisz(dialog, "EdPoleUsuniety", "");
        Kliknij(dialog, "Akceptuj");
        EXPECT_TRUE(dialog.isVisible());
      },
      "Wyjscie"));
  ASSERT_EQ(rozmowa.pytania.size(), 2U);
  EXPECT_EQ(rozmowa.pytania[0].komunikat.naglowek, u"BŁĄD"_s);
  EXPECT_EQ(rozmowa.pytania[0].komunikat.tekst, u"Pola 'Aktywny' i 'Usunięty' nie mogą być takie same"_s);
}

TEST_F(DialogStrukturyTest, PorzuconyDialogZostawiaWszystko) {
  const StrukturaPliku przedtem = towary;
  rozmowa.odpowiedzi = {QMessageBox::Yes, QMessageBox::Yes};
  EXPECT_FALSE(Edytuj(
      towary,
      [this](QDialog& dialog) {
        // dialogs opened from this one, all accepted
        Osoba([](QDialog& lista) { Kliknij(lista, "Usun"); }, "Wyjscie");
        Kliknij(dialog, "Pola");
        Osoba([](QDialog& lista) { Kliknij(lista, "WDol"); }, "Zapisz");
        Kliknij(dialog, "Pola");
        EXPECT_EQ(static_cast<DialogStruktury&>(dialog).Wynik().pola[0].Tekst(), u"01"_s);
        Osoba([](QDialog& vat) { Znajdz<QTableWidget>(vat, "Opisy").item(0, 0)->setText("A"); }, "Zapisz");
        Kliknij(dialog, "OpisStawekVAT");
        Wpisz(dialog, "EdPoleAktywny", "x");
        Kliknij(dialog, "rbTabulator");
        WybierzTyp(dialog, TypPliku::Zorvik);
        Osoba([](QDialog& pola) { Q_EMIT Znajdz<QTableWidget>(pola, "Pola").cellDoubleClicked(0, 0); },
              "Zapisz");
        Kliknij(dialog, "Pola");
        EXPECT_FALSE(static_cast<DialogStruktury&>(dialog).Wynik().CzyOferowane(PoleTowaru::Nazwa));
      },
      "Wyjscie"));
  EXPECT_TRUE(towary == przedtem);
}

TEST_F(DialogStrukturyTest, PodgladIdzieZaTymCoWpisano) {
  const PlikProbny plik("1;Chleb\n2\n");
  const PlikProbny inny("3\tMleko\n");
  rozmowa.pliki = {std::nullopt, inny.Sciezka()};
  rozmowa.odpowiedzi = {QMessageBox::Yes};
  Edytuj(
      towary,
      [&](QDialog& dialog) {
        const auto& tabela = Znajdz<QTableWidget>(dialog, "TabelaPodgladu");
        const auto komorka = [&](int kolumna) { return tabela.item(0, kolumna)->text(); };
        EXPECT_TRUE(Doczekano([&] { return tabela.rowCount() == 2; }));
        EXPECT_EQ(tabela.horizontalHeaderItem(1)->text(), u"Nazwa towaru"_s);
        EXPECT_EQ(komorka(1), u"Chleb"_s);
        EXPECT_TRUE(tabela.verticalHeaderItem(1)->toolTip().startsWith(u"Liczba pól w rekordzie 2"_s));
        EXPECT_TRUE(Znajdz<QLabel>(dialog, "UwagiPodgladu").text().contains(u"Liczba pól w rekordzie 2"_s));
        Kliknij(dialog, "rbTabulator");
        EXPECT_TRUE(Doczekano([&] { return komorka(0) == u"1;Chleb"_s; }));
        Kliknij(dialog, "WybierzPlik");
        EXPECT_EQ(tabela.rowCount(), 2);
        Kliknij(dialog, "WybierzPlik");
        EXPECT_TRUE(Doczekano([&] { return komorka(1) == u"Mleko"_s; }));
        EXPECT_FALSE(Znajdz<QLabel>(dialog, "UwagiPodgladu").isVisible());
      },
      "Wyjscie", plik.Sciezka());
  Edytuj(
      towary,
      [&](QDialog& dialog) {
        const auto& uwagi = Znajdz<QLabel>(dialog, "UwagiPodgladu");
        EXPECT_TRUE(Doczekano([&] { return uwagi.text().contains(u" jest plikiem bazy danych\n"_s); }));
      },
      "Wyjscie", b.Sciezka() + u"-wal"_s);
  DialogStruktury(nullptr, kontekst, towary, plik.Sciezka());  // gone before it has been read
  DialogStruktury bezPliku(nullptr, kontekst, towary, {});
  bezPliku.show();
  EXPECT_TRUE(Znajdz<QLabel>(bezPliku, "PodpowiedzPodgladu").isVisible());
  EXPECT_FALSE(Znajdz<QWidget>(bezPliku, "TabelaPodgladu").isVisible());
}

TEST_F(DialogStrukturyTest, ZmianySaPorzucaneDopieroPoPytaniu) {
  // What the file type fixes is no change of the person's.
  kontrahenci.CBTypPliku = TypPliku::Zorvik;
  kontrahenci.EdPoleAktywny = u"tak"_s;
  DialogStruktury bezZmian(nullptr, kontekst, kontrahenci, {});
  bezZmian.show();
  bezZmian.close();
  EXPECT_FALSE(bezZmian.isVisible());

  DialogStruktury struktura(nullptr, kontekst, towary, {});
  DialogListyPol lista(nullptr, kontekst, Struktura(RodzajRekordu::Towary, TypPliku::DBase, {"00x"}), {});
  DialogPolStandardowych pola(nullptr, rozmowa, towary);
  DialogOpisowVat opisy(nullptr, kontekst, {});
  TFmVLTStawkiVat stawki(nullptr, kontekst);
  const std::pair<QDialog*, std::function<void()>> kDialogi[] = {
      {&struktura, [&] { Wpisz(struktura, "EdPoleAktywny", "x"); }},
      {&lista,
       [&] {
         auto& wybrane = Znajdz<QTableView>(lista, "Wybrane");
         wybrane.edit(wybrane.model()->index(0, 1));
         wybrane.viewport()->findChild<QLineEdit*>()->insert(u"A"_s);
       }},
      {&pola, [&] { Q_EMIT Znajdz<QTableWidget>(pola, "Pola").cellDoubleClicked(0, 0); }},
      {&opisy,
       [&] {
         auto& tabela = Znajdz<QTableWidget>(opisy, "Opisy");
         tabela.editItem(tabela.item(0, 0));
         tabela.viewport()->findChild<QLineEdit*>()->insert(u"A"_s);  // not left yet
       }},
      {&stawki, [&] { Kliknij(stawki, "Usun"); }}};
  for (const auto& [dialog, zmien] : kDialogi) {
    SCOPED_TRACE(dialog->windowTitle().toStdString());
    rozmowa.pytania.clear();
    dialog->show();
    dialog->close();
    EXPECT_FALSE(dialog->isVisible());
    dialog->show();
    zmien();
    rozmowa.odpowiedzi = {QMessageBox::No, QMessageBox::Yes};
    dialog->close();
    EXPECT_TRUE(dialog->isVisible());
    Kliknij(*dialog, "Wyjscie");
    EXPECT_FALSE(dialog->isVisible());
    ASSERT_EQ(rozmowa.pytania.size(), 2U);
    EXPECT_EQ(rozmowa.pytania[0].domyslny, QMessageBox::No);
  }
}

// Every dialog: its bar, the button Enter presses, and a name for everything the focus can reach.
TEST_F(DialogStrukturyTest, KlawiaturaINazwyKontrolek) {
  DialogStruktury struktura(nullptr, kontekst, towary, {});
  DialogStruktury strukturaKontr(nullptr, kontekst, kontrahenci, {});
  DialogListyPol lista(nullptr, kontekst, towary, {});
  DialogPolStandardowych pola(nullptr, rozmowa, towary);
  DialogOpisowVat opisy(nullptr, kontekst, {});
  TFmVLTStawkiVat stawki(nullptr, kontekst);
  const struct {
    QDialog* dialog;
    QString tytul, przyciski;
  } kDialogi[] = {
      {&struktura, u"Struktura pliku importu towarów"_s, "Akceptuj  F2|Pola  F3|Opis VAT  F4"},
      {&strukturaKontr, u"Struktura pliku importu kontrahentów"_s, "Akceptuj  F2|Pola  F3"},
      {&lista, u"Lista pól pliku towarów"_s, "Akceptuj  F2"},
      {&pola, u"Pola standardowe"_s, "Zapisz  F2"},
      {&opisy, u"Opis stawek VAT"_s, "Akceptuj  F2|Stawki  F3"},
      {&stawki, u"Stawki VAT"_s, u"Zapisz  F2|Zmień  F4|Usuń  F8"_s},
  };
  for (const auto& [dialog, tytul, przyciski] : kDialogi) {
    SCOPED_TRACE(tytul.toStdString());
    EXPECT_EQ(dialog->windowTitle(), tytul);
    dialog->show();
    QStringList pasek;
    for (const QPushButton* const przycisk :
         Znajdz<QWidget>(*dialog, "MStatusButtonBar").findChildren<QPushButton*>())
      pasek << przycisk->text();
    EXPECT_EQ(pasek.join(u'|'), przyciski + u"|Wyjście  Esc"_s);
    for (const QPushButton* const przycisk : dialog->findChildren<QPushButton*>()) {
      EXPECT_EQ(przycisk->isDefault(), przycisk->text() == pasek[0]);
      EXPECT_FALSE(przycisk->autoDefault());
    }
    int nazwanych = 0;
    for (QWidget* k = dialog->nextInFocusChain(); k != dialog; k = k->nextInFocusChain()) {
      if (!(k->focusPolicy() & Qt::TabFocus) || !k->isVisible()) continue;
      const QAccessibleInterface* const opis = QAccessible::queryAccessibleInterface(k);
      EXPECT_FALSE(opis->text(QAccessible::Name).isEmpty()) << k->objectName().toStdString();
      ++nazwanych;
    }
    EXPECT_GE(nazwanych, pasek.size());
    EXPECT_LE(dialog->minimumSizeHint().width(), 1280);
    EXPECT_LE(dialog->height(), 720);
  }
}

}  // namespace
