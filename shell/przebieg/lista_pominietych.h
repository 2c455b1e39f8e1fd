#pragma once

#include <optional>
#include <vector>

#include <QString>

// One line of a skipped-records file.
struct PominietyRekord {
  QString kod;  // the tax number of a contractor
  QString nazwa;
  QString powod;
  int grupa;  // index into the groups of the list
};

// Reasons that differ only in the value they name.
struct GrupaPowodow {
  QString nazwa;
  int ile = 0;
};

struct ListaPominietych {
  std::vector<PominietyRekord> rekordy;  // in the order of the file
  std::vector<GrupaPowodow> grupy;       // in the order of their first records
};

// Reads "code | name | reason" lines in Windows-1250; nothing when the file cannot be read.
std::optional<ListaPominietych> WczytajPominiete(const QString& plik);
