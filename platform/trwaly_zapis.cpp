#include "platform/trwaly_zapis.h"

#include <cerrno>

#include <QFileInfo>

#include <fcntl.h>
#include <unistd.h>

#include "platform/nazwa_pliku.h"

QString OpisBleduSystemu() {
  return qt_error_string(errno);
}

std::optional<QString> UtrwalOtwarty(int deskryptor) {
  // Pipes and some devices keep nothing that could be waited for.
  if (fsync(deskryptor) == 0 || errno == EINVAL || errno == EROFS || errno == ENOTSUP) return std::nullopt;
  return OpisBleduSystemu();
}

std::optional<QString> UtrwalPlik(const QString& sciezka) {
  const int deskryptor = open(BajtyNazwy(sciezka).constData(), O_RDONLY | O_CLOEXEC);
  if (deskryptor < 0) return errno == ENOENT ? std::nullopt : std::optional(OpisBleduSystemu());
  auto powod = UtrwalOtwarty(deskryptor);
  close(deskryptor);
  return powod;
}

void UtrwalNazwe(const QString& sciezka) {
  const QString folder = QFileInfo(sciezka).path();
  const int deskryptor = open(BajtyNazwy(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (deskryptor < 0) return;
  fsync(deskryptor);
  close(deskryptor);
}
