#pragma once

#include <QStringView>
#include <optional>
#include <string>
#include <string_view>

// Numbers as texts of files and of the database. The decimal mark is always given by the caller: the locale
// of the process plays no part. Nothing here throws; "no number" is an empty result.
namespace liczby {

// Optional sign, digits, and, if `separator` follows, more digits. Blanks are the caller's to trim.
std::optional<double> Liczba(std::string_view tekst, char separator);
std::optional<double> Liczba(QStringView tekst, char separator);

// Optional sign and digits, within 32 bits.
std::optional<int> Calkowita(std::string_view tekst);
std::optional<int> Calkowita(QStringView tekst);

// "%Lf": fixed point with a point and six decimals.
std::string Lf(double wartosc);

// The decimal mark of the system's settings; what a run uses unless it is told another.
char SeparatorSystemu();

}  // namespace liczby
