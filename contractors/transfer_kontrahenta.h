#pragma once

#include <optional>

#include <QDate>
#include <QString>

class PolaRekordu;
class TDmVLTKontrahent;
struct KontekstImportuKontrahentow;

// Why a record is skipped; nothing when it is not.
using Odmowa = std::optional<QString>;

// A date of the file, day.month.year; invalid for anything else.
QDate DataZPliku(QStringView tekst);

// Carries the values of one record into the contractor's record. A new contractor takes every field, with
// defaults for what the file lacks; a stored one takes the fields whose update flag is set and that the file
// carries.
class TransferKontrahenta {
 public:
  // `numer`: of the record in the file.
  TransferKontrahenta(KontekstImportuKontrahentow& import, const PolaRekordu& pola, int numer,
                      TDmVLTKontrahent& kontrahent)
      : m_import(import), m_pola(pola), m_numer(numer), m_kontrahent(kontrahent) {}

  // The catalogue fields from `od` to `doo`, within NazwaSkrocona to Status, in order. A malformed list of
  // persons is reported and leaves them as they are; so does a date that is none, with a notice.
  Odmowa Przenies(int od, int doo);

 private:
  KontekstImportuKontrahentow& m_import;
  const PolaRekordu& m_pola;
  const int m_numer;
  TDmVLTKontrahent& m_kontrahent;
};
