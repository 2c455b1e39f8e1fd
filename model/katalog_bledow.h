#pragma once

#include <string_view>

#include <QString>

#include "platform/wyjatek.h"

// The texts of the model's errors: the one place that owns them.
namespace katalog_bledow {

// How the description is made from the entry's fixed text and the detail given when the error is raised.
enum class Forma { Staly, ZeSzczegolem, Szczegol, Zlozony };

struct PozycjaKatalogu {
  int kod;
  std::u16string_view tytul;
  std::u16string_view opis = {};
  Forma forma = Forma::Staly;
};

struct Teksty {
  QString tytul;
  QString opis;
};

// Caption and severity of the codes from `odKodu` up to the next range.
struct Zakres {
  int odKodu;
  std::u16string_view naglowek;
  KlasaBledu klasa;
};

enum class Katalog { Dane, Okna };

// Both texts are empty for a code that the catalogue does not hold.
Teksty Szukaj(Katalog katalog, int kod, const QString& szczegol);
const Zakres& SzukajZakresu(Katalog katalog, int kod);

}  // namespace katalog_bledow
