#pragma once

#include <random>
#include <vector>

#include <QString>

#include "platform/baza/sesja.h"

// What the database holds: how many an export sends, and how many of the contractors have no tax number.
struct ZawartoscBazy {
  int kontrahentow = 0;
  int bezNipu = 0;
  int towarow = 0;
};

// Fills a new shop's database with random rows, the same for the same seed. There is everything that a file
// can carry, and things it does not carry but an import must leave alone (stock, registers, gaps between
// identifiers). Left out is what no file brings back: tabs, line breaks, blanks around names, block
// characters inside names of blocks, first columns that begin a comment, one tax number twice; names of one
// dictionary that differ in letter case alone; short names and parameter values that a save would refuse.
class LosowaBaza {
 public:
  LosowaBaza(TVLTBazaDanych& baza, unsigned ziarno) : m_baza(baza), m_los(ziarno) {}

  ZawartoscBazy Napelnij();

 private:
  using Wiersz = std::vector<Parametr>;

  void Slowniki();
  void Kontrahent(int numer);
  void Osoby();
  void Towar(int numer);
  void SzczegolyTowaru(int towId, int katId);
  void Wstaw(const char* tabela, const Wiersz& wiersz);

  int Liczba(int od, int do_) { return od + static_cast<int>(m_los() % static_cast<unsigned>(do_ - od + 1)); }
  bool Co(int ktory) { return Liczba(1, ktory) == 1; }
  double Kwota();
  QString Znaki(QStringView alfabet, int od, int do_);
  // Never empty, no blanks around it.
  QString Nazwa();
  // A name that can stand inside a block; the number makes it the only one.
  QString NazwaWBloku(int numer);
  QString Skrot();
  QString Kod(int numer, bool dodatkowy);
  QString Nip(int numer);
  // Of a field that takes any text: also none and blanks around it.
  Wartosc Tekst();

  TVLTBazaDanych& m_baza;
  std::mt19937 m_los;
  ZawartoscBazy m_zawartosc;
  std::vector<int> m_kontrahenci;  // those that an export sends
  int m_numer = 0;
};
