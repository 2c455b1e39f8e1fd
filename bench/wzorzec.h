#pragma once

/* Shared by the parts of the plain C program that the product is measured against. A failure ends it. */
#include <sqlite3.h>

extern sqlite3* baza;

void sprawdz(int wynik);
void wykonaj(const char* sql);
sqlite3_stmt* przygotuj(const char* sql);

/* Modes of the program; the name is that of the row file or of the exported file. */
void dodaj(const char* wiersze);
void popraw(const char* wiersze);
void popraw_ceny(const char* wiersze);
void eksport_towarow(const char* plik);
void eksport_kontrahentow(const char* plik);

/* Contractors by their tax numbers, compared by digits alone; the first of several, 0 for none. */
void wczytaj_nipy(void);
sqlite3_int64 kontrahent_z_nipem(const char* nip);

/* Lines of an export: fields with a tab between them, CR LF, Windows-1250, decimal comma. */
void otworz_plik(const char* nazwa);
void zamknij_plik(void);
void naglowek(const char* const* kolumny, int ile);
void pole(const char* tekst);
void pole_calkowite(sqlite3_int64 liczba);
void pole_liczba(double liczba);
void koniec_linii(void);
/* A field in pieces: begun, then its texts (NULL writes nothing). */
void nowe_pole(void);
void dopisz(const char* tekst);
void dopisz_calkowita(sqlite3_int64 liczba);

/* Rows of a select whose first column is the identifier of what they belong to, by rising identifiers. */
typedef struct {
  sqlite3_stmt* select;
  int jest;
} Strumien;
Strumien otworz_strumien(const char* sql);
int dalej(Strumien* strumien);
/* Moves to the rows of the identifier; 0 when none is left. */
int siegnij(Strumien* strumien, sqlite3_int64 id);
const char* tekst(const Strumien* strumien, int kolumna);
sqlite3_int64 calkowita(const Strumien* strumien, int kolumna);
double liczba(const Strumien* strumien, int kolumna);
