#pragma once

#include <optional>
#include <span>

#include <QMessageBox>
#include <QString>
#include <QStringList>

#include "exchange/komunikat.h"

class QDialog;
class QWidget;
class EMException;

// Everything the window asks a person outside its own controls: message boxes, file choices, texts, dialogs
// that wait. The one place where tests give the next answer and the next file name instead. Main thread only.
class Rozmowa {
 public:
  using Ikona = QMessageBox::Icon;
  using Przycisk = QMessageBox::StandardButton;
  using Przyciski = QMessageBox::StandardButtons;

  virtual ~Rozmowa();

  // Shows a box with the given buttons, captions in Polish, and waits. A box that is closed without a button
  // answers with its escape button (Cancel, No or Abort) or, when it has none, with `domyslny`.
  virtual Przycisk Zapytaj(QWidget* rodzic, const Komunikat& komunikat, Ikona ikona, Przyciski przyciski,
                           Przycisk domyslny);
  // A text typed by the person; nothing when the person gives up.
  virtual std::optional<QString> PodajTekst(QWidget* rodzic, const Komunikat& pytanie,
                                            const QString& proponowany);

  struct WyborPliku {
    QString tytul;
    QString sciezka;            // offered: a file or a folder
    QString filtr;              // "shown (pattern);;shown (pattern)"
    QString rozszerzenie = {};  // added to a name without one; when reading, to one of no file
  };
  // Nothing when the person gives up. Whether the file exists is the caller's question.
  virtual std::optional<QString> WybierzDoOdczytu(QWidget* rodzic, const WyborPliku& wybor);
  virtual std::optional<QString> WybierzDoZapisu(QWidget* rodzic, const WyborPliku& wybor);

  // Shows a dialog and waits for its result.
  virtual int Pokaz(QDialog& dialog);

  // One button "OK".
  void Powiedz(QWidget* rodzic, const Komunikat& komunikat, Ikona ikona = Ikona::Warning);
  // "Tak" and "Nie", the latter the default.
  bool CzyTak(QWidget* rodzic, const Komunikat& pytanie);
  // Caption, title, description and cause of an error; the icon tells its severity.
  void PokazBlad(QWidget* rodzic, const EMException& blad);
};
