#include "shell/kontrolki/pamiec_okien.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>

#include "platform/baza/polaczenie.h"

QSettings PamiecOkien() {
  const QDir folder = QFileInfo(ParametryPolaczenia::PlikDomyslnych()).dir();
  return QSettings(folder.filePath(QStringLiteral("okno.ini")), QSettings::IniFormat);
}

void PrzywrocRozmiar(QWidget& okno, const QString& klucz) {
  if (const QSize rozmiar = PamiecOkien().value(klucz).toSize(); rozmiar.isValid()) okno.resize(rozmiar);
}

void ZapamietajRozmiar(const QWidget& okno, const QString& klucz) {
  PamiecOkien().setValue(klucz, okno.size());
}
