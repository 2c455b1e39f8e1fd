#pragma once

#include <vector>

#include <QString>

// An ODBC connection string: "KEY=value;KEY={value with ; and }}};...". A text without "=" names a data
// source.
struct AtrybutOdbc {
  QString klucz;
  QString wartosc;  // without braces
};
std::vector<AtrybutOdbc> RozbierzNapisOdbc(const QString& napis);
QString ZlozNapisOdbc(const std::vector<AtrybutOdbc>& atrybuty);
