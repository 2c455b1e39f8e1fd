#include "shell/formularze/etykieta_bledu.h"

#include <algorithm>

namespace {
// Readable on either ground.
constexpr QColor kNaJasnym(0xB0, 0x00, 0x20);
constexpr QColor kNaCiemnym(0xFF, 0x8A, 0x80);
constexpr int kPolowaJasnosci = 128;
}  // namespace

EtykietaBledu::EtykietaBledu(QWidget* rodzic) : QLabel(rodzic) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  hide();
}

void EtykietaBledu::Pokaz(QWidget& kontrolka, const QString& blad) {
  QPalette paleta = palette();
  const bool ciemno = paleta.color(QPalette::Window).lightness() < kPolowaJasnosci;
  paleta.setColor(QPalette::WindowText, ciemno ? kNaCiemnym : kNaJasnym);
  setPalette(paleta);
  // Not by the colour alone.
  setText(blad.isEmpty() ? QString() : QStringLiteral("▲ ") + blad);
  if (isVisible()) DopasujWysokosc();
  setVisible(!blad.isEmpty());
  kontrolka.setAccessibleDescription(blad);
}

void EtykietaBledu::resizeEvent(QResizeEvent* zdarzenie) {
  QLabel::resizeEvent(zdarzenie);
  DopasujWysokosc();
}

void EtykietaBledu::showEvent(QShowEvent* zdarzenie) {
  QLabel::showEvent(zdarzenie);
  DopasujWysokosc();
}

// The pages of a tab widget do not pass on that a narrow text is a high one.
void EtykietaBledu::DopasujWysokosc() {
  setMinimumHeight(std::max(heightForWidth(width()), 0));
}
