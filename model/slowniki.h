#pragma once

#include <vector>

#include <QHash>
#include <QString>

#include "model/element.h"
#include "model/lista_elementow.h"

// What tells one dictionary of named entries from another.
struct OpisSlownika {
  const char* tabela;
  std::span<const OpisPola> pola;  // key column, Nazwa, then the entry's own columns
  int bladBrakuNazwy;
  int bladZajetejNazwy;
  int tabelaDziennika;
};

// An entry of a dictionary with a name. Saving refuses an empty name (trimmed) and a name that another entry
// spells the same way, with the dictionary's own codes, and one longer than its column (2040); it writes a
// line of the change log.
class TDmVLTWpisSlownika : public TDmVLTElement {
 public:
  TDmVLTWpisSlownika(KontekstSesji& context, const OpisSlownika& opis);

  QString Nazwa() const;
  void UstawNazwe(const QString& nazwa);

 protected:
  const char* IdFieldName() const override { return m_opis.pola[0].nazwa; }
  void SetLoadParams(int id) override;
  int InsertRecord() override;
  void UpdateRecord(int id) override;
  // Further refusals of the entry's class.
  virtual void Sprawdz() const {}
  // Rows of the entry in other tables, written after its own.
  virtual void ZapiszSzczegoly(int /*id*/) {}

 private:
  void SprawdzNazwe(int wlasneId) const;
  void PoprawWiersz(int id);
  std::vector<Parametr> Wartosci() const;

  const OpisSlownika& m_opis;
};

// A dictionary in memory, by identifier unless its class says otherwise. An entry is found by its name
// without regard to case (all letters of Unicode in one way); of entries that differ in case only, the first
// one. New and changed entries are taken in place, nothing is read again.
class TDmVLTListaSlownika : public TDmVLTListaElementow {
 public:
  // `porzadek`: columns of the order by; by identifier without it.
  TDmVLTListaSlownika(KontekstSesji& context, const OpisSlownika& opis, const char* porzadek = nullptr);

  // Identifier of the first entry with the name; -1 when there is none.
  int ZnajdzNazwe(const QString& nazwa);
  // Name of an entry; null when the list does not hold it.
  QString Nazwa(int id);
  // Takes over an entry that has been saved: a new row at the end, or the changed columns of its row.
  void Przyjmij(const TDmVLTWpisSlownika& wpis);

 protected:
  void ClearDetails() override;
  void FillRowFromElement(const TDmVLTElement& element) override;

 private:
  void UzupelnijNazwy();

  QHash<QString, int> m_nazwy;  // case-folded name -> identifier of the first entry
  int m_zindeksowane = 0;
};

// Assortments: 2833 no name, 2834 name used.
class TDmVLTAsortyment final : public TDmVLTWpisSlownika {
 public:
  explicit TDmVLTAsortyment(KontekstSesji& context);
};
class TDmVLTListaAsortymentow final : public TDmVLTListaSlownika {
 public:
  explicit TDmVLTListaAsortymentow(KontekstSesji& context);

 protected:
  std::unique_ptr<TDmVLTElement> CreateElement() override;
};

// Units of measure: 2837 no name, 2838 name used.
class TDmVLTJednostka final : public TDmVLTWpisSlownika {
 public:
  explicit TDmVLTJednostka(KontekstSesji& context);

  int Precyzja() const;
  // Number of decimals, clamped to 0..3.
  void UstawPrecyzje(int precyzja);

 protected:
  void AfterLoad(bool isNew, int id) override;
};
class TDmVLTListaJednostek final : public TDmVLTListaSlownika {
 public:
  explicit TDmVLTListaJednostek(KontekstSesji& context);

  int Precyzja(int id);

 protected:
  std::unique_ptr<TDmVLTElement> CreateElement() override;
};
