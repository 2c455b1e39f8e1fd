#include "shell/dialogi/edytor_komorki.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>

QWidget* EdytorKomorki::createEditor(QWidget* rodzic, const QStyleOptionViewItem&, const QModelIndex&) const {
  auto* const pole = new QLineEdit(rodzic);
  pole->setMaxLength(m_najwiecejZnakow);
  pole->setFrame(false);
  // An empty cell is allowed: it is the check before an import that refuses it.
  if (m_tresc == Tresc::Liczba)
    pole->setValidator(new QRegularExpressionValidator(QRegularExpression("([1-9][0-9]*)?"), pole));
  return pole;
}
