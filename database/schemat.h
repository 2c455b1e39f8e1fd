#pragma once

#include <QString>
#include <span>

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

// Adds a small shop's data to a new database: dictionaries, warehouses, categories with parameters, formats
// of weighted codes, contractors and a few goods. One transaction.
void DodajDaneDemo(TVLTBazaDanych& baza);
