#include "platform/baza/kopia_sqlite.h"

#include <memory>

#include <soci/sqlite3/soci-sqlite3.h>

#include "platform/nazwa_pliku.h"

using namespace sqlite_api;  // where SOCI puts SQLite's own header

namespace {

constexpr int kStronNaraz = 1024;  // some 4 MB: between two of them a stop is looked for

struct Zamykanie {
  void operator()(sqlite3* baza) const { sqlite3_close(baza); }
};

}  // namespace

int KopiujSqlite(sqlite3& zrodlo, const QString& plik,
                 const std::function<bool(long long zrobionych, long long wszystkich)>& postep) {
  sqlite3* otwarta = nullptr;
  int wynik = sqlite3_open_v2(BajtyNazwy(plik).constData(), &otwarta, SQLITE_OPEN_READWRITE, nullptr);
  const std::unique_ptr<sqlite3, Zamykanie> cel(otwarta);
  if (wynik != SQLITE_OK) return wynik;
  // Nobody knows the file before it is whole: there is nothing that a journal would save.
  sqlite3_exec(cel.get(), "pragma journal_mode = off; pragma synchronous = off", nullptr, nullptr, nullptr);
  sqlite3_backup* const kopia = sqlite3_backup_init(cel.get(), "main", &zrodlo, "main");
  if (kopia == nullptr) return sqlite3_errcode(cel.get());
  bool dalej = true;
  do {
    wynik = sqlite3_backup_step(kopia, kStronNaraz);
    const int wszystkich = sqlite3_backup_pagecount(kopia);
    dalej = postep(wszystkich - sqlite3_backup_remaining(kopia), wszystkich);
  } while (wynik == SQLITE_OK && dalej);
  const int koniec = sqlite3_backup_finish(kopia);
  if (wynik == SQLITE_DONE) return koniec;
  return wynik == SQLITE_OK ? SQLITE_ABORT : wynik;
}
