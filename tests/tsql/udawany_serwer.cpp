#include "tests/tsql/udawany_serwer.h"

#include <algorithm>
#include <regex>

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

// The engine's own words to its file.
bool SlowaSilnika(std::string_view sql) {
  return sql.starts_with("pragma") || sql.starts_with("begin") || sql == "commit" || sql == "rollback" ||
         sql.find("sqlite_") != std::string_view::npos;
}

// from A a, B b where a.X *= b.X and ...: what is said of b belongs to the join, the rest chooses rows of a.
std::string ZJoinem(const std::string& sql) {
  static const std::regex stara(R"(from (\w+ \w+), (\w+) (\w+)\s+where ([^]*?)( order by [^]*)?$)");
  static const std::regex i(R"(\s+and\s+)"), gwiazdka(R"( \*= )");
  std::smatch m;
  if (!std::regex_search(sql, gwiazdka) || !std::regex_search(sql, m, stara)) return sql;
  const std::string warunki = m[4], alias = m[3].str() + '.';
  std::string on, where;
  for (std::sregex_token_iterator w(warunki.begin(), warunki.end(), i, -1), koniec; w != koniec; ++w) {
    const std::string warunek = *w;
    const bool zlaczenia = std::regex_search(warunek, gwiazdka) || warunek.starts_with(alias);
    std::string& gdzie = zlaczenia ? on : where;
    gdzie += (gdzie.empty() ? "" : " and ") + std::regex_replace(warunek, gwiazdka, " = ");
  }
  return m.prefix().str() + "from " + m[1].str() + " left outer join " + m[2].str() + ' ' + m[3].str() +
         " on " + on + (where.empty() ? "" : " where " + where) + m[5].str();
}

std::string NaSqlite(const std::string& tsql) {
  const Tsql jezyk(true);
  const Dialekt& sqlite = DialektSqlite();
  if (tsql == jezyk.ListaTabel()) return sqlite.ListaTabel();
  if (tsql == jezyk.KolumnyBazy()) return sqlite.KolumnyBazy();
  if (tsql == jezyk.IndeksyBazy()) return sqlite.IndeksyBazy();
  if (tsql == jezyk.WyzwalaczeBazy()) return sqlite.WyzwalaczeBazy();
  static const std::pair<std::regex, const char*> zamiany[] = {
      {std::regex("\\bN'"), "'"},
      {std::regex(R"(substring\(%%physloc%%.*%%physloc%%, 7, 1\))"), "rowid"},
      {std::regex("int identity primary key"), "integer primary key autoincrement"},
      {std::regex(R"(nvarchar\(\w+\) collate Latin1_General_BIN2)"), "text"},
      {std::regex(R"( with \(updlock, rowlock\))"), ""},
      {std::regex(R"(^select top (\d+) ([^]*))"), "select $2 limit $1"},
      {std::regex("^save transaction "), "savepoint "},
      {std::regex("^rollback transaction "), "rollback to "},
      {std::regex(R"(^set nocount on; ([^]*); select cast\(scope_identity\(\) as int\)$)"),
       "$1 returning rowid"},
      {std::regex(R"(^(create trigger \w+) (on \w+) after insert as set nocount on; ([^]*)$)"),
       "$1 after insert $2 begin $3; end"},
      {std::regex(R"((N\.(\w+)[^]*)inserted N)"), "$1(select new.$2 as $2) N"},
  };
  std::string wynik = tsql;
  for (const auto& [wzor, na] : zamiany) wynik = std::regex_replace(wynik, wzor, na);
  return ZJoinem(wynik);
}

// Clauses on lines of their own, a table's columns too; long lines go on in the next one. The lists of
// identifiers, all alike, are shortened.
QString WLiniach(const std::string& sql) {
  static const QRegularExpression kIdentyfikatory(u":Id1, .*?(?=:Id99)"_s);
  static const QRegularExpression kZakres(u"between (\\S+) and "_s);
  static const QStringList kPolecenia{u"select"_s, u"insert"_s, u"exec"_s, u"if"_s};
  static const QStringList kKlauzule{u"from"_s, u"where"_s,  u"and"_s, u"order"_s,
                                     u"left"_s, u"values"_s, u"set"_s};
  static const QStringList kJednymTchem{u"after"_s, u"delete"_s};
  constexpr int kSzerokosc = 100;
  const QChar nielamliwy(0xa0);
  const QStringList slowa = QString::fromStdString(sql)
                                .simplified()
                                .replace(kIdentyfikatory, u":Id1, /* ... */ "_s)
                                .replace(u" = "_s, nielamliwy + u"="_s + nielamliwy)
                                .replace(kZakres, u"between%1\\1%1and%1"_s.arg(nielamliwy))
                                .split(u' ');
  const bool tabela = sql.starts_with("create table");
  QString wynik, linia, poprzednie;
  qsizetype glebokosc = 0;
  for (const QString& slowo : slowa) {
    const bool razem = kJednymTchem.contains(poprzednie) || glebokosc > 0;
    const bool polecenie =
        !razem && (poprzednie.endsWith(u';') || poprzednie == u"as"_s || kPolecenia.contains(slowo));
    const bool kolumna = tabela && glebokosc == 1 && (poprzednie.endsWith(u',') || poprzednie == u"("_s);
    QString wciecie;
    if (!polecenie && !razem && kKlauzule.contains(slowo)) wciecie = u"  "_s;
    if (kolumna || linia.size() + slowo.size() > kSzerokosc) wciecie = u"    "_s;
    if (!poprzednie.isEmpty() && (polecenie || !wciecie.isEmpty())) {
      wynik += linia + u'\n';
      linia = wciecie;
    } else if (!poprzednie.isEmpty()) {
      linia += u' ';
    }
    linia += slowo;
    glebokosc += slowo.count(u'(') - slowo.count(u')');
    poprzednie = slowo;
  }
  return QString(wynik + linia + u';').replace(nielamliwy, u' ');
}

}  // namespace

void UdawanySerwer::Zapisz(const std::string& sql) const {
  const QString tresc = WLiniach(Tsql::Przeloz(sql));
  const bool jest = std::any_of(m_polecenia.begin(), m_polecenia.end(),
                                [&](const Polecenie& p) { return p.tresc == tresc; });
  if (!jest) m_polecenia.push_back({m_rozdzial, tresc});
}

std::string UdawanySerwer::Przeloz(std::string_view sql) const {
  if (SlowaSilnika(sql)) return std::string(sql);
  Zapisz(std::string(sql));
  return NaSqlite(Tsql::Przeloz(sql));
}
