#pragma once

#include <memory>

#include "exchange/struktura_pliku.h"
#include "shell/kontrolki/dialog_edycji.h"

class EdytorKomorki;
class ModelListyPol;
class WidokPodgladu;
struct KontekstOkna;

namespace Ui {
class DialogListyPol;
}

// The columns of an import file: fields chosen from the catalogue in the order of the file. Works on a copy
// of the structure; Accepted when the person took it over.
class DialogListyPol final : public DialogEdycji {
 public:
  DialogListyPol(QWidget* rodzic, KontekstOkna& kontekst, const StrukturaPliku& struktura,
                 const QString& plik);
  ~DialogListyPol() override;

  // The structure with the field list and the offered fields of the dialog.
  StrukturaPliku Wynik() const;
  // The file of the preview.
  const QString& Plik() const;

 protected:
  bool MaZmiany() override;

 private:
  void UlozKatalog();
  void UlozWybrane();
  void UlozPrzyciski();
  void Odswiez();
  int BiezacyWiersz() const;
  void ZaznaczWiersz(int wiersz);

  void Dodaj();
  void Usun();
  void Przesun(int kierunek);
  void Zapisz();
  void PolaStandardowe();

  std::unique_ptr<Ui::DialogListyPol> m_ui;
  KontekstOkna& m_kontekst;
  StrukturaPliku m_struktura;
  const StrukturaPliku m_poczatkowa;
  ModelListyPol* m_model;
  EdytorKomorki* m_edytor;
  WidokPodgladu* m_podglad;
};
