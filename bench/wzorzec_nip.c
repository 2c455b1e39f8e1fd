/* The contractors' tax numbers as a sorted list, searched by halving. */
#include <stdlib.h>
#include <string.h>

#include "wzorzec.h"

enum { NAJDLUZSZY = 24 };

typedef struct {
  char cyfry[NAJDLUZSZY];
  sqlite3_int64 id;
} Wpis;

static Wpis* wpisy;
static size_t ile;

static void normalizuj(const char* nip, char* cyfry) {
  size_t n = 0;
  for (; *nip && n < NAJDLUZSZY - 1; ++nip)
    if (*nip >= '0' && *nip <= '9') cyfry[n++] = *nip;
  cyfry[n] = '\0';
}

static int porownaj(const void* a, const void* b) {
  const Wpis *x = a, *y = b;
  int znak = strcmp(x->cyfry, y->cyfry);
  return znak != 0 ? znak : (x->id > y->id) - (x->id < y->id);
}

void wczytaj_nipy(void) {
  size_t miejsca = 0;
  for (Strumien s = otworz_strumien("select KontrId, NIP from Kontrahent where NIP <> ''"); s.jest;
       dalej(&s)) {
    if (ile == miejsca) wpisy = realloc(wpisy, (miejsca = 2 * miejsca + 64) * sizeof *wpisy);
    if (wpisy == NULL) abort();
    normalizuj(tekst(&s, 1), wpisy[ile].cyfry);
    wpisy[ile++].id = calkowita(&s, 0);
  }
  qsort(wpisy, ile, sizeof *wpisy, porownaj);
}

sqlite3_int64 kontrahent_z_nipem(const char* nip) {
  char cyfry[NAJDLUZSZY];
  normalizuj(nip, cyfry);
  size_t od = 0;
  for (size_t do_ = ile; od < do_;) {
    size_t srodek = (od + do_) / 2;
    if (strcmp(wpisy[srodek].cyfry, cyfry) < 0)
      od = srodek + 1;
    else
      do_ = srodek;
  }
  return od < ile && strcmp(wpisy[od].cyfry, cyfry) == 0 ? wpisy[od].id : 0;
}
