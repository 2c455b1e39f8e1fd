#pragma once

#include <string_view>

#include <QString>

#include "exchange/komunikat.h"

class EMException;

// What goes to the person at the terminal or to the program behind a pipe. Everything is UTF-8.
namespace terminal {

// To standard output and to standard error.
void Wypisz(const QString& tekst);
void WypiszBajty(std::string_view bajty);
void WypiszBlad(const QString& tekst);

// Whether a person looks at the stream.
bool WyjscieJestTerminalem();
bool BledyNaTerminalu();
// Columns of the terminal that standard error is; 80 when it does not say.
int Szerokosc();

// "TITLE: text" in one line; a line break becomes a blank, behind a full stop unless the text has its own
// mark. What begins with kSzczegoly stands below, on lines of its own.
QString JednaLinia(const Komunikat& komunikat);

}  // namespace terminal

// A text of one of the tables.
inline QString Napis(std::u16string_view tekst) {
  return QStringView(tekst).toString();
}

// An error as a message box: title and description, one under the other.
Komunikat KomunikatBledu(const EMException& blad);
