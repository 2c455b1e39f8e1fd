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

// What may be chosen for a list column, the dictionaries read from the database. Throws EBladBazy.
std::vector<PozycjaListy> PozycjeListy(RodzajPola rodzaj, KontekstSesji& sesja);

// What the record has is among the choices even when its dictionary lost it.
void DopiszBiezaca(std::vector<PozycjaListy>& pozycje, RodzajPola rodzaj, std::optional<int> biezaca);
