#pragma once

#include "tests/end_to_end/stanowisko.h"

inline const QStringList kDodajIPopraw{u"--ustaw"_s, u"ParNowyKontr=1"_s, u"--ustaw"_s,
                                       u"ParAktualKontr=1"_s};

// Many contractors in the own layout: unique tax numbers, each a shop with two persons.
inline std::string DuzyPlikKontrahentow(int ile) {
  std::string plik = "Nazwa\tNIP\r\n";
  for (int i = 0; i < ile; ++i) {
    const std::string numer = std::to_string(i);
    plik += "Kontrahent " + numer + "\t" + std::to_string(1000000000 + i) + "\t\tPolna " + numer +
            std::string(8, '\t') + "1\t0\t0\t1\t1" + std::string(19, '\t') + "(Kowalski|Nowak " + numer +
            ")\t1\r\n";
  }
  return plik;
}
