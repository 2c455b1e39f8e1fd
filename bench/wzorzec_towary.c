/* The plain goods export: one select joins what a good has one of; what it has several of comes from selects
   read beside it. */
#include <stddef.h>

#include "wzorzec.h"

static const char* const kolumny[] = {"Kod towaru",
                                      "Nazwa towaru",
                                      "Skrót (nazwa na kasach)",
                                      "Typ towaru",
                                      "Indeks1 (SWW)",
                                      "Indeks2 (PKWiU)",
                                      "Opis 1",
                                      "Opis 2",
                                      "Opis 3",
                                      "Opis 4",
                                      "Ilość w opakowaniu zbiorczym",
                                      "Ile kilogramów/litrów",
                                      "Termin ważności",
                                      "Preferowany numer na kasie",
                                      "Marża",
                                      "Rabat hurtowy",
                                      "Narzut nocny",
                                      "Cena ewidencyjna",
                                      "Cena detaliczna (netto)",
                                      "Cena hurtowa",
                                      "Cena nocna",
                                      "Cena dodatkowa",
                                      "Cena otwarta",
                                      "Stawka VAT",
                                      "Nazwa asortymentu",
                                      "Jednostka",
                                      "Kody dodatkowe",
                                      "Kategoria i parametry",
                                      "Stan",
                                      "NIP producenta",
                                      "NIP-y dostawców",
                                      "Status towaru"};

enum {
  TOWID,
  KOD,
  NAZWA,
  SKROT,
  TYP,
  INDEKS1,
  OPIS4 = INDEKS1 + 5,
  ZGRZEWKA,
  CALOSC,
  TERMIN,
  PLU,
  MARZA,
  NARZUT = MARZA + 2,
  CENA_EW,
  CENA_DOD = CENA_EW + 4,
  OTWARTA,
  STAWKA,
  AKTYWNY,
  ASORTYMENT,
  JEDNOSTKA,
  KATEGORIA,
  PRODUCENT
};

static const char select_towarow[] =
    "select T.TowId, T.Kod, T.Nazwa, T.Skrot, T.TypTowaru, T.Indeks1, T.Indeks2, T.Opis1, T.Opis2, T.Opis3,"
    " T.Opis4, T.IleWZgrzewce, T.IleWCalosci, T.TermWazn, T.PrefPLU, T.Marza, T.HurtRabat, T.NocNarzut,"
    " T.CenaEw, T.CenaDet, T.CenaHurt, T.CenaNoc, T.CenaDod, T.CenaOtwarta, T.Stawka, T.Aktywny, A.Nazwa,"
    " J.Nazwa, K.Nazwa, P.NIP"
    " from Towar T left join Asort A on A.AsId = T.AsId left join JM J on J.JMId = T.JMId"
    " left join Kategoria K on K.KatId = T.KatId left join Kontrahent P on P.KontrId = T.Producent"
    " order by T.TowId";

static const char select_kodow[] = "select TowId, Kod, Skrot, PrefPLU from KodDod order by TowId, Kolejnosc";

static const char select_parametrow[] =
    "select T.TowId, P.Nazwa, P.Typ, ifnull(W.Wartosc, 0), L.Wartosci, P.Od, P.Do"
    " from Towar T join KatParam K on K.KatId = T.KatId join Parametr P on P.ParId = K.ParId"
    " left join TowWartosc W on W.TowId = T.TowId and W.ParId = P.ParId"
    " left join (select ParId, group_concat(Wartosc, '|') as Wartosci"
    "            from (select ParId, Wartosc from ParWartosc order by ParId, Kolejnosc) group by ParId) L"
    "   on L.ParId = P.ParId"
    " order by T.TowId, K.Kolejnosc, K.ParId";

static const char select_dostawcow[] =
    "select D.TowId, K.NIP from TowDostawca D join Kontrahent K on K.KontrId = D.KontrId"
    " where K.NIP <> '' order by D.TowId, D.Kolejnosc";

static const char select_stanow[] = "select TowId, sum(StanMag) from Istw group by TowId";

static void pole_kodow(Strumien* kody, sqlite3_int64 id) {
  nowe_pole();
  const char* przed = "(";
  for (; siegnij(kody, id); dalej(kody)) {
    dopisz(przed);
    dopisz(tekst(kody, 1));
    dopisz("|");
    dopisz(tekst(kody, 2));
    dopisz("|");
    dopisz_calkowita(calkowita(kody, 3));
    dopisz(")");
    przed = ";(";
  }
}

static void pole_kategorii(const char* kategoria, Strumien* parametry, sqlite3_int64 id) {
  pole(kategoria);
  const char* przed = ": ";
  for (; siegnij(parametry, id); dalej(parametry)) {
    int lista = calkowita(parametry, 2) == 0;
    dopisz(przed);
    dopisz(tekst(parametry, 1));
    dopisz("(");
    dopisz_calkowita(calkowita(parametry, 3) + lista);
    dopisz(":");
    if (lista) {
      dopisz(tekst(parametry, 4));
    } else {
      dopisz_calkowita(calkowita(parametry, 5));
      dopisz("..");
      dopisz_calkowita(calkowita(parametry, 6));
    }
    dopisz(")");
    przed = ";";
  }
}

static void pole_dostawcow(Strumien* dostawcy, sqlite3_int64 id) {
  nowe_pole();
  int jest = siegnij(dostawcy, id);
  if (!jest) return;
  for (const char* przed = "("; siegnij(dostawcy, id); dalej(dostawcy), przed = "|") {
    dopisz(przed);
    dopisz(tekst(dostawcy, 1));
  }
  dopisz(")");
}

void eksport_towarow(const char* nazwa) {
  otworz_plik(nazwa);
  naglowek(kolumny, sizeof kolumny / sizeof kolumny[0]);
  Strumien kody = otworz_strumien(select_kodow);
  Strumien parametry = otworz_strumien(select_parametrow);
  Strumien dostawcy = otworz_strumien(select_dostawcow);
  Strumien stany = otworz_strumien(select_stanow);
  for (Strumien t = otworz_strumien(select_towarow); t.jest; dalej(&t)) {
    sqlite3_int64 id = calkowita(&t, TOWID);
    for (int i = KOD; i <= SKROT; ++i) pole(tekst(&t, i));
    pole_calkowite(calkowita(&t, TYP));
    for (int i = INDEKS1; i <= OPIS4; ++i) pole(tekst(&t, i));
    pole_liczba(liczba(&t, ZGRZEWKA));
    pole_liczba(liczba(&t, CALOSC));
    pole_calkowite(calkowita(&t, TERMIN));
    pole_calkowite(calkowita(&t, PLU));
    for (int i = MARZA; i <= NARZUT; ++i) pole_liczba(liczba(&t, i) * 100);
    for (int i = CENA_EW; i <= CENA_DOD; ++i) pole_liczba(liczba(&t, i));
    pole_calkowite(calkowita(&t, OTWARTA));
    pole_calkowite(calkowita(&t, STAWKA));
    pole(tekst(&t, ASORTYMENT));
    pole(tekst(&t, JEDNOSTKA));
    pole_kodow(&kody, id);
    pole_kategorii(tekst(&t, KATEGORIA), &parametry, id);
    pole_liczba(siegnij(&stany, id) ? liczba(&stany, 1) : 0);
    pole(tekst(&t, PRODUCENT));
    pole_dostawcow(&dostawcy, id);
    pole_calkowite(calkowita(&t, AKTYWNY));
    koniec_linii();
  }
  zamknij_plik();
}
