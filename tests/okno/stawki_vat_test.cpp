#include "shell/dialogi/stawki_vat.h"

#include <QLabel>
#include <QListWidget>
#include <QTableWidget>

#include "shell/dialogi/dialog_opisow_vat.h"
#include "tests/okno/dialogi_testowe.h"

using namespace Qt::Literals::StringLiterals;
using testing::IsEmpty;

namespace {

struct StawkiVatTest : DialogiTestowe {
  static QString Pozycje(QDialog& dialog) {
    QStringList pozycje;
    const auto& lista = Znajdz<QListWidget>(dialog, "Stawki");
    for (int i = 0; i < lista.count(); ++i) pozycje << lista.item(i)->text();
    return pozycje.join(u'|');
  }
  static void Wybierz(QDialog& dialog, int wiersz) {
    Znajdz<QListWidget>(dialog, "Stawki").setCurrentRow(wiersz);
  }
  QString WBazie() {
    return b.Tekst("select group_concat(Stawka) from (select Stawka from Vat order by Stawka desc)");
  }
  static QString Opisy(const DialogOpisowVat& dialog) {
    QStringList teksty;
    for (const OpisVat& opis : dialog.Opisy()) teksty << opis.Tekst();
    return teksty.join(u'|');
  }
};

TEST_F(StawkiVatTest, ZmianyStawekPoKolei) {
  TFmVLTStawkiVat edytor(nullptr, kontekst);
  const struct {
    int wiersz;
    QString przycisk;
    std::deque<std::optional<QString>> wpisane;
    QString lista;
    QStringList odmowy;
  } kKroki[] = {
      {4, "Zmien", {"5"}, "23 %|8 %|5,5 %|5 %|ZW|<nowa>", {}},
      {5, "Zmien", {"5,50 %", "100.01", "x", std::nullopt}, "23 %|8 %|5,5 %|5 %|ZW|<nowa>", {"L", "B", "B"}},
      {1, "Zmien", {"23", "8"}, "23 %|8 %|5,5 %|5 %|ZW|<nowa>", {"L"}},
      {1, "Zmien", {"0"}, "23 %|5,5 %|5 %|0 %|ZW|<nowa>", {}},
      {4, "Usun", {}, "23 %|5,5 %|5 %|0 %|<nowa>", {}},
      {4, "Usun", {}, "23 %|5,5 %|5 %|0 %|<nowa>", {}},  // "<nowa>" itself
      {4, "Zmien", {" zw"}, "23 %|5,5 %|5 %|0 %|ZW|<nowa>", {}},
  };
  const QMap<QString, QString> kOdmowy = {{"L", u"Lista zawiera już tą stawkę"_s},
                                          {"B", u"Błąd wprowadzania stawki VAT"_s}};
  for (const auto& krok : kKroki) {
    SCOPED_TRACE(krok.lista.toStdString());
    rozmowa.pytania.clear();
    rozmowa.teksty = krok.wpisane;
    Wybierz(edytor, krok.wiersz);
    Kliknij(edytor, krok.przycisk);
    EXPECT_EQ(Pozycje(edytor), krok.lista);
    EXPECT_THAT(rozmowa.teksty, IsEmpty());
    ASSERT_EQ(rozmowa.pytania.size(), static_cast<size_t>(krok.odmowy.size()));
    for (int i = 0; i < krok.odmowy.size(); ++i)
      EXPECT_TRUE(
          rozmowa.pytania[static_cast<size_t>(i)].komunikat.tekst.startsWith(kOdmowy[krok.odmowy[i]]));
  }
  EXPECT_EQ(WBazie(), "2300,800,550,-1");  // nothing is saved yet
}

TEST_F(StawkiVatTest, ZapisZmienionegoZestawuPoPotwierdzeniu) {
  TFmVLTStawkiVat edytor(nullptr, kontekst);
  Wybierz(edytor, 0);
  Kliknij(edytor, "Usun");
  edytor.show();
  rozmowa.odpowiedzi = {QMessageBox::Cancel, QMessageBox::Yes};
  Kliknij(edytor, "Zapisz");
  EXPECT_TRUE(edytor.isVisible());
  EXPECT_EQ(WBazie(), "2300,800,550,-1");
  b.baza.ExecSQL("insert into Vat (Stawka) values (700)");  // another person's
  Kliknij(edytor, "Zapisz");
  EXPECT_EQ(edytor.result(), QDialog::Accepted);
  EXPECT_EQ(WBazie(), "800,700,550,-1");
  EXPECT_EQ(edytor.Stawki().Ilosc(), 4);
  EXPECT_EQ(b.Tekst("select Opis from DziennikZmian"), u"Nowe stawki: 800, 700, 550, -1"_s);
  const auto& pytanie = rozmowa.pytania[0];
  EXPECT_EQ(pytanie.komunikat.naglowek, u"UWAGA: zmiana stawek VAT"_s);
  EXPECT_EQ(pytanie.komunikat.tekst, u"Czy na pewno chcesz zmienić aktualny zestaw stawek VAT ?"_s);
  EXPECT_EQ(pytanie.domyslny, QMessageBox::Cancel);

  TFmVLTStawkiVat bezZmian(nullptr, kontekst);
  Kliknij(bezZmian, "Zapisz");
  EXPECT_EQ(bezZmian.result(), QDialog::Accepted);
  EXPECT_EQ(rozmowa.pytania.size(), 2U);
}

TEST_F(StawkiVatTest, NieudanyZapisZostawiaEdytorIBaze) {
  TFmVLTStawkiVat edytor(nullptr, kontekst);
  edytor.show();
  Kliknij(edytor, "Usun");
  b.baza.ExecSQL("create trigger Odmowa before insert on Vat begin select raise(abort, 'nie'); end");
  rozmowa.odpowiedzi = {QMessageBox::Yes};
  Kliknij(edytor, "Zapisz");
  EXPECT_TRUE(edytor.isVisible());
  EXPECT_EQ(rozmowa.pytania.size(), 2U);  // the question and the error
  EXPECT_EQ(WBazie(), "2300,800,550,-1");
  EXPECT_FALSE(kontekst.baza.GetCzyWTransakcji());
}

TEST_F(StawkiVatTest, RozmiarOknaJestPamietany) {
  {
    TFmVLTStawkiVat edytor(nullptr, kontekst);
    edytor.resize(555, 444);
    Kliknij(edytor, "Wyjscie");
  }
  EXPECT_EQ(TFmVLTStawkiVat(nullptr, kontekst).size(), QSize(555, 444));
}

TEST_F(StawkiVatTest, OpisyPelnychStawekIZwolnionej) {
  UstawStawki({2300, 800, 550, 10000, 9900, 0, -1});
  DialogOpisowVat dialog(nullptr, kontekst,
                         {OpisVat(u" 8stary"_s), OpisVat(u"-1"_s, u"zwolniona"_s), OpisVat(u"7"_s, u"G"_s)});
  dialog.show();
  auto& tabela = Znajdz<QTableWidget>(dialog, "Opisy");
  QStringList wiersze;
  for (int w = 0; w < tabela.rowCount(); ++w)
    wiersze << tabela.verticalHeaderItem(w)->text() + u'=' + tabela.item(w, 0)->text();
  EXPECT_EQ(wiersze, (QStringList{"99 %=", "23 %=", " 8 %=stary", " 0 %=", "ZW=zwolniona"}));
  EXPECT_TRUE(Znajdz<QLabel>(dialog, "lbBezOpisu").text().endsWith(u": 100 %; 5,5 %"_s));

  // a cell still being edited counts, cut to what an entry holds
  tabela.setCurrentCell(3, 0);
  tabela.editItem(tabela.item(3, 0));
  auto* const edytor = tabela.viewport()->findChild<QLineEdit*>();
  ASSERT_NE(edytor, nullptr);
  edytor->insert(u"0123456789abcdefgh"_s);
  Kliknij(dialog, "Zapisz");
  EXPECT_EQ(Opisy(dialog), "99|23|8 stary|0 0123456789abcde|-1zwolniona");
}

TEST_F(StawkiVatTest, ZmianaStawekZostawiaWpisaneOpisy) {
  DialogOpisowVat dialog(nullptr, kontekst, {OpisVat(u"23"_s, u"A"_s), OpisVat(u"8"_s, u"B"_s)});
  Znajdz<QTableWidget>(dialog, "Opisy").item(2, 0)->setText("Z");
  rozmowa.teksty = {u"5"_s};
  rozmowa.odpowiedzi = {QMessageBox::Yes};
  Osoba(
      [](QDialog& edytor) {
        Wybierz(edytor, 0);
        Kliknij(edytor, "Zmien");
      },
      "Zapisz");
  Kliknij(dialog, "Stawki");
  EXPECT_EQ(Opisy(dialog), "8 B|5 |-1Z");
}

TEST_F(StawkiVatTest, BezBazyJestKomunikatZamiastDialogu) {
  kontekst.baza.Odlacz();
  StrukturaPliku struktura(RodzajRekordu::Towary);
  Osoba([](QDialog& dialog) { Kliknij(dialog, "OpisStawekVAT"); }, "Wyjscie");
  EXPECT_FALSE(EdytujStrukture(nullptr, kontekst, struktura, {}));
  EXPECT_EQ(rozmowa.pytania.size(), 1U);
}

}  // namespace
