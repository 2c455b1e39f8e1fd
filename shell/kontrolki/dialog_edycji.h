#pragma once

#include <QDialog>

class Rozmowa;

// A dialog in which something is entered. Its way out, Esc and its close box all reject it, and each asks
// once before what was entered is thrown away.
class DialogEdycji : public QDialog {
 public:
  void reject() override;

 protected:
  DialogEdycji(QWidget* rodzic, Rozmowa& rozmowa) : QDialog(rodzic), m_rozmowa(rozmowa) {}

  // Whether there is anything to lose. What is still being typed counts.
  virtual bool MaZmiany() = 0;

  Rozmowa& m_rozmowa;
};
