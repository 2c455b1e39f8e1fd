#pragma once

class QString;
class QWidget;

// Sizes of windows that a person has changed. They are kept with the user's settings and not in the database:
// a size suits one person's screen, the database serves many.

// Leaves the window as it is when nothing is remembered.
void PrzywrocRozmiar(QWidget& okno, const QString& klucz);
void ZapamietajRozmiar(const QWidget& okno, const QString& klucz);
