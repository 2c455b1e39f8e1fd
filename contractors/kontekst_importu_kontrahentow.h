#pragma once

#include "exchange/czytnik.h"
#include "exchange/katalog_pol.h"
#include "exchange/struktura_pliku.h"

class Liczniki;
class NumerySklepow;
class RaportProblemow;
class TVLTBuforNip;
class Uwagi;
struct KontekstSesji;
struct OpcjeImportuKontrahentow;

// What the records of one contractor import share. The run owns everything that is referred to here. Around
// every record it has a batch open, in whose transaction each save is a savepoint; counters, report lines
// and notices belong to the batch.
struct KontekstImportuKontrahentow {
  KontekstSesji& sesja;
  const OpcjeImportuKontrahentow& opcje;
  const StrukturaPliku& struktura;
  const Czytnik& plik;
  char separator;  // the system's decimal mark

  TVLTBuforNip& bufor;
  NumerySklepow& numerySklepow;
  RaportProblemow& raport;
  Uwagi& uwagi;
  Liczniki& liczniki;

  // Whether a field of a contractor that exists already is to be written.
  bool Aktualizuje(int pole) const { return plik.NiesiePole(pole) && struktura.CzyOferowane(pole); }
};
