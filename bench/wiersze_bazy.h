#pragma once

#include <string>

enum class Rekordy { Towary, Kontrahenci };
enum class Wiersze { Dodane, Poprawione };

// Rows that an import left in a database, handed to the plain program (see wiersze.h). For updating only the
// records with what the save of a found one writes and the log lines after `odDziennika` are written. Returns
// the number of the last log line. Errors: std::runtime_error.
long long WypiszWiersze(const std::string& baza, const std::string& plik, Rekordy rekordy, Wiersze ktore,
                        long long odDziennika);
