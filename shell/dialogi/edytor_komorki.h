#pragma once

#include <QStyledItemDelegate>

// Edits a cell of a grid as a text of limited length, or as a whole number from 1 on.
class EdytorKomorki final : public QStyledItemDelegate {
 public:
  enum class Tresc { Tekst, Liczba };
  EdytorKomorki(QObject* rodzic, int najwiecejZnakow, Tresc tresc = Tresc::Tekst)
      : QStyledItemDelegate(rodzic), m_najwiecejZnakow(najwiecejZnakow), m_tresc(tresc) {}

  QWidget* createEditor(QWidget* rodzic, const QStyleOptionViewItem& wyglad,
                        const QModelIndex& indeks) const override;

 private:
  int m_najwiecejZnakow;
  Tresc m_tresc;
};
