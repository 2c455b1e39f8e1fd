/* The file of an export. The generated data holds no letters outside ASCII but the Polish ones. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "wzorzec.h"

static FILE* plik;
static int pierwsze = 1;

/* Windows-1250 of the characters below U+0180. */
static const unsigned char bajty[0x180] = {
    [0x00D3] = 0xD3, [0x00F3] = 0xF3, [0x0104] = 0xA5, [0x0105] = 0xB9, [0x0106] = 0xC6, [0x0107] = 0xE6,
    [0x0118] = 0xCA, [0x0119] = 0xEA, [0x0141] = 0xA3, [0x0142] = 0xB3, [0x0143] = 0xD1, [0x0144] = 0xF1,
    [0x015A] = 0x8C, [0x015B] = 0x9C, [0x0179] = 0x8F, [0x017A] = 0x9F, [0x017B] = 0xAF, [0x017C] = 0xBF};

static void zakoncz(const char* powod) {
  fprintf(stderr, "wzorzec: %s\n", powod);
  exit(1);
}

void otworz_plik(const char* nazwa) {
  plik = fopen(nazwa, "wb");
  if (plik == NULL) zakoncz("nie można utworzyć pliku");
  setvbuf(plik, NULL, _IOFBF, 1 << 20);
}

void zamknij_plik(void) {
  if (fclose(plik) != 0) zakoncz("błąd zapisu");
}

void nowe_pole(void) {
  if (!pierwsze) putc_unlocked('\t', plik);
  pierwsze = 0;
}

void koniec_linii(void) {
  fwrite("\r\n", 1, 2, plik);
  pierwsze = 1;
}

void dopisz(const char* t) {
  if (t == NULL) return;
  for (const unsigned char* p = (const unsigned char*)t; *p; ++p) {
    if (*p < 0x80) {
      putc_unlocked(*p, plik);
      continue;
    }
    unsigned znak = (unsigned)(*p & 0x1F) << 6 | (p[1] & 0x3F);
    if (znak >= sizeof bajty || bajty[znak] == 0) zakoncz("znak spoza danych");
    putc_unlocked(bajty[znak], plik);
    ++p;
  }
}

void dopisz_calkowita(sqlite3_int64 n) {
  fprintf(plik, "%lld", (long long)n);
}

void pole(const char* t) {
  nowe_pole();
  dopisz(t);
}

void pole_calkowite(sqlite3_int64 n) {
  nowe_pole();
  dopisz_calkowita(n);
}

/* 12,5 and 3,0: at least one digit behind the comma, no other zeros. */
void pole_liczba(double n) {
  char napis[400];
  int dl = snprintf(napis, sizeof napis, "%.6f", n);
  char* kropka = strchr(napis, '.');
  *kropka = ',';
  while (napis + dl > kropka + 2 && napis[dl - 1] == '0') --dl;
  napis[dl] = '\0';
  pole(napis);
}

void naglowek(const char* const* kolumny, int ile) {
  for (int i = 0; i < ile; ++i) pole(kolumny[i]);
  koniec_linii();
}
