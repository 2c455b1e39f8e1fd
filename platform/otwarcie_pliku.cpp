#include "platform/otwarcie_pliku.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/nazwa_pliku.h"

namespace {

// Gives the descriptor to the object, which closes it.
std::optional<QString> Przejmij(QFile& plik, int deskryptor, QIODevice::OpenMode tryb) {
  if (plik.open(deskryptor, tryb | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) return std::nullopt;
  close(deskryptor);
  return plik.errorString();
}

// The reader of a pipe may be a little later than its writer; without any the writer would wait for ever.
constexpr int kProbPotoku = 50;
constexpr useconds_t kMikrosekundMiedzyProbami = 100'000;

// As the system's open, but an end of a pipe that has no other one fails with ENXIO in the end.
int OtworzDoZapisu(const char* nazwa, int flagi) {
  int deskryptor = open(nazwa, flagi | O_NONBLOCK, 0666);
  for (int i = 1; deskryptor < 0 && errno == ENXIO && i < kProbPotoku; ++i) {
    usleep(kMikrosekundMiedzyProbami);
    deskryptor = open(nazwa, flagi | O_NONBLOCK, 0666);
  }
  if (deskryptor >= 0 && fcntl(deskryptor, F_SETFL, fcntl(deskryptor, F_GETFL) & ~O_NONBLOCK) != 0) {
    close(deskryptor);
    return -1;
  }
  return deskryptor;
}

std::optional<QString> Odmow(int deskryptor, int blad) {
  if (deskryptor >= 0) close(deskryptor);
  return qt_error_string(blad);
}

}  // namespace

std::optional<QString> OtworzPlik(QFile& plik, const QString& sciezka, SposobOtwarcia sposob) {
  plik.close();
  const QByteArray nazwa = BajtyNazwy(sciezka);
  int flagi = O_CLOEXEC | O_NOCTTY;
  QIODevice::OpenMode tryb = QIODevice::ReadOnly;
  switch (sposob) {
    case SposobOtwarcia::Odczyt:
      flagi |= O_RDONLY | O_NONBLOCK;
      break;
    case SposobOtwarcia::Zapis:
      flagi |= O_WRONLY | O_CREAT | O_TRUNC;
      tryb = QIODevice::WriteOnly;
      break;
    case SposobOtwarcia::Modyfikacja:
      flagi |= O_RDWR | O_CREAT;
      tryb = QIODevice::ReadWrite;
      break;
  }
  const int deskryptor = sposob == SposobOtwarcia::Zapis ? OtworzDoZapisu(nazwa.constData(), flagi)
                                                         : open(nazwa.constData(), flagi, 0666);
  if (deskryptor < 0) return Odmow(deskryptor, errno);
  struct stat opis;
  if (fstat(deskryptor, &opis) != 0) return Odmow(deskryptor, errno);
  if (S_ISDIR(opis.st_mode)) return Odmow(deskryptor, EISDIR);
  if (sposob == SposobOtwarcia::Odczyt && !S_ISREG(opis.st_mode)) return Odmow(deskryptor, ESPIPE);
  return Przejmij(plik, deskryptor, tryb);
}

std::optional<QString> OtworzNaNowo(QFile& plik, const QString& sciezka) {
  plik.close();
  const QByteArray nazwa = BajtyNazwy(sciezka);
  struct stat opis;
  if (lstat(nazwa.constData(), &opis) == 0 &&
      (S_ISLNK(opis.st_mode) || (S_ISREG(opis.st_mode) && opis.st_nlink > 1)) &&
      unlink(nazwa.constData()) != 0)
    return Odmow(-1, errno);
  const int deskryptor =
      open(nazwa.constData(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666);
  if (deskryptor < 0 || fstat(deskryptor, &opis) != 0) return Odmow(deskryptor, errno);
  // Emptied only when it is known to be nobody else's.
  if (!S_ISREG(opis.st_mode) || opis.st_nlink != 1) return Odmow(deskryptor, EEXIST);
  if (ftruncate(deskryptor, 0) != 0) return Odmow(deskryptor, errno);
  return Przejmij(plik, deskryptor, QIODevice::WriteOnly);
}
