#pragma once

#include <QTemporaryDir>

#include "platform/baza/sesja.h"

// A database file of one test, gone with it.
class BazaTestowa {
 public:
  BazaTestowa() { Polacz(baza, true); }

  QString Sciezka() const { return m_folder.filePath(QStringLiteral("test.db")); }
  // Another session of the same file.
  void Polacz(TVLTBazaDanych& sesja, bool tworz = false, int limitSekund = 1) const {
    ParametryPolaczenia parametry;
    parametry.cel = Sciezka();
    parametry.tworz = tworz;
    parametry.limitBlokadySekund = limitSekund;
    sesja.UstawPolaczenie(parametry);
    sesja.Polacz();
  }
  // The first column of the first row; 0 or empty when there is none.
  long long Liczba(std::string_view sql) {
    auto odczyt = baza.Otworz(sql, {TypPola::Calkowite});
    return odczyt.Nastepny() ? odczyt[0].AsInteger() : 0;
  }
  QString Tekst(std::string_view sql) {
    auto odczyt = baza.Otworz(sql, {TypPola::Tekst});
    return odczyt.Nastepny() ? odczyt[0].AsString() : QString();
  }

 private:
  QTemporaryDir m_folder;

 public:
  TVLTBazaDanych baza;
};
