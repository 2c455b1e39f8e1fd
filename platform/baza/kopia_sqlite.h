#pragma once

#include <functional>

#include <QString>

namespace sqlite_api {
struct sqlite3;
}

// Copies the database of an open connection page by page into an existing empty file; see
// TVLTBazaDanych::KopiujDo. A code of SQLite: SQLITE_OK, SQLITE_ABORT when `postep` stopped it, or what
// failed.
int KopiujSqlite(sqlite_api::sqlite3& zrodlo, const QString& plik,
                 const std::function<bool(long long zrobionych, long long wszystkich)>& postep);
