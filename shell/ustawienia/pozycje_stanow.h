#pragma once

#include <QStringList>

struct KontekstSesji;

// The choices of the two stock options; the stored number is the position. Read from the database, which an
// import may give its first warehouse.

// "NIE", then the warehouses in the order of their list: position N is the N-th.
QStringList PozycjeImportuStanow(KontekstSesji& sesja);
// "NIE", "Ogółem", then every identifier up to the highest one, whether or not there is such a warehouse:
// position k is the warehouse with the identifier k - 1.
QStringList PozycjeEksportuStanow(KontekstSesji& sesja);
