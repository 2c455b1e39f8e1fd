#pragma once

#include <optional>

#include <QDialog>

#include "model/stawki_vat.h"

class QListWidget;
struct KontekstOkna;

// The rate editor: the dictionary of VAT rates, the highest first, and a row "<nowa>" for another one. Saving
// replaces the dictionary at once; Accepted when it holds what the person sees. Remembers its size.
class TFmVLTStawkiVat final : public QDialog {
 public:
  // Reads the rates; EBladBazy as the session raises it.
  TFmVLTStawkiVat(QWidget* rodzic, KontekstOkna& kontekst);

  const TVLTStawkiVat& Stawki() const { return m_stawki; }
  void done(int wynik) override;

 private:
  void PokazStawki(int biezaca);
  // Asks for the rate of the current row.
  void Zmien();
  void Usun();
  void Zapisz();
  // The typed rate; nothing when it is none or the list has it, which has then been said.
  std::optional<int> Przyjmij(const QString& tekst, std::optional<int> dotychczas);

  KontekstOkna& m_kontekst;
  TVLTStawkiVat m_wBazie;
  TVLTStawkiVat m_stawki;
  QListWidget* m_lista;
};
