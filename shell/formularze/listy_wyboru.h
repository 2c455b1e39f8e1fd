#pragma once

#include <optional>
#include <vector>

#include <QString>

struct KontekstSesji;
enum class RodzajPola;

// One line of a list to choose from.
struct PozycjaListy {
  std::optional<int> wartosc;  // none: the column becomes null
  QString nazwa;
};

// What may be chosen for a list column, the dictionaries read from the database. `biezaca`, what the record
// has, is among them even when its dictionary lost it. Throws EBladBazy.
std::vector<PozycjaListy> PozycjeListy(RodzajPola rodzaj, KontekstSesji& sesja, std::optional<int> biezaca);
