#pragma once

#include <optional>

#include <QString>

#include "model/reguly_kodow.h"

struct OpcjeImportuTowarow;

// The main code of a record as the import sees it.
struct KodRekordu {
  QString kod;  // trimmed
  RodzajKodu rodzaj = RodzajKodu::Inny;
  bool znaleziony = false;  // a good of the database has it
  bool nadany = false;      // the file had none and the import gave it one
};

// The rules an import sets for codes: its own options, in place of the system parameters.
RegulyKodow RegulyKodowImportu(const OpcjeImportuTowarow& opcje, const FormatyKodowWazonych& formaty);

// Whether a code counts as short: digits only, no longer than the limit's text and less than its value.
bool KodKrotki(QStringView kod, QStringView granica);

// Why a record with a non-empty code is refused; nothing when its code may be used. Masks come here only
// after their weighted format was resolved, so that `reguly` knows it.
std::optional<QString> SprawdzKodRekordu(const KodRekordu& rekord, const OpcjeImportuTowarow& opcje,
                                         const RegulyKodow& reguly);
