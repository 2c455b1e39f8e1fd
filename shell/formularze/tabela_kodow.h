#pragma once

#include <vector>

#include <QTableWidget>

#include "model/kody_dodatkowe.h"

// The additional codes of a good: code, short name, register number. What a code has beside these stays with
// its row.
class TabelaKodow : public QTableWidget {
 public:
  enum Kolumna { Kod, Skrot, PLU };

  explicit TabelaKodow(QWidget* rodzic = nullptr);

  void Pokaz(const std::vector<KodDodatkowy>& kody);
  // Rows in which something was entered; the numbers must be good.
  std::vector<KodDodatkowy> Kody() const;
  // The row of the first number that is none, -1 when all are good.
  int WierszZlegoNumeru() const;

  QString Tekst(int wiersz, Kolumna kolumna) const;
  void UstawTekst(int wiersz, Kolumna kolumna, const QString& tekst);
  // Adds an empty row and lets the person type the code.
  void DodajWiersz();
  void UsunBiezacy();

 private:
  void Dopisz(const KodDodatkowy& kod);
};
