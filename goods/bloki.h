#pragma once

#include <optional>
#include <vector>

#include <QString>
#include <QStringView>

// Fields of a goods file that hold lists. A block that is not balanced or has a part too many or too few is
// refused whole: half a list would silently delete the other half in the database.

// What is wrong with a block; nothing means that it was read.
struct BladBloku {
  // The value that should have been a number; empty when the block itself is malformed.
  QString nieLiczba;
};

template <typename T>
struct WynikBloku {
  T wartosc;
  std::optional<BladBloku> blad;
};

// "(code|short name|PLU);(...)": an empty short name is to be built, an empty PLU is 0.
struct KodZBloku {
  QString kod;
  QString skrot;
  int plu = 0;
};
WynikBloku<std::vector<KodZBloku>> CzytajBlokKodow(QStringView blok);

// "Category" or "Category: par(n:a|b|c);par(n:lo..hi)". A range parameter has bounds, a list parameter has
// values. No name is empty or holds ";".
struct ParametrZBloku {
  enum class Typ { Lista = 0, Zakres = 1 };

  QString nazwa;
  Typ typ = Typ::Lista;
  int n = 0;  // list: position of the chosen value from 1; range: the value itself
  std::vector<QString> wartosci;
  int od = 0;
  int doo = 0;

  friend bool operator==(const ParametrZBloku&, const ParametrZBloku&) = default;
};
struct BlokKategorii {
  QString kategoria;
  std::vector<ParametrZBloku> parametry;

  friend bool operator==(const BlokKategorii&, const BlokKategorii&) = default;
};
WynikBloku<BlokKategorii> CzytajBlokKategorii(QStringView blok);

// "(number|number)"; blocks joined from several columns may hold ";" or ";(" between numbers. Empty numbers
// at either end are dropped, one between others makes the block malformed.
WynikBloku<std::vector<QString>> CzytajBlokNipow(QStringView blok);
