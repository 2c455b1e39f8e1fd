#pragma once

#include <memory>
#include <vector>

#include "exchange/struktura_pliku.h"
#include "shell/kontrolki/dialog_edycji.h"

class QAbstractButton;
class QLineEdit;
class WidokPodgladu;
struct KontekstOkna;

namespace Ui {
class DialogStruktury;
}

// The layout of an import file. Works on a copy of the structure; Accepted when the person took it over.
class DialogStruktury final : public DialogEdycji {
 public:
  DialogStruktury(QWidget* rodzic, KontekstOkna& kontekst, const StrukturaPliku& struktura,
                  const QString& plik);
  ~DialogStruktury() override;

  // What the dialog holds now, with what the file type fixes.
  StrukturaPliku Wynik() const;

 protected:
  bool MaZmiany() override { return Wynik() != m_poczatkowa; }

 private:
  void UlozKontrolki();
  void PolaczKontrolki();
  // Shows the structure with what its file type fixes and enables what it lets a person enter.
  void Wypelnij();
  // Takes what was entered from the controls that are enabled.
  void Pobierz();
  void Zmieniono();

  void Akceptuj();
  void Pola();
  void OpisStawekVAT();

  std::unique_ptr<Ui::DialogStruktury> m_ui;
  KontekstOkna& m_kontekst;
  // As entered; what a file type fixes never overwrites it, so that trying another type loses nothing. The
  // separator is the one the dialog was opened with.
  StrukturaPliku m_struktura;
  StrukturaPliku m_poczatkowa;  // what Wynik gave at the beginning
  QAbstractButton* m_wybranySeparator;
  QString m_innySeparator;
  std::vector<std::pair<QLineEdit*, QString StrukturaPliku::*>> m_slowa;
  WidokPodgladu* m_podglad;
  bool m_wypelnianie = false;
};
