#pragma once

#include <string>

// Names the first table in which two databases differ (times of changes aside); empty when all rows are
// equal. Errors: std::runtime_error.
std::string PierwszaRoznica(const std::string& bazaA, const std::string& bazaB);

// Whether two files hold the same bytes.
bool TeSameBajty(const std::string& plikA, const std::string& plikB);
