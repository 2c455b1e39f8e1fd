#pragma once

#include <ostream>

#include <QString>

// Readable texts in the messages of failed tests.
inline void PrintTo(const QString& tekst, std::ostream* wyjscie) {
  *wyjscie << '"' << tekst.toStdString() << '"';
}
