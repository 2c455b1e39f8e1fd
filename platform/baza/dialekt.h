#pragma once

#include <string>

#include <QString>

// What differs between the families of database servers. Statement texts stand elsewhere, once, in the common
// form; a dialect changes only what it must.
class Dialekt {
 public:
  virtual ~Dialekt() = default;

  virtual QString Nazwa() const = 0;
  // The statement that returns the automatic key of the last insert.
  virtual std::string OstatnieAutoId() const = 0;
  // False where a server knows only the old outer join "*=" in the where clause.
  virtual bool ZnaOuterJoin() const { return true; }
  // Limits a select to its first rows; `select` begins with "select ".
  virtual std::string Pierwsze(int ile, const std::string& select) const = 0;

  // Column types of the schema.
  virtual std::string TypAutoKlucz() const = 0;  // an automatic integer primary key, "primary key" included
  virtual std::string TypCalkowity() const = 0;
  virtual std::string TypDziesietny() const = 0;
  virtual std::string TypTekst() const = 0;  // unbounded
  virtual std::string TypCzas() const = 0;
};

const Dialekt& DialektSqlite();
