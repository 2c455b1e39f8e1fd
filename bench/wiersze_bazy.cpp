#include "bench/wiersze_bazy.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <utility>
#include <vector>

#include "bench/baza.h"
#include "bench/wiersze.h"

namespace {

using sqlite::Baza;
using sqlite::Polecenie;

struct OpisWierszy {
  std::vector<std::pair<char, const char*>> slowniki;
  char litera;
  const char* select;                                   // the identifier first
  std::vector<std::pair<char, const char*>> szczegoly;  // behind the record that owns them, ?1
};

const OpisWierszy kTowary{
    {{'A', "select " KOLUMNY_ASORTYMENTU " from Asort order by AsId"},
     {'J', "select " KOLUMNY_JEDNOSTKI " from JM order by JMId"},
     {'M', "select " KOLUMNY_MAGAZYNU " from Magazyn order by MagId"},
     {'P', "select " KOLUMNY_PARAMETRU " from Parametr order by ParId"},
     {'Q', "select " KOLUMNY_WARTOSCI_LISTY " from ParWartosc order by ParId, Kolejnosc"},
     {'G', "select " KOLUMNY_KATEGORII " from Kategoria order by KatId"},
     {'H', "select " KOLUMNY_PARAMETRU_KATEGORII " from KatParam order by KatId, Kolejnosc"}},
    'T',
    "select TowId," KOLUMNY_TOWARU " from Towar order by TowId",
    {{'K', "select " KOLUMNY_KODU " from KodDod where TowId = ?1 order by Kolejnosc"},
     {'V', "select " KOLUMNY_WARTOSCI_PARAMETRU " from TowWartosc where TowId = ?1 order by ParId"},
     {'D', "select " KOLUMNY_DOSTAWCY " from TowDostawca where TowId = ?1 order by Kolejnosc"},
     {'Z', "select " KOLUMNY_STANU " from Istw where TowId = ?1 and StanMag <> 0"}}};

const OpisWierszy kKontrahenci{
    {},
    'C',
    "select KontrId," KOLUMNY_KONTRAHENTA " from Kontrahent order by KontrId",
    {{'O', "select " KOLUMNY_OSOBY " from Osoba where KontrId = ?1 order by rowid"},
     {'S', "select " KOLUMNY_SKLEPU " from Sklep where SklepId = ?1"}}};

std::string Wartosc(sqlite3_stmt* polecenie, int kolumna) {
  switch (sqlite3_column_type(polecenie, kolumna)) {
    case SQLITE_INTEGER:
      return 'i' + std::to_string(sqlite3_column_int64(polecenie, kolumna));
    case SQLITE_FLOAT: {
      char bufor[40];
      std::snprintf(bufor, sizeof bufor, "r%.17g", sqlite3_column_double(polecenie, kolumna));
      return bufor;
    }
    case SQLITE_NULL:
      return "n";
    default:
      return std::string("t") + reinterpret_cast<const char*>(sqlite3_column_text(polecenie, kolumna));
  }
}

void Wypisz(std::ofstream& plik, char tabela, sqlite3_stmt* polecenie, int odKolumny = 0) {
  plik << tabela;
  for (int i = odKolumny; i < sqlite3_column_count(polecenie); ++i) plik << '\t' << Wartosc(polecenie, i);
  plik << '\n';
}

void WypiszTabele(const Baza& baza, std::ofstream& plik, char tabela, const std::string& select) {
  for (const Polecenie p = sqlite::Przygotuj(baza, select); sqlite::Nastepny(baza, p);)
    Wypisz(plik, tabela, p.get());
}

void WypiszRekordy(const Baza& baza, std::ofstream& plik, const OpisWierszy& opis) {
  std::vector<std::pair<char, Polecenie>> szczegoly;
  for (const auto& [litera, select] : opis.szczegoly)
    szczegoly.emplace_back(litera, sqlite::Przygotuj(baza, select));
  const Polecenie rekordy = sqlite::Przygotuj(baza, opis.select);
  while (sqlite::Nastepny(baza, rekordy)) {
    Wypisz(plik, opis.litera, rekordy.get(), 1);
    for (const auto& [litera, wiersze] : szczegoly) {
      sqlite3_bind_int64(wiersze.get(), 1, sqlite3_column_int64(rekordy.get(), 0));
      while (sqlite::Nastepny(baza, wiersze)) Wypisz(plik, litera, wiersze.get());
      sqlite3_reset(wiersze.get());
    }
  }
}

}  // namespace

long long WypiszWiersze(const std::string& sciezkaBazy, const std::string& sciezka, Rekordy rekordy,
                        Wiersze ktore, long long odDziennika) {
  const OpisWierszy& opis = rekordy == Rekordy::Towary ? kTowary : kKontrahenci;
  const Baza baza = sqlite::Otworz(sciezkaBazy);
  std::ofstream plik(sciezka, std::ios::binary);
  if (ktore == Wiersze::Dodane)
    for (const auto& [litera, select] : opis.slowniki) WypiszTabele(baza, plik, litera, select);
  WypiszRekordy(baza, plik, opis);
  WypiszTabele(baza, plik, 'L',
               "select " KOLUMNY_DZIENNIKA " from DziennikZmian where rowid > " +
                   std::to_string(odDziennika) + " order by rowid");
  plik.close();
  if (!plik) throw std::runtime_error("Nie można zapisać pliku " + sciezka);
  return sqlite::Liczba(baza, "select max(rowid) from DziennikZmian");
}
