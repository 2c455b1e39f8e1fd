#pragma once

#include <cstdint>
#include <string>

#include "exchange/struktura_pliku.h"

// Files for the measured imports, in Windows-1250. The same call gives the same bytes. Throw
// std::runtime_error when the file cannot be written.

// The contractors that goods name as their suppliers: the first of the contractors' file.
inline constexpr int kDostawcow = 200;
std::string NipKontrahenta(std::uint64_t numer);

// Goods: valid EAN-13 codes and names that do not repeat, every fifth record with an additional code, 200
// assortments, 8 units, 20 categories with three parameters each, one to three suppliers, a stock in the
// first warehouse. `noweCeny` changes both prices of every record and nothing else.
void ZapiszPlikTowarow(const std::string& sciezka, int ile, TypPliku typ, bool noweCeny);

// Goods in the own layout that grow in one direction: one good with so many additional codes whose short names
// are to be made, one with so many parameters of its category, all new, so many goods with an assortment each.
void ZapiszPlikKodow(const std::string& sciezka, int ile);
void ZapiszPlikParametrow(const std::string& sciezka, int ile);
void ZapiszPlikAsortymentow(const std::string& sciezka, int ile);

// Contractors in the own layout: tax numbers that do not repeat, written in three ways, suppliers, producers
// and customers, every third of them with two persons and every fourth with a card, every hundredth a shop.
// `nowyKredyt` changes the credit limit of every record and nothing else.
void ZapiszPlikKontrahentow(const std::string& sciezka, int ile, bool nowyKredyt);

// Gives the goods of a database what their files do not carry: descriptions, margins, more codes, a producer,
// stock in two more warehouses, missing values of parameters.
void DopiszDaneTowarow(const std::string& baza);
