#pragma once

#include <optional>

#include "model/szukanie_kontrahenta.h"
#include "shell/formularze/pole_formularza.h"

class QLineEdit;
class TVLTBazaDanych;

struct WynikSzukania {
  std::optional<ZnalezionyKontrahent> kontrahent;
  QString wada;  // why there is none, in words for a person
};
// A database that does not answer is a reason like any other: the person may try again.
WynikSzukania SzukajKontrahenta(TVLTBazaDanych& baza, const QString& nip);

// A contractor by tax number; a shop may have too many of them for a list. The number is looked up when the
// person leaves the control.
class PoleKontrahenta final : public PoleFormularza {
 public:
  // Throws EBladBazy.
  PoleKontrahenta(const OpisPolaFormularza& opis, const QString& podpis, const TMField& kolumna,
                  TVLTBazaDanych& baza);

  void Wpisz(TMField& kolumna) override;

 protected:
  QString Wada() override;

 private:
  TVLTBazaDanych& m_baza;
  QLineEdit& m_edycja;
  QLabel& m_nazwa;
  int m_kontrId = -1;
  // What the record has.
  QString m_poprzedni;
  QString m_poprzedniaNazwa;
};
