#include "platform/baza/dialekt.h"

namespace {
class Sqlite final : public Dialekt {
 public:
  QString Nazwa() const override { return QStringLiteral("SQLite"); }
  std::string OstatnieAutoId() const override { return "select last_insert_rowid()"; }
  std::string Pierwsze(int ile, const std::string& select) const override {
    return select + " limit " + std::to_string(ile);
  }
  std::string TypAutoKlucz() const override { return "integer primary key autoincrement"; }
  std::string TypCalkowity() const override { return "integer"; }
  std::string TypDziesietny() const override { return "real"; }
  std::string TypTekst() const override { return "text"; }
  std::string TypCzas() const override { return "text"; }
};
}  // namespace

const Dialekt& DialektSqlite() {
  static const Sqlite dialekt;
  return dialekt;
}
