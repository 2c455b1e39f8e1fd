#pragma once

#include "robotnik/przekazanie.h"
#include "run/operator.h"

class Rozmowa;
class Tfrm_progress;

// The person in front of the progress window. On the worker; questions and forms are shown by the main thread
// while the worker waits.
class OperatorOkna final : public IOperator {
 public:
  OperatorOkna(Przekazanie& doOkna, Tfrm_progress& okno, Rozmowa& rozmowa)
      : m_doOkna(doOkna), m_okno(okno), m_rozmowa(rozmowa) {}

  bool JestOsoba() const override { return true; }
  OdpowiedzLiczbaPol LiczbaPol(const Komunikat& pytanie) override;
  Poprawka Popraw(TDmVLTElement& rekord, const OdmowaZapisu& odmowa) override;
  bool CzyTak(const Komunikat& pytanie, bool bezpieczna) override;
  std::optional<QString> PodajTekst(const Komunikat& pytanie) override;

 private:
  template <typename Pytanie>
  auto Zapytaj(const Pytanie& pytanie);

  Przekazanie& m_doOkna;
  Tfrm_progress& m_okno;
  Rozmowa& m_rozmowa;
};
