#pragma once

#include <functional>
#include <vector>

#include <QString>

class QDialog;
class TMStatusButtonBar;

// One button of a dialog's bar and what it does.
struct PrzyciskDialogu {
  QString nazwa;
  QString tekst;
  QString klawisz;
  std::function<void()> czynnosc;
};

// Fills the bar and adds the way out, "Wyjście" on Esc, which rejects the dialog. Enter presses the first
// button.
void UlozPasek(QDialog& dialog, TMStatusButtonBar& pasek, std::vector<PrzyciskDialogu> przyciski);
