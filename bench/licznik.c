/* Loaded before the other libraries (LD_PRELOAD). Counts the calls that wait for the disk, looks how much
   SQLite keeps of the database in memory when it is closed, and how much memory the program took at most (its
   parent learns another number: what the parent itself held at the fork counts there). Leaves the numbers
   (calls, bytes, KB) in the file named by LICZNIK_PLIK when the program ends. */
#include <dlfcn.h>
#include <sqlite3.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>

static atomic_long fsyncow;
static atomic_long stron;

int fsync(int fd) {
  ++fsyncow;
  return ((int (*)(int))dlsym(RTLD_NEXT, "fsync"))(fd);
}

int fdatasync(int fd) {
  ++fsyncow;
  return ((int (*)(int))dlsym(RTLD_NEXT, "fdatasync"))(fd);
}

int sqlite3_close(sqlite3* baza) {
  int teraz = 0, najwiecej = 0;
  int (*stan)(sqlite3*, int, int*, int*, int);
  *(void**)&stan = dlsym(RTLD_NEXT, "sqlite3_db_status");
  if (stan(baza, SQLITE_DBSTATUS_CACHE_USED, &teraz, &najwiecej, 0) == SQLITE_OK) stron += teraz;
  return ((int (*)(sqlite3*))dlsym(RTLD_NEXT, "sqlite3_close"))(baza);
}

static long najwiecej_kb(void) {
  long kb = 0;
  char linia[256];
  FILE* status = fopen("/proc/self/status", "r");
  while (status != NULL && fgets(linia, sizeof linia, status) != NULL)
    if (sscanf(linia, "VmHWM: %ld", &kb) == 1) break;
  if (status != NULL) fclose(status);
  return kb;
}

__attribute__((destructor)) static void zapisz(void) {
  const char* nazwa = getenv("LICZNIK_PLIK");
  FILE* plik = nazwa ? fopen(nazwa, "w") : NULL;
  if (plik == NULL) return;
  fprintf(plik, "%ld %ld %ld\n", fsyncow, stron, najwiecej_kb());
  fclose(plik);
}
