#include "platform/baza/dialekt.h"

namespace {
class Sqlite final : public Dialekt {
 public:
  QString Nazwa() const override { return QStringLiteral("SQLite"); }
  // An insert with a returning clause takes half as long again as the two statements.
  std::string OstatnieAutoId() const override { return "select last_insert_rowid()"; }
  std::string Pierwsze(int ile, const std::string& select) const override {
    return select + " limit " + std::to_string(ile);
  }
  std::string TypAutoKlucz() const override { return "integer primary key autoincrement"; }
  std::string TypCalkowity() const override { return "integer"; }
  std::string TypDziesietny() const override { return "real"; }
  std::string TypTekst(int /*znakow*/) const override { return "text"; }
  std::string TypCzas() const override { return "text"; }
  // Row by row: SQLite knows no other.
  std::vector<std::string> Wyzwalacz(const std::string& nazwa, const std::string& tabela,
                                     const std::string& klucz, std::string polecenie) const override {
    return {"create trigger " + nazwa + " after insert on " + tabela + " begin " +
            Zamien(std::move(polecenie), "{nowe}", "(select new." + klucz + " as " + klucz + ")") + "; end"};
  }
  std::string ListaTabel() const override {
    return "select name from sqlite_master where type = 'table' and name not like 'sqlite%' order by name";
  }
  std::string KolumnyBazy() const override {
    return "select M.name, P.name, P.type, 0 from sqlite_master M, pragma_table_info(M.name) P"
           " where M.type = 'table' order by M.name, P.cid";
  }
  std::string WyzwalaczeBazy() const override {
    return "select tbl_name, name from sqlite_master where type = 'trigger'";
  }
  // The automatic key is the table itself.
  std::string IndeksyBazy() const override {
    return "select M.name, I.name from sqlite_master M, pragma_index_list(M.name) L, "
           "pragma_index_info(L.name) I"
           " where M.type = 'table' and I.seqno = 0 union all select M.name, P.name from sqlite_master M,"
           " pragma_table_info(M.name) P where M.type = 'table' and P.pk = 1";
  }
};
}  // namespace

const Dialekt& DialektSqlite() {
  static const Sqlite dialekt;
  return dialekt;
}
