#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "exchange/czytnik.h"

// One record of the file with what the reader says of it, kept after the reader has gone on.
struct RekordPliku {
  std::string bajty;
  StronaKodowa strona = StronaKodowa::Windows;
  int numer = 0;  // from 1
  std::optional<NiezgodnaLiczbaPol> niezgodnosc = {};
  bool maStatus = false;
  std::vector<Spostrzezenie> spostrzezenia = {};

  LiniaRekordu Linia() const { return {bajty, strona}; }
};

// The records of a file, read some way ahead of the one in hand, so that what they need of the database can
// be asked for together. Kept until they are committed, so that they can be gone through again.
class KolejkaRekordow {
 public:
  static constexpr std::size_t kBlok = 100;

  explicit KolejkaRekordow(Czytnik& czytnik) : m_czytnik(czytnik) {}

  // Makes the next record the one in hand; false behind the last one, Koniec() then tells why.
  bool Nastepny();
  WynikCzytania Koniec() const { return m_koniec; }

  const RekordPliku& Biezacy() const { return m_rekordy[m_biezacy]; }
  // The one in hand and those behind it, at most kBlok, when they were not given before; nothing otherwise.
  std::span<const RekordPliku> NowyBlok();

  // The records before the one in hand are not needed any more. False: there was none.
  bool Zapomnij();
  // Goes back to before the first record that is still kept.
  void Wroc();

 private:
  void CzytajBlok();

  Czytnik& m_czytnik;
  std::vector<RekordPliku> m_rekordy;
  std::size_t m_biezacy = 0;
  std::size_t m_koniecBloku = 0;  // of the records given as a block
  bool m_rozpoczeta = false;
  WynikCzytania m_koniec = WynikCzytania::Rekord;  // anything else: the reader has come to its end
};
