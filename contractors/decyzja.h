#pragma once

struct OpcjeImportuKontrahentow;

// What a record's tax number says.
enum class StanNipu {
  Brak,      // it has no digit
  Nieznany,  // no contractor has it
  Znany
};

enum class Decyzja { Pomin, Dodaj, DodajJesliInnyAdres, Popraw };

// What becomes of a record, as far as its tax number and the choices about tax numbers decide. Whether adding
// and updating are wanted at all is asked afterwards.
Decyzja Zdecyduj(StanNipu stan, const OpcjeImportuKontrahentow& opcje);
