#include "shell/dialogi/siatka.h"

#include <QHeaderView>
#include <QTableView>

void UlozSiatke(QTableView& siatka) {
  constexpr int kOdstep = 8;  // above and below the text together
  siatka.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  siatka.verticalHeader()->setDefaultSectionSize(siatka.fontMetrics().height() + kOdstep);
  siatka.horizontalHeader()->setHighlightSections(false);
  siatka.verticalHeader()->setHighlightSections(false);
  siatka.setTabKeyNavigation(false);
  siatka.setWordWrap(false);
}
