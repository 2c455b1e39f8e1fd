#include "run/operator.h"

#include "run/postep.h"

using namespace Qt::Literals::StringLiterals;

Poprawka PoprawLubPomin(IOperator& oper, TDmVLTElement& rekord, const OdmowaZapisu& odmowa,
                        const QString& pytanieOPominiecie) {
  for (;;) {
    const Poprawka poprawka = oper.Popraw(rekord, odmowa);
    if (poprawka != Poprawka::Zrezygnowano) return poprawka;
    if (oper.CzyTak({u"Uwaga"_s, u"Nie poprawiasz?"_s}, true) &&
        oper.CzyTak({u"Uwaga"_s, pytanieOPominiecie}, true))
      return Poprawka::Zrezygnowano;
  }
}

OdpowiedzLiczbaPol OperatorNieobecny::LiczbaPol(const Komunikat& pytanie) {
  // The text differs with every record, the question does not.
  static const QString kOdpowiedzi[] = {u"przerwij"_s, u"pomiń ten rekord"_s, u"ignoruj"_s};
  m_postep->Pokaz(pytanie.naglowek, pytanie.tekst + u" Odpowiedź bez operatora: "_s +
                                        kOdpowiedzi[static_cast<int>(m_liczbaPol)]);
  return m_liczbaPol;
}

Poprawka OperatorNieobecny::Popraw(TDmVLTElement& /*rekord*/, const OdmowaZapisu& odmowa) {
  Powiedz({u"Uwaga"_s, odmowa.tekst}, u"rekord nie będzie poprawiany"_s);
  return Poprawka::Zrezygnowano;
}

bool OperatorNieobecny::CzyTak(const Komunikat& pytanie, bool bezpieczna) {
  Powiedz(pytanie, bezpieczna ? u"tak"_s : u"nie"_s);
  return bezpieczna;
}

std::optional<QString> OperatorNieobecny::PodajTekst(const Komunikat& pytanie) {
  Powiedz(pytanie, u"brak"_s);
  return std::nullopt;
}

void OperatorNieobecny::Powiedz(const Komunikat& pytanie, const QString& odpowiedz) {
  if (!m_powiedziane.insert(pytanie.tekst).second) return;
  m_postep->Pokaz(pytanie.naglowek,
                  pytanie.tekst + u" Odpowiedź bez operatora (także dalej): "_s + odpowiedz);
}
