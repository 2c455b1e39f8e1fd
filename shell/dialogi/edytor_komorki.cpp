#include "shell/dialogi/edytor_komorki.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>

void EdytorKomorki::ZakonczEdycje() {
  if (!m_edytor) return;
  Q_EMIT commitData(m_edytor);
  Q_EMIT closeEditor(m_edytor);
  m_edytor.clear();  // it goes only with the next events
}

QWidget* EdytorKomorki::createEditor(QWidget* rodzic, const QStyleOptionViewItem&, const QModelIndex&) const {
  auto* const pole = new QLineEdit(rodzic);
  pole->setMaxLength(m_najwiecejZnakow);
  pole->setFrame(false);
  // An empty cell is allowed: it is the check before an import that refuses it.
  if (m_tresc == Tresc::Liczba)
    pole->setValidator(new QRegularExpressionValidator(QRegularExpression("([1-9][0-9]*)?"), pole));
  m_edytor = pole;
  return pole;
}

// A cell that held something else before, a name for instance, lets anything be typed.
void EdytorKomorki::setModelData(QWidget* edytor, QAbstractItemModel* model,
                                 const QModelIndex& indeks) const {
  if (static_cast<const QLineEdit*>(edytor)->hasAcceptableInput())
    QStyledItemDelegate::setModelData(edytor, model, indeks);
}
