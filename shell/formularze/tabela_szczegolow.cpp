#include "shell/formularze/tabela_szczegolow.h"

#include <QHeaderView>

#include "shell/dialogi/siatka.h"
#include "shell/formularze/etykieta_bledu.h"

using namespace Qt::Literals::StringLiterals;

TabelaSzczegolow::TabelaSzczegolow(QWidget* rodzic, const QStringList& naglowki, int sprawdzana)
    : QTableWidget(0, static_cast<int>(naglowki.size()), rodzic), m_sprawdzana(sprawdzana) {
  setHorizontalHeaderLabels(naglowki);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  setSelectionMode(SingleSelection);
  setEditTriggers(DoubleClicked | SelectedClicked | AnyKeyPressed);
  UlozSiatke(*this);
}

int TabelaSzczegolow::WierszZWada() const {
  for (int i = 0; i < rowCount(); ++i)
    if (!Wada(i).isEmpty()) return i;
  return -1;
}

bool TabelaSzczegolow::Sprawdz(EtykietaBledu& etykieta) {
  const int zly = WierszZWada();
  etykieta.Pokaz(*this, zly < 0 ? QString() : u"Wiersz %1: "_s.arg(zly + 1) + Wada(zly));
  return zly < 0;
}

void TabelaSzczegolow::PrzejdzDoWady() {
  setCurrentCell(WierszZWada(), m_sprawdzana);
}

void TabelaSzczegolow::DodajWiersz() {
  DopiszPusty();
  setFocus();
  setCurrentCell(rowCount() - 1, 0);
  editItem(currentItem());
}

// Rows that cannot be edited stay.
void TabelaSzczegolow::UsunBiezacy() {
  const int wiersz = currentRow();
  if (wiersz >= 0 && item(wiersz, 0)->flags().testFlag(Qt::ItemIsEditable)) removeRow(wiersz);
}
