#pragma once

#include <optional>

#include <QStringList>

class TVLTBazaDanych;

// Why the encoding of a server's database cannot hold the texts; nothing when it can.
std::optional<QString> BladKodowania(TVLTBazaDanych& baza);

// What a database of any kind lacks to be worked with: tables, columns, their kinds, widths and order,
// indexes that the runs need, triggers, sequences of keys, rights, the encoding of texts. One sentence each;
// none: everything is there. Writes nothing.
QStringList SprawdzBaze(TVLTBazaDanych& baza);
