#pragma once

#include <vector>

#include <QAbstractTableModel>

#include "exchange/struktura_pliku.h"

// The chosen entries of a field list as rows of a grid: the field's name and, where the file type asks for
// one, the column's width or name. Entries keep their text as long as it is not edited.
class ModelListyPol final : public QAbstractTableModel {
 public:
  enum Kolumna { kPole, kDopisek };

  // `struktura` tells the record kind, the file type and the entries.
  ModelListyPol(const StrukturaPliku& struktura, QObject* rodzic);

  const std::vector<WpisPola>& Pola() const { return m_pola; }
  void Wstaw(int wiersz, int pole);
  void Usun(int wiersz);
  // Moves a row by one: up (-1) or down (1). False at either end.
  bool Przesun(int wiersz, int kierunek);

  int rowCount(const QModelIndex& rodzic = {}) const override;
  int columnCount(const QModelIndex& rodzic = {}) const override;
  QVariant data(const QModelIndex& indeks, int rola) const override;
  bool setData(const QModelIndex& indeks, const QVariant& wartosc, int rola) override;
  QVariant headerData(int numer, Qt::Orientation kierunek, int rola) const override;
  Qt::ItemFlags flags(const QModelIndex& indeks) const override;

 private:
  QString Nazwa(const WpisPola& wpis) const;

  RodzajRekordu m_rodzaj;
  TypPliku m_typ;
  std::vector<WpisPola> m_pola;
};
