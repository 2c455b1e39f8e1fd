#include "shell/formularze/tabela_stanow.h"

#include <QHeaderView>

#include "model/szczegoly_towaru.h"
#include "shell/dialogi/siatka.h"
#include "shell/formularze/postac_pola.h"

using namespace Qt::Literals::StringLiterals;

TabelaStanow::TabelaStanow(QWidget* rodzic) : QTableWidget(0, 3, rodzic) {
  setHorizontalHeaderLabels({u"Magazyn"_s, u"Stan"_s, u"Blokada"_s});
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  UlozSiatke(*this);
}

void TabelaStanow::Pokaz(const StanyTowaru& stany) {
  setRowCount(stany.Ilosc());
  for (int i = 0; i < stany.Ilosc(); ++i) {
    setItem(i, 0, new QTableWidgetItem(stany[i].nazwa));
    int kolumna = 0;
    for (const double ilosc : {stany[i].stanMag, stany[i].blokadaMag}) {
      auto* const komorka = new QTableWidgetItem(PokazLiczbe(ilosc));
      komorka->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      setItem(i, ++kolumna, komorka);
    }
  }
}
