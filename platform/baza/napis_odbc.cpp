#include "platform/baza/napis_odbc.h"

std::vector<AtrybutOdbc> RozbierzNapisOdbc(const QString& napis) {
  if (!napis.contains(u'=')) return {{QStringLiteral("DSN"), napis.trimmed()}};
  std::vector<AtrybutOdbc> atrybuty;
  qsizetype i = 0;
  while (i < napis.size()) {
    const qsizetype rowna = napis.indexOf(u'=', i);
    if (rowna < 0) break;
    AtrybutOdbc atrybut{napis.mid(i, rowna - i).trimmed(), {}};
    i = rowna + 1;
    if (i < napis.size() && napis[i] == u'{') {
      for (++i; i < napis.size(); ++i) {
        if (napis[i] == u'}' && (i + 1 >= napis.size() || napis[i + 1] != u'}')) break;
        if (napis[i] == u'}') ++i;
        atrybut.wartosc += napis[i];
      }
      i = napis.indexOf(u';', i);
    } else {
      const qsizetype koniec = napis.indexOf(u';', i);
      atrybut.wartosc = napis.mid(i, koniec < 0 ? -1 : koniec - i).trimmed();
      i = koniec;
    }
    if (!atrybut.klucz.isEmpty()) atrybuty.push_back(std::move(atrybut));
    if (i < 0) break;
    ++i;
  }
  return atrybuty;
}

QString ZlozNapisOdbc(const std::vector<AtrybutOdbc>& atrybuty) {
  QString napis;
  for (const AtrybutOdbc& a : atrybuty) {
    QString wartosc = a.wartosc;
    if (wartosc.contains(u';') || wartosc.contains(u'{') || wartosc.contains(u'}'))
      wartosc = u'{' + wartosc.replace(QLatin1String("}"), QLatin1String("}}")) + u'}';
    napis += a.klucz + u'=' + wartosc + u';';
  }
  return napis;
}
