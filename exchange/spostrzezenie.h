#pragma once

#include <QString>

// What a reader notices in a record or in a whole file beside the values it hands on. Nothing is refused for
// it; a run tells of it at its end and the preview of a structure marks it.
struct Spostrzezenie {
  enum class Rodzaj {
    WiecejPol,  // text behind the last declared field
  };
  static constexpr int kCalaLinia = -1;

  Rodzaj rodzaj;
  int pole = kCalaLinia;  // catalogue number
  QString szczegol = {};  // the text or the number it is about; empty where the kind says all

  friend bool operator==(const Spostrzezenie&, const Spostrzezenie&) = default;
};
