#pragma once

#include <optional>

#include <QString>

// What must outlive a power cut. The system keeps what was written in memory and says so only to those who
// ask.

// Waits until the disk has everything that was written to the open file, by whatever descriptor. The system's
// words when it has not.
std::optional<QString> UtrwalOtwarty(int deskryptor);
// The same for a file by its name; a file that does not exist has nothing to lose.
std::optional<QString> UtrwalPlik(const QString& sciezka);
// The names in the folder of a file: new ones, and those that were changed. A disk that knows no such order
// has its own way of keeping them, so nobody is told.
void UtrwalNazwe(const QString& sciezka);

// The system's words on its last failure.
QString OpisBleduSystemu();
