#pragma once

#include <span>
#include <string>
#include <utility>
#include <vector>

#include <QString>

class Dialekt;
class TVLTBazaDanych;

// One stored configuration parameter that a new database starts with.
struct WpisKonfiguracji {
  QString konfiguracja;  // name of the configuration (section) it belongs to
  QString parametr;
  QString wartosc;
};

// Makes the back-office tables, indexes and triggers in an empty database, with the base data: VAT rates,
// short-name rules and the given configuration entries, which keep their order. One transaction: a failure
// (EBladBazy, for instance because the tables are there already) leaves the database as it was. The base data
// hold no dictionary entry, no warehouse and no contractor.
void UtworzBaze(TVLTBazaDanych& baza, std::span<const WpisKonfiguracji> konfiguracja);

// False when the database holds tables already.
bool BazaPusta(TVLTBazaDanych& baza);

// After rows were added with identifiers of their own: automatic ones go on behind them.
void WyrownajAutoKlucze(TVLTBazaDanych& baza);

// A column as the schema has it; the token tells its type ("{calk}").
struct KolumnaSchematu {
  std::string tabela;
  std::string nazwa;
  std::string znacznik;
};
std::vector<KolumnaSchematu> KolumnySchematu();
// The column's type in the words of the server.
std::string TypKolumny(const KolumnaSchematu& kolumna, const Dialekt& dialekt);
// Table and name of the triggers that the tables need.
std::vector<std::pair<std::string, std::string>> WyzwalaczeSchematu();
// Table and first column of the indexes that the runs need.
std::vector<std::pair<std::string, std::string>> IndeksySchematu();

// What the program does with a table, beside reading it.
struct PrawaTabeli {
  const char* tabela;
  bool dopisuje, poprawia, usuwa;
  const char* kolumna;           // one of them
  bool czytanaWcalosci = false;  // by "*": the order of its columns matters
};
std::span<const PrawaTabeli> PrawaTabel();

// Adds a small shop's data to a new database: dictionaries, warehouses, categories with parameters, formats
// of weighted codes, contractors and a few goods. One transaction.
void DodajDaneDemo(TVLTBazaDanych& baza);
