#include "shell/przebieg/okno_uwag.h"

#include <QDialog>
#include <QHeaderView>

#include <ui_okno_uwag.h>

#include "shell/dialogi/siatka.h"
#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// In characters.
constexpr int kSzerokosciKolumn[] = {78, 12};
constexpr int kSzerokosc = 136;
constexpr int kWierszy = 20;

class Tfrm_uwagi final : public QDialog {
 public:
  Tfrm_uwagi(QWidget* rodzic, const std::vector<Uwaga>& uwagi) : QDialog(rodzic) {
    m_ui.setupUi(this);
    QTableWidget& tabela = *m_ui.tabela;
    UlozSiatke(tabela);
    tabela.setWordWrap(true);
    const int znak = fontMetrics().averageCharWidth();
    for (int kolumna = 0; kolumna < static_cast<int>(std::size(kSzerokosciKolumn)); ++kolumna)
      tabela.setColumnWidth(kolumna, kSzerokosciKolumn[kolumna] * znak);
    resize(kSzerokosc * znak, kWierszy * fontMetrics().lineSpacing());
    for (const Uwaga& uwaga : uwagi) DodajWiersz(uwaga);
    // Texts are whole sentences.
    tabela.verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(m_ui.zamknij, &QPushButton::clicked, this, &QDialog::accept);
  }

 private:
  void DodajWiersz(const Uwaga& uwaga) {
    const int wiersz = m_ui.tabela->rowCount();
    m_ui.tabela->insertRow(wiersz);
    const QString ile = uwaga.ile > 0 ? QString::number(uwaga.ile) : QString();
    const QString teksty[] = {uwaga.tekst, ile, uwaga.NumeryRekordow()};
    for (int kolumna = 0; kolumna < static_cast<int>(std::size(teksty)); ++kolumna) {
      auto* const komorka = new QTableWidgetItem(teksty[kolumna]);
      komorka->setToolTip(teksty[kolumna]);
      m_ui.tabela->setItem(wiersz, kolumna, komorka);
    }
  }

  Ui::Tfrm_uwagi m_ui;
};

}  // namespace

void PokazUwagi(QWidget* rodzic, Rozmowa& rozmowa, const std::vector<Uwaga>& uwagi) {
  Tfrm_uwagi okno(rodzic, uwagi);
  rozmowa.Pokaz(okno);
}
