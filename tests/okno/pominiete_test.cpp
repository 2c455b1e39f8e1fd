#include <QComboBox>
#include <QDesktopServices>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextBrowser>

#include <gtest/gtest.h>

#include "shell/przebieg/lista_pominietych.h"
#include "shell/przebieg/okno_pominietych.h"
#include "tests/okno/rozmowa_testowa.h"

namespace {

class Pominiete : public testing::Test {
 protected:
  QString Plik(const QString& nazwa, const QByteArray& tresc) {
    QFile plik(m_folder.filePath(nazwa));
    EXPECT_TRUE(plik.open(QIODevice::WriteOnly));
    plik.write(tresc);
    return plik.fileName();
  }

 private:
  QTemporaryDir m_folder;
};

TEST_F(Pominiete, LiniaDzieliSieNaKodNazweIPowod) {
  const struct {
    QByteArray linia;
    QStringList pola;
    QString grupa;
  } przypadki[] = {
      {"590 | Mleko | Brak kodu", {"590", "Mleko", "Brak kodu"}, "Brak kodu"},
      {" |  | Brak kodu", {"", "", "Brak kodu"}, "Brak kodu"},
      {"1 |  | Towar usuni\xEAty", {"1", "", "Towar usunięty"}, "Towar usunięty"},
      {"1 | a | b | Brak kodu", {"1", "a | b", "Brak kodu"}, "Brak kodu"},
      {"1 | a", {"", "", "1 | a"}, "… | a"},
      {"1 | a | pierwsza\ndruga", {"1", "a", "pierwsza\ndruga"}, "pierwsza\ndruga"},
      {"1 | a | Brak kontrahenta z NIPem 7010",
       {"1", "a", "Brak kontrahenta z NIPem 7010"},
       "Brak kontrahenta z NIPem …"},
      {"1 | a | B\xB3\xB9"
       "d: kod 5 | 6",
       {"1", "a | Błąd: kod 5", "6"},
       "…"},
      {"1 | a | B\xB3\xB9"
       "d w kodzie: za kr\xF3tki",
       {"1", "a", "Błąd w kodzie: za krótki"},
       "Błąd w kodzie…"},
      {"1 | a | 1,2,3 x nie jest liczb\xB9", {"1", "a", "1,2,3 x nie jest liczbą"}, "… nie jest liczbą"},
  };
  QByteArray tresc;
  for (const auto& p : przypadki) tresc += p.linia + "\r\n";
  const auto lista = WczytajPominiete(Plik("POMINIETE.TXT", tresc));
  ASSERT_TRUE(lista);
  ASSERT_EQ(lista->rekordy.size(), std::size(przypadki));
  for (std::size_t i = 0; i < lista->rekordy.size(); ++i) {
    const PominietyRekord& rekord = lista->rekordy[i];
    EXPECT_EQ(QStringList({rekord.kod, rekord.nazwa, rekord.powod}), przypadki[i].pola);
    EXPECT_EQ(lista->grupy.at(static_cast<std::size_t>(rekord.grupa)).nazwa, przypadki[i].grupa);
  }
  EXPECT_EQ(lista->grupy[0].ile, 3);
  EXPECT_EQ(WczytajPominiete("/nie ma/takiego"), std::nullopt);
}

TEST_F(Pominiete, ListaDajeSieZawezicAPlikOtworzyc) {
  const QString plik =
      Plik("POMINIECI.TXT", "1 | A | Brak nazwy\r\n2 | B | Brak NIP-u\r\n3 | C | Brak NIP-u\r\n");
  QTextBrowser program;
  QDesktopServices::setUrlHandler("file", &program, "setSource");
  RozmowaTestowa rozmowa;
  rozmowa.dialogi.push_back([](QDialog& okno) {
    auto& powod = *okno.findChild<QComboBox*>("powod");
    const auto& model = *okno.findChild<QTableView*>("tabela")->model();
    const auto kody = [&] {
      QString wynik;
      for (int i = 0; i < model.rowCount(); ++i) wynik += model.index(i, 0).data().toString();
      return wynik;
    };
    EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), "NIP");
    EXPECT_EQ(powod.itemText(0) + powod.itemText(1) + powod.itemText(2),
              "Wszystkie (3)Brak NIP-u (2)Brak nazwy (1)");
    EXPECT_EQ(kody(), "123");
    okno.findChild<QTableView*>("tabela")->sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ(kody(), "321");
    powod.setCurrentIndex(1);
    EXPECT_EQ(kody(), "32");
    EXPECT_EQ(okno.findChild<QLabel*>("ile")->text(), "Pokazano 2 z 3");
    okno.findChild<QPushButton*>("otworz")->click();
    return 0;
  });
  PokazPominiete(nullptr, rozmowa, plik);
  QDesktopServices::unsetUrlHandler("file");
  EXPECT_EQ(program.source(), QUrl::fromLocalFile(plik));
  PokazPominiete(nullptr, rozmowa, plik + "x");
  EXPECT_EQ(rozmowa.pytania.size(), 1U);
}

}  // namespace
