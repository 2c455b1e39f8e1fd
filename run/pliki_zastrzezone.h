#pragma once

#include <optional>

#include <QString>

#include "exchange/komunikat.h"

struct ParametryPrzebiegu;

// What a run must not read from nor write to, judged by the file and not by its name: the skipped-records
// files, the database and what its engine keeps beside it.

enum class KierunekPliku { Odczyt, Zapis };

// The refusal of the run's own file.
std::optional<Komunikat> OdmowaPlikuPrzebiegu(const ParametryPrzebiegu& parametry, KierunekPliku kierunek);
// The refusal of a skipped-records file whose name is that of the database: it would be replaced.
std::optional<Komunikat> OdmowaPlikuPominietych(const ParametryPrzebiegu& parametry, const QString& sciezka);
