#pragma once

#include <optional>

#include <QString>

class QWidget;
class Rozmowa;
enum class Kierunek;
struct RodzajPrzebiegu;
struct Ustawienia;

// Lets the person choose the file of a run: offered is the one of the settings, whole. While it is still the
// default, in the start-up folder, its name is offered in the folder where this kind of run had its file
// last, also in an earlier session. Nothing when the person gives up or does not want an existing file
// overwritten. The choice is not checked and not remembered.
std::optional<QString> WybierzPlikPrzebiegu(QWidget* okno, Rozmowa& rozmowa, const RodzajPrzebiegu& rodzaj,
                                            const Ustawienia& ustawienia, const QString& katalogStartowy);
// Remembers it in the settings, and its folder for later sessions.
void ZapamietajPlikPrzebiegu(const RodzajPrzebiegu& rodzaj, const QString& plik, Ustawienia& ustawienia);

// A configuration file to be read (import) or written (export); offered is the last one.
std::optional<QString> WybierzPlikKonfiguracji(QWidget* okno, Rozmowa& rozmowa, Kierunek kierunek,
                                               const Ustawienia& ustawienia);
