#include "database/schemat.h"
#include "platform/baza/sesja.h"
#include "platform/baza/transakcja.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// In a new database rows are numbered from 1, in the order in which they are written: so they can name each
// other.
constexpr std::string_view kSlowniki[] = {
    "insert into Magazyn (Nazwa) values ('Sklep')",
    "insert into Magazyn (Nazwa) values ('Zaplecze')",
    "insert into JM (Nazwa, Precyzja) values ('szt', 0)",
    "insert into JM (Nazwa, Precyzja) values ('kg', 3)",
    "insert into KodWazony (Nazwa, Prefix, CzescStala) values ('KW typ 1', 27, 4)",
    "insert into Asort (Nazwa) values ('Nabiał')",
    "insert into Asort (Nazwa) values ('Pieczywo')",
    "insert into Asort (Nazwa) values ('Napoje')",
    "insert into Asort (Nazwa) values ('Piwo')",
    "insert into Asort (Nazwa) values ('Słodycze')",
    "insert into Asort (Nazwa) values ('Produkty sypkie')",
    "insert into Asort (Nazwa) values ('Konserwy i przetwory')",
    "insert into Asort (Nazwa) values ('Kawa i herbata')",
    "insert into Asort (Nazwa) values ('Chemia gospodarcza')",
    "insert into Asort (Nazwa) values ('Różne')",
    "insert into Kategoria (Nazwa) values ('Napoje')",
    "insert into Kategoria (Nazwa) values ('Piwo')",
    "insert into Kategoria (Nazwa) values ('Kawa')",
    "insert into Parametr (Nazwa, Typ, Od, Do) values ('Pojemność ml', 1, 100, 5000)",
    "insert into Parametr (Nazwa, Typ, Od, Do) values ('Ekstrakt', 1, 5, 30)",
    "insert into Parametr (Nazwa, Typ) values ('Palenie', 0)",
    "insert into ParWartosc (ParId, Kolejnosc, Wartosc) values (3, 0, 'jasne')",
    "insert into ParWartosc (ParId, Kolejnosc, Wartosc) values (3, 1, 'średnie')",
    "insert into ParWartosc (ParId, Kolejnosc, Wartosc) values (3, 2, 'ciemne')",
    "insert into KatParam (KatId, ParId, Kolejnosc) values (1, 1, 0)",
    "insert into KatParam (KatId, ParId, Kolejnosc) values (2, 2, 0)",
    "insert into KatParam (KatId, ParId, Kolejnosc) values (3, 3, 0)",
};

struct Kontrahent {
  QString nazwa, skrot, ulica, kod, miasto, nip;
  bool producent;  // otherwise a wholesaler
};
// In the order of their identifiers, from 1. Every one of them supplies the shop. Three producers of the demo
// goods file are left to the demo contractor file.
const Kontrahent kKontrahenci[] = {
    {u"Mleczarnia Łąkowa Sp. z o.o."_s, u"Łąkowa"_s, u"Mleczna 4"_s, u"19-200"_s, u"Grajewo"_s,
     u"999-000-01-26"_s, true},
    {u"Piekarnia Złoty Kłos Jan Żyto"_s, u"Złoty Kłos"_s, u"Młyńska 12"_s, u"25-010"_s, u"Kielce"_s,
     u"999-000-04-80"_s, true},
    {u"Wytwórnia Napojów Źródło S.A."_s, u"Źródło"_s, u"Zdrojowa 1"_s, u"24-140"_s, u"Nałęczów"_s,
     u"999-000-08-53"_s, true},
    {u"Browar Zamkowy Sp. z o.o."_s, u"Browar Zamkowy"_s, u"Zamkowa 7"_s, u"47-400"_s, u"Racibórz"_s,
     u"999-000-12-26"_s, true},
    {u"Cukiernicza Spółdzielnia Pralinka"_s, u"Pralinka"_s, u"Słodka 3"_s, u"50-101"_s, u"Wrocław"_s,
     u"999-000-15-97"_s, true},
    {u"Młyn i Kaszarnia Ziarno"_s, u"Ziarno"_s, u"Polna 9"_s, u"22-400"_s, u"Zamość"_s, u"999-000-23-32"_s,
     true},
    {u"Przetwórnia Spiżarnia Babci"_s, u"Spiżarnia Babci"_s, u"Sadowa 15"_s, u"27-620"_s, u"Dwikozy"_s,
     u"999-000-27-05"_s, true},
    {u"Palarnia Kawy Świt"_s, u"Świt"_s, u"Portowa 2"_s, u"81-350"_s, u"Gdynia"_s, u"999-000-30-76"_s, true},
    {u"Chemia Domowa Błysk Sp. z o.o."_s, u"Błysk"_s, u"Przemysłowa 5"_s, u"37-310"_s, u"Nowa Sarzyna"_s,
     u"999-000-34-49"_s, true},
    {u"Hurtownia Spożywcza Krępa"_s, u"Krępa"_s, u"Hurtowa 30"_s, u"26-600"_s, u"Radom"_s, u"999-000-90-09"_s,
     false},
    {u"Dystrybucja Wisła-Trade Sp. z o.o."_s, u"Wisła-Trade"_s, u"Nadbrzeżna 6"_s, u"09-400"_s, u"Płock"_s,
     u"999-000-94-17"_s, false},
    {u"Hurt Chemiczny Ósemka"_s, u"Ósemka"_s, u"Składowa 8"_s, u"42-200"_s, u"Częstochowa"_s,
     u"999-000-98-25"_s, false},
};

