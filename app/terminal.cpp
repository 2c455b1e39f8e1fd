#include "app/terminal.h"

#include <cstdio>

#include <QStringList>

#include <sys/ioctl.h>
#include <unistd.h>

#include "platform/wyjatek.h"

using namespace Qt::Literals::StringLiterals;

namespace terminal {
namespace {

void Pisz(std::FILE* strumien, std::string_view bajty) {
  std::fwrite(bajty.data(), 1, bajty.size(), strumien);
  std::fflush(strumien);
}

}  // namespace

void Wypisz(const QString& tekst) {
  WypiszBajty(tekst.toStdString());
}

void WypiszBajty(std::string_view bajty) {
  Pisz(stdout, bajty);
}

void WypiszBlad(const QString& tekst) {
  Pisz(stderr, tekst.toStdString());
}

bool WyjscieJestTerminalem() {
  return isatty(STDOUT_FILENO) == 1;
}

bool BledyNaTerminalu() {
  return isatty(STDERR_FILENO) == 1;
}

int Szerokosc() {
  constexpr int kZwykla = 80;
  winsize rozmiar{};
  return ioctl(STDERR_FILENO, TIOCGWINSZ, &rozmiar) == 0 && rozmiar.ws_col > 0 ? rozmiar.ws_col : kZwykla;
}

QString JednaLinia(const Komunikat& komunikat) {
  QString linia = komunikat.naglowek + u": "_s;
  QString tekst = komunikat.tekst;
  QString szczegoly;
  bool pierwszy = true;
  for (const QString& czesc : tekst.replace(u'\r', u'\n').split(u'\n', Qt::SkipEmptyParts)) {
    if (czesc.startsWith(kSzczegoly)) {
      szczegoly += u'\n' + czesc.trimmed();
      continue;
    }
    if (!pierwszy) linia += u".:!?,;"_s.contains(linia.back()) ? u" "_s : u". "_s;
    linia += czesc.trimmed();
    pierwszy = false;
  }
  return linia + szczegoly;
}

}  // namespace terminal

Komunikat KomunikatBledu(const EMException& blad) {
  return {blad.Naglowek(), blad.Tresc()};
}
