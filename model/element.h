#pragma once

#include <memory>
#include <optional>
#include <span>

#include "platform/baza/zapytanie.h"

class TFmVLTFormularzElementu;
struct KontekstSesji;

// Base of every record of the retail database: one row of Query and one life cycle.
// New (key column null, after Nowy) -> stored (after Wczytaj or a successful Zapisz); a shop copy (after
// WczytajKopie without asNew) is read-only. Used by the thread that owns the database session. Errors:
// EVLTWDError as named at each operation, EBladBazy for the database itself.
class TDmVLTElement {
 public:
  TDmVLTElement(KontekstSesji& context, std::span<const OpisPola> pola);
  virtual ~TDmVLTElement();
  TDmVLTElement(const TDmVLTElement&) = delete;
  TDmVLTElement& operator=(const TDmVLTElement&) = delete;

  void Nowy();
  // 2001 when there is no such record; the query is then open and empty.
  void Wczytaj(int id);
  // 2034 for identifiers that are no shop copy, 2031 when it is missing, 2032 where the record has no copies.
  void WczytajKopie(int sklepId, int kopiaId, bool asNew);
  // Writes the record and returns its identifier. Its own transaction when none is open, a savepoint
  // otherwise; a failure undoes the save alone and leaves a new record new. 2033 for a shop copy.
  int Zapisz();
  // -1 for a new record.
  int Id() const;
  bool CzyNowy() const;
  bool CzyZmieniony() const { return Query.GetUpdatesPending(); }
  // New, or not yet stored for a reason of the record class (ExtraUnsavedTest).
  bool CzyNiezapisany() const { return CzyNowy() || ExtraUnsavedTest(); }
  // Lets a person edit the record; false when declined or when nobody sits at a screen. Saves nothing. Not to
  // be called while a transaction is open: it would stay open for as long as the person thinks (a run asks
  // through its operator, who commits first).
  bool Edytuj();

  // The session that the record works in; for forms, which read its dictionaries.
  KontekstSesji& Sesja() const { return Context; }

  int SklepId() const { return m_sklepId; }
  int KopiaId() const { return m_kopiaId; }
  bool CzyKopia() const { return m_sklepId >= 0 && m_kopiaId >= 0; }

  TKMQuery Query;

 protected:
  // The operations a record class supplies.
  virtual std::unique_ptr<TFmVLTFormularzElementu> CreateEditor();
  virtual const char* IdFieldName() const = 0;
  virtual bool ExtraUnsavedTest() const { return false; }
  virtual void SetLoadParams(int id) = 0;
  // Table and alias of the row that a save writes over, in the record's select. The row is read again before
  // that, on a server under a lock: what the save does not change stays as others have left it meanwhile.
  struct ZrodloWiersza {
    const char* tabela;
    const char* alias;
    std::size_t kolumn;  // the first ones of the select are the table's own
  };
  virtual std::optional<ZrodloWiersza> BlokowanyWiersz() const { return std::nullopt; }
  // The same for what the save writes in other tables, after the record's own row was locked.
  virtual void PrzyjmijCudzeSzczegoly(int /*id*/) {}
  // Called before the unit of an update begins: the place for locks that are to outlive its undoing.
  virtual void PrzedJednostka() {}
  // The row where it was locked together with others; empty: it is locked alone.
  virtual std::span<const Wartosc> ZablokowanyWiersz(int /*id*/) const { return {}; }
  // The record's row where it was read ahead; empty: the query asks the database.
  virtual std::span<const Wartosc> OdczytanyWiersz(int /*id*/) const { return {}; }
  virtual void ClearDetails() {}
  virtual void AfterLoad(bool /*isNew*/, int /*id*/) {}
  virtual int InsertRecord() = 0;
  virtual void UpdateRecord(int id) = 0;
  // Records without copy support raise 2032 here.
  virtual void PrepareCopyQuery();
  virtual void AfterCopyLoad(bool /*asNew*/) {}
  // Called once the save's unit is committed or released, with the new identifier already in place: the
  // record's rows in memory become the rows as stored.
  virtual void AfterSave() {}

  KontekstSesji& Context;

 private:
  void PrzyjmijCudzeZmiany();
  TMField& PoleId();
  const TMField& PoleId() const;

  int m_sklepId = -1;
  int m_kopiaId = -1;
  // The write transaction in which the row was read or written last; 0: in none.
  long long m_znanyW = 0;
};
