#include "platform/baza/dialekt_tsql.h"

#include <algorithm>

namespace {

// A row lies on a page, at a place: two numbers whose bytes are told the lowest first.
constexpr std::string_view kMiejsceWiersza =
    "substring(%%physloc%%, 4, 1) + substring(%%physloc%%, 3, 1) + substring(%%physloc%%, 2, 1)"
    " + substring(%%physloc%%, 1, 1) + substring(%%physloc%%, 8, 1) + substring(%%physloc%%, 7, 1)";

// A quoted text is one of the database's code page unless an N stands before it.
std::string ZNarodowymiTekstami(const std::string& sql) {
  std::string wynik;
  bool wCudzyslowie = false;
  std::size_t poczatek = 0;  // of the quoted text in the result
  for (const char znak : sql) {
    // A quote inside is written twice: it ends the text and begins it anew at the same place.
    if (znak == '\'' && !wCudzyslowie && !wynik.ends_with('\'')) poczatek = wynik.size();
    if (znak == '\'') wCudzyslowie = !wCudzyslowie;
    const bool obcy = static_cast<unsigned char>(znak) >= 0x80;
    if (obcy && wCudzyslowie && (poczatek == 0 || wynik[poczatek - 1] != 'N'))
      wynik.insert(poczatek++, 1, 'N');
    wynik += znak;
  }
  return wynik;
}

struct NumerBledu {
  long numer;
  RodzajBleduBazy rodzaj;
};
constexpr NumerBledu kBledy[] = {
    {229, RodzajBleduBazy::Uprawnienia},  // the object
    {230, RodzajBleduBazy::Uprawnienia},  // the column
    {262, RodzajBleduBazy::Uprawnienia},  // the database
    {823, RodzajBleduBazy::Wejscie},      {824, RodzajBleduBazy::Wejscie},
    {1101, RodzajBleduBazy::PelnyDysk},   {1105, RodzajBleduBazy::PelnyDysk},
    {9002, RodzajBleduBazy::PelnyDysk},  // the log
    {1205, RodzajBleduBazy::Kolizja},     {1222, RodzajBleduBazy::Blokada},
    {50000, RodzajBleduBazy::Blokada},  // raised by BlokadaImportu
    {3906, RodzajBleduBazy::TylkoOdczyt},
};

}  // namespace

const char* Tsql::ProbaOuterJoin() {
  return "select count(*) from (select 1 as A) X left outer join (select 1 as A) Y on (X.A = Y.A)";
}

std::string Tsql::Przeloz(std::string_view sql) const {
  static constexpr Slowo kSlowa[] = {{"rowid", kMiejsceWiersza}};
  return ZNarodowymiTekstami(ZamienSlowa(sql, kSlowa));
}

// In one batch, because scope_identity() sees its own batch alone; @@identity would tell of the triggers'
// rows. The count of the insert would be the first result.
std::string Tsql::InsertZKluczem(const std::string& insert, const std::string& /*klucz*/) const {
  return "set nocount on; " + insert + "; select cast(scope_identity() as int)";
}

std::string Tsql::Pierwsze(int ile, const std::string& select) const {
  constexpr std::string_view kSelect = "select ";
  return "select top " + std::to_string(ile) + " " + select.substr(kSelect.size());
}

std::string Tsql::UstawPunkt(int poziom) const {
  return "save transaction p" + std::to_string(poziom);
}
std::string Tsql::ZwolnijPunkt(int /*poziom*/) const {
  return {};
}
std::string Tsql::WycofDoPunktu(int poziom) const {
  return "rollback transaction p" + std::to_string(poziom);
}

