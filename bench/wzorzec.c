/* wzorzec TRYB BAZA PLIK

   The plain program that the product is measured against, under the same settings of the database. Imports
   (dodaj, popraw, popraw-ceny) leave the rows that the product leaves; exports write the file that it writes.
 */
#include "wzorzec.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

sqlite3* baza;

void sprawdz(int wynik) {
  if (wynik == SQLITE_OK || wynik == SQLITE_DONE || wynik == SQLITE_ROW) return;
  fprintf(stderr, "wzorzec: %s\n", sqlite3_errmsg(baza));
  exit(1);
}

void wykonaj(const char* sql) {
  sprawdz(sqlite3_exec(baza, sql, NULL, NULL, NULL));
}

sqlite3_stmt* przygotuj(const char* sql) {
  sqlite3_stmt* polecenie = NULL;
  sprawdz(sqlite3_prepare_v3(baza, sql, -1, SQLITE_PREPARE_PERSISTENT, &polecenie, NULL));
  return polecenie;
}

Strumien otworz_strumien(const char* sql) {
  Strumien strumien = {przygotuj(sql), 1};
  dalej(&strumien);
  return strumien;
}

int dalej(Strumien* strumien) {
  int wynik = sqlite3_step(strumien->select);
  sprawdz(wynik);
  return strumien->jest = wynik == SQLITE_ROW;
}

int siegnij(Strumien* strumien, sqlite3_int64 id) {
  while (strumien->jest && calkowita(strumien, 0) < id) dalej(strumien);
  return strumien->jest && calkowita(strumien, 0) == id;
}

const char* tekst(const Strumien* strumien, int kolumna) {
  return (const char*)sqlite3_column_text(strumien->select, kolumna);
}

sqlite3_int64 calkowita(const Strumien* strumien, int kolumna) {
  return sqlite3_column_int64(strumien->select, kolumna);
}

double liczba(const Strumien* strumien, int kolumna) {
  return sqlite3_column_double(strumien->select, kolumna);
}

static const struct {
  const char* nazwa;
  void (*wykonaj)(const char* plik);
} tryby[] = {{"dodaj", dodaj},
             {"popraw", popraw},
             {"popraw-ceny", popraw_ceny},
             {"eksport-towarow", eksport_towarow},
             {"eksport-kontrahentow", eksport_kontrahentow}};

int main(int argc, char** argv) {
  for (size_t i = 0; argc == 4 && i < sizeof tryby / sizeof tryby[0]; ++i) {
    if (strcmp(argv[1], tryby[i].nazwa) != 0) continue;
    sprawdz(sqlite3_open_v2(argv[2], &baza, SQLITE_OPEN_READWRITE, NULL));
    wykonaj("pragma synchronous = normal");
    wykonaj("pragma foreign_keys = on");
    wykonaj("pragma cache_size = -131072");
    wykonaj("pragma temp_store = memory");
    wykonaj("pragma wal_autocheckpoint = 32768");
    tryby[i].wykonaj(argv[3]);
    for (sqlite3_stmt* s; (s = sqlite3_next_stmt(baza, NULL)) != NULL;) sqlite3_finalize(s);
    wykonaj("pragma wal_checkpoint(truncate)");
    sqlite3_close(baza);
    return 0;
  }
  fputs("Użycie: wzorzec dodaj|popraw|popraw-ceny|eksport-towarow|eksport-kontrahentow BAZA PLIK\n", stderr);
  return 2;
}
