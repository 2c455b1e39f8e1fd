#pragma once

#include <string>
#include <vector>

#include <QStringList>

#include "database/schemat.h"
#include "platform/baza/sesja.h"

// The rows of a table, one text each, in a fixed order: the values of the columns that `bierz` takes.
template <typename Bierz>
QStringList WierszeTabeli(TVLTBazaDanych& baza, const std::string& tabela, Bierz bierz) {
  std::string kolumny;
  std::vector<TypPola> typy;
  for (const KolumnaSchematu& k : KolumnySchematu()) {
    if (k.tabela != tabela || !bierz(k.nazwa)) continue;
    kolumny += (kolumny.empty() ? "" : ", ") + k.nazwa;
    typy.push_back(k.znacznik == "{dzies}"                             ? TypPola::Dziesietne
                   : k.znacznik == "{calk}" || k.znacznik == "{klucz}" ? TypPola::Calkowite
                                                                       : TypPola::Tekst);
  }
  QStringList wiersze;
  for (auto odczyt = baza.Otworz("select " + kolumny + " from " + tabela, typy, {}); odczyt.Nastepny();) {
    QStringList wartosci;
    for (std::size_t i = 0; i < typy.size(); ++i)
      wartosci << (odczyt[i].IsNull() ? QStringLiteral("-") : odczyt[i].AsString());
    wiersze << wartosci.join(u'|');
  }
  wiersze.sort();
  return wiersze;
}

// Every row of every table, in a fixed order.
inline QStringList ZrzutBazy(TVLTBazaDanych& baza) {
  QStringList zrzut;
  std::string poprzednia;
  for (const KolumnaSchematu& k : KolumnySchematu()) {
    if (k.tabela == poprzednia) continue;
    poprzednia = k.tabela;
    const QString tabela = QString::fromStdString(k.tabela);
    // The numbers of persons tell of nothing but their order.
    for (const QString& wiersz :
         WierszeTabeli(baza, k.tabela, [](const std::string& kolumna) { return kolumna != "OsId"; }))
      zrzut << tabela + u' ' + wiersz;
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
