/* The plain import: the rows come ready from a file (see wiersze.h) and are written with prepared statements
   in one transaction; nothing is decided. Adding inserts. Updating finds each good by its code and each
   contractor by its tax number, writes the whole row, as the record's save does, and anew what belongs to it;
   popraw-ceny writes the two prices of a good alone, the least that leaves the same rows. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "wiersze.h"
#include "wzorzec.h"

enum { NAJWIECEJ_WARTOSCI = 64, NAJDLUZSZA_LINIA = 65536 };
/* Numbers of the parameters that are not in the row: the key of the main row, the time of the change. */
enum { PAR_KLUCZ = 98, PAR_CZAS = 99 };

typedef struct {
  char litera;
  const char *nazwa, *kolumny, *klucz, *czas; /* klucz, czas: NULL for none */
  int glowna;                                 /* its insert makes the key that the rows behind it bear */
  int poprawiana;                             /* updating writes over its row */
  int gotowa;                                 /* a trigger has made its row, adding writes over it */
} Tabela;

static const Tabela tabele[] = {{'A', "Asort", KOLUMNY_ASORTYMENTU, NULL, NULL, 0, 0, 0},
                                {'J', "JM", KOLUMNY_JEDNOSTKI, NULL, NULL, 0, 0, 0},
                                {'M', "Magazyn", KOLUMNY_MAGAZYNU, NULL, NULL, 0, 0, 0},
                                {'P', "Parametr", KOLUMNY_PARAMETRU, NULL, NULL, 0, 0, 0},
                                {'Q', "ParWartosc", KOLUMNY_WARTOSCI_LISTY, NULL, NULL, 0, 0, 0},
                                {'G', "Kategoria", KOLUMNY_KATEGORII, NULL, NULL, 0, 0, 0},
                                {'H', "KatParam", KOLUMNY_PARAMETRU_KATEGORII, NULL, NULL, 0, 0, 0},
                                {'T', "Towar", KOLUMNY_TOWARU, "TowId", "Zmiana", 1, 1, 0},
                                {'K', "KodDod", KOLUMNY_KODU, "TowId", NULL, 0, 0, 0},
                                {'V', "TowWartosc", KOLUMNY_WARTOSCI_PARAMETRU, "TowId", NULL, 0, 0, 0},
                                {'D', "TowDostawca", KOLUMNY_DOSTAWCY, "TowId", NULL, 0, 0, 0},
                                {'Z', "Istw", KOLUMNY_STANU, "TowId", NULL, 0, 0, 1},
                                {'C', "Kontrahent", KOLUMNY_KONTRAHENTA, "KontrId", "Zmiana", 1, 1, 0},
                                {'O', "Osoba", KOLUMNY_OSOBY, "KontrId", NULL, 0, 0, 0},
                                {'S', "Sklep", KOLUMNY_SKLEPU, "SklepId", NULL, 0, 1, 0},
                                {'L', "DziennikZmian", KOLUMNY_DZIENNIKA, NULL, "Czas", 0, 0, 0}};
enum { ILE_TABEL = sizeof tabele / sizeof tabele[0] };

/* What updating a record of the letter takes away first. */
static const struct {
  char litera;
  const char* sql;
} usuwane[] = {{'T', "delete from KodDod where TowId = ?1"},
               {'T', "delete from TowWartosc where TowId = ?1"},
               {'T', "delete from TowDostawca where TowId = ?1"},
               {'C', "delete from Osoba where KontrId = ?1"}};
enum { ILE_USUWANYCH = sizeof usuwane / sizeof usuwane[0] };

/* insert into TABELA (column, ..., key, time) values (?1, ..., ?98, ?99) */
static sqlite3_stmt* przygotuj_insert(const Tabela* t) {
  char sql[4096];
  int zKluczem = t->klucz != NULL && !t->glowna;
  int dl =
      snprintf(sql, sizeof sql, "insert into %s (%s%s%s%s%s) values (?1", t->nazwa, t->kolumny,
               zKluczem ? "," : "", zKluczem ? t->klucz : "", t->czas ? "," : "", t->czas ? t->czas : "");
  int ile = 1;
  for (const char* p = t->kolumny; *p; ++p)
    if (*p == ',') dl += snprintf(sql + dl, sizeof sql - (size_t)dl, ",?%d", ++ile);
  if (zKluczem) dl += snprintf(sql + dl, sizeof sql - (size_t)dl, ",?%d", PAR_KLUCZ);
  if (t->czas) dl += snprintf(sql + dl, sizeof sql - (size_t)dl, ",?%d", PAR_CZAS);
  snprintf(sql + dl, sizeof sql - (size_t)dl, ")");
  return przygotuj(sql);
}

/* update TABELA set column = ?n, ..., time = ?99 where key = ?98; `tylko`: the columns to write, NULL
   for all */
