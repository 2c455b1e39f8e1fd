#pragma once

#include <array>

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

#include "shell/przebieg/lista_pominietych.h"

// The records of a list for a table.
class ModelPominietych final : public QAbstractTableModel {
 public:
  enum Kolumna { kKod, kNazwa, kPowod, kKolumn };

  ModelPominietych(ListaPominietych lista, QString naglowekKodu)
      : m_lista(std::move(lista)), m_naglowekKodu(std::move(naglowekKodu)) {}

  const ListaPominietych& Lista() const { return m_lista; }

  int rowCount(const QModelIndex& rodzic = {}) const override;
  int columnCount(const QModelIndex& rodzic = {}) const override;
  QVariant data(const QModelIndex& indeks, int rola) const override;
  QVariant headerData(int sekcja, Qt::Orientation kierunek, int rola) const override;

 private:
  ListaPominietych m_lista;
  QString m_naglowekKodu;
};

// Lets the records of one group of reasons through, or all. Texts are compared once for a column, beside the
// windows: there may be a hundred thousand.
class FiltrPominietych final : public QSortFilterProxyModel {
 public:
  explicit FiltrPominietych(ModelPominietych& model);

  // -1: all.
  void UstawGrupe(int grupa);

  void sort(int kolumna, Qt::SortOrder kierunek = Qt::AscendingOrder) override;

 protected:
  bool lessThan(const QModelIndex& lewy, const QModelIndex& prawy) const override;
  bool filterAcceptsRow(int wiersz, const QModelIndex& rodzic) const override;

 private:
  const ListaPominietych& m_lista;
  std::array<std::vector<int>, ModelPominietych::kKolumn> m_miejsca;  // see Miejsca; empty: not asked for yet
  int m_grupa = -1;
};
