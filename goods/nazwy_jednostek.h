#pragma once

#include <QString>

// Replaces a known spelling of a unit of measure, in any letter case, by its canonical form; leaves others as
// written.
void NormalizujJednostke(QString& nazwa);
