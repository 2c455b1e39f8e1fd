#include "database/schemat.h"
#include "platform/baza/sesja.h"
#include "platform/baza/transakcja.h"

void DodajDaneDemo(TVLTBazaDanych& baza) {
  JednostkaZapisu jednostka(baza);
  jednostka.Zatwierdz();
}
