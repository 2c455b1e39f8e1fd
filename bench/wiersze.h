#pragma once

/* Shared by the plain C program and by the benchmark that hands it its rows.

   A row file holds one row a line: a letter for the table, then values of the columns below separated by TAB,
   each led by its kind (i integer, r real, t text, n null).
     A  Asort
     J  JM
     M  Magazyn
     P  Parametr
     Q  ParWartosc
     G  Kategoria
     H  KatParam
     T  Towar; its codes, values of parameters, suppliers and stock follow it
     K  KodDod
     V  TowWartosc
     D  TowDostawca
     Z  Istw, whose row a trigger has made
     C  Kontrahent; its persons and its shop follow it
     O  Osoba
     S  Sklep
     L  DziennikZmian */
#define KOLUMNY_ASORTYMENTU "Nazwa"
#define KOLUMNY_JEDNOSTKI "Nazwa,Precyzja"
#define KOLUMNY_MAGAZYNU "Nazwa"
#define KOLUMNY_PARAMETRU "Nazwa,Typ,Od,Do"
#define KOLUMNY_WARTOSCI_LISTY "ParId,Kolejnosc,Wartosc"
#define KOLUMNY_KATEGORII "Nazwa"
#define KOLUMNY_PARAMETRU_KATEGORII "KatId,ParId,Kolejnosc"
#define KOLUMNY_WARTOSCI_PARAMETRU "ParId,Wartosc"
#define KOLUMNY_DOSTAWCY "KontrId,Kolejnosc"
#define KOLUMNY_STANU "StanMag"
/* The code first: updating finds the good by it. */
#define KOLUMNY_TOWARU                                                                           \
  "Kod,AsId,JMId,KatId,Producent,Nazwa,Skrot,TypTowaru,Indeks1,Indeks2,Opis1,Opis2,Opis3,Opis4," \
  "TermWazn,Marza,HurtRabat,NocNarzut,OpcjaMarzy,OpcjaRabatu,OpcjaNarzutu,CenaEw,CenaDet,"       \
  "CenaHurt,CenaNoc,CenaDod,CenaOtwarta,PoziomCen,PrefPLU,Stawka,IleWZgrzewce,IleWCalosci,"      \
  "KodZgrzewki,Aktywny,Waga,Szerokosc,Wysokosc,Glebokosc,CKU,BlokDostawcow,BlokCenyZak,"         \
  "BlokCenSp,BlokZmian,Rezerwa1,Rezerwa2"
#define KOLUMNY_KODU "Kolejnosc,Skrot,Kod,PoziomCen,PrefPLU,IleWKodzie"
/* The tax number first: updating finds the contractor by it. */
#define KOLUMNY_KONTRAHENTA                                                                              \
  "NIP,AkwId,Nazwa,NaPrzelewie1,NaPrzelewie2,Skrot,Ulica,Kod,Miasto,Telefon,Fax,EMail,Bank,Konto,Staly," \
  "Dostawca,RabatDost,FormaPlatDost,TermPlatDost,CzasRealZam,Producent,Odbiorca,RabatOdb,FormaPlatOdb,"  \
  "TermPlatOdb,MaxKredyt,MaxPoTermPlat,KodKarty,KartaAktywna,TermWaznKarty,PoziomRabatu,NrAnalityki,"    \
  "KodKontr,ZakPracChron,Aktywny,Rezerwa1,Rezerwa2"
#define KOLUMNY_OSOBY "Nazwisko"
#define KOLUMNY_SKLEPU "NrSklepu,NrSeryjny,WymImport,PelnyImport"
#define KOLUMNY_DZIENNIKA "Tabela,Opis,Id1,Id2"
