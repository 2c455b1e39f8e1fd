#pragma once

#include <QStringList>

#include "platform/baza/sesja.h"

// Every row of every table, one text each, in a fixed order.
inline QStringList ZrzutBazy(TVLTBazaDanych& baza) {
  const auto kolumna = [&](const std::string& sql) {
    QStringList wartosci;
    for (auto odczyt = baza.Otworz(sql, {TypPola::Tekst}); odczyt.Nastepny();)
      wartosci << odczyt[0].AsString();
    return wartosci;
  };
  QStringList zrzut;
  for (const QString& nazwa :
       kolumna("select name from sqlite_master where type = 'table' and name not like 'sqlite%'")) {
    std::string sql = "select '" + nazwa.toStdString();
    for (const QString& pole : kolumna("select name from pragma_table_info('" + nazwa.toStdString() + "')"))
      sql += " " + pole.toStdString() + "=' || quote(" + pole.toStdString() + ") || '";
    zrzut << kolumna(sql + "' from " + nazwa.toStdString());
  }
  zrzut.sort();
  return zrzut;
}

// Rows that only one of two databases has.
inline QStringList RozniceZrzutow(const QStringList& przed, const QStringList& po) {
  QStringList roznice;
  auto a = przed.begin();
  auto b = po.begin();
  while (a != przed.end() || b != po.end()) {
    if (b == po.end() || (a != przed.end() && *a < *b))
      roznice << QStringLiteral("- ") + *a++;
    else if (a == przed.end() || *b < *a)
      roznice << QStringLiteral("+ ") + *b++;
    else
      ++a, ++b;
  }
  return roznice;
}
