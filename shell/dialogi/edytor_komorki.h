#pragma once

#include <QPointer>
#include <QStyledItemDelegate>

// Edits a cell of a grid as a text of limited length, or as a whole number from 1 on.
class EdytorKomorki final : public QStyledItemDelegate {
 public:
  enum class Tresc { Tekst, Liczba };
  EdytorKomorki(QObject* rodzic, int najwiecejZnakow, Tresc tresc = Tresc::Tekst)
      : QStyledItemDelegate(rodzic), m_najwiecejZnakow(najwiecejZnakow), m_tresc(tresc) {}

  // Takes over what is being typed: a key of the button bar leaves the focus in the cell.
  void ZakonczEdycje();

  QWidget* createEditor(QWidget* rodzic, const QStyleOptionViewItem& wyglad,
                        const QModelIndex& indeks) const override;
  void setModelData(QWidget* edytor, QAbstractItemModel* model, const QModelIndex& indeks) const override;

 private:
  int m_najwiecejZnakow;
  Tresc m_tresc;
  mutable QPointer<QWidget> m_edytor;  // the open one
};
