#include <QKeyEvent>
#include <QListWidget>
#include <QTableView>
#include <QTableWidget>

#include "shell/dialogi/dialog_listy_pol.h"
#include "shell/dialogi/dialog_pol_standardowych.h"
#include "tests/exchange/pliki_probne.h"
#include "tests/okno/dialogi_testowe.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct ListaPolTest : DialogiTestowe {
  StrukturaPliku rozdzielany = Struktura(RodzajRekordu::Towary, TypPliku::Rozdzielany, {"01"});

  static QString Wpisy(const DialogListyPol& dialog) {
    QStringList wpisy;
    for (const WpisPola& wpis : dialog.Wynik().pola) wpisy << wpis.Tekst();
    return wpisy.join(u' ');
  }
  // "k5": the catalogue's row 5, "w2": the row 2 of the chosen; anything else is a button.
  static void Wykonaj(DialogListyPol& dialog, const QString& kroki) {
    auto& katalog = Znajdz<QListWidget>(dialog, "Katalog");
    auto& wybrane = Znajdz<QTableView>(dialog, "Wybrane");
    for (const QString& krok : kroki.split(u' ')) {
      const int numer = krok.mid(1).toInt();
      if (krok[0] == u'k')
        katalog.setCurrentRow(numer);
      else if (krok[0] == u'w')
        wybrane.setCurrentIndex(wybrane.model()->index(numer, 0));
      else
        Kliknij(dialog, krok);
    }
  }
  static QString Dostepne(const DialogListyPol& dialog) {
    QString dostepne;
    for (const char* const nazwa : {"Usun", "WGore", "WDol"})
      dostepne += dialog.findChild<QWidget*>(nazwa)->isEnabled() ? u'+' : u'-';
    return dostepne;
  }
};

TEST_F(ListaPolTest, DodawanieUsuwanieIKolejnosc) {
  const struct {
    const char* kroki;
    const char* pola;
    const char* dostepne;  // remove, up, down
  } kPrzypadki[] = {
      {"k23 Dodaj", "00KOD 23 01NAZWA xx9", "+++"},  // behind the current row
      {"w2 k5 Dodaj k32 Dodaj", "00KOD 01NAZWA xx9 05 32", "++-"},
      {"k1 Dodaj Dodaj", "00KOD 01 01 01NAZWA xx9", "+++"},
      {"k7 Dodaj", "00KOD 01NAZWA xx9", "+-+"},  // not offered
      {"Usun", "01NAZWA xx9", "+-+"},
      {"w2 Usun", "00KOD 01NAZWA", "++-"},
      {"Usun Usun Usun", "", "---"},
      {"Usun Usun Usun k0 Dodaj", "00", "+--"},
      {"w0 WDol", "01NAZWA 00KOD xx9", "+++"},
      {"w2 WGore WGore", "xx9 00KOD 01NAZWA", "+-+"},
      {"w1 WDol WDol", "00KOD xx9 01NAZWA", "++-"},
  };
  StrukturaPliku struktura = Struktura(RodzajRekordu::Towary, TypPliku::DBase, {"00KOD", "01NAZWA", "xx9"});
  struktura.UstawOferowane(PoleTowaru::Opis2, false);
  for (const auto& p : kPrzypadki) {
    SCOPED_TRACE(p.kroki);
    DialogListyPol dialog(nullptr, kontekst, struktura, {});
    Wykonaj(dialog, p.kroki);
    EXPECT_EQ(Wpisy(dialog), p.pola);
    EXPECT_EQ(Dostepne(dialog), p.dostepne);
  }
}