struct Towar {
  QString kod, nazwa, skrot, pkwiu;
  int asortyment;
  int producent;  // 0: none
  int dostawcy[2];
  int stawka;
  double zakupNetto, detalBrutto, wZgrzewce;
  int kategoria;  // 0: none; its parameter has the same number
  double wartoscParametru;
  double stanWSklepie;
};
// Some are what the demo goods file says about them, some differ in price, some the file deletes.
const Towar kTowary[] = {
    {u"5909910001396"_s,
     u"Mleko UHT 1 l 2%"_s,
     u"Mleko UHT 1 l 2%"_s,
     u"10.51.11"_s,
     1,
     1,
     {1, 0},
     500,
     2.79,
     3.69,
     12,
     0,
     0,
     48},
    {u"5909910002300"_s,
     u"Jogurt naturalny 370 g"_s,
     u"Jogurt naturalny 3"_s,
     u"10.51.52"_s,
     1,
     1,
     {1, 0},
     500,
     1.38,
     1.89,
     10,
     0,
     0,
     8},
    {u"5909910005035"_s,
     u"Masło ekstra 200 g"_s,
     u"Masło ekstra 200 g"_s,
     u"10.51.30"_s,
     1,
     1,
     {1, 0},
     500,
     5.3,
     7.09,
     20,
     0,
     0,
     48},
    {u"5909912001653"_s,
     u"Woda źródlana gazowana 1,5 l"_s,
     u"Woda źródlana gazo"_s,
     u"11.07.11"_s,
     3,
     3,
     {11, 0},
     2300,
     1.22,
     1.89,
     6,
     1,
     1500,
     24},
    {u"5909916003738"_s,
     u"Cukier biały 1 kg"_s,
     u"Cukier biały 1 kg"_s,
     u"10.81.12"_s,
     6,
     6,
     {10, 6},
     800,
     3.06,
     4.19,
     10,
     0,
     0,
     0},
    {u"5909917002693"_s,
     u"Ketchup 450 g łagodny"_s,
     u"Ketchup 450 g łago"_s,
     u"10.84.12"_s,
     7,
     7,
     {10, 0},
     800,
     3.62,
     4.99,
     10,
     0,
     0,
     12},
    {u"5909910001525"_s,
     u"Mleko UHT 1 l 3,2%"_s,
     u"Mleko UHT 1 l 3,2%"_s,
     u"10.51.11"_s,
     1,
     1,
     {1, 0},
     500,
     2.7,
     3.6,
     12,
     0,
     0,
     0},
    {u"5909911001524"_s,
     u"Chleb wiejski 1 kg"_s,
     u"Chleb wiejski 1 kg"_s,
     u"10.71.11"_s,
     2,
     2,
     {2, 0},
     500,
     2.95,
     3.99,
     0,
     0,
     0,
     0},
    {u"5909913001263"_s,
     u"Piwo Zamkowe butelka 0,5 l pełne"_s,
     u"Piwo Zamkowe butel"_s,
     u"11.05.10"_s,
     4,
     4,
     {11, 0},
     2300,
     2.59,
     4.06,
     20,
     2,
     12,
     0},
    {u"5909914001132"_s,
     u"Czekolada 100 g mleczna"_s,
     u"Czekolada 100 g ml"_s,
     u"10.82.22"_s,
     5,
     5,
     {10, 0},
     2300,
     2.83,
     4.49,
     20,
     0,
     0,
     0},
    {u"5909919001137"_s,
     u"Płyn do naczyń cytrynowy 500 ml"_s,
     u"Płyn do naczyń cyt"_s,
     u"20.41.32"_s,
     9,
     9,
     {12, 9},
     2300,
     2.93,
     4.6,
     12,
     0,
     0,
     0},
    {u"5909918001527"_s,
     u"Kawa ziarnista Świt Poranek 1 kg"_s,
     u"Kawa ziarnista Świ"_s,
     u"10.83.11"_s,
     8,
     8,
     {10, 0},
     2300,
     23.89,
     37.57,
     6,
     3,
     0,
     0},
    {u"5909901190016"_s,
     u"Wafle ryżowe naturalne 130 g"_s,
     u"Wafle ryżowe natur"_s,
     u""_s,
     6,
     0,
     {0, 0},
     500,
     2.1,
     2.99,
     12,
     0,
     0,
     24},
    {u"5909901190023"_s,
     u"Kompot wiśniowy 900 ml"_s,
     u"Kompot wiśniowy 90"_s,
     u""_s,
     7,
     0,
     {0, 0},
     800,
     4.4,
     6.49,
     8,
     0,
     0,
     0},
    {u"2000000010014"_s,
     u"Kosz upominkowy"_s,
     u"Kosz upominkowy"_s,
     u""_s,
     10,
     0,
     {0, 0},
     2300,
     57.0,
     94.99,
     0,
     0,
     0,
     2},
};

