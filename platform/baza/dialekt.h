#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <QString>

#include "platform/baza/blad_bazy.h"

// A sequence of automatic keys, as Dialekt::StanAutoKlucza answers.
enum class StanAutoKlucza {
  Dobry,
  Brak,          // the column has none
  BezPrawa,      // this user may not take keys from it
  WTyleZaTabela  // it would hand out keys that are taken
};

// What differs between the families of database servers. Statement texts stand elsewhere, once, in the common
// form; a dialect changes only what it must.
class Dialekt {
 public:
  virtual ~Dialekt() = default;

  virtual QString Nazwa() const = 0;
  // A statement of the common form in the words of the server: its clock for getdate(), the place of a row
  // for rowid (rows in the order of their writing), quotes around the column names that it reserves.
  virtual std::string Przeloz(std::string_view sql) const { return std::string(sql); }
  // An insert as a statement that returns the automatic key of its one row. Empty where the key is asked for
  // afterwards, by the select below.
  virtual std::string InsertZKluczem(const std::string& /*insert*/, const std::string& /*klucz*/) const {
    return {};
  }
  virtual std::string OstatnieAutoId() const { return {}; }
  // False where a server knows only the old outer join "*=" in the where clause.
  virtual bool ZnaOuterJoin() const { return true; }
  // Limits a select to its first rows; `select` begins with "select ".
  virtual std::string Pierwsze(int ile, const std::string& select) const = 0;

  // Savepoints of a transaction; an empty text: there is nothing to do.
  virtual std::string UstawPunkt(int poziom) const { return "savepoint p" + std::to_string(poziom); }
  virtual std::string ZwolnijPunkt(int poziom) const { return "release p" + std::to_string(poziom); }
  virtual std::string WycofDoPunktu(int poziom) const { return "rollback to p" + std::to_string(poziom); }

  // Servers: the statements that make a new connection behave as the program expects.
  virtual std::vector<std::string> UstawieniaSesji(int /*limitBlokadySekund*/) const { return {}; }
  virtual std::string NazwaBazy() const { return {}; }  // a select
  // Servers: a select of the number that a transaction keeps from its start to its end.
  virtual std::string NumerTransakcji() const { return {}; }
  // Servers: the statement that makes a transaction just begun read from one moment of the database, that of
  // its first select, and the one that follows its end where the first outlives it. Embedded databases read
  // so by themselves.
  virtual std::string OdczytJednejChwili() const { return {}; }
  virtual std::string PoOdczycieChwili() const { return {}; }
  // Servers that are worth writing to by many rows at a time: a select of the next automatic keys of a table,
  // one a row. Empty: every row is written alone and its key asked for afterwards.
  virtual std::string NoweKlucze(const std::string& /*tabela*/, const std::string& /*klucz*/,
                                 int /*ile*/) const {
    return {};
  }
  // Servers: the select with the rows of that table (its name and its alias in the text) locked until the
  // transaction ends. Empty where a write transaction keeps everybody else from writing.
  virtual std::string ZBlokadaWierszy(const std::string& /*select*/, const std::string& /*tabela*/,
                                      const std::string& /*alias*/) const {
    return {};
  }
  // Servers that can tell what others have written: a select of a mark of the present moment, and a condition
  // that holds for the rows written since the mark :Od. Empty where nobody can.
  virtual std::string ZnacznikChwili() const { return {}; }
  virtual std::string ZapisaneOd() const { return {}; }
  // Servers: a select that returns when this transaction alone, of all importing programs, may write, and
  // holds that right until the transaction ends.
  virtual std::string BlokadaImportu() const { return {}; }

  // Column types of the schema.
  virtual std::string TypAutoKlucz() const = 0;  // an automatic integer primary key, "primary key" included
  virtual std::string TypCalkowity() const = 0;
  virtual std::string TypDziesietny() const = 0;
  // A text of at most so many characters, compared and ordered by their codes. Only embedded databases take
  // longer ones.
  virtual std::string TypTekst(int znakow) const = 0;
  virtual std::string TypCzas() const = 0;
  // The statements that make a trigger: after an insert into the table `polecenie` runs, in which {nowe}
  // stands for the new rows' `klucz` column.
  virtual std::vector<std::string> Wyzwalacz(const std::string& nazwa, const std::string& tabela,
                                             const std::string& klucz, std::string polecenie) const = 0;
  // After rows with identifiers of their own: the statement that makes the automatic ones go on behind them.
  // Empty where they do so by themselves.
  virtual std::string WyrownajAutoKlucz(const std::string& /*tabela*/, const std::string& /*klucz*/) const {
    return {};
  }

  // What is in the program's part of the database, as selects. Tables: their names.
  virtual std::string ListaTabel() const = 0;
  // Columns: table, column, type, length of a bounded text (otherwise 0); in the order of the table.
  virtual std::string KolumnyBazy() const = 0;
  // Indexes: table, first column.
  virtual std::string IndeksyBazy() const = 0;
  // Triggers that are switched on: table, name.
  virtual std::string WyzwalaczeBazy() const = 0;
  // Where automatic keys come from a sequence: what is wrong with it (StanAutoKlucza). Empty elsewhere.
  virtual std::string StanAutoKlucza(const std::string& /*tabela*/, const std::string& /*klucz*/) const {
    return {};
  }
  // The encoding of texts; empty where they are always Unicode.
  virtual std::string KodowanieBazy() const { return {}; }

  // What an error number of the server means; nothing where the standard's state tells enough.
  virtual std::optional<RodzajBleduBazy> RodzajBledu(long /*numer*/) const { return std::nullopt; }
  // True where texts must be handed over in the server's national kind, or letters would be lost.
  virtual bool TekstyNarodowe() const { return false; }

 protected:
  // `tekst` with every `co` in it replaced.
  static std::string Zamien(std::string tekst, std::string_view co, std::string_view na);
  // The same with words (a pair of brackets behind one belongs to it) outside of quotes; ":Do" is no word.
  struct Slowo {
    std::string_view nasze, tutejsze;
  };
  static std::string ZamienSlowa(std::string_view sql, std::span<const Slowo> slowa);
};

const Dialekt& DialektSqlite();
const Dialekt& DialektPostgresql();
const Dialekt& DialektTsql(bool znaOuterJoin = true);
