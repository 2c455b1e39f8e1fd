#include "platform/baza/dziennik_sterownika.h"

#ifdef __linux__

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QtGlobal>

#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr const char* kZmienna = "ODBCINSTINI";  // the list's name, behind the folder of the system's lists
constexpr const char* kLista = "odbcinst.ini";
// From whatever folder to a file of the process.
constexpr const char* kWPamieci = "../../../../../../../../proc/self/fd/";

QString Zmienna(const char* nazwa, const char* domyslna) {
  return qEnvironmentVariable(nazwa, QString::fromLatin1(domyslna));
}

// The library's own reader would remember the names it has read.
QByteArray BezDziennika(const QString& sciezka) {
  QFile plik(sciezka);
  QByteArray lista;
  if (!plik.open(QIODevice::ReadOnly)) return lista;
  for (const QByteArray& wiersz : plik.readAll().split('\n')) {
    const QByteArray klucz = wiersz.left(wiersz.indexOf('=')).trimmed().toLower();
    if (klucz == "commlog" || klucz == "debug") continue;
    lista += wiersz + '\n';
    if (wiersz.trimmed().startsWith('[')) lista += "Debug=0\nCommLog=0\n";
  }
  return lista;
}

bool Wylacz() {
  // What a program of this kind has left us is a file of its own.
  if (qgetenv(kZmienna).startsWith(kWPamieci)) qunsetenv(kZmienna);
  // The user's list goes on where the system's ends.
  const QByteArray lista = BezDziennika(Zmienna("ODBCSYSINI", "/etc") + u'/' + Zmienna(kZmienna, kLista)) +
                           BezDziennika(QDir::home().filePath(u'.' + QString::fromLatin1(kLista)));
  if (lista.isEmpty()) return false;
  const int plik = memfd_create(kLista, MFD_CLOEXEC);
  if (plik < 0) return false;
  if (write(plik, lista.constData(), static_cast<std::size_t>(lista.size())) != lista.size()) {
    close(plik);
    return false;
  }
  return qputenv(kZmienna, kWPamieci + QByteArray::number(plik));
}

}  // namespace

void WylaczDziennikSterownika() {
  static const bool raz = Wylacz();
  (void)raz;
}

#else

void WylaczDziennikSterownika() {}

#endif
