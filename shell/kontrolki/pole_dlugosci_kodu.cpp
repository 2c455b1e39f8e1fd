#include "shell/kontrolki/pole_dlugosci_kodu.h"

#include <algorithm>

#include <QLineEdit>

#include "ustawienia/wspolzaleznosci.h"

namespace {

QString Cyfry(const QString& tekst) {
  const QString bezOdstepow = tekst.trimmed();
  const auto koniec = std::find_if_not(bezOdstepow.begin(), bezOdstepow.end(),
                                       [](QChar znak) { return znak >= u'0' && znak <= u'9'; });
  return bezOdstepow.left(koniec - bezOdstepow.begin());
}

}  // namespace

TMPoleDlugosciKodu::TMPoleDlugosciKodu(QWidget* rodzic) : QSpinBox(rodzic) {
  setRange(1, 20);
  setKeyboardTracking(false);
  connect(this, &QObject::objectNameChanged, this, [this](QString nazwa) {
    lineEdit()->setObjectName(nazwa.replace(QStringLiteral("UpDown"), QStringLiteral("Ed")));
  });
}

QString TMPoleDlugosciKodu::textFromValue(int dlugosc) const {
  return wspolzaleznosci::OpisDlugosciKodu(dlugosc);
}

int TMPoleDlugosciKodu::valueFromText(const QString& tekst) const {
  return Cyfry(tekst).toInt();
}

QValidator::State TMPoleDlugosciKodu::validate(QString& tekst, int& /*pozycja*/) const {
  const QString cyfry = Cyfry(tekst);
  const int dlugosc = cyfry.toInt();
  if (dlugosc >= minimum() && dlugosc <= maximum()) return QValidator::Acceptable;
  return cyfry.isEmpty() || dlugosc < minimum() ? QValidator::Intermediate : QValidator::Invalid;
}
