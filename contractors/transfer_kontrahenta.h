#pragma once

#include <optional>

#include <QString>

class PolaRekordu;
class TDmVLTKontrahent;
struct KontekstImportuKontrahentow;

// Why a record is skipped; nothing when it is not.
using Odmowa = std::optional<QString>;

// Carries the values of one record into the contractor's record. A new contractor takes every field, with
// defaults for what the file lacks; a stored one takes the fields whose update flag is set and that the file
// carries.
class TransferKontrahenta {
 public:
  TransferKontrahenta(KontekstImportuKontrahentow& import, const PolaRekordu& pola,
                      TDmVLTKontrahent& kontrahent)
      : m_import(import), m_pola(pola), m_kontrahent(kontrahent) {}

  // The catalogue fields from `od` to `doo`, within NazwaSkrocona to Status, in order. A malformed list of
  // persons is reported and leaves them as they are.
  Odmowa Przenies(int od, int doo);

 private:
  KontekstImportuKontrahentow& m_import;
  const PolaRekordu& m_pola;
  TDmVLTKontrahent& m_kontrahent;
};
