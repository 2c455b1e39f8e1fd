#pragma once

#include <QByteArray>

// Files made of the demo shop's price list (Windows-1250), for pictures that it alone does not give.

// The first records, one of which lost its last fields.
QByteArray CennikZUbytkiem(const QByteArray& cennik);
// Code, name and price in columns of 14, 36 and 8 characters.
QByteArray CennikStalejSzerokosci(const QByteArray& cennik);
// The same as a table with the columns KOD, NAZWA, CENA.
QByteArray CennikDBase(const QByteArray& cennik);
// The whole list, where a good without a name waits, with a good whose additional code has a taken short
// name, a record cut short, and so many more that the run takes a while.
QByteArray CennikZPytaniami(const QByteArray& cennik);
// Code, name, price, rate, unit and group behind commas, as a supplier sends them: Latin II letters, a price
// that holds a comma, rates that nobody described, one in quotes.
QByteArray CennikZUwagami();
