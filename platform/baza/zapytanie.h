#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/baza/wartosc.h"

class TVLTBazaDanych;

struct OpisPola {
  const char* nazwa;
  TypPola typ;
};

// One named column of a dataset's current row. The value before the first change is kept until the changes
// are accepted or the row is read again.
class TMField {
 public:
  explicit TMField(const OpisPola& opis) : m_opis(&opis), m_wartosc(opis.typ) {}

  const char* FieldName() const { return m_opis->nazwa; }
  const Wartosc& Value() const { return m_wartosc; }
  bool IsNull() const { return m_wartosc.IsNull(); }
  long long AsInteger() const { return m_wartosc.AsInteger(); }
  double AsFloat() const { return m_wartosc.AsFloat(); }
  QString AsString() const { return m_wartosc.AsString(); }

  void SetInteger(long long wartosc);
  void SetFloat(double wartosc);
  void SetString(const QString& wartosc);
  void Clear();

  bool Zmienione() const;
  // The value as read; the current one when nothing was changed.
  const Wartosc& OldValue() const { return m_zmienione ? *m_stara : m_wartosc; }

 private:
  friend class TMCustomDataSet;
  friend class TKMQuery;
  void Przyjmij(Wartosc nowa);
  void Wczytaj(const Wartosc& wartosc);
  void Odswiez(const Wartosc& wartosc);
  void Oproznij();

  const OpisPola* m_opis;
  Wartosc m_wartosc;
  // The old value's place stays for the next row.
  std::unique_ptr<Wartosc> m_stara;
  bool m_zmienione = false;
};

// A dataset: a select with declared columns, its rows in memory and a cursor. Call order: PowiazQuery on the
// session (which calls Powiaz), SetSql, SetParam..., Open, then moves and fields. Texts and parameters may be
// changed only while it is closed. Not a live view: Open reads everything and leaves no statement busy.
class TMCustomDataSet {
 public:
  // The descriptions must outlive the dataset (they are static tables of the record classes).
  explicit TMCustomDataSet(std::span<const OpisPola> pola);
  virtual ~TMCustomDataSet() = default;
  TMCustomDataSet(const TMCustomDataSet&) = delete;
  TMCustomDataSet& operator=(const TMCustomDataSet&) = delete;

  bool Active() const { return m_aktywny; }
  bool IsEmpty() const { return m_wiersze.empty(); }
  int RecordCount() const { return static_cast<int>(m_wiersze.size()); }
  // Index of the current row, -1 when there is none.
  int RecNo() const { return m_biezacy; }
  // Moves to a row that exists.
  void MoveTo(int indeks);
  // Adds an empty row at the end and makes it current.
  void Append();

  std::size_t FieldCount() const { return m_opisy.size(); }
  // Columns are known by the position in their table or by name; an unknown name throws std::out_of_range.
  TMField& Field(std::size_t indeks) { return m_wiersze[static_cast<std::size_t>(m_biezacy)][indeks]; }
  const TMField& Field(std::size_t indeks) const {
    return m_wiersze[static_cast<std::size_t>(m_biezacy)][indeks];
  }
  TMField& FieldByName(std::string_view nazwa) { return Field(IndexOf(nazwa)); }
  const TMField& FieldByName(std::string_view nazwa) const { return Field(IndexOf(nazwa)); }
  std::size_t IndexOf(std::string_view nazwa) const;

 protected:
  std::span<const OpisPola> m_opisy;
  std::vector<std::vector<TMField>> m_wiersze;
  // The first row of the last reading, used again: one record object holds one row after another.
  std::vector<TMField> m_wolny;
  int m_biezacy = -1;
  bool m_aktywny = false;
  bool m_zmianyWierszy = false;
};

class TKMQuery final : public TMCustomDataSet {
 public:
  using TMCustomDataSet::TMCustomDataSet;

  void Powiaz(TVLTBazaDanych& baza) { m_baza = &baza; }
  TVLTBazaDanych* Baza() const { return m_baza; }
  void SetSql(std::string sql) { m_sql = std::move(sql); }
  const std::string& Sql() const { return m_sql; }
  void SetParam(const char* nazwa, Wartosc wartosc);
  // With open-empty on, Open gives an empty dataset without asking the database.
  void SetOpenEmpty(bool pusty) { m_otwierajPusty = pusty; }
  // Open reads the first row only: for selects by a key, which have no other.
  void SetTylkoPierwszy(bool tylko) { m_tylkoPierwszy = tylko; }
  // Throws EBladBazy of kind Polaczenie when the dataset is not bound; after any failure it is closed.
  void Open();
  // Opens with one row that was read already.
  void OpenZ(std::span<const Wartosc> wiersz);
  void Close();
  // The current row as it was read again, of its first fields: those that were not changed take the new
  // values, the others keep theirs as a change of them.
  void Odswiez(std::span<const Wartosc> wartosci);
  void Odswiez(std::size_t indeks, const Wartosc& wartosc) { Field(indeks).Odswiez(wartosc); }
  // The same for the first `kolumn` fields by `select`, which has the same columns and parameters. False when
  // the row is gone.
  bool OdswiezZ(const std::string& select, std::size_t kolumn);

  // Gives the current row these values as if they had been read: how a new record starts.
  void UstawWiersz(std::span<const Wartosc> wartosci);
  // True when a field was changed, or a row added, since Open or the last ZatwierdzZmiany.
  bool GetUpdatesPending() const;
  // The rows as they are now become the rows as read: called after they were written.
  void ZatwierdzZmiany();
  // The same where nothing but the current row was changed or added: long lists grow by many rows one by one.
  void ZatwierdzWiersz();

 private:
  void CzytajWiersze();
  std::span<const TypPola> Typy();

  TVLTBazaDanych* m_baza = nullptr;
  std::string m_sql;
  std::vector<Parametr> m_parametry;
  std::vector<TypPola> m_typy;
  bool m_otwierajPusty = false;
  bool m_tylkoPierwszy = false;
};
