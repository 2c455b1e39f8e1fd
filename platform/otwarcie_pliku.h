#pragma once

#include <optional>

#include <QFile>
#include <QString>

enum class SposobOtwarcia {
  Odczyt,      // a regular file alone; never waits for the other end of a pipe
  Zapis,       // created if need be, emptied; a pipe that nobody reads is refused after a while
  Modyfikacja  // read and written; created if need be, kept
};

// Opens a file whatever bytes its name is made of, without a buffer. The object does not know the name, the
// caller keeps it. The system's reason when it cannot.
std::optional<QString> OtworzPlik(QFile& plik, const QString& sciezka, SposobOtwarcia sposob);

// Makes the path an empty regular file of one name and opens it for writing: a link of either kind is
// replaced, what it leads to stays as it is. A pipe, a device or a folder is refused.
std::optional<QString> OtworzNaNowo(QFile& plik, const QString& sciezka);
