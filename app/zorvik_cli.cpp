#include <clocale>
#include <cstdio>
#include <cstring>

#include <QCoreApplication>
#include <QLocale>

#include <langinfo.h>

#include "app/argumenty.h"
#include "app/polecenia.h"
#include "app/przerwanie.h"
#include "app/terminal.h"

namespace {

// File names and everything printed are UTF-8, whatever the locale says. Qt would say so at every start under
// a "C" locale. The system's number format is asked for first: it is the person's, not ours to change.
void PrzejdzNaUtf8() {
  QLocale::system().decimalPoint();
  std::setlocale(LC_ALL, "");
  if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) qputenv("LC_ALL", "C.UTF-8");
}

}  // namespace

int main(int argc, char** argv) {
  PrzejdzNaUtf8();
  const QCoreApplication program(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("zorvik"));
  przerwanie::Przechwyc();
  const StatusWyjscia status = WykonajWierszPolecen(SlowaWierszaPolecen(argc, argv));
  if (std::ferror(stdout) == 0) return static_cast<int>(status);
  terminal::WypiszBlad(QStringLiteral("Błąd zapisu na standardowe wyjście\n"));
  return static_cast<int>(StatusWyjscia::Blad);
}
