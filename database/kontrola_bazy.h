#pragma once

#include <QStringList>

class TVLTBazaDanych;

// What a database of any kind lacks to be worked with: tables, columns and their kinds and order, indexes
// that the runs need, rights, the encoding of texts. One sentence each; none: everything is there. Writes
// nothing.
QStringList SprawdzBaze(TVLTBazaDanych& baza);
