#include "bench/porownanie.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string_view>

#include "bench/baza.h"
#include "bench/wiersze.h"

namespace {

// Rows are compared in the order of the key, which the first columns are.
struct TabelaPorownania {
  const char* nazwa;
  const char* kolumny;
  const char* klucz;
};
constexpr TabelaPorownania kTabele[] = {
    {"Asort", "AsId," KOLUMNY_ASORTYMENTU, "AsId"},
    {"JM", "JMId," KOLUMNY_JEDNOSTKI, "JMId"},
    {"Vat", "Stawka", "Stawka"},
    {"Magazyn", "MagId," KOLUMNY_MAGAZYNU, "MagId"},
    {"Kategoria", "KatId," KOLUMNY_KATEGORII, "KatId"},
    {"Parametr", "ParId," KOLUMNY_PARAMETRU, "ParId"},
    {"ParWartosc", KOLUMNY_WARTOSCI_LISTY, "ParId,Kolejnosc"},
    {"KatParam", KOLUMNY_PARAMETRU_KATEGORII, "KatId,ParId"},
    {"Towar", "TowId," KOLUMNY_TOWARU, "TowId"},
    {"KodDod", "TowId," KOLUMNY_KODU, "TowId,Kolejnosc"},
    {"Istw", "TowId,MagId,StanMag,BlokadaMag,CenaMag,StanMin,StanMax", "TowId,MagId"},
    {"TowWartosc", "TowId," KOLUMNY_WARTOSCI_PARAMETRU, "TowId,ParId"},
    {"TowDostawca", "TowId," KOLUMNY_DOSTAWCY, "TowId,KontrId"},
    {"Kontrahent", "KontrId," KOLUMNY_KONTRAHENTA, "KontrId"},
    {"Osoba", "KontrId," KOLUMNY_OSOBY, "KontrId,rowid"},
    {"Sklep", "SklepId,OstImport,DataBO,KolejnyWDniuBO,OstEksport,PotwEksport,MagId," KOLUMNY_SKLEPU,
     "SklepId"},
    {"DziennikZmian", "rowid," KOLUMNY_DZIENNIKA, "rowid"},
    {"Konfiguracja", "Nazwa,Kolejnosc,Parametr,Wartosc", "Nazwa,Kolejnosc"},
};

bool RownaWartosc(sqlite3_stmt* a, sqlite3_stmt* b, int kolumna) {
  const int typ = sqlite3_column_type(a, kolumna);
  if (typ != sqlite3_column_type(b, kolumna)) return false;
  if (typ == SQLITE_NULL) return true;
  if (typ == SQLITE_INTEGER) return sqlite3_column_int64(a, kolumna) == sqlite3_column_int64(b, kolumna);
  if (typ == SQLITE_FLOAT) return sqlite3_column_double(a, kolumna) == sqlite3_column_double(b, kolumna);
  const auto tekst = [kolumna](sqlite3_stmt* s) {
    const auto* bajty = static_cast<const char*>(sqlite3_column_blob(s, kolumna));
    return std::string_view(bajty, static_cast<std::size_t>(sqlite3_column_bytes(s, kolumna)));
  };
  return tekst(a) == tekst(b);
}

bool TeSameWiersze(const sqlite::Baza& bazaA, const sqlite::Baza& bazaB, const TabelaPorownania& t) {
  const std::string select = std::string("select ") + t.kolumny + " from " + t.nazwa + " order by " + t.klucz;
  const sqlite::Polecenie a = sqlite::Przygotuj(bazaA, select), b = sqlite::Przygotuj(bazaB, select);
  for (;;) {
    const bool jest = sqlite::Nastepny(bazaA, a);
    if (jest != sqlite::Nastepny(bazaB, b)) return false;
    if (!jest) return true;
    for (int i = 0; i < sqlite3_column_count(a.get()); ++i)
      if (!RownaWartosc(a.get(), b.get(), i)) return false;
  }
}

}  // namespace

std::string PierwszaRoznica(const std::string& bazaA, const std::string& bazaB) {
  const sqlite::Baza a = sqlite::Otworz(bazaA), b = sqlite::Otworz(bazaB);
  for (const TabelaPorownania& t : kTabele)
    if (!TeSameWiersze(a, b, t)) return t.nazwa;
  return {};
}

bool TeSameBajty(const std::string& plikA, const std::string& plikB) {
  std::ifstream a(plikA, std::ios::binary), b(plikB, std::ios::binary);
  using Bajty = std::istreambuf_iterator<char>;
  return a && b && std::equal(Bajty(a), Bajty(), Bajty(b), Bajty());
}
