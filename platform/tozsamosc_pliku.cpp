#include "platform/tozsamosc_pliku.h"

#include <cerrno>

#include <sys/stat.h>

#include "platform/nazwa_pliku.h"

namespace {

struct Rozlozona {
  QString folder, nazwa;
};

Rozlozona Rozloz(const QString& sciezka) {
  const qsizetype ukosnik = sciezka.lastIndexOf(u'/');
  if (ukosnik < 0) return {QStringLiteral("."), sciezka};
  return {sciezka.left(ukosnik + 1), sciezka.mid(ukosnik + 1)};
}

}  // namespace

RodzajPliku RodzajPlikuSciezki(const QString& sciezka) {
  struct stat opis;
  if (stat(BajtyNazwy(sciezka).constData(), &opis) != 0) return RodzajPliku::Brak;
  switch (opis.st_mode & S_IFMT) {
    case S_IFREG:
      return RodzajPliku::Zwykly;
    case S_IFDIR:
      return RodzajPliku::Folder;
    case S_IFIFO:
      return RodzajPliku::Potok;
    case S_IFCHR:
    case S_IFBLK:
      return RodzajPliku::Urzadzenie;
    default:
      return RodzajPliku::Inny;
  }
}

qint64 RozmiarPliku(const QString& sciezka) {
  struct stat opis;
  return stat(BajtyNazwy(sciezka).constData(), &opis) == 0 ? opis.st_size : 0;
}

QString CzymJest(RodzajPliku rodzaj) {
  switch (rodzaj) {
    case RodzajPliku::Folder:
      return QStringLiteral("folderem");
    case RodzajPliku::Potok:
      return QStringLiteral("potokiem");
    case RodzajPliku::Urzadzenie:
      return QStringLiteral("urządzeniem");
    case RodzajPliku::Inny:
      return QStringLiteral("obiektem systemu");
    case RodzajPliku::Brak:
    case RodzajPliku::Zwykly:
      break;
  }
  return {};
}

std::optional<TozsamoscPliku> TozsamoscPliku::Sciezki(const QString& sciezka) {
  struct stat opis;
  if (stat(BajtyNazwy(sciezka).constData(), &opis) == 0) return TozsamoscPliku(opis.st_dev, opis.st_ino);
  // Links that lead round in a circle lead to no place.
  return errno == ELOOP ? std::nullopt : Miejsca(KoniecDowiazan(sciezka));
}

std::optional<TozsamoscPliku> TozsamoscPliku::Miejsca(const QString& sciezka) {
  const Rozlozona czesci = Rozloz(sciezka);
  struct stat folder;
  if (czesci.nazwa.isEmpty() || stat(BajtyNazwy(czesci.folder).constData(), &folder) != 0)
    return std::nullopt;
  return TozsamoscPliku(folder.st_dev, folder.st_ino, czesci.nazwa);
}

std::optional<TozsamoscPliku> TozsamoscPliku::Otwartego(int deskryptor) {
  struct stat opis;
  if (fstat(deskryptor, &opis) != 0) return std::nullopt;
  return TozsamoscPliku(opis.st_dev, opis.st_ino);
}
