#pragma once

#include <optional>

#include "exchange/spostrzezenie.h"

struct StrukturaPliku;

// Whether a dBase column of type `typ` holds values that catalogue field `pole` cannot take: T/F/Y/N where
// the structure has other words or the field takes numbers, a year-month-day date where another form or a
// number is read. `kolumna`: its name, for the words of the answer.
std::optional<Spostrzezenie> SprawdzTypKolumny(const StrukturaPliku& struktura, int pole, char typ,
                                               const QString& kolumna);
