#include "run/pytanie_o_liczbe_pol.h"

#include "exchange/czytnik.h"

OdpowiedzLiczbaPol PytanieOLiczbePol::Zapytaj(const std::optional<NiezgodnaLiczbaPol>& niezgodnosc) {
  if (m_ignoruj || !niezgodnosc) return OdpowiedzLiczbaPol::Ignoruj;
  const OdpowiedzLiczbaPol odpowiedz = m_oper.LiczbaPol(niezgodnosc->Pytanie());
  m_ignoruj = odpowiedz == OdpowiedzLiczbaPol::Ignoruj;
  return odpowiedz;
}