// With xact_abort a refused value would take the whole transaction with it.
std::vector<std::string> Tsql::UstawieniaSesji(int limitBlokadySekund) const {
  return {"set transaction isolation level read committed", "set xact_abort off",
          "set lock_timeout " + std::to_string(limitBlokadySekund * 1000)};
}
std::string Tsql::NazwaBazy() const {
  return "select db_name()";
}
std::string Tsql::NumerTransakcji() const {
  return "select current_transaction_id()";
}
// Refused at the first select by a database that does not allow it. Any other level would hold the sale until
// the end of the read or mix several moments.
std::string Tsql::OdczytJednejChwili() const {
  return "set transaction isolation level snapshot";
}
std::string Tsql::PoOdczycieChwili() const {
  return "set transaction isolation level read committed";
}
// The driver lets a transaction begin with the first statement that reads a table, and the lock belongs to a
// transaction: so a table is read before. A lock that was not given is no error of its own.
std::string Tsql::BlokadaImportu() const {
  return "declare @blokada nvarchar(255), @wynik int; "
         "select @blokada = 'zorvik ' + schema_name(), @wynik = count(*) from sys.tables; "
         "exec @wynik = sp_getapplock @blokada, 'Exclusive', 'Transaction'; "
         "if @wynik < 0 raiserror ('Inny import do tej bazy trwa zbyt długo', 16, 1); "
         "select @wynik";
}

std::string Tsql::ZBlokadaWierszy(const std::string& select, const std::string& tabela,
                                  const std::string& alias) const {
  const std::string zrodlo = tabela + ' ' + alias;
  return Zamien(select, zrodlo, zrodlo + " with (updlock, rowlock)");
}

std::string Tsql::TypAutoKlucz() const {
  return "int identity primary key";
}
std::string Tsql::TypCalkowity() const {
  return "int";
}
std::string Tsql::TypDziesietny() const {
  return "float";
}
// By the codes of letters, whatever the order of the database. An index refuses keys of more than 1700 bytes:
// a text that does not fit is better refused by its column.
std::string Tsql::TypTekst(int znakow) const {
  constexpr int kNajwiecejWIndeksie = 850, kNajwiecej = 4000;
  const std::string dlugosc =
      znakow > kNajwiecej ? "max" : std::to_string(std::min(znakow, kNajwiecejWIndeksie));
  return "nvarchar(" + dlugosc + ") collate Latin1_General_BIN2";
}
std::string Tsql::TypCzas() const {
  return "datetime2(0)";
}

// Once for all rows of a statement. The count of the trigger's rows must not come before that of the insert.
std::vector<std::string> Tsql::Wyzwalacz(const std::string& nazwa, const std::string& tabela,
                                         const std::string& /*klucz*/, std::string polecenie) const {
  return {"create trigger " + nazwa + " on " + tabela + " after insert as set nocount on; " +
          Zamien(std::move(polecenie), "{nowe}", "inserted")};
}

std::string Tsql::ListaTabel() const {
  return "select table_name from information_schema.tables"
         " where table_schema = schema_name() and table_type = 'BASE TABLE' order by 1";
}
// There is no bounded type for the longest texts: nvarchar(max) counts as one of 2^30 - 1 characters.
std::string Tsql::KolumnyBazy() const {
  return "select table_name, column_name, data_type, case character_maximum_length"
         " when -1 then 1073741823 else isnull(character_maximum_length, 0) end"
         " from information_schema.columns where table_schema = schema_name()"
         " order by table_name, ordinal_position";
}
std::string Tsql::IndeksyBazy() const {
  return "select T.name, C.name from sys.index_columns I, sys.columns C, sys.tables T"
         " where I.key_ordinal = 1 and C.object_id = I.object_id and C.column_id = I.column_id"
         " and T.object_id = I.object_id and T.schema_id = schema_id()";
}

std::string Tsql::WyzwalaczeBazy() const {
  return "select T.name, W.name from sys.triggers W, sys.tables T"
         " where W.parent_id = T.object_id and W.is_disabled = 0 and T.schema_id = schema_id()";
}

std::optional<RodzajBleduBazy> Tsql::RodzajBledu(long numer) const {
  for (const NumerBledu& b : kBledy)
    if (b.numer == numer) return b.rodzaj;
  return std::nullopt;
}

const Dialekt& DialektTsql(bool znaOuterJoin) {
  static const Tsql nowy(true), stary(false);
  return znaOuterJoin ? nowy : stary;
}
