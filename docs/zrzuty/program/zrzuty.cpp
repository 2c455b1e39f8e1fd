#include <cstdio>

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

#include "docs/zrzuty/program/fotograf.h"
#include "docs/zrzuty/program/zwiedzanie.h"
#include "shell/prezenter.h"

using namespace Qt::Literals::StringLiterals;

// zrzuty PICTURES DEMO [--ciemna]: takes the pictures of the documentation into the folder PICTURES. The
// current folder is an empty one to work in, the environment that of scripts/zrzuty. Ends with 1 when a
// window is not fit for a person.

namespace {

constexpr int kPunktowPisma = 9;

QPalette CiemnaPaleta() {
  const QColor okno(0x2D, 0x2D, 0x30);
  const QColor pole(0x1E, 0x1E, 0x20);
  const QColor tekst(0xE8, 0xE8, 0xE8);
  const QColor niedostepny(0x85, 0x85, 0x85);
  const QColor zaznaczenie(0x2A, 0x6F, 0xB5);
  QPalette paleta(tekst, okno, okno.lighter(150), okno.darker(150), okno.lighter(120), tekst, Qt::white, pole,
                  okno);
  paleta.setColor(QPalette::AlternateBase, QColor(0x28, 0x28, 0x2B));
  paleta.setColor(QPalette::Highlight, zaznaczenie);
  paleta.setColor(QPalette::HighlightedText, Qt::white);
  paleta.setColor(QPalette::PlaceholderText, niedostepny);
  for (const auto rola : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    paleta.setColor(QPalette::Disabled, rola, niedostepny);
  return paleta;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication program(argc, argv);
  QCoreApplication::setApplicationName(u"zorvik"_s);
  QCoreApplication::setApplicationVersion(QStringLiteral(ZORVIK_WERSJA));
  const QStringList slowa = QCoreApplication::arguments();
  if (slowa.size() < 3) return 2;
  QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
  QApplication::setFont(QFont(u"DejaVu Sans"_s, kPunktowPisma));
  QApplication::setCursorFlashTime(0);
  if (slowa.contains(u"--ciemna")) QApplication::setPalette(CiemnaPaleta());

  Fotograf fotograf{QDir(slowa[1])};
  UstawPrezenterBledow(fotograf);
  Zwiedz(fotograf, QDir(slowa[2]));
  for (const QString& wada : fotograf.Wady()) std::fprintf(stderr, "%s\n", qPrintable(wada));
  return fotograf.Wady().isEmpty() ? 0 : 1;
}
