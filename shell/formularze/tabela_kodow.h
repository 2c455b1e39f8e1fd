#pragma once

#include <vector>

#include "model/kody_dodatkowe.h"
#include "shell/formularze/tabela_szczegolow.h"

// The additional codes of a good: code, short name, register number. What a code has beside these stays with
// its row.
class TabelaKodow final : public TabelaSzczegolow {
 public:
  enum Kolumna { Kod, Skrot, PLU };

  explicit TabelaKodow(QWidget* rodzic = nullptr);

  void Pokaz(const std::vector<KodDodatkowy>& kody);
  // Rows in which something was entered; the numbers must be good.
  std::vector<KodDodatkowy> Kody() const;

 protected:
  void DopiszPusty() override { Dopisz({}); }
  QString Wada(int wiersz) const override;

 private:
  void Dopisz(const KodDodatkowy& kod);
};
