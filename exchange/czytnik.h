#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <QString>

#include "exchange/komunikat.h"
#include "exchange/linia_rekordu.h"
#include "exchange/ocena_strony.h"
#include "exchange/spostrzezenie.h"
#include "exchange/struktura_pliku.h"

enum class WynikCzytania {
  Rekord,     // Linia() holds the record
  Pominiety,  // a comment, an empty line or a deleted dBase record; read on
  Koniec,     // the end of the file
  Blad        // the file cannot be read further; Blad() tells why
};

// A record with fewer fields than it should have. The person may abort, retry (skip the record) or ignore
// (use it and not be asked again in this run).
struct NiezgodnaLiczbaPol {
  int numerRekordu;  // from 1, over the records read
  int znaleziono;
  int zadeklarowano;

  Komunikat Pytanie() const;
};

struct WynikLiczenia {
  qint64 rekordow = 0;
  bool przerwano = false;             // the progress callback asked to stop
  std::optional<Komunikat> odmowa{};  // the file must not be imported
};

// Reads an import file record by record, whatever its layout. Order of calls: UtworzCzytnik, Otworz,
// SprawdzPola, Policz, then Nastepny until Koniec or Blad. No call throws; what a person must see comes back
// as a Komunikat.
class Czytnik {
 public:
  virtual ~Czytnik() = default;
  Czytnik(const Czytnik&) = delete;
  Czytnik& operator=(const Czytnik&) = delete;

  // Opens the file and looks whether its content can be what the structure says.
  virtual std::optional<Komunikat> Otworz(const QString& sciezka) = 0;
  // Refuses a dBase file that lacks a column of the field list or holds in it what is no text; other layouts
  // name no columns.
  virtual std::optional<Komunikat> SprawdzPola() const { return std::nullopt; }

  // Gets the position (in units of Rozmiar) now and then; returns false to stop.
  using Postep = std::function<bool(qint64 pozycja)>;
  // Looks through the whole file, decides whether it can be written in an 8-bit page, counts what Nastepny will
  // return as records, and rewinds. Lines that are
  // not records (comments, empty lines, the skipped first line) are not counted; deleted dBase records are.
  virtual WynikLiczenia Policz(const Postep& postep) = 0;

  virtual WynikCzytania Nastepny() = 0;

  // The record last read. Take tokens from it in catalogue order; valid until the next Nastepny.
  LiniaRekordu& Linia() { return m_linia; }
  // Number of the record last read, from 1; skipped lines have none.
  int NumerRekordu() const { return m_numer; }
  // Set when the record last read has fewer fields than declared.
  virtual std::optional<NiezgodnaLiczbaPol> SprawdzLiczbePol() const { return std::nullopt; }
  // What is remarkable about the record last read; usually nothing.
  const std::vector<Spostrzezenie>& Spostrzezenia() const { return m_spostrzezenia; }
  // What is remarkable about the file: of its header once it is open, of its letters once it was counted.
  virtual std::vector<Spostrzezenie> SpostrzezeniaPliku() const;
  // Whether the file carries a catalogue field at all (own layout: every field).
  bool NiesiePole(int pole) const { return pole >= 0 && pole < LiczbaWartosci(m_rodzaj) && m_pola[pole]; }
  // Whether the record last read has a status column; the user's flag for the field is the caller's business.
  virtual bool MaStatus() const { return NiesiePole(PoleStatusu(m_rodzaj)); }

  // Progress: bytes for text files, records for dBase files.
  virtual qint64 Pozycja() const = 0;
  virtual qint64 Rozmiar() const = 0;

  const std::optional<Komunikat>& Blad() const { return m_blad; }

 protected:
  explicit Czytnik(const StrukturaPliku& struktura);

  RodzajRekordu m_rodzaj;
  StronaKodowa m_strona;
  ZbiorPol m_pola;
  LiniaRekordu m_linia;
  int m_numer = 0;
  std::vector<Spostrzezenie> m_spostrzezenia;  // each record begins them anew
  OcenaStrony m_ocenaStrony;                   // of the records counted
  std::optional<Komunikat> m_blad;
};

// The reader for the structure's file type. The structure is copied as far as it is needed.
std::unique_ptr<Czytnik> UtworzCzytnik(const StrukturaPliku& struktura);

// What the opening of an import file answers when the file is missing, is no regular file (nothing when it is
// one) or cannot be opened.
std::optional<Komunikat> OdmowaPlikuImportu(const QString& sciezka);
Komunikat KomunikatBrakPliku(const QString& sciezka);
Komunikat KomunikatBladOtwarcia(const QString& sciezka);
