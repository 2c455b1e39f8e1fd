#pragma once

/* Shared by the plain C program and by the benchmark that hands it its rows.

   A row file holds one row a line: a letter for the table, then values separated by TAB, each led by its kind
   (i integer, r real, t text, n null).
     A  Asort        Nazwa
     J  JM           Nazwa, Precyzja
     M  Magazyn      Nazwa
     T  Towar        the columns below; its codes follow it
     K  KodDod       Kolejnosc, Skrot, Kod, PoziomCen, PrefPLU, IleWKodzie
     L  DziennikZmian  Tabela, Opis, Id1, Id2 */
#define KOLUMNY_TOWARU                                                                                       \
  "Kod,AsId,JMId,KatId,Producent,Nazwa,Skrot,TypTowaru,Indeks1,Indeks2,Opis1,Opis2,Opis3,Opis4,TermWazn,"    \
  "Marza,"                                                                                                   \
  "HurtRabat,NocNarzut,OpcjaMarzy,OpcjaRabatu,OpcjaNarzutu,CenaEw,CenaDet,CenaHurt,CenaNoc,CenaDod,"         \
  "CenaOtwarta,"                                                                                             \
  "PoziomCen,PrefPLU,Stawka,IleWZgrzewce,IleWCalosci,KodZgrzewki,Aktywny,Waga,Szerokosc,Wysokosc,Glebokosc," \
  "CKU,"                                                                                                     \
  "BlokDostawcow,BlokCenyZak,BlokCenSp,BlokZmian,Rezerwa1,Rezerwa2"
#define KOLUMNY_KODU "Kolejnosc,Skrot,Kod,PoziomCen,PrefPLU,IleWKodzie"
#define KOLUMNY_DZIENNIKA "Tabela,Opis,Id1,Id2"
