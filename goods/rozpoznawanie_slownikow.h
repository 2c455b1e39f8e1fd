#pragma once

#include <vector>

#include <QHash>
#include <QString>

#include "goods/bloki.h"
#include "model/kody_wazone.h"
#include "model/stawki_vat.h"

class Liczniki;
class RaportProblemow;
struct KontekstSesji;
struct OpcjeImportuTowarow;

// Entries of one dictionary by name, whatever the letter case; the first of several equal names answers.
class IndeksNazw {
 public:
  void Wyczysc() { *this = {}; }
  void Dodaj(int id, const QString& nazwa);
  // The name changes its letter case only.
  void ZmienPisownie(int id, const QString& nazwa) { m_nazwy[id] = nazwa; }
  // -1 when there is none.
  int Id(const QString& nazwa) const { return m_id.value(nazwa.toCaseFolded(), -1); }
  // Null when there is none.
  QString Nazwa(int id) const { return m_nazwy.value(id); }
  int Ilosc() const { return static_cast<int>(m_nazwy.size()); }

 private:
  QHash<QString, int> m_id;
  QHash<int, QString> m_nazwy;
};

// Turns the names a goods record carries into identifiers of dictionary entries. A missing entry is added
// when the option for it is on, as a unit of its own, and counted; otherwise the problem is reported and
// counted as a skip. Memory follows the database: an entry is known here only after it was stored. Names are
// compared trimmed and without regard to case.
class RozpoznawanieSlownikow {
 public:
  // `formaty`: the weighted formats that the code rules of the run look at; kept in step with the dictionary.
  RozpoznawanieSlownikow(KontekstSesji& sesja, const OpcjeImportuTowarow& opcje, RaportProblemow& raport,
                         Liczniki& liczniki, FormatyKodowWazonych& formaty);

  // Reads all dictionaries: at the beginning of the run and whenever somebody else has written.
  void Wczytaj();

  // `biezace` is the identifier the good has now, 0 or -1 for none. An assortment or unit whose letter case
  // differs from the file's is renamed. -1 for an empty name or when there is no entry and none is added.
  int Asortyment(const QString& nazwa, int biezacy);
  int Jednostka(const QString& nazwa, int biezaca);
  int Kategoria(const QString& nazwa, int biezaca);

  // The rate in hundredths of a percent, -1 exempt.
  bool Stawka(int stawka);
  // The format of a mask such as "27123???????C".
  bool FormatKodu(const QString& maska);

  // The parameter of a category that a file's value belongs to; -1 when refused. A list parameter found in
  // the database keeps its values, a new one gets those of the file.
  int Parametr(int katId, const ParametrZBloku& parametr);
  struct ParametrKategorii {
    int id;
    QString nazwa;
    ParametrZBloku::Typ typ;
    std::vector<QString> wartosci;  // of a list
  };
  // In the category's order.
  const std::vector<ParametrKategorii>& ParametryKategorii(int katId);

 private:
  // What differs between the dictionaries that are resolved by name.
  struct Rodzaj;
  int Rozpoznaj(const Rodzaj& rodzaj, const QString& nazwa, int biezace);
  int DodajWpis(const Rodzaj& rodzaj, const QString& nazwa);
  void Przemianuj(const Rodzaj& rodzaj, int id, const QString& nazwa);

  KontekstSesji& m_sesja;
  const OpcjeImportuTowarow& m_opcje;
  RaportProblemow& m_raport;
  Liczniki& m_liczniki;
  FormatyKodowWazonych& m_formaty;

  IndeksNazw m_asortymenty;
  IndeksNazw m_jednostki;
  IndeksNazw m_kategorie;
  TVLTStawkiVat m_stawki;
  int m_iloscFormatow = 0;
  QHash<int, std::vector<ParametrKategorii>> m_parametry;  // by category, read when first asked for
};