void DodajKontrahentow(TVLTBazaDanych& baza) {
  for (const Kontrahent& k : kKontrahenci) {
    baza.ExecSQL(
        "insert into Kontrahent (Nazwa, Skrot, Ulica, Kod, Miasto, NIP, Staly, Dostawca, Producent, Zmiana)"
        " values (:Nazwa, :Skrot, :Ulica, :Kod, :Miasto, :NIP, 1, 1, :Producent, getdate())",
        {{"Nazwa", k.nazwa},
         {"Skrot", k.skrot},
         {"Ulica", k.ulica},
         {"Kod", k.kod},
         {"Miasto", k.miasto},
         {"NIP", k.nip},
         {"Producent", k.producent ? 1 : 0}});
  }
}

Wartosc IdAlboNull(int id) {
  return id > 0 ? Wartosc(id) : Wartosc(TypPola::Calkowite);
}

void DodajTowar(TVLTBazaDanych& baza, const Towar& t) {
  const int towId = baza.WstawOdRazu(
      "TowId",
      "insert into Towar (AsId, JMId, KatId, Producent, Nazwa, Skrot, Kod, Indeks2, CenaEw, CenaDet, Stawka,"
      " IleWZgrzewce, Zmiana)"
      " values (:AsId, 1, :KatId, :Producent, :Nazwa, :Skrot, :Kod, :Indeks2, :CenaEw, :CenaDet, :Stawka,"
      " :IleWZgrzewce, getdate())",
      {{"AsId", t.asortyment},
       {"KatId", IdAlboNull(t.kategoria)},
       {"Producent", IdAlboNull(t.producent)},
       {"Nazwa", t.nazwa},
       {"Skrot", t.skrot},
       {"Kod", t.kod},
       {"Indeks2", t.pkwiu},
       {"CenaEw", t.zakupNetto},
       {"CenaDet", t.detalBrutto / (1 + t.stawka * 0.0001)},
       {"Stawka", t.stawka},
       {"IleWZgrzewce", t.wZgrzewce}});
  baza.ExecSQL("update Istw set StanMag = :StanMag where TowId = :TowId and MagId = 1",
               {{"StanMag", t.stanWSklepie}, {"TowId", towId}});
  if (t.kategoria > 0) {
    baza.ExecSQL("insert into TowWartosc (TowId, ParId, Wartosc) values (:TowId, :ParId, :Wartosc)",
                 {{"TowId", towId}, {"ParId", t.kategoria}, {"Wartosc", t.wartoscParametru}});
  }
  int kolejnosc = 0;
  for (const int kontrId : t.dostawcy) {
    if (kontrId == 0) continue;
    baza.ExecSQL("insert into TowDostawca (TowId, KontrId, Kolejnosc) values (:TowId, :KontrId, :Kolejnosc)",
                 {{"TowId", towId}, {"KontrId", kontrId}, {"Kolejnosc", kolejnosc++}});
  }
}

}  // namespace

void DodajDaneDemo(TVLTBazaDanych& baza) {
  JednostkaZapisu jednostka(baza);
  for (const std::string_view instrukcja : kSlowniki) baza.ExecSQL(instrukcja);
  DodajKontrahentow(baza);
  for (const Towar& towar : kTowary) DodajTowar(baza, towar);
  jednostka.Zatwierdz();
}
