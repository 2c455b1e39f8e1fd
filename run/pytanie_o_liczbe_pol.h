#pragma once

#include <optional>

#include "run/operator.h"

struct NiezgodnaLiczbaPol;

// Asks what to do with records that have too few fields, until "Ignore" is answered once.
class PytanieOLiczbePol {
 public:
  explicit PytanieOLiczbePol(IOperator& oper) : m_oper(oper) {}

  // Ignoruj when there is nothing to ask.
  OdpowiedzLiczbaPol Zapytaj(const std::optional<NiezgodnaLiczbaPol>& niezgodnosc);

 private:
  IOperator& m_oper;
  bool m_ignoruj = false;
};
