#pragma once

#include <optional>

#include "exchange/komunikat.h"

struct StrukturaPliku;

// The check before an import: the first reason why the structure cannot be imported by, nothing when it can.
std::optional<Komunikat> SprawdzStrukture(const StrukturaPliku& struktura);