static sqlite3_stmt* przygotuj_update(const Tabela* t, const char* tylko) {
  char sql[4096], kolumna[64];
  int dl = snprintf(sql, sizeof sql, "update %s set ", t->nazwa);
  int ile = 0;
  const char* przed = "";
  for (const char* p = t->kolumny; *p;) {
    size_t znakow = strcspn(p, ",");
    snprintf(kolumna, sizeof kolumna, ",%.*s,", (int)znakow, p);
    ++ile;
    if (tylko == NULL || strstr(tylko, kolumna) != NULL) {
      dl += snprintf(sql + dl, sizeof sql - (size_t)dl, "%s%.*s = ?%d", przed, (int)znakow, p, ile);
      przed = ",";
    }
    p += znakow + (p[znakow] == ',');
  }
  if (t->czas) dl += snprintf(sql + dl, sizeof sql - (size_t)dl, ",%s = ?%d", t->czas, PAR_CZAS);
  snprintf(sql + dl, sizeof sql - (size_t)dl, " where %s = ?%d", t->klucz, PAR_KLUCZ);
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
  static char napis[20];
  time_t chwila = time(NULL);
  if (chwila != ostatnia) {
    ostatnia = chwila;
    strftime(napis, sizeof napis, "%Y-%m-%d %H:%M:%S", localtime(&chwila));
  }
  return napis;
}

static sqlite3_int64 towar_z_kodem(const char* kod) {
  static sqlite3_stmt* szukanie;
  if (szukanie == NULL) szukanie = przygotuj("select TowId from Towar where Kod = ?1");
  sprawdz(sqlite3_bind_text(szukanie, 1, kod, -1, SQLITE_STATIC));
  sqlite3_int64 id = sqlite3_step(szukanie) == SQLITE_ROW ? sqlite3_column_int64(szukanie, 0) : 0;
  sprawdz(sqlite3_reset(szukanie));
  return id;
}

static sqlite3_int64 znajdz(char litera, const char* wartosc) {
  sqlite3_int64 id = litera == 'T' ? towar_z_kodem(wartosc) : kontrahent_z_nipem(wartosc);
  if (id > 0) return id;
  fprintf(stderr, "wzorzec: nie ma rekordu %s\n", wartosc);
  exit(1);
}

static int tabela(char litera) {
  for (int nr = 0; nr < ILE_TABEL; ++nr)
    if (tabele[nr].litera == litera) return nr;
  fprintf(stderr, "wzorzec: nieznany wiersz %c\n", litera);
  exit(1);
}

static void przepisz(const char* nazwa, int poprawianie, const char* tylko) {
  static char linia[NAJDLUZSZA_LINIA];
  char* wartosci[NAJWIECEJ_WARTOSCI];
  sqlite3_stmt* polecenia[ILE_TABEL] = {NULL};
  sqlite3_int64 klucz = 0;

  FILE* plik = fopen(nazwa, "r");
  if (plik == NULL) {
    perror(nazwa);
    exit(1);
  }
  wykonaj("begin immediate");
  sqlite3_stmt* usuwania[ILE_USUWANYCH];
  for (int i = 0; i < ILE_USUWANYCH; ++i) usuwania[i] = przygotuj(usuwane[i].sql);
  if (poprawianie) wczytaj_nipy();

  while (fgets(linia, sizeof linia, plik) != NULL) {
    int ile = podziel(linia, wartosci);
    if (ile == 0) continue;
    int nr = tabela(linia[0]);
    const Tabela* t = &tabele[nr];
    if (tylko != NULL && t->klucz != NULL && !t->glowna) continue;
    if (polecenia[nr] == NULL)
      polecenia[nr] =
          t->gotowa || (poprawianie && t->poprawiana) ? przygotuj_update(t, tylko) : przygotuj_insert(t);
    sqlite3_stmt* polecenie = polecenia[nr];
    for (int i = 0; i < ile; ++i) zwiaz(polecenie, i + 1, wartosci[i]);
    if (t->glowna && poprawianie) klucz = znajdz(t->litera, wartosci[0] + 1);
    if (t->klucz && (!t->glowna || poprawianie)) sprawdz(sqlite3_bind_int64(polecenie, PAR_KLUCZ, klucz));
    if (t->czas) sprawdz(sqlite3_bind_text(polecenie, PAR_CZAS, teraz(), -1, SQLITE_STATIC));
    uruchom(polecenie);
    if (t->glowna && !poprawianie) klucz = sqlite3_last_insert_rowid(baza);
    for (int i = 0; poprawianie && tylko == NULL && i < ILE_USUWANYCH; ++i)
      if (usuwane[i].litera == t->litera) {
        sprawdz(sqlite3_bind_int64(usuwania[i], 1, klucz));
        uruchom(usuwania[i]);
      }
  }
  wykonaj("commit");
  fclose(plik);
}

void dodaj(const char* wiersze) {
  przepisz(wiersze, 0, NULL);
}

void popraw(const char* wiersze) {
  przepisz(wiersze, 1, NULL);
}

void popraw_ceny(const char* wiersze) {
  przepisz(wiersze, 1, ",CenaEw,CenaDet,");
}
