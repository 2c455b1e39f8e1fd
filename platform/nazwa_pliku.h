#pragma once

#include <QByteArray>
#include <QString>

// File names. The system's are bytes, the program's are texts: a name that is not valid UTF-8 would be lost
// on the way from one to the other. A byte that cannot be decoded becomes a low surrogate of its own (U+DC80
// to U+DCFF), which no valid text holds, and goes back to the byte. Qt's own functions do not know such
// names: files are opened and looked at through BajtyNazwy.
QString NazwaZBajtow(const QByteArray& bajty);
QByteArray BajtyNazwy(const QString& nazwa);

// The name of a file that a person has typed, who cannot type such bytes: when there is no such file, the one
// in its folder whose name has a byte of its own for every "?", if there is exactly one.
QString OdszukajNazwe(const QString& sciezka);

// What a chain of links in the path's last place leads to, whether or not it is there.
QString KoniecDowiazan(QString sciezka);

// The path behind all links, folders included; the path itself when it leads to nothing.
QString SciezkaBezDowiazan(const QString& sciezka);
