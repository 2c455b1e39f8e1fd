#pragma once

#include <bitset>
#include <optional>
#include <vector>

#include <QString>

#include "exchange/katalog_pol.h"
#include "exchange/komunikat.h"

// Layout of an import file; the numbers are those of the configuration.
enum class TypPliku { Zorvik = 0, Rozdzielany = 1, StalaSzerokosc = 2, DBase = 3 };

// Code pages a file may be written in; the numbers are rows of the conversion table.
enum class StronaKodowa { Windows = 0, LatinII = 1, Mazovia = 2, Ascii = 3 };

enum class KwalifikatorTekstu { Cudzyslow = 0, Apostrof = 1, Brak = 2 };

// One column of an import file: a two-digit catalogue number followed by the column's width (fixed width) or
// name (dBase). The text is kept as given, whatever it holds, so that a configuration comes back unchanged.
class WpisPola {
 public:
  WpisPola() = default;
  explicit WpisPola(QString tekst) : m_tekst(std::move(tekst)) {}
  WpisPola(int numer, const QString& dopisek);

  const QString& Tekst() const { return m_tekst; }
  // Characters 1-2 as a number; none when they are not a number.
  std::optional<int> Numer() const;
  // Everything from the third character on, trimmed.
  QString Dopisek() const;
  // Characters 3-7 as a column width in characters; none when they are not a number.
  std::optional<int> Szerokosc() const;
  // Characters 3-22, trimmed: the dBase column name.
  QString Nazwa() const;

  friend bool operator==(const WpisPola&, const WpisPola&) = default;

 private:
  QString m_tekst;
};

// What stands in a goods file for one VAT rate: a two-character rate code (percents, "-1" for exempt), then
// the text of up to 15 characters. The code is written left-aligned; a right-aligned one is understood too.
class OpisVat {
 public:
  OpisVat() = default;
  explicit OpisVat(QString tekst) : m_tekst(std::move(tekst)) {}
  OpisVat(const QString& kod, const QString& opis);

  const QString& Tekst() const { return m_tekst; }
  QString Kod() const;
  QString Opis() const;
  // The rate in hundredths of a percent as text: the code followed by "00", "-1" as it is.
  QString Stawka() const;

  friend bool operator==(const OpisVat&, const OpisVat&) = default;

 private:
  QString m_tekst;
};

// Fields of the catalogue that a file carries.
using ZbiorPol = std::bitset<PoleKontrahenta::LiczbaWartosci>;

// How an import file is laid out. The program keeps one for goods and one for contractors; both are edited in
// the structure dialog and stored with the settings. Members bear the names of the dialog's controls.
struct StrukturaPliku {
  explicit StrukturaPliku(RodzajRekordu rodzaj_);

  RodzajRekordu rodzaj;
  TypPliku CBTypPliku = TypPliku::Zorvik;
  StronaKodowa CBPolskieZnaki = StronaKodowa::Windows;
  QString separator = QStringLiteral("\t");  // any text; empty when there is none
  KwalifikatorTekstu CBKwalifikatorTekstu = KwalifikatorTekstu::Cudzyslow;
  bool CBNieAnalizujPierwszejLinii = true;

  QString EdPoleAktywny = QStringLiteral("1");
  QString EdPoleUsuniety = QStringLiteral("0");
  // goods only
  QString EdPoleTypTowar = QStringLiteral("0");
  QString EdPoleTypOpakowanie = QStringLiteral("1");
  QString EdPoleTypUsluga = QStringLiteral("2");
  // contractors only
  QString EdPoleDostawca = QStringLiteral("1");
  QString EdPoleOdbiorca = QStringLiteral("1");
  QString EdPoleProducent = QStringLiteral("1");
  QString EdPoleSklep = QStringLiteral("1");

  std::vector<WpisPola> pola;
  std::vector<OpisVat> opisyVat;  // goods only; one per rate of the database
  std::vector<int> oferowane;     // 1 or 0 per position of the offered-fields list

  // The own layout always starts with a header line, a dBase file never does.
  bool PomijaPierwszaLinie() const;
  // The qualifier's character, none for "Brak".
  std::optional<char> Kwalifikator() const;
  // Linear in the field list; for work per record take Pola() once.
  bool ZawieraPole(int pole) const;
  ZbiorPol Pola() const;
  // Whether a catalogue field may be chosen; true for the goods barcode.
  bool CzyOferowane(int pole) const;
  void UstawOferowane(int pole, bool oferuj);

  // What accepting a file type fixes: the code texts and the header flag of the own layout, no header in
  // dBase.
  void PrzyjmijTypPliku(TypPliku typ);

  friend bool operator==(const StrukturaPliku&, const StrukturaPliku&) = default;
};

// Refusals of the structure dialog and of the field-list dialog; nothing when the data can be accepted.
std::optional<Komunikat> SprawdzSlowaStatusu(const QString& aktywny, const QString& usuniety);
std::optional<Komunikat> SprawdzListePol(RodzajRekordu rodzaj, const std::vector<WpisPola>& pola);

// Row label of the VAT-description dialog for a rate in whole percents ("%2d %").
QString EtykietaStawki(int procent);
