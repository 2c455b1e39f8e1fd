#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <span>
#include <unordered_map>

#include "platform/baza/zapytanie.h"

class TDmVLTElement;
struct KontekstSesji;

// Base of every list of records: a result set with a cursor. Closed until Otworz; reopening repeats the whole
// parameter step. 2003 for an index outside the list.
class TDmVLTListaElementow {
 public:
  TDmVLTListaElementow(KontekstSesji& context, std::span<const OpisPola> pola, const char* poleId);
  virtual ~TDmVLTListaElementow();
  TDmVLTListaElementow(const TDmVLTListaElementow&) = delete;
  TDmVLTListaElementow& operator=(const TDmVLTListaElementow&) = delete;

  void Otworz();
  int Ilosc() const;
  void UstawPozycje(int index);
  // -1 when the list is closed or empty.
  int Pozycja() const;
  // -1 when the current row has no identifier or there is none.
  int IdBiezacego() const;
  // Moves to the row with that identifier. When none has it, the cursor is left on the last row.
  bool Znajdz(int id);
  // Adds the row of a record that is stored already; the new row stays current.
  void DodajElement(int id);

  // When set, replaces the list's own parameters on every open.
  std::function<void(TKMQuery&)> OnSetParams;
  TKMQuery Query;

 protected:
  virtual void ClearDetails() {}
  virtual void SetDefaultParams() {}
  virtual void FillRowFromElement(const TDmVLTElement& element) = 0;
  virtual void AfterOpen(bool /*flag*/) {}
  virtual std::unique_ptr<TDmVLTElement> CreateElement() = 0;

  const TMField& IdField() const { return Query.Field(m_indeksId); }

  KontekstSesji& Context;
  int SklepId = -1;
  int KopiaId = -1;
  // For subclasses; the base only initialises them.
  QString Ustawienie1;
  QString Ustawienie2;
  bool Flaga = true;

 private:
  void UzupelnijIndeks();

  std::size_t m_indeksId;
  // Identifier -> first row that has it: a walk over the rows at every search would make long lists
  // quadratic.
  std::unordered_map<long long, int> m_pierwszeZId;
  int m_zindeksowane = 0;
};
