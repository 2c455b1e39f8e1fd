#pragma once

#include <vector>

#include <QStringList>

#include <gtest/gtest.h>

#include "platform/windows1250.h"
#include "run/przebieg.h"
#include "tests/wspolne/baza_testowa.h"
#include "tests/wspolne/przebieg_testowy.h"

// What the tests of the exports look at.

// Fields of the lines of the file; the header is line 0.
inline std::vector<QStringList> LinieEksportu(const QString& sciezka) {
  const QByteArray bajty = Zawartosc(sciezka);
  const QString tekst = windows1250::NaUnicode({bajty.data(), static_cast<std::size_t>(bajty.size())});
  std::vector<QStringList> linie;
  EXPECT_TRUE(tekst.endsWith(QStringLiteral("\r\n")));
  for (const QString& linia : tekst.chopped(2).split(QStringLiteral("\r\n")))
    linie.push_back(linia.split(u'\t'));
  return linie;
}

// The run ended with the fault and did not say that it had finished.
inline void SprawdzNiepelny(const WynikPrzebiegu& wynik, const PostepTestowy& postep, const QString& blad) {
  const QString pokazane = postep.linie.join(u' ');
  EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Blad);
  EXPECT_EQ(wynik.liczniki[Licznik::Rekordy], 0);
  EXPECT_FALSE(pokazane.contains(QStringLiteral("Eksport zakończono")));
  EXPECT_TRUE(pokazane.contains(blad)) << pokazane.toStdString();
  EXPECT_TRUE(pokazane.contains(QStringLiteral("Plik eksportu jest niepełny."))) << pokazane.toStdString();
}

// Each statement of an export fails in turn.
template <typename Eksportuj>
void SprawdzAwariePolecen(BazaTestowa& b, const PostepTestowy& postep, Eksportuj eksportuj) {
  int polecen = 0;
  b.baza.UstawPodsluch([&](std::string_view) { ++polecen; });
  eksportuj();
  EXPECT_GT(polecen, 3);
  for (int ktore = 1; ktore < polecen; ++ktore) {  // the last one moves the log
    SCOPED_TRACE(ktore);
    int numer = 0;
    b.baza.UstawPodsluch([&](std::string_view) {
      if (++numer == ktore) throw EBladBazy(RodzajBleduBazy::Inny, QStringLiteral("Błąd próbny"), {});
    });
    SprawdzNiepelny(eksportuj(), postep, QStringLiteral("Błąd próbny"));
  }
  b.baza.UstawPodsluch({});
}

// Just before a statement with this beginning another connection does its work.
inline void WykonajPrzed(BazaTestowa& b, std::string_view poczatek, std::vector<std::string> prace) {
  b.baza.UstawPodsluch([&b, poczatek, prace = std::move(prace)](std::string_view sql) {
    if (!sql.starts_with(poczatek)) return;
    TVLTBazaDanych inna;
    b.Polacz(inna);
    for (const std::string& praca : prace) inna.ExecSQL(praca);
  });
}
