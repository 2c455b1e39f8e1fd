#pragma once

#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <QHash>
#include <QString>

#include "goods/bloki.h"
#include "model/kategorie.h"
#include "model/kody_wazone.h"
#include "model/slowniki.h"
#include "model/stawki_vat.h"

class Liczniki;
class RaportProblemow;
struct KontekstSesji;
struct OpcjeImportuTowarow;

// Turns the names a goods record carries into identifiers of dictionary entries. A missing entry is added
// when the option for it is on, as a unit of its own, and counted; otherwise the problem is reported and
// counted as a skip. Memory follows the database: an entry is known here only after it was stored. Names are
// compared trimmed and without regard to case.
class RozpoznawanieSlownikow {
 public:
  // `formaty`: the weighted formats that the code rules of the run look at; kept in step with the dictionary.
  RozpoznawanieSlownikow(KontekstSesji& sesja, const OpcjeImportuTowarow& opcje, RaportProblemow& raport,
                         Liczniki& liczniki, FormatyKodowWazonych& formaty);

  // Reads all dictionaries: in the first batch of the run and whenever somebody else has written.
  void Wczytaj();

  // The dictionaries themselves, as they stand in the transaction at hand.
  TDmVLTListaSlownika& Asortymenty() { return m_asortymenty; }
  TDmVLTListaSlownika& Jednostki() { return m_jednostki; }
  TDmVLTListaKategorii& Kategorie() { return m_kategorie; }

  // `biezacy` is the identifier the good has now, 0 or -1 for none. An assortment or unit whose letter case
  // differs from the file's is renamed. -1 for an empty name, when there is no entry and none is added
  // (reported), or when the database refused the new entry (not reported).
  int Asortyment(const QString& nazwa, int biezacy);
  int Jednostka(const QString& nazwa, int biezacy);
  int Kategoria(const QString& nazwa, int biezacy);

  // Whether a rate may be used: hundredths of a percent, -1 exempt.
  bool Stawka(int stawka);
  // Whether the format of a mask such as "27123????????" may be used.
  bool FormatKodu(const QString& maska);

  // The parameter of a category that a value of the file belongs to, and the value as a good stores it: of a
  // list the position from 0, of a range the number. Nothing when refused (reported).
  std::optional<std::pair<int, double>> Parametr(int katId, const ParametrZBloku& parametr);
  // Identifiers in the category's order; a good of the category has a value for each of them.
  const std::vector<int>& ParametryKategorii(int katId) const { return m_kategorie.Parametry(katId); }

 private:
  struct Rodzaj;
  static const Rodzaj kAsortyment, kJednostka, kKategoria;

  int Rozpoznaj(const Rodzaj& rodzaj, TDmVLTListaSlownika& lista, const QString& nazwa, int biezacy);
  int DodajWpis(const Rodzaj& rodzaj, TDmVLTListaSlownika& lista, const QString& nazwa);
  void Przemianuj(const Rodzaj& rodzaj, TDmVLTListaSlownika& lista, int id, const QString& nazwa);
  bool DodajFormat(FormatKoduWazonego format);
  int ParametrWKategorii(int katId, const QString& nazwa);
  // Into the names of the category met last.
  void PrzyjmijParametr(int parId);
  int DodajParametr(int katId, const QString& nazwa, const ParametrZBloku& parametr);

  KontekstSesji& m_sesja;
  const OpcjeImportuTowarow& m_opcje;
  RaportProblemow& m_raport;
  Liczniki& m_liczniki;
  FormatyKodowWazonych& m_formaty;

  TDmVLTListaAsortymentow m_asortymenty;
  TDmVLTListaJednostek m_jednostki;
  TDmVLTListaKategorii m_kategorie;
  TDmVLTListaParametrow m_parametry;
  TVLTStawkiVat m_stawki;
  int m_iloscFormatow = 0;
  // Of the category met last: a block of thousands of parameters neither looks through them all for each one
  // nor reads the category anew for each one it adds.
  struct KategoriaWReku {
    int katId = -1;
    QHash<QString, int> parametry;          // case-folded name -> identifier of the first one
    std::unique_ptr<TDmVLTKategoria> wpis;  // null until a parameter is added
  };
  KategoriaWReku m_kategoria;
};
