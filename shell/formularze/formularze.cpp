#include "shell/formularze/formularze.h"

#include "model/kontrahent.h"
#include "model/towar.h"
#include "robotnik/przekazanie.h"
#include "shell/formularze/formularz_kontrahenta.h"
#include "shell/formularze/formularz_towaru.h"

namespace {

std::unique_ptr<TFmVLTFormularzRekordu> Formularz(QWidget* rodzic, Rozmowa& rozmowa, TDmVLTElement& rekord) {
  if (rekord.Query.IsEmpty()) return nullptr;
  if (auto* const towar = dynamic_cast<TDmVLTTowar*>(&rekord))
    return std::make_unique<TFmVLTFormularzTowaru>(rodzic, rozmowa, *towar);
  if (auto* const kontrahent = dynamic_cast<TDmVLTKontrahent*>(&rekord))
    return std::make_unique<TFmVLTFormularzKontrahenta>(rodzic, rozmowa, *kontrahent);
  return nullptr;
}

class FormularzRobotnika final : public TFmVLTFormularzElementu {
 public:
  FormularzRobotnika(QWidget* rodzic, Rozmowa& rozmowa, Przekazanie& przekazanie, TDmVLTElement& rekord)
      : m_rodzic(rodzic), m_rozmowa(rozmowa), m_przekazanie(przekazanie), m_rekord(rekord) {}

  bool PokazModalnie() override {
    return m_przekazanie.Zapytaj([&] {
      const auto formularz = Formularz(m_rodzic, m_rozmowa, m_rekord);
      return formularz && formularz->PokazModalnie();
    });
  }

 private:
  QWidget* m_rodzic;
  Rozmowa& m_rozmowa;
  Przekazanie& m_przekazanie;
  TDmVLTElement& m_rekord;
};

}  // namespace

std::unique_ptr<TFmVLTFormularzElementu> UtworzFormularz(QWidget* rodzic, Rozmowa& rozmowa,
                                                         TDmVLTElement& rekord) {
  return Formularz(rodzic, rozmowa, rekord);
}

Poprawka PoprawWFormularzu(QWidget* rodzic, Rozmowa& rozmowa, TDmVLTElement& rekord,
                           const OdmowaZapisu& odmowa) {
  const auto formularz = Formularz(rodzic, rozmowa, rekord);
  return formularz ? formularz->Popraw(odmowa) : Poprawka::Zrezygnowano;
}

std::function<std::unique_ptr<TFmVLTFormularzElementu>(TDmVLTElement&)> FabrykaFormularzy(
    QWidget* rodzic, Rozmowa& rozmowa, Przekazanie& przekazanie) {
  return [rodzic, &rozmowa, &przekazanie](TDmVLTElement& rekord) {
    return std::make_unique<FormularzRobotnika>(rodzic, rozmowa, przekazanie, rekord);
  };
}
