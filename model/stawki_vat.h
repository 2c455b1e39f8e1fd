#pragma once

#include <QString>
#include <QStringView>

#include "platform/listy_liczb.h"

class TVLTBazaDanych;

// A VAT rate is a number of hundredths of a percent, 0 to 10000, or -1: exempt, "ZW".
inline constexpr int kStawkaZwolniona = -1;
inline constexpr int kStawkaNajwyzsza = 10000;

// The VAT rates of the dictionary Vat: distinct, shown from the largest down ("ZW" is last). Filled by
// Wczytaj, written back, whole, by Zapisz; by ZapiszZmiany together with what others did meanwhile. 2003 for
// a position outside the set.
class TVLTStawkiVat {
 public:
  int Ilosc() const { return static_cast<int>(m_stawki.Count()); }
  int Stawka(int index) const;
  // Clamps to -1..10000.
  void Dodaj(int stawka);
  void Usun(int index);
  void Wyczysc() { m_stawki.Clear(); }
  bool Zawiera(int stawka) const;
  // -1 when absent.
  int Indeks(int stawka) const;
  void Kopiuj(const TVLTStawkiVat& inne);
  bool Rowne(const TVLTStawkiVat& inne) const;

  void Wczytaj(TVLTBazaDanych& baza);
  // Replaces the dictionary by this set, as one unit.
  void Zapisz(TVLTBazaDanych& baza) const;
  // Carries what this set has more and less than `poprzednie`, the set it was made from, over to the
  // dictionary as it is now, as one unit: what others have added or removed meanwhile stays so. This set then
  // holds what the dictionary does.
  void ZapiszZmiany(TVLTBazaDanych& baza, const TVLTStawkiVat& poprzednie);
  // Adds one rate to the dictionary as it is now, whatever others have added since it was loaded, as one
  // unit. The set in memory follows only when that succeeded. False when the dictionary held the rate
  // already.
  bool DopiszDoBazy(TVLTBazaDanych& baza, int stawka);

 private:
  TMacSetOfIntegers m_stawki{100};
};

// "ZW", or the percents with up to two decimals and a comma ("5,5"), with " %" behind when asked for.
QString StawkaNaTekst(int stawka, bool zProcentem);
// Reads what StawkaNaTekst writes, with comma or point, blanks and percent signs anywhere; a text beginning
// with "ZW" in any letter case is the exempt rate. 2401 for anything unreadable or out of range.
int TekstNaStawke(QStringView tekst);

// Half a unit goes away from zero.
double Zaokraglij(double kwota, int miejsc);

double BruttoZNetto(double netto, int stawka);
double NettoZBrutto(double brutto, int stawka);
double VatZNetto(double netto, int stawka);
double VatZBrutto(double brutto, int stawka);

struct ParaCen {
  double netto;
  double brutto;
  double vat;  // the difference of the rounded prices
};
// Net and gross of a price, both rounded to the given number of decimals.
ParaCen ObliczPareCen(double cena, bool brutto, int stawka, int miejsc);
