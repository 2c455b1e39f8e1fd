#pragma once

#include <string>

// Rows that an import left in a database, handed to the plain program (see wiersze.h). For updating only the
// goods and the log lines after `odDziennika` are written. Returns the number of the last log line. Errors:
// std::runtime_error.
enum class Wiersze { Dodane, Poprawione };
long long WypiszWiersze(const std::string& baza, const std::string& plik, Wiersze ktore,
                        long long odDziennika);

// Names the first table in which two databases differ (times of changes aside); empty when all rows are
// equal.
std::string PierwszaRoznica(const std::string& bazaA, const std::string& bazaB);
