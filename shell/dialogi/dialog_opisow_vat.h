#pragma once

#include <vector>

#include "exchange/struktura_pliku.h"
#include "shell/kontrolki/dialog_edycji.h"

class EdytorKomorki;
class QLabel;
class QTableWidget;
class TVLTStawkiVat;
struct KontekstOkna;

// What stands in a goods file for each VAT rate of the database: the whole percents and the exempt rate, for
// others have no code. Accepted when the person took the descriptions over.
class DialogOpisowVat final : public DialogEdycji {
 public:
  // Reads the rates; EBladBazy as the session raises it.
  DialogOpisowVat(QWidget* rodzic, KontekstOkna& kontekst, const std::vector<OpisVat>& opisy);

  // One per rate shown, from the largest down.
  std::vector<OpisVat> Opisy() const;

 protected:
  bool MaZmiany() override;

 private:
  void PokazStawki(const TVLTStawkiVat& stawki, const std::vector<OpisVat>& opisy);
  void Akceptuj();
  void Stawki();

  KontekstOkna& m_kontekst;
  QTableWidget* m_tabela;
  EdytorKomorki* m_edytor;
  QLabel* m_bezOpisu;
  std::vector<OpisVat> m_poczatkowe;
};
