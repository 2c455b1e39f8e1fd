#pragma once

#include <optional>

#include <QStringList>
#include <QTemporaryDir>

#include "tests/wspolne/serwer_testowy.h"

// A database of one test, gone with it: a file, or one of the test server.
class BazaTestowa {
 public:
  // `jezyk`: see ParametryPolaczenia.
  explicit BazaTestowa(const Dialekt* jezyk = nullptr) : m_jezyk(jezyk) {
    if (NaSerwerze()) m_serwera.emplace();
    Polacz(baza, true);
  }

  QString Sciezka() const { return m_folder.filePath(QStringLiteral("test.db")); }
  ParametryPolaczenia Parametry() const {
    return *ParametryPolaczenia::ZTekstu(m_serwera ? QStringLiteral("odbc:") + m_serwera->Napis()
                                                   : Sciezka());
  }
  // Another session of the same database.
  void Polacz(TVLTBazaDanych& sesja, bool tworz = false, int limitSekund = 1) const {
    ParametryPolaczenia parametry = Parametry();
    parametry.jezyk = m_jezyk;
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
  // The first column of every row, joined.
  QString Kolumna(std::string_view sql, TypPola typ = TypPola::Tekst, QChar lacznik = u',') {
    QStringList wartosci;
    for (auto odczyt = baza.Otworz(sql, {typ}); odczyt.Nastepny();) wartosci << odczyt[0].AsString();
    return wartosci.join(lacznik);
  }
  // What the change log says of the last change.
  QString OstatniWpis() { return Tekst("select Opis from DziennikZmian order by rowid desc"); }

 private:
  const Dialekt* m_jezyk;
  QTemporaryDir m_folder;
  std::optional<BazaSerwera> m_serwera;

 public:
  TVLTBazaDanych baza;
};
