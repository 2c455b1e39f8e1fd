#pragma once

#include "shell/formularze/formularz_rekordu.h"

class TDmVLTKontrahent;
namespace Ui {
class FormularzKontrahenta;
}

// The form of a contractor: its columns, its shop and the persons authorised to receive invoices.
class TFmVLTFormularzKontrahenta final : public TFmVLTFormularzRekordu {
 public:
  // The table of its fields and the fields of its refusals.
  static OpisFormularza Opis();

  TFmVLTFormularzKontrahenta(QWidget* rodzic, Rozmowa& rozmowa, TDmVLTKontrahent& kontrahent);
  ~TFmVLTFormularzKontrahenta() override;

 protected:
  void WpiszSzczegoly() override;

 private:
  TDmVLTKontrahent& m_kontrahent;
  std::unique_ptr<Ui::FormularzKontrahenta> m_ui;
};
