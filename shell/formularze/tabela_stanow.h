#pragma once

#include <QTableWidget>

class StanyTowaru;

// The stock of a good in every warehouse, to be seen only: it belongs to the warehouse documents.
class TabelaStanow final : public QTableWidget {
 public:
  explicit TabelaStanow(QWidget* rodzic = nullptr);

  void Pokaz(const StanyTowaru& stany);
};
