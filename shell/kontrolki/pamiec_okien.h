#pragma once

#include <QSettings>

class QWidget;

// What windows remember between sessions: sizes and folders. It belongs to one person's screen and disk, so
// it is kept in okno.ini beside the remembered connection and not in the database, which serves many.
QSettings PamiecOkien();

// Leaves the window as it is when no size is remembered under the key.
void PrzywrocRozmiar(QWidget& okno, const QString& klucz);
void ZapamietajRozmiar(const QWidget& okno, const QString& klucz);
