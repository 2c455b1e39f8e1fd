#pragma once

#include <QStringList>

class QWidget;

// What keeps a person from working with a window as it is shown: it does not fit the screen, a control has no
// name for a screen reader, a text does not fit its place, the Tab key jumps back.
QStringList WadyOkna(const QWidget& okno);
