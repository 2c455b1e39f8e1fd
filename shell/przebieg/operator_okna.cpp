#include "shell/przebieg/operator_okna.h"

#include "shell/formularze/formularze.h"
#include "shell/przebieg/okno_postepu.h"
#include "shell/przebieg/widok_postepu.h"
#include "shell/rozmowa.h"

template <typename Pytanie>
auto OperatorOkna::Zapytaj(const Pytanie& pytanie) {
  return m_doOkna.Zapytaj([&] {
    const TLProgressView::Przerwa przerwa(m_okno.Widok());
    return pytanie();
  });
}

OdpowiedzLiczbaPol OperatorOkna::LiczbaPol(const Komunikat& pytanie) {
  const Rozmowa::Przycisk wybrany = Zapytaj([&] {
    return m_rozmowa.Zapytaj(&m_okno, pytanie, QMessageBox::Question,
                             QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore,
                             QMessageBox::Abort);
  });
  switch (wybrany) {
    case QMessageBox::Ignore:
      return OdpowiedzLiczbaPol::Ignoruj;
    case QMessageBox::Retry:
      return OdpowiedzLiczbaPol::Pomin;
    default:
      return OdpowiedzLiczbaPol::Przerwij;
  }
}

Poprawka OperatorOkna::Popraw(TDmVLTElement& rekord, const OdmowaZapisu& odmowa) {
  return Zapytaj([&] { return PoprawWFormularzu(&m_okno, m_rozmowa, rekord, odmowa); });
}

// Enter is never an answer that somebody has thought of.
bool OperatorOkna::CzyTak(const Komunikat& pytanie, bool /*bezpieczna*/) {
  return Zapytaj([&] { return m_rozmowa.CzyTak(&m_okno, pytanie); });
}

std::optional<QString> OperatorOkna::PodajTekst(const Komunikat& pytanie) {
  return Zapytaj([&] { return m_rozmowa.PodajTekst(&m_okno, pytanie, {}); });
}
