#pragma once

#include <QLabel>

// What is wrong with one control, in words below it; takes no room while nothing is.
class EtykietaBledu : public QLabel {
 public:
  explicit EtykietaBledu(QWidget* rodzic = nullptr);

  // The control's description for screen readers says the same. An empty text: nothing is wrong.
  void Pokaz(QWidget& kontrolka, const QString& blad);

 protected:
  void resizeEvent(QResizeEvent* zdarzenie) override;
  void showEvent(QShowEvent* zdarzenie) override;

 private:
  void DopasujWysokosc();
};
