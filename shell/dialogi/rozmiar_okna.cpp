#include "shell/dialogi/rozmiar_okna.h"

#include <QSettings>
#include <QWidget>

namespace {

// Beside the remembered connection.
QSettings Ustawienia() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("zorvik"),
                   QStringLiteral("okna"));
}

}  // namespace

void PrzywrocRozmiar(QWidget& okno, const QString& klucz) {
  if (const QSize rozmiar = Ustawienia().value(klucz).toSize(); rozmiar.isValid()) okno.resize(rozmiar);
}

void ZapamietajRozmiar(const QWidget& okno, const QString& klucz) {
  Ustawienia().setValue(klucz, okno.size());
}
