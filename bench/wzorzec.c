/* wzorzec BAZA WIERSZE dodaj|popraw|popraw-ceny

   The plain program that the import is measured against: leaves in the database the rows that the import
   leaves, with prepared statements, in one transaction and under the same settings. It decides nothing: the
   rows come ready from a file. Adding inserts; updating finds each good by its code and writes its whole row,
   as the record's save does, or (popraw-ceny) the two prices alone, the least that leaves the same rows. */
#include <sqlite3.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "wiersze.h"

enum { NAJWIECEJ_WARTOSCI = 64, NAJDLUZSZA_LINIA = 65536 };

static sqlite3* baza;

static void sprawdz(int wynik) {
  if (wynik == SQLITE_OK || wynik == SQLITE_DONE || wynik == SQLITE_ROW) return;
  fprintf(stderr, "wzorzec: %s\n", sqlite3_errmsg(baza));
  exit(1);
}

static void wykonaj(const char* sql) {
  sprawdz(sqlite3_exec(baza, sql, NULL, NULL, NULL));
}

static sqlite3_stmt* przygotuj(const char* sql) {
  sqlite3_stmt* polecenie = NULL;
  sprawdz(sqlite3_prepare_v3(baza, sql, -1, SQLITE_PREPARE_PERSISTENT, &polecenie, NULL));
  return polecenie;
}

/* insert into TABELA (KOLUMNY, STALE) values (?1, ..., WARTOSCI_STALYCH) */
static sqlite3_stmt* przygotuj_insert(const char* tabela, const char* kolumny, const char* stale,
                                      const char* wartosci) {
  char sql[4096];
  int dl = snprintf(sql, sizeof sql, "insert into %s (%s%s) values (?1", tabela, kolumny, stale);
  int ile = 1;
  for (const char* p = kolumny; *p; ++p)
    if (*p == ',') dl += snprintf(sql + dl, sizeof sql - (size_t)dl, ",?%d", ++ile);
  snprintf(sql + dl, sizeof sql - (size_t)dl, "%s)", wartosci);
  return przygotuj(sql);
}

/* update Towar set kolumna = ?n, ..., Zmiana = ?99 where TowId = ?98; `tylko`: the columns to write, NULL for
 * all */
static sqlite3_stmt* przygotuj_update(const char* tylko) {
  char sql[4096], kolumna[64];
  int dl = snprintf(sql, sizeof sql, "update Towar set Zmiana = ?99");
  int ile = 0;
  for (const char* p = KOLUMNY_TOWARU; *p;) {
    size_t znakow = strcspn(p, ",");
    snprintf(kolumna, sizeof kolumna, ",%.*s", (int)znakow, p);
    ++ile;
    if (tylko == NULL || strstr(tylko, kolumna) != NULL)
      dl += snprintf(sql + dl, sizeof sql - (size_t)dl, "%s = ?%d", kolumna, ile);
    p += znakow + (p[znakow] == ',');
  }
  snprintf(sql + dl, sizeof sql - (size_t)dl, " where TowId = ?98");
  return przygotuj(sql);
}

static void zwiaz(sqlite3_stmt* polecenie, int nr, const char* wartosc) {
  switch (wartosc[0]) {
    case 'i':
      sprawdz(sqlite3_bind_int64(polecenie, nr, strtoll(wartosc + 1, NULL, 10)));
      break;
    case 'r':
      sprawdz(sqlite3_bind_double(polecenie, nr, strtod(wartosc + 1, NULL)));
      break;
    case 't':
      sprawdz(sqlite3_bind_text(polecenie, nr, wartosc + 1, -1, SQLITE_STATIC));
      break;
    default:
      sprawdz(sqlite3_bind_null(polecenie, nr));
  }
}

static void uruchom(sqlite3_stmt* polecenie) {
  sprawdz(sqlite3_step(polecenie));
  sprawdz(sqlite3_reset(polecenie));
}

static int podziel(char* linia, char** wartosci) {
  int ile = 0;
  linia[strcspn(linia, "\n")] = '\0';
  for (char* p = strchr(linia, '\t'); p != NULL && ile < NAJWIECEJ_WARTOSCI; p = strchr(p, '\t')) {
    *p++ = '\0';
    wartosci[ile++] = p;
  }
  return ile;
}

