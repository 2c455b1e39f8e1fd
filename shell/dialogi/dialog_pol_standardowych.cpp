#include "shell/dialogi/dialog_pol_standardowych.h"

#include <QKeyEvent>

#include <ui_dialog_pol_standardowych.h>

#include "shell/dialogi/dialogi.h"
#include "shell/dialogi/pasek_dialogu.h"
#include "shell/dialogi/siatka.h"
#include "shell/kontekst_okna.h"
#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kWartosc = 1;  // the column

QString Slowo(bool oferowane) {
  return oferowane ? u"TAK"_s : u"NIE"_s;
}

}  // namespace

DialogPolStandardowych::DialogPolStandardowych(QWidget* rodzic, Rozmowa& rozmowa,
                                               const StrukturaPliku& struktura)
    : DialogEdycji(rodzic, rozmowa), m_oferowane(struktura.oferowane) {
  m_oferowane.resize(static_cast<size_t>(LiczbaPolOferowanych(struktura.rodzaj)));
  Ui::DialogPolStandardowych ui;
  ui.setupUi(this);
  m_tabela = ui.Pola;
  UlozTabele(struktura);
  m_poczatkowe = m_oferowane;
  UlozPasek(*this, *ui.MStatusButtonBar, {{u"Zapisz"_s, u"Zapisz"_s, u"F2"_s, [this] { accept(); }}});
}

void DialogPolStandardowych::UlozTabele(const StrukturaPliku& struktura) {
  m_tabela->setRowCount(static_cast<int>(m_oferowane.size()));
  m_tabela->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  m_tabela->verticalHeader()->hide();
  UlozSiatke(*m_tabela);
  for (int wiersz = 0; wiersz < m_tabela->rowCount(); ++wiersz) {
    m_tabela->setItem(wiersz, 0, new QTableWidgetItem(NazwaPozycjiOferowanej(struktura.rodzaj, wiersz)));
    m_tabela->setItem(wiersz, kWartosc, new QTableWidgetItem);
    m_tabela->item(wiersz, kWartosc)->setTextAlignment(Qt::AlignCenter);
    Ustaw(wiersz, m_oferowane[static_cast<size_t>(wiersz)] != 0);
  }
  if (struktura.rodzaj == RodzajRekordu::Towary)
    for (const int kolumna : {0, kWartosc}) {
      QTableWidgetItem& stan = *m_tabela->item(PozycjaOferowana(struktura.rodzaj, PoleTowaru::Stan), kolumna);
      stan.setFlags(Qt::NoItemFlags);
      stan.setToolTip(u"Wynika z opcji \"Import stanów\""_s);
    }
  m_tabela->setCurrentCell(0, kWartosc);
  m_tabela->installEventFilter(this);
  connect(m_tabela, &QTableWidget::cellDoubleClicked, this, [this](int wiersz) { Przelacz(wiersz); });
}

void DialogPolStandardowych::Ustaw(int wiersz, bool oferowane) {
  m_oferowane[static_cast<size_t>(wiersz)] = oferowane ? 1 : 0;
  m_tabela->item(wiersz, kWartosc)->setText(Slowo(oferowane));
}

void DialogPolStandardowych::Zmien(int wiersz, bool oferowane) {
  if (m_tabela->item(wiersz, kWartosc)->flags() & Qt::ItemIsEnabled) Ustaw(wiersz, oferowane);
}

void DialogPolStandardowych::Przelacz(int wiersz) {
  Zmien(wiersz, m_oferowane[static_cast<size_t>(wiersz)] == 0);
}

// Space switches the current field, T and N say which value is meant.
bool DialogPolStandardowych::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
  const int wiersz = m_tabela->currentRow();
  if (zdarzenie->type() != QEvent::KeyPress || wiersz < 0) return QDialog::eventFilter(obiekt, zdarzenie);
  switch (static_cast<QKeyEvent*>(zdarzenie)->key()) {
    case Qt::Key_Space:
      Przelacz(wiersz);
      return true;
    case Qt::Key_T:
      Zmien(wiersz, true);
      return true;
    case Qt::Key_N:
      Zmien(wiersz, false);
      return true;
    default:
      return QDialog::eventFilter(obiekt, zdarzenie);
  }
}

bool EdytujPolaStandardowe(QWidget* rodzic, KontekstOkna& kontekst, StrukturaPliku& struktura) {
  DialogPolStandardowych dialog(rodzic, kontekst.rozmowa, struktura);
  if (kontekst.rozmowa.Pokaz(dialog) != QDialog::Accepted) return false;
  struktura.oferowane = dialog.Oferowane();
  return true;
}
