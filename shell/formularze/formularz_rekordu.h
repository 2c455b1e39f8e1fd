#pragma once

#include <functional>
#include <map>
#include <span>
#include <vector>

#include <QStringList>

#include "exchange/katalog_pol.h"
#include "model/kontekst.h"
#include "run/operator.h"
#include "shell/formularze/pole_formularza.h"
#include "shell/kontrolki/dialog_edycji.h"

class EVLTWDError;
class QTabWidget;
class TDmVLTElement;

// Which field a refusal of the record concerns. A refusal of several fields is one of a change: it concerns
// those that were changed.
struct PoleBledu {
  int kod;  // of EVLTWDError
  std::size_t kolumna;
};

struct OpisFormularza {
  RodzajRekordu katalog;
  std::span<const OpisPolaFormularza> pola;
  std::span<const PoleBledu> bledy;
};

// The edit form of one record: the controls of its table of fields in the group boxes of its .ui, saving and
// giving up below. The record is changed when the person accepts, whole, and not before; it is never saved
// here. Main thread; the record may belong to a worker that waits meanwhile. No transaction may be open while
// the form is shown.
class TFmVLTFormularzRekordu : public DialogEdycji, public TFmVLTFormularzElementu {
 public:
  ~TFmVLTFormularzRekordu() override;

  // True when the record was changed or found good as it is.
  bool PokazModalnie() override;
  // The same for a record that could not be saved: the reason stands beside the field it concerns, and the
  // whole run can be stopped.
  Poprawka Popraw(const OdmowaZapisu& odmowa);

 protected:
  TFmVLTFormularzRekordu(QWidget* rodzic, Rozmowa& rozmowa, TDmVLTElement& rekord)
      : DialogEdycji(rodzic, rozmowa), m_rekord(rekord) {}

  bool MaZmiany() override;

  // Makes the fields and the buttons; the .ui is set up already. Throws EBladBazy.
  void Zbuduj(const OpisFormularza& opis);

  PoleFormularza& Pole(std::size_t kolumna);
  template <typename Kontrolka>
  Kontrolka& KontrolkaPola(std::size_t kolumna) {
    return static_cast<Kontrolka&>(Pole(kolumna).Kontrolka());
  }
  // Shows the control's page and puts the focus there.
  void PrzejdzDo(QWidget& kontrolka);
  // Carries out what asks the database; its errors are shown and undo nothing.
  void Sprobuj(const std::function<void()>& czynnosc);

  // What the record has beside its columns. A refusal that concerns it is shown there: true. Its values are
  // checked and what is wrong is shown: the control to go to, null when nothing is. Its values are written.
  virtual bool PokazOdmoweSzczegolu(const EVLTWDError& /*blad*/) { return false; }
  virtual QWidget* SprawdzSzczegoly() { return nullptr; }
  virtual void WpiszSzczegoly() {}

 private:
  void DodajPola();
  void DodajPrzyciski();
  QString Znak() const;
  int PokazOkno();
  void ZakonczPisanie();
  bool Sprawdz();
  void Zatwierdz();
  void PokazOdmowe(const OdmowaZapisu& odmowa);
  std::vector<PoleFormularza*> PolaOdmowy(int kod);

  TDmVLTElement& m_rekord;
  OpisFormularza m_opis{};
  std::vector<PoleFormularza*> m_pola;
  std::map<const QWidget*, QStringList> m_poczatkowaTresc;
};