/* The time of a change, as the import writes it: to the second. */
static const char* teraz(void) {
  static time_t ostatnia;
  static char tekst[20];
  time_t chwila = time(NULL);
  if (chwila != ostatnia) {
    ostatnia = chwila;
    strftime(tekst, sizeof tekst, "%Y-%m-%d %H:%M:%S", localtime(&chwila));
  }
  return tekst;
}

static sqlite3_int64 znajdz(sqlite3_stmt* szukanie, const char* kod) {
  zwiaz(szukanie, 1, kod);
  int wynik = sqlite3_step(szukanie);
  if (wynik != SQLITE_ROW) {
    fprintf(stderr, "wzorzec: nie ma towaru %s\n", kod + 1);
    exit(1);
  }
  sqlite3_int64 id = sqlite3_column_int64(szukanie, 0);
  sprawdz(sqlite3_reset(szukanie));
  return id;
}

int main(int argc, char** argv) {
  if (argc != 4) {
    fputs("Użycie: wzorzec BAZA WIERSZE dodaj|popraw|popraw-ceny\n", stderr);
    return 2;
  }
  int poprawianie = strcmp(argv[3], "dodaj") != 0;
  const char* tylko = strcmp(argv[3], "popraw-ceny") == 0 ? ",CenaEw,CenaDet" : NULL;
  FILE* plik = fopen(argv[2], "r");
  if (plik == NULL) {
    perror(argv[2]);
    return 1;
  }
  sprawdz(sqlite3_open_v2(argv[1], &baza, SQLITE_OPEN_READWRITE, NULL));
  wykonaj("pragma synchronous = normal");
  wykonaj("pragma foreign_keys = on");
  wykonaj("pragma cache_size = -131072");
  wykonaj("pragma temp_store = memory");
  wykonaj("pragma wal_autocheckpoint = 32768");
  wykonaj("begin immediate");

  sqlite3_stmt* asort = przygotuj_insert("Asort", "Nazwa", "", "");
  sqlite3_stmt* jm = przygotuj_insert("JM", "Nazwa,Precyzja", "", "");
  sqlite3_stmt* magazyn = przygotuj_insert("Magazyn", "Nazwa", "", "");
  sqlite3_stmt* towar =
      poprawianie ? przygotuj_update(tylko) : przygotuj_insert("Towar", KOLUMNY_TOWARU, ",Zmiana", ",?99");
  sqlite3_stmt* kod = przygotuj_insert("KodDod", KOLUMNY_KODU, ",TowId", ",?98");
  sqlite3_stmt* dziennik = przygotuj_insert("DziennikZmian", KOLUMNY_DZIENNIKA, ",Czas", ",?99");
  sqlite3_stmt* szukanie = przygotuj("select TowId from Towar where Kod = ?1");

  static char linia[NAJDLUZSZA_LINIA];
  char* wartosci[NAJWIECEJ_WARTOSCI];
  sqlite3_int64 towId = 0;
  while (fgets(linia, sizeof linia, plik) != NULL) {
    char rodzaj = linia[0];
    int ile = podziel(linia, wartosci);
    sqlite3_stmt* polecenie = rodzaj == 'T'   ? towar
                              : rodzaj == 'K' ? kod
                              : rodzaj == 'L' ? dziennik
                              : rodzaj == 'A' ? asort
                              : rodzaj == 'J' ? jm
                                              : magazyn;
    for (int i = 0; i < ile; ++i) zwiaz(polecenie, i + 1, wartosci[i]);
    if (rodzaj == 'T' || rodzaj == 'L') sprawdz(sqlite3_bind_text(polecenie, 99, teraz(), -1, SQLITE_STATIC));
    if (rodzaj == 'T' && poprawianie)
      sprawdz(sqlite3_bind_int64(polecenie, 98, znajdz(szukanie, wartosci[0])));
    if (rodzaj == 'K') sprawdz(sqlite3_bind_int64(polecenie, 98, towId));
    uruchom(polecenie);
    if (rodzaj == 'T') towId = sqlite3_last_insert_rowid(baza);
  }
  wykonaj("commit");
  sqlite3_stmt* doKonca[] = {asort, jm, magazyn, towar, kod, dziennik, szukanie};
  for (size_t i = 0; i < sizeof doKonca / sizeof doKonca[0]; ++i) sqlite3_finalize(doKonca[i]);
  wykonaj("pragma wal_checkpoint(truncate)");
  sqlite3_close(baza);
  fclose(plik);
  return 0;
}
