#include "shell/kontrolki/dialog_edycji.h"

#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

void DialogEdycji::reject() {
  if (!MaZmiany() ||
      m_rozmowa.CzyTak(this, {u"Uwaga"_s, u"Wprowadzone zmiany nie zostały przyjęte. Czy je porzucić"_s}))
    QDialog::reject();
}
