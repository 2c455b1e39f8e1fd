#pragma once

#include <span>

#include "platform/baza/zapytanie.h"

// The select of the goods' main rows up to the condition on TowId. Private to the goods record and to what
// reads its rows ahead. The columns of T.* come in the order of table Towar.
inline constexpr char kSelectTowaru[] =
    "select T.*, P.OpakId, P.IleWOpak, P.Tandem from Towar T left outer join Powiazanie P"
    " on (T.TowId = P.TowId) where T.TowId ";
inline constexpr char kSelectTowaruBezOuterJoin[] =
    "select T.*, P.OpakId, P.IleWOpak, P.Tandem from Towar T, Powiazanie P"
    " where T.TowId *= P.TowId and T.TowId ";

// Its columns: ZORVIK_POLA_TOWARU.
std::span<const OpisPola> PolaTowaru();
