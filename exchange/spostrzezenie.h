#pragma once

#include <QString>

// What a reader notices in a record or in a whole file beside the values it hands on. Nothing is refused for
// it; a run tells of it at its end and the preview of a structure marks it.
struct Spostrzezenie {
  enum class Rodzaj {
    // of a record
    WiecejPol,    // text behind the last declared field
    NieznanyVat,  // `szczegol`: a text that no description of a rate explains
    Cudzyslow,    // `pole` has kept the text qualifier
    // of the file
    StronaKodowa,   // `szczegol`: the chosen code page, `drugi`: the one whose Polish letters are there
    DbaseLiczba,    // `szczegol`: records by the header, `drugi`: records read
    DbaseLogiczna,  // `szczegol`: a logical column, feeding `pole`, whose words are others
    DbaseData       // `szczegol`: a date column, feeding `pole`, which takes no such date
  };
  static constexpr int kCalaLinia = -1;

  Rodzaj rodzaj;
  int pole = kCalaLinia;  // catalogue number
  QString szczegol = {};
  QString drugi = {};

  friend bool operator==(const Spostrzezenie&, const Spostrzezenie&) = default;
};
