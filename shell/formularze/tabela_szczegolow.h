#pragma once

#include <QTableWidget>

class EtykietaBledu;

// Rows that a record has beside its columns; a person adds and takes them. What is wrong with a row is told
// below the table.
class TabelaSzczegolow : public QTableWidget {
 public:
  // False, and the label says why, when a row has a fault.
  bool Sprawdz(EtykietaBledu& etykieta);
  // Goes to the first fault.
  void PrzejdzDoWady();
  // Adds an empty row and lets the person type.
  void DodajWiersz();
  void UsunBiezacy();

  QString Tekst(int wiersz, int kolumna) const { return item(wiersz, kolumna)->text(); }
  void UstawTekst(int wiersz, int kolumna, const QString& tekst) { item(wiersz, kolumna)->setText(tekst); }

 protected:
  // Faults are in the column `sprawdzana`.
  TabelaSzczegolow(QWidget* rodzic, const QStringList& naglowki, int sprawdzana);

  virtual void DopiszPusty() = 0;
  virtual QString Wada(int wiersz) const = 0;

 private:
  // -1 when all rows are good.
  int WierszZWada() const;

  int m_sprawdzana;
};
