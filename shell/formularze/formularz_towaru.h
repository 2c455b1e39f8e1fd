#pragma once

#include "shell/formularze/formularz_rekordu.h"

class EtykietaBledu;
class QPushButton;
class TabelaSzczegolow;
class TDmVLTTowar;
namespace Ui {
class FormularzTowaru;
}

// The form of a good: its columns that a file can carry, central code and packaging; additional codes, values
// of the category's parameters, suppliers; stock to be seen.
class TFmVLTFormularzTowaru final : public TFmVLTFormularzRekordu {
 public:
  // The table of its fields and the fields of its refusals.
  static OpisFormularza Opis();

  TFmVLTFormularzTowaru(QWidget* rodzic, Rozmowa& rozmowa, TDmVLTTowar& towar);
  ~TFmVLTFormularzTowaru() override;

 protected:
  bool PokazOdmoweSzczegolu(const EVLTWDError& blad) override;
  QWidget* SprawdzSzczegoly() override;
  void WpiszSzczegoly() override;

 private:
  void PokazSzczegoly();
  void PolaczSkroty();
  void PolaczTabele(TabelaSzczegolow& tabela, EtykietaBledu& blad, QPushButton& dodaj, QPushButton& usun);
  // For the main code (-1) or the additional code of a row; the form's texts count, not the record's.
  void ZaproponujSkrot(int wiersz);
  int WierszOdmowy(const EVLTWDError& blad) const;

  TDmVLTTowar& m_towar;
  std::unique_ptr<Ui::FormularzTowaru> m_ui;
};
