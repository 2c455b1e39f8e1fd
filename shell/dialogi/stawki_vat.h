#pragma once

#include <optional>

#include "model/stawki_vat.h"
#include "shell/kontrolki/dialog_edycji.h"

class QListWidget;
struct KontekstOkna;

// The rate editor: the dictionary of VAT rates, the highest first, and a row "<nowa>" for another one. Saving
// changes the dictionary at once by what the person has changed; Accepted when it holds that. Remembers its
// size.
class TFmVLTStawkiVat final : public DialogEdycji {
 public:
  // Reads the rates; EBladBazy as the session raises it.
  TFmVLTStawkiVat(QWidget* rodzic, KontekstOkna& kontekst);

  const TVLTStawkiVat& Stawki() const { return m_stawki; }
  void done(int wynik) override;

 protected:
  bool MaZmiany() override { return !m_stawki.Rowne(m_wBazie); }

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