TEST_F(ListaPolTest, PodwojneKlikniecieDodajeIUsuwa) {
  DialogListyPol dialog(nullptr, kontekst,
                        Struktura(RodzajRekordu::Kontrahenci, TypPliku::StalaSzerokosc, {"0010"}), {});
  auto& katalog = Znajdz<QListWidget>(dialog, "Katalog");
  EXPECT_EQ(dialog.windowTitle(), u"Lista pól pliku kontrahentów"_s);
  ASSERT_EQ(katalog.count(), 37);
  katalog.setCurrentRow(36);
  Q_EMIT katalog.itemDoubleClicked(katalog.item(36));
  EXPECT_EQ(Wpisy(dialog), u"0010 36"_s);
  auto& wybrane = Znajdz<QTableView>(dialog, "Wybrane");
  wybrane.setCurrentIndex(wybrane.model()->index(0, 0));
  Q_EMIT wybrane.doubleClicked(wybrane.model()->index(0, 1));  // the width: that is editing
  Q_EMIT wybrane.doubleClicked(wybrane.model()->index(0, 0));
  EXPECT_EQ(Wpisy(dialog), u"36"_s);
}

// The column beside the field's name, its caption, and what becomes of a text typed and left by F2.
TEST_F(ListaPolTest, SzerokoscINazwaKolumny) {
  const struct {
    TypPliku typ;
    QString kolumna, wpisane, wpis;
  } kPrzypadki[] = {
      {TypPliku::StalaSzerokosc, u"Szerokosc"_s, u"15"_s, u"0015"_s},
      {TypPliku::StalaSzerokosc, u"Szerokosc"_s, u"123456"_s, u"0012345"_s},
      {TypPliku::StalaSzerokosc, u"Szerokosc"_s, u""_s, u"00"_s},
      {TypPliku::StalaSzerokosc, u"Szerokosc"_s, u"0"_s, u"00x"_s},  // cannot be typed
      {TypPliku::StalaSzerokosc, u"Szerokosc"_s, u"-5"_s, u"00x"_s},
      {TypPliku::DBase, u"Nazwa"_s, u"KOD_TOW"_s, u"00KOD_TOW"_s},
      {TypPliku::Rozdzielany, u""_s, u""_s, u"00x"_s},
  };
  for (const auto& p : kPrzypadki) {
    SCOPED_TRACE(p.wpis.toStdString());
    DialogListyPol dialog(nullptr, kontekst, Struktura(RodzajRekordu::Towary, p.typ, {"00x"}), {});
    auto& wybrane = Znajdz<QTableView>(dialog, "Wybrane");
    ASSERT_EQ(wybrane.model()->columnCount(), p.kolumna.isEmpty() ? 1 : 2);
    if (!p.kolumna.isEmpty()) {
      EXPECT_EQ(wybrane.model()->headerData(1, Qt::Horizontal), p.kolumna);
      wybrane.edit(wybrane.model()->index(0, 1));
      auto* const edytor = wybrane.viewport()->findChild<QLineEdit*>();
      ASSERT_NE(edytor, nullptr);
      edytor->selectAll();
      edytor->insert(p.wpisane);
    }
    Kliknij(dialog, "Zapisz");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(Wpisy(dialog), p.wpis);
  }
}

TEST_F(ListaPolTest, BezKoduTowaruNieMaListy) {
  DialogListyPol towary(nullptr, kontekst, rozdzielany, {});
  Kliknij(towary, "Zapisz");
  EXPECT_EQ(towary.result(), QDialog::Rejected);
  ASSERT_EQ(rozmowa.pytania.size(), 1U);
  EXPECT_EQ(rozmowa.pytania[0].komunikat.naglowek, u"UWAGA"_s);
  EXPECT_EQ(rozmowa.pytania[0].komunikat.tekst, u"Nie wskazano pola z kodem towaru"_s);

  DialogListyPol kontrahenci(nullptr, kontekst, StrukturaPliku(RodzajRekordu::Kontrahenci), {});
  Kliknij(kontrahenci, "Zapisz");
  EXPECT_EQ(kontrahenci.result(), QDialog::Accepted);
}

