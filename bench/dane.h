#pragma once

#include <string>

#include "exchange/struktura_pliku.h"

// Writes a goods file of so many records in Windows-1250: valid EAN-13 codes and names that do not repeat,
// every fifth record with an additional code, 200 assortments, 8 units. The same call gives the same bytes;
// `noweCeny` changes both prices of every record and nothing else. Throws std::runtime_error when the file
// cannot be written.
void ZapiszPlikTowarow(const std::string& sciezka, int ile, TypPliku typ, bool noweCeny);
