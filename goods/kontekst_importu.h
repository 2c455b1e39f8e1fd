#pragma once

#include "exchange/czytnik.h"
#include "exchange/katalog_pol.h"
#include "exchange/struktura_pliku.h"
#include "run/kolejka_rekordow.h"

class IOperator;
class KodyWlasne;
class Liczniki;
class NumeracjaNazw;
class RaportProblemow;
class RozpoznawanieSlownikow;
class Stany;
class TDmVLTNazwySkrocone;
class TVLTBuforNip;
class TVLTBuforTowarow;
class Uwagi;
class ZapasTowarow;
struct KontekstSesji;
struct OpcjeImportuTowarow;
struct RegulyKodow;

// What the records of one goods import share. The run owns everything that is referred to here; nothing of it
// changes hands while the run lasts.
//
// Around every record the run has a batch open, in whose transaction the units of the record
// (JednostkaZapisu) are savepoints. Questions go through `oper`, which commits the batch first and opens one
// again after the answer. Counters, report lines and notices of the record belong to the batch.
struct KontekstImportu {
  KontekstSesji& sesja;
  const OpcjeImportuTowarow& opcje;
  const StrukturaPliku& struktura;
  const Czytnik& plik;
  char separator;  // the system's decimal mark, for LiniaRekordu::Liczba

  TVLTBuforTowarow& bufor;
  const TVLTBuforNip* nipy;  // null when the file carries no tax numbers or they are not to be used
  RozpoznawanieSlownikow& slowniki;
  Stany& stany;
  const RegulyKodow& reguly;  // made from the options; knows the weighted formats as they are now
  KodyWlasne& kodyWlasne;
  TDmVLTNazwySkrocone& skroty;
  NumeracjaNazw& nazwy;
  ZapasTowarow& zapas;

  RaportProblemow& raport;
  Uwagi& uwagi;
  Liczniki& liczniki;
  IOperator& oper;

  // Whether the file carries a field at all.
  bool NiesiePole(int pole) const { return plik.NiesiePole(pole); }
  // Whether a field of a good that exists already is to be written.
  bool Aktualizuje(int pole) const { return NiesiePole(pole) && struktura.CzyOferowane(pole); }
  // Whether a record has a status to go by; without one every record is active.
  bool MaStatus(const RekordPliku& rekord) const {
    return rekord.maStatus && struktura.CzyOferowane(PoleTowaru::Status);
  }
};
