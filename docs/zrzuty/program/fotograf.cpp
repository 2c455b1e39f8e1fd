#include "docs/zrzuty/program/fotograf.h"

#include <algorithm>

#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QPainter>
#include <QTimer>

#include "docs/zrzuty/program/kontrola_okna.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kWysokoscTytulu = 26;
constexpr int kOdstepTytulu = 8;
constexpr int kNajdluzszeCzekanieMs = 60'000;

// Off screen nobody draws the frame of a window, but a reader knows a box by its caption.
QImage ZRamka(const QImage& okno, const QString& tytul) {
  const qreal skala = okno.devicePixelRatio();
  const QSize rozmiar = okno.deviceIndependentSize().toSize();
  QImage obraz((QSizeF(rozmiar.width() + 2, rozmiar.height() + kWysokoscTytulu + 1) * skala).toSize(),
               QImage::Format_RGB32);
  obraz.setDevicePixelRatio(skala);
  const QPalette paleta = QApplication::palette();
  obraz.fill(paleta.color(QPalette::Mid));
  QPainter malarz(&obraz);
  QFont pismo = QApplication::font();
  pismo.setBold(true);
  malarz.setFont(pismo);
  malarz.setPen(paleta.color(QPalette::WindowText));
  malarz.drawText(QRect(kOdstepTytulu, 0, rozmiar.width() - 2 * kOdstepTytulu, kWysokoscTytulu),
                  Qt::AlignVCenter, tytul);
  malarz.drawImage(1, kWysokoscTytulu, okno);
  return obraz;
}

// Shades that nobody tells apart become one, so that a table of colours will do: a third of the size.
QImage Oszczednie(QImage obraz) {
  constexpr int kStopien = 8;
  const auto zaokraglij = [](int skladowa) {
    return std::min((skladowa + kStopien / 2) / kStopien * kStopien, 255);
  };
  for (int y = 0; y < obraz.height(); ++y)
    for (int x = 0; x < obraz.width(); ++x) {
      const QRgb kolor = obraz.pixel(x, y);
      obraz.setPixel(x, y,
                     qRgb(zaokraglij(qRed(kolor)), zaokraglij(qGreen(kolor)), zaokraglij(qBlue(kolor))));
    }
  const QImage zTablica = obraz.convertToFormat(QImage::Format_Indexed8);
  return zTablica.convertToFormat(obraz.format()) == obraz ? zTablica : obraz;
}

}  // namespace

void Fotograf::Zdjecie(QWidget& okno, const QString& nazwa) {
  QCoreApplication::processEvents();
  for (const QString& wada : WadyOkna(okno)) m_wady << nazwa + u": "_s + wada;
  const QImage obraz = Oszczednie(ZRamka(okno.grab().toImage(), okno.windowTitle()));
  if (!obraz.save(m_katalog.filePath(nazwa + u".png"_s))) qFatal("cannot write %s", qPrintable(nazwa));
}

int Fotograf::Pokaz(QDialog& dialog) {
  if (osoba.empty()) {
    QString tekst = dialog.windowTitle();
    if (const auto* const okienko = qobject_cast<QMessageBox*>(&dialog)) tekst += u": "_s + okienko->text();
    qFatal("unexpected dialog: %s", qPrintable(tekst));
  }
  const Czynnosc czynnosc = std::move(osoba.front());
  osoba.pop_front();
  QTimer::singleShot(0, &dialog, [&] { czynnosc(dialog); });
  return dialog.exec();
}

std::optional<QString> Fotograf::WybierzDoOdczytu(QWidget* /*rodzic*/, const WyborPliku& /*wybor*/) {
  const QString plik = pliki.front();
  pliki.pop_front();
  return plik;
}

std::optional<QString> Fotograf::WybierzDoZapisu(QWidget* rodzic, const WyborPliku& wybor) {
  return WybierzDoOdczytu(rodzic, wybor);
}

void Odczekaj(int milisekund) {
  QEventLoop petla;
  QTimer::singleShot(milisekund, &petla, &QEventLoop::quit);
  petla.exec();
}

void PoczekajAz(const std::function<bool()>& warunek) {
  for (const QDeadlineTimer koniec(kNajdluzszeCzekanieMs); !warunek(); Odczekaj(10))
    if (koniec.hasExpired()) qFatal("waited in vain");
}
