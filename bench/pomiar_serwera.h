#pragma once

#include "bench/tabela.h"
#include "bench/warsztat.h"

// Goods on a server: adding `ile`, finding all identical and exporting them beside psql, which copies the
// same rows in and out; then the journeys to the server that adding a good takes, on a road made longer.
// Stops when psql leaves other rows than the product.
void ZmierzSerwer(const Warsztat& warsztat, int ile, Tabela& tabela);
