#include "bench/porownanie.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "bench/baza.h"
#include "bench/wiersze.h"

namespace {

struct TabelaPorownania {
  const char* nazwa;
  const char* kolumny;
};
constexpr TabelaPorownania kTabele[] = {
    {"Asort", "AsId," KOLUMNY_ASORTYMENTU},
    {"JM", "JMId," KOLUMNY_JEDNOSTKI},
    {"Vat", "Stawka"},
    {"Magazyn", "MagId," KOLUMNY_MAGAZYNU},
    {"Towar", "TowId," KOLUMNY_TOWARU},
    {"KodDod", "TowId," KOLUMNY_KODU},
    {"Istw", "TowId,MagId,StanMag,BlokadaMag,CenaMag,StanMin,StanMax"},
    {"TowWartosc", "TowId,ParId,Wartosc"},
    {"TowDostawca", "TowId,KontrId,Kolejnosc"},
    {"Kontrahent", "KontrId," KOLUMNY_KONTRAHENTA},
    {"Osoba", "rowid,KontrId," KOLUMNY_OSOBY},
    {"Sklep", "SklepId,OstImport,DataBO,KolejnyWDniuBO,OstEksport,PotwEksport,MagId," KOLUMNY_SKLEPU},
    {"DziennikZmian", "rowid," KOLUMNY_DZIENNIKA},
    {"Konfiguracja", "Nazwa,Kolejnosc,Parametr,Wartosc"},
};

}  // namespace

std::string PierwszaRoznica(const std::string& bazaA, const std::string& bazaB) {
  const sqlite::Baza baza = sqlite::Otworz(bazaA);
  const sqlite::Polecenie dolacz = sqlite::Przygotuj(baza, "attach ?1 as b");
  sqlite3_bind_text(dolacz.get(), 1, bazaB.c_str(), -1, SQLITE_STATIC);
  sqlite::Nastepny(baza, dolacz);
  for (const TabelaPorownania& t : kTabele) {
    const auto select = [&](const char* schemat) {
      return "select " + std::string(t.kolumny) + " from " + schemat + "." + t.nazwa;
    };
    const auto brakuje = [&](const char* w, const char* z) {
      return sqlite::Liczba(baza, "select count(*) from (" + select(z) + " except " + select(w) + ")") > 0;
    };
    const auto ile = [&](const char* schemat) {
      return sqlite::Liczba(baza, std::string("select count(*) from ") + schemat + "." + t.nazwa);
    };
    if (ile("main") != ile("b") || brakuje("main", "b") || brakuje("b", "main")) return t.nazwa;
  }
  return {};
}

bool TeSameBajty(const std::string& plikA, const std::string& plikB) {
  std::ifstream a(plikA, std::ios::binary), b(plikB, std::ios::binary);
  using Bajty = std::istreambuf_iterator<char>;
  return a && b && std::equal(Bajty(a), Bajty(), Bajty(b), Bajty());
}
