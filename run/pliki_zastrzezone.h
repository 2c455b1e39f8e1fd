#pragma once

#include <optional>

#include <QString>

#include "exchange/komunikat.h"

struct ParametryPolaczenia;
struct ParametryPrzebiegu;

// What a run must not read from nor write to, judged by the file and not by its name: the skipped-records
// files, the database and what its engine keeps beside it.

enum class KierunekPliku { Odczyt, Zapis };

// The refusal of a file that is the database, for whatever reads or writes one before a run or without it. To
// be asked before the file is opened: whoever closes it takes away the locks that the engine holds on it in
// the same process.
std::optional<Komunikat> OdmowaPlikuBazy(const ParametryPolaczenia& baza, const QString& plik,
                                         KierunekPliku kierunek = KierunekPliku::Odczyt);
// The refusal of the run's own file.
std::optional<Komunikat> OdmowaPlikuPrzebiegu(const ParametryPrzebiegu& parametry, KierunekPliku kierunek);
// The refusal of a skipped-records file whose name is that of the database: it would be replaced.
std::optional<Komunikat> OdmowaPlikuPominietych(const ParametryPrzebiegu& parametry, const QString& sciezka);
