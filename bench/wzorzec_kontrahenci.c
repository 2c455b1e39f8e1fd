/* The plain contractor export: the contractors joined with their shops, the persons read beside them. */
#include <stdio.h>
#include <string.h>

#include "wzorzec.h"

static const char* const kolumny[] = {"Nazwa",
                                      "NIP",
                                      "Skrót",
                                      "Ulica",
                                      "Kod pocztowy",
                                      "Miasto",
                                      "Telefon",
                                      "Fax",
                                      "Email",
                                      "Nazwa banku",
                                      "Konto",
                                      "Dostawca",
                                      "Odbiorca",
                                      "Producent",
                                      "Sklep",
                                      "Kontakty",
                                      "Numer analityki",
                                      "Kod kontrahenta",
                                      "Zakład pracy chronionej",
                                      "Na przelewie 1",
                                      "Na przelewie 2",
                                      "Rabat u dostawcy",
                                      "Forma płatności dost.",
                                      "Termin płatności dost",
                                      "Czas realizacji zamówienia",
                                      "Rabat dla odbiorcy",
                                      "Forma płatności odbiorcy",
                                      "Termin płatności odbiorcy",
                                      "Maksymalny kredyt",
                                      "Maksymalne przekroczenie terminu płatn.",
                                      "Kod karty",
                                      "Karta aktywna",
                                      "Termin ważności karty",
                                      "Poziom rabatu",
                                      "Osoby uprawnione",
                                      "Aktywny"};

/* The columns behind the identifier stand in the order of the file; how each is written: text, integer,
   decimal, date of the card, persons (no column of the select). */
static const char rodzaje[] =
    "ttttttttttt"
    "iiiii"
    "tt"
    "i"
    "tt"
    "liii"
    "liil"
    "i"
    "tidi"
    "oi";

static const char select_kontrahentow[] =
    "select K.KontrId, K.Nazwa, K.NIP, K.Skrot, K.Ulica, K.Kod, K.Miasto, K.Telefon, K.Fax, K.EMail, K.Bank,"
    " K.Konto, K.Dostawca, K.Odbiorca, K.Producent, S.SklepId is not null, K.Staly, K.NrAnalityki, "
    "K.KodKontr,"
    " K.ZakPracChron, K.NaPrzelewie1, K.NaPrzelewie2, K.RabatDost, K.FormaPlatDost, K.TermPlatDost,"
    " K.CzasRealZam, K.RabatOdb, K.FormaPlatOdb, K.TermPlatOdb, K.MaxKredyt, K.MaxPoTermPlat, K.KodKarty,"
    " K.KartaAktywna, iif(K.Odbiorca <> 0 and K.KodKarty <> '', K.TermWaznKarty, null), K.PoziomRabatu,"
    " K.Aktywny"
    " from Kontrahent K left join Sklep S on S.SklepId = K.KontrId order by K.KontrId";

static const char select_osob[] = "select KontrId, Nazwisko from Osoba order by KontrId, rowid";

/* 2027-05-31 00:00:00 as 31.05.2027 */
static void pole_daty(const char* czas) {
  char napis[16] = "";
  if (czas != NULL) snprintf(napis, sizeof napis, "%.2s.%.2s.%.4s", czas + 8, czas + 5, czas);
  pole(napis);
}

static void pole_osob(Strumien* osoby, sqlite3_int64 id) {
  nowe_pole();
  int jest = siegnij(osoby, id);
  if (!jest) return;
  for (const char* przed = "("; siegnij(osoby, id); dalej(osoby), przed = "|") {
    dopisz(przed);
    dopisz(tekst(osoby, 1));
  }
  dopisz(")");
}

void eksport_kontrahentow(const char* nazwa) {
  otworz_plik(nazwa);
  naglowek(kolumny, sizeof kolumny / sizeof kolumny[0]);
  Strumien osoby = otworz_strumien(select_osob);
  for (Strumien k = otworz_strumien(select_kontrahentow); k.jest; dalej(&k)) {
    int kolumna = 1;
    for (const char* rodzaj = rodzaje; *rodzaj; ++rodzaj) switch (*rodzaj) {
        case 't':
          pole(tekst(&k, kolumna++));
          break;
        case 'i':
          pole_calkowite(calkowita(&k, kolumna++));
          break;
        case 'l':
          pole_liczba(liczba(&k, kolumna++));
          break;
        case 'd':
          pole_daty(tekst(&k, kolumna++));
          break;
        default:
          pole_osob(&osoby, calkowita(&k, 0));
      }
    koniec_linii();
  }
  zamknij_plik();
}
