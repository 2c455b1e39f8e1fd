#pragma once

#include <vector>

#include "exchange/struktura_pliku.h"
#include "shell/kontrolki/dialog_edycji.h"

class QTableWidget;

// The offered fields of a structure with "TAK" or "NIE" for each. Works on a copy; Accepted when the person
// saved.
class DialogPolStandardowych final : public DialogEdycji {
 public:
  DialogPolStandardowych(QWidget* rodzic, Rozmowa& rozmowa, const StrukturaPliku& struktura);

  const std::vector<int>& Oferowane() const { return m_oferowane; }

 protected:
  bool MaZmiany() override { return m_oferowane != m_poczatkowe; }
  bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

 private:
  void UlozTabele(const StrukturaPliku& struktura);
  void Ustaw(int wiersz, bool oferowane);
  // The same by a person: fields that other options govern stay.
  void Zmien(int wiersz, bool oferowane);
  void Przelacz(int wiersz);

  std::vector<int> m_oferowane;
  std::vector<int> m_poczatkowe;
  QTableWidget* m_tabela;
};
