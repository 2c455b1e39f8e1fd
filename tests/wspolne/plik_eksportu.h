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

// Each statement of an export fails in turn, but for those at its end: they end the read and move the log.
template <typename Eksportuj>
void SprawdzAwariePolecen(BazaTestowa& b, const PostepTestowy& postep, Eksportuj eksportuj) {
  int polecen = 0, czytajacych = 0;
  b.baza.UstawPodsluch([&](std::string_view sql) {
    ++polecen;
    if (sql.starts_with("select")) czytajacych = polecen;
  });
  eksportuj();
  EXPECT_GT(czytajacych, 3);
  for (int ktore = 1; ktore <= czytajacych; ++ktore) {
    SCOPED_TRACE(ktore);
    int numer = 0;
    b.baza.UstawPodsluch([&](std::string_view) {
      if (++numer == ktore) throw EBladBazy(RodzajBleduBazy::Inny, QStringLiteral("Błąd próbny"), {});
    });
    SprawdzNiepelny(eksportuj(), postep, QStringLiteral("Błąd próbny"));
    EXPECT_FALSE(b.baza.GetCzyWTransakcji());
  }
  b.baza.UstawPodsluch({});
}

// Just before the first statement with this beginning, or a later one, another connection does its work.
inline void WykonajPrzed(BazaTestowa& b, std::string_view poczatek, std::vector<std::string> prace,
                         int ktorym = 1) {
  b.baza.UstawPodsluch([&b, poczatek, prace = std::move(prace), ktorym](std::string_view sql) mutable {
    if (!sql.starts_with(poczatek) || --ktorym != 0) return;
    TVLTBazaDanych inna;
    b.Polacz(inna);
    for (const std::string& praca : prace) inna.ExecSQL(praca);
  });
}

// An export of several pages: what others write while it reads, it does not see; stopped or cut off in the
// middle, it leaves the session ready for the next one. `strona` begins the select of a page.
template <typename Eksportuj>
void SprawdzJednaChwile(BazaTestowa& b, const PostepTestowy& postep, std::atomic<bool>& stop,
                        std::string_view strona, std::vector<std::string> prace, const QString& plik,
                        Eksportuj eksportuj) {
  eksportuj();
  const QByteArray przed = Zawartosc(plik);
  WykonajPrzed(b, strona, std::move(prace), 2);
  EXPECT_EQ(eksportuj().koniec, KoniecPrzebiegu::Zakonczono);
  EXPECT_TRUE(Zawartosc(plik) == przed);

  b.baza.UstawPodsluch([&, stron = 0](std::string_view sql) mutable {
    stop = stop || (sql.starts_with(strona) && ++stron == 2);
  });
  EXPECT_EQ(eksportuj().koniec, KoniecPrzebiegu::Przerwano);
  EXPECT_GT(LinieEksportu(plik).size(), 1u);
  EXPECT_FALSE(b.baza.GetCzyWTransakcji());
  stop = false;
  if (NaSerwerze()) {
    WykonajPrzed(b, strona,
                 {"select pg_terminate_backend(" + std::to_string(b.Liczba("select pg_backend_pid()")) + ")"},
                 2);
    SprawdzNiepelny(eksportuj(), postep, QStringLiteral("Brak połączenia z bazą"));
    EXPECT_FALSE(b.baza.Polaczona());
  }
  b.baza.UstawPodsluch({});
  EXPECT_EQ(eksportuj().koniec, KoniecPrzebiegu::Zakonczono);
  EXPECT_FALSE(Zawartosc(plik) == przed);
}
