#pragma once

#include <QSpinBox>

// A code length with its word: an edit with its up-down. The edit is named like the up-down, with "Ed" for
// "UpDown". Typing counts when it is finished, so that half a number never meets the other bound.
class TMPoleDlugosciKodu final : public QSpinBox {
 public:
  explicit TMPoleDlugosciKodu(QWidget* rodzic = nullptr);

 protected:
  QString textFromValue(int dlugosc) const override;
  int valueFromText(const QString& tekst) const override;
  // The word may be typed, changed or left out.
  QValidator::State validate(QString& tekst, int& pozycja) const override;
};
