#include "platform/baza/dialekt.h"

namespace {

// The family of the original servers. getdate() is its own word.
class Tsql final : public Dialekt {
 public:
  QString Nazwa() const override { return QStringLiteral("T-SQL"); }
  std::string Przeloz(std::string_view sql) const override {
    return Zamien(std::string(sql), "rowid", "%%physloc%%");
  }
  // scope_identity() would not see an insert of an earlier prepared statement.
  std::string OstatnieAutoId() const override { return "select @@identity"; }
  std::string Pierwsze(int ile, const std::string& select) const override {
    constexpr std::string_view kSelect = "select ";
    return "select top " + std::to_string(ile) + " " + select.substr(kSelect.size());
  }

  std::string UstawPunkt(int poziom) const override { return "save transaction p" + std::to_string(poziom); }
  std::string ZwolnijPunkt(int /*poziom*/) const override { return {}; }
  std::string WycofDoPunktu(int poziom) const override {
    return "rollback transaction p" + std::to_string(poziom);
  }

  std::vector<std::string> UstawieniaSesji(int limitBlokadySekund) const override {
    return {"set transaction isolation level read committed", "set xact_abort off",
            "set lock_timeout " + std::to_string(limitBlokadySekund * 1000)};
  }
  std::string NazwaBazy() const override { return "select db_name()"; }
  // A transaction that the server has ended by itself counts 0.
  std::string NumerTransakcji() const override { return "select @@trancount"; }
  std::string BlokadaImportu() const override {
    return "declare @w int exec @w = sp_getapplock 'zorvik', 'Exclusive', 'Transaction' select @w";
  }

  std::string ZBlokadaWierszy(const std::string& select, const std::string& tabela,
                              const std::string& alias) const override {
    const std::string zrodlo = tabela + ' ' + alias;
    return Zamien(select, zrodlo, zrodlo + " with (updlock)");
  }

  std::string TypAutoKlucz() const override { return "int identity primary key"; }
  std::string TypCalkowity() const override { return "int"; }
  std::string TypDziesietny() const override { return "float"; }
  std::string TypTekst(int znakow) const override {
    constexpr int kNajwiecej = 4000;
    return znakow > kNajwiecej ? "nvarchar(max)" : "nvarchar(" + std::to_string(znakow) + ")";
  }
  std::string TypCzas() const override { return "datetime"; }
  std::vector<std::string> Wyzwalacz(const std::string& nazwa, const std::string& tabela,
                                     const std::string& /*klucz*/, std::string polecenie) const override {
    return {"create trigger " + nazwa + " on " + tabela + " after insert as " +
            Zamien(std::move(polecenie), "{nowe}", "inserted")};
  }
  std::string ListaTabel() const override {
    return "select table_name from information_schema.tables where table_type = 'BASE TABLE' order by 1";
  }
  std::string KolumnyBazy() const override {
    return "select table_name, column_name, data_type, isnull(character_maximum_length, 0)"
           " from information_schema.columns order by table_name, ordinal_position";
  }
  std::string IndeksyBazy() const override {
    return "select object_name(C.object_id), col_name(C.object_id, C.column_id) from sys.index_columns C"
           " where C.key_ordinal = 1";
  }
};

}  // namespace

const Dialekt& DialektTsql() {
  static const Tsql dialekt;
  return dialekt;
}
