#pragma once

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "exchange/czytnik.h"

// A file of given bytes, gone with the object.
class PlikProbny {
 public:
  explicit PlikProbny(const std::string& tresc) {
    QFile plik(Sciezka());
    EXPECT_TRUE(plik.open(QIODevice::WriteOnly));
    EXPECT_EQ(plik.write(tresc.data(), static_cast<qint64>(tresc.size())), static_cast<qint64>(tresc.size()));
  }
  QString Sciezka() const { return m_katalog.filePath(QStringLiteral("plik")); }

 private:
  QTemporaryDir m_katalog;
};

inline StrukturaPliku Struktura(RodzajRekordu rodzaj, TypPliku typ, const QStringList& pola) {
  StrukturaPliku struktura(rodzaj);
  struktura.CBTypPliku = typ;
  struktura.separator = QStringLiteral(";");
  struktura.CBNieAnalizujPierwszejLinii = false;
  for (const QString& pole : pola) struktura.pola.emplace_back(pole);
  return struktura;
}

// The values of the record line that are not empty, "0=5901|1=Chleb". The rate every good gets for want of a
// better one (23=2200) is left out.
inline QString Wartosci(LiniaRekordu linia, int ile) {
  QStringList niepuste;
  for (int pole = 0; pole < ile && !linia.Reszta().empty(); ++pole) {
    const QString wartosc = linia.Tekst();
    const bool stala = pole == PoleTowaru::StawkaVat && wartosc == QLatin1String("2200");
    if (!wartosc.isEmpty() && !stala) niepuste << QStringLiteral("%1=%2").arg(pole).arg(wartosc);
  }
  return niepuste.join(QLatin1Char('|'));
}

// What a file reads as: the records in the form above, "-" for a skipped line; a refusal or an error is its
// text. A record short of fields ends in "?found/declared".
inline QStringList OdczytPliku(const StrukturaPliku& struktura, const QString& sciezka) {
  const std::unique_ptr<Czytnik> czytnik = UtworzCzytnik(struktura);
  if (const auto odmowa = czytnik->Otworz(sciezka)) return {odmowa->tekst};
  if (const auto odmowa = czytnik->SprawdzPola()) return {odmowa->tekst};
  const WynikLiczenia policzone = czytnik->Policz([](qint64) { return true; });
  if (policzone.odmowa) return {policzone.odmowa->tekst};
  QStringList rekordy;
  for (;;) {
    switch (czytnik->Nastepny()) {
      case WynikCzytania::Rekord: {
        QString rekord = Wartosci(czytnik->Linia(), LiczbaWartosci(struktura.rodzaj));
        if (const auto pol = czytnik->SprawdzLiczbePol())
          rekord += QStringLiteral("?%1/%2").arg(pol->znaleziono).arg(pol->zadeklarowano);
        rekordy << rekord;
        break;
      }
      case WynikCzytania::Pominiety:
        rekordy << QStringLiteral("-");
        break;
      case WynikCzytania::Blad:
        return rekordy << czytnik->Blad()->tekst;
      case WynikCzytania::Koniec:
        EXPECT_EQ(czytnik->Nastepny(), WynikCzytania::Koniec);
        if (struktura.CBTypPliku != TypPliku::DBase) {
          EXPECT_EQ(policzone.rekordow, czytnik->NumerRekordu());
        }
        return rekordy;
    }
  }
}

inline QStringList OdczytTresci(const StrukturaPliku& struktura, const std::string& tresc) {
  return OdczytPliku(struktura, PlikProbny(tresc).Sciezka());
}

// What the reader notices, "record kind field texts", those of the file at the end as of record 0; what says
// nothing is left out.
inline QStringList Zauwazone(const StrukturaPliku& struktura, const std::string& tresc) {
  const char* const rodzaje[] = {"WiecejPol",   "NieznanyVat",   "Cudzyslow", "StronaKodowa",
                                 "DbaseLiczba", "DbaseLogiczna", "DbaseData"};
  const PlikProbny plik(tresc);
  const std::unique_ptr<Czytnik> czytnik = UtworzCzytnik(struktura);
  EXPECT_FALSE(czytnik->Otworz(plik.Sciezka()));
  QStringList wynik;
  const auto dopisz = [&](int rekord, const Spostrzezenie& s) {
    QStringList opis{QString::number(rekord), QString::fromLatin1(rodzaje[static_cast<size_t>(s.rodzaj)])};
    if (s.pole != Spostrzezenie::kCalaLinia) opis << QString::number(s.pole);
    for (const QString& szczegol : {s.szczegol, s.drugi})
      if (!szczegol.isEmpty()) opis << szczegol;
    wynik << opis.join(QLatin1Char(' '));
  };
  for (WynikCzytania w; (w = czytnik->Nastepny()) == WynikCzytania::Rekord || w == WynikCzytania::Pominiety;)
    if (w == WynikCzytania::Rekord)
      for (const Spostrzezenie& s : czytnik->Spostrzezenia()) dopisz(czytnik->NumerRekordu(), s);
  czytnik->Policz({});
  for (const Spostrzezenie& s : czytnik->SpostrzezeniaPliku()) dopisz(0, s);
  return wynik;
}