TEST_F(ListaPolTest, NajwyzejTylePolIleMiesciKonfiguracja) {
  StrukturaPliku struktura(RodzajRekordu::Kontrahenci);
  for (const std::size_t ile : {1001U, 1000U}) {
    struktura.pola.assign(ile, WpisPola(u"00"_s));
    DialogListyPol dialog(nullptr, kontekst, struktura, {});
    Kliknij(dialog, "Zapisz");
    EXPECT_EQ(dialog.result() == QDialog::Accepted, ile == 1000);
  }
  ASSERT_EQ(rozmowa.pytania.size(), 1U);
  EXPECT_EQ(rozmowa.pytania[0].komunikat.tekst,
            u"Lista ma 1001 pól, a zapisać można najwyżej 1000. Usuń z niej zbędne pola."_s);
}

TEST_F(ListaPolTest, PolaStandardoweDecydujaCoMoznaWybrac) {
  DialogListyPol dialog(nullptr, kontekst, rozdzielany, {});
  for (const char* const przycisk : {"Wyjscie", "Zapisz"}) {
    Osoba([](QDialog& pola) { Q_EMIT Znajdz<QTableWidget>(pola, "Pola").cellDoubleClicked(0, 0); }, przycisk);
    rozmowa.odpowiedzi = {QMessageBox::Yes};  // to what is thrown away
    Kliknij(dialog, "PolaStandardowe");
    const bool zostala = QString(przycisk) == "Wyjscie";
    const QListWidgetItem& nazwa = *Znajdz<QListWidget>(dialog, "Katalog").item(PoleTowaru::Nazwa);
    EXPECT_EQ(nazwa.flags().testFlag(Qt::ItemIsEnabled), zostala);
    EXPECT_EQ(dialog.Wynik().CzyOferowane(PoleTowaru::Nazwa), zostala);
  }
}

TEST_F(ListaPolTest, PolaStandardoweTakINie) {
  for (const RodzajRekordu rodzaj : {RodzajRekordu::Towary, RodzajRekordu::Kontrahenci}) {
    StrukturaPliku struktura(rodzaj);
    struktura.UstawOferowane(PoleTowaru::Stan, false);
    const bool towary = rodzaj == RodzajRekordu::Towary;
    const int wierszStanu = PozycjaOferowana(rodzaj, PoleTowaru::Stan);
    Osoba(
        [&](QDialog& dialog) {
          auto& tabela = Znajdz<QTableWidget>(dialog, "Pola");
          ASSERT_EQ(tabela.rowCount(), towary ? 31 : 36);
          EXPECT_EQ(tabela.item(1, 0)->text(), towary ? u"Nazwa skrócona"_s : u"NIP"_s);
          EXPECT_EQ(tabela.item(1, 1)->text(), u"TAK"_s);
          EXPECT_EQ(tabela.item(wierszStanu, 1)->text(), u"NIE"_s);
          // row, key, and what is shown afterwards
          for (const auto& [wiersz, klawisz, po] : std::initializer_list<std::tuple<int, int, QString>>{
                   {1, Qt::Key_Space, "NIE"},
                   {2, Qt::Key_N, "NIE"},
                   {3, Qt::Key_T, "TAK"},
                   {4, Qt::Key_X, "TAK"},
                   {wierszStanu, Qt::Key_T, towary ? "NIE" : "TAK"}}) {
            tabela.setCurrentCell(wiersz, 1);
            QKeyEvent nacisniecie(QEvent::KeyPress, klawisz, Qt::NoModifier);
            QCoreApplication::sendEvent(&tabela, &nacisniecie);
            EXPECT_EQ(tabela.item(wiersz, 1)->text(), po);
          }
        },
        "Zapisz");
    EXPECT_TRUE(EdytujPolaStandardowe(nullptr, kontekst, struktura));
    EXPECT_EQ(struktura.oferowane[1] + struktura.oferowane[2], 0);
    EXPECT_EQ(struktura.oferowane[static_cast<size_t>(wierszStanu)], towary ? 0 : 1);
  }
}

}  // namespace
