#include "bench/porownanie.h"

#include <cstdio>
#include <fstream>
#include <memory>
#include <stdexcept>

#include <sqlite3.h>

#include "bench/wiersze.h"

namespace {

struct TabelaPorownania {
  const char* nazwa;
  const char* kolumny;
};
constexpr TabelaPorownania kTabele[] = {
    {"Asort", "AsId,Nazwa"},
    {"JM", "JMId,Nazwa,Precyzja"},
    {"Vat", "Stawka"},
    {"Magazyn", "MagId,Nazwa"},
    {"Towar", "TowId," KOLUMNY_TOWARU},
    {"KodDod", "TowId," KOLUMNY_KODU},
    {"Istw", "TowId,MagId,StanMag,BlokadaMag,CenaMag,StanMin,StanMax"},
    {"TowWartosc", "TowId,ParId,Wartosc"},
    {"TowDostawca", "TowId,KontrId,Kolejnosc"},
    {"DziennikZmian", "rowid," KOLUMNY_DZIENNIKA},
    {"Konfiguracja", "Nazwa,Kolejnosc,Parametr,Wartosc"},
};

struct Zamknij {
  void operator()(sqlite3* baza) const { sqlite3_close(baza); }
  void operator()(sqlite3_stmt* polecenie) const { sqlite3_finalize(polecenie); }
};
using Baza = std::unique_ptr<sqlite3, Zamknij>;
using Polecenie = std::unique_ptr<sqlite3_stmt, Zamknij>;

Baza Otworz(const std::string& sciezka) {
  sqlite3* baza = nullptr;
  const int wynik = sqlite3_open_v2(sciezka.c_str(), &baza, SQLITE_OPEN_READWRITE, nullptr);
  Baza wlasciciel(baza);
  if (wynik != SQLITE_OK) throw std::runtime_error("Nie można otworzyć bazy " + sciezka);
  return wlasciciel;
}

Polecenie Przygotuj(const Baza& baza, const std::string& sql) {
  sqlite3_stmt* polecenie = nullptr;
  if (sqlite3_prepare_v2(baza.get(), sql.c_str(), -1, &polecenie, nullptr) != SQLITE_OK)
    throw std::runtime_error(std::string(sqlite3_errmsg(baza.get())) + ": " + sql);
  return Polecenie(polecenie);
}

bool Nastepny(const Baza& baza, const Polecenie& polecenie) {
  const int wynik = sqlite3_step(polecenie.get());
  if (wynik == SQLITE_ROW) return true;
  if (wynik != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(baza.get()));
  return false;
}

long long Liczba(const Baza& baza, const std::string& sql) {
  const Polecenie polecenie = Przygotuj(baza, sql);
  return Nastepny(baza, polecenie) ? sqlite3_column_int64(polecenie.get(), 0) : 0;
}

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
  for (const Polecenie p = Przygotuj(baza, select); Nastepny(baza, p);) Wypisz(plik, tabela, p.get());
}

// A good's codes stand behind it, as they are inserted.
void WypiszTowary(const Baza& baza, std::ofstream& plik, bool zKodami) {
  const Polecenie towary = Przygotuj(baza, "select TowId," KOLUMNY_TOWARU " from Towar order by TowId");
  const Polecenie kody =
      Przygotuj(baza, "select " KOLUMNY_KODU " from KodDod where TowId = ?1 order by Kolejnosc");
  while (Nastepny(baza, towary)) {
    Wypisz(plik, 'T', towary.get(), 1);
    if (!zKodami) continue;
    sqlite3_bind_int64(kody.get(), 1, sqlite3_column_int64(towary.get(), 0));
    while (Nastepny(baza, kody)) Wypisz(plik, 'K', kody.get());
    sqlite3_reset(kody.get());
  }
}

}  // namespace

long long WypiszWiersze(const std::string& sciezkaBazy, const std::string& sciezka, Wiersze ktore,
                        long long odDziennika) {
  const Baza baza = Otworz(sciezkaBazy);
  std::ofstream plik(sciezka, std::ios::binary);
  if (ktore == Wiersze::Dodane) {
    WypiszTabele(baza, plik, 'A', "select Nazwa from Asort order by AsId");
    WypiszTabele(baza, plik, 'J', "select Nazwa, Precyzja from JM order by JMId");
    WypiszTabele(baza, plik, 'M', "select Nazwa from Magazyn order by MagId");
  }
  WypiszTowary(baza, plik, ktore == Wiersze::Dodane);
  WypiszTabele(baza, plik, 'L',
               "select " KOLUMNY_DZIENNIKA " from DziennikZmian where rowid > " +
                   std::to_string(odDziennika) + " order by rowid");
  plik.close();
  if (!plik) throw std::runtime_error("Nie można zapisać pliku " + sciezka);
  return Liczba(baza, "select max(rowid) from DziennikZmian");
}

std::string PierwszaRoznica(const std::string& bazaA, const std::string& bazaB) {
  const Baza baza = Otworz(bazaA);
  const Polecenie dolacz = Przygotuj(baza, "attach ?1 as b");
  sqlite3_bind_text(dolacz.get(), 1, bazaB.c_str(), -1, SQLITE_STATIC);
  Nastepny(baza, dolacz);
  for (const TabelaPorownania& t : kTabele) {
    const auto select = [&](const char* schemat) {
      return "select " + std::string(t.kolumny) + " from " + schemat + "." + t.nazwa;
    };
    const auto brakuje = [&](const char* w, const char* z) {
      return Liczba(baza, "select count(*) from (" + select(z) + " except " + select(w) + ")") > 0;
    };
    const auto ile = [&](const char* schemat) {
      return Liczba(baza, std::string("select count(*) from ") + schemat + "." + t.nazwa);
    };
    if (ile("main") != ile("b") || brakuje("main", "b") || brakuje("b", "main")) return t.nazwa;
  }
  return {};
}
