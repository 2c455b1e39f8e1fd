#include <gtest/gtest.h>

#include "exchange/rozpoznanie_tresci.h"
#include "tests/exchange/pliki_probne.h"
#include "tests/exchange/tabela_dbase.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using R = RodzajTresci;

std::string Razy(int ile, const std::string& tekst) {
  std::string calosc;
  for (int i = 0; i < ile; ++i) calosc += tekst;
  return calosc;
}

TEST(RozpoznanieTresci, Rodzaje) {
  const struct {
    std::string tresc;
    R calosc, poczatek;  // taken as the whole file, as its beginning
  } przypadki[] = {
      {"Kod kreskowy\tNazwa\r\nza\xBF\xF3\xB3\xE6\x1A", R::Tekst, R::Tekst},
      {"", R::Tekst, R::Tekst},
      {"\xEF\xBB\xBFKod", R::Utf8, R::Utf8},
      {"1;Żurek – 5 €;śliwka \xC5", R::Utf8, R::Tekst},          // the last letter cut in the middle
      {"1;\xC5\xBBurek;\x9Cliwka;\xC4\x85", R::Utf8, R::Tekst},  // one stray byte
      {"1;mas\xC5\x82o", R::Utf8, R::Tekst},                     // one letter
      {Razy(20, "ż"), R::Utf8, R::Utf8},
      {Razy(19, "ż"), R::Utf8, R::Tekst},
      {Razy(11, "ż") + "\xB9\xB3", R::Utf8, R::Tekst},
      {Razy(10, "ż") + "\xB9\xB3", R::Tekst, R::Tekst},
      {"Чай 1 кг", R::Utf8, R::Tekst},
      {"P\xD3\xA3KA, ST\xD3\xA3, \xC6\x8Cma", R::Tekst, R::Tekst},  // PÓŁKA, STÓŁ, ĆŚma of Windows-1250
      {"HERBATA Z R\xE0\xBD\xA4", R::Tekst, R::Tekst},              // RÓŻĄ of Latin II
      {"\xE0\x80\xAF\xED\xA0\x80\xC0\xAF \xF4\x90\x80\x80", R::Tekst, R::Tekst},  // no UTF-8 at all
      {std::string("\xFF\xFEK\0o\0", 6), R::Utf16, R::Utf16},
      {std::string("\xFE\xFF\0K", 4), R::Utf16, R::Utf16},
      {std::string("K\0o\0d\0", 6), R::BajtyZerowe, R::BajtyZerowe},
      {"\x89PNG\r\n\x1A\n\x01\x02\x03\x04", R::Binarny, R::Binarny},
      {Tabela{.pola = {{"KOD", 4}}}.Bajty(), R::DBase, R::DBase},
      {'\x83' + Tabela{.pola = {{"KOD", 4}}}.Bajty().substr(1), R::DBase, R::DBase},  // with notes
  };
  for (const auto& p : przypadki) {
    EXPECT_EQ(RozpoznajTresc(p.tresc, true), p.calosc) << p.tresc;
    EXPECT_EQ(RozpoznajTresc(p.tresc, false), p.poczatek) << p.tresc;
    EXPECT_EQ(RozpoznajPlik(PlikProbny(p.tresc).Sciezka()), p.calosc) << p.tresc;
    const bool dbase = p.calosc == R::DBase;
    EXPECT_EQ(OpisTresci(p.calosc, u"p"_s).contains(u"Windows-1250"), p.calosc != R::Tekst && !dbase);
  }
}

// UTF-8 is told by the whole file in every layout, also where its letters lie behind the first look.
TEST(RozpoznanieTresci, Utf8WKazdymUkladzie) {
  const std::string daleko = Razy(20'000, "1;chleb\n");
  const std::string wiersze = Razy(20'000, " 0001chleb ");
  const auto tabela = [&](const std::string& rekord) {
    return Tabela{.pola = {{"KOD", 4}, {"NAZWA", 6}}, .rekordy = {wiersze, rekord}}.Bajty();
  };
  const struct {
    TypPliku typ;
    QStringList pola;
    std::string tresc;
    bool utf8;
  } przypadki[] = {
      {TypPliku::Zorvik, {}, daleko + "1\tmasło\n", true},
      {TypPliku::Rozdzielany, {u"00"_s, u"01"_s}, daleko + "1;masło\n", true},
      {TypPliku::Rozdzielany, {u"00"_s, u"01"_s}, "1;\xC5\x82\n" + daleko + Razy(3, "1;mas\xB3o\n"), false},
      {TypPliku::StalaSzerokosc, {u"004"_s, u"016"_s}, daleko + "#masło\n", true},
      {TypPliku::DBase, {u"00KOD"_s, u"01NAZWA"_s}, tabela(" 0002masło"), true},
      {TypPliku::DBase, {u"00KOD"_s, u"01NAZWA"_s}, tabela("*0002masło"), false},
      {TypPliku::DBase, {u"00KOD"_s, u"32NAZWA"_s}, tabela(" 0002masło"), false},
  };
  for (const auto& p : przypadki) {
    StrukturaPliku s = Struktura(RodzajRekordu::Towary, p.typ, p.pola);
    const QString odczyt = OdczytTresci(s, p.tresc).join(u' ');
    EXPECT_EQ(odczyt.contains(u"/plik jest zapisany w kodowaniu UTF-8\n"_s), p.utf8)
        << static_cast<int>(p.typ);
  }
}

TEST(RozpoznanieTresci, MowiNaCoPlikWyglada) {
  const struct {
    TypPliku typ;
    std::string tresc;
    QString wyglada;
  } przypadki[] = {
      {TypPliku::DBase, "1;Chleb;2,50\n2;Mas\xB3o, mi\xEAkkie;7\n3;Sok",
       u"plik tekstowy z separatorem pól (średnik)"_s},
      {TypPliku::DBase, "1\tChleb\r2\tSer\r3", u"plik tekstowy z separatorem pól (tabulator)"_s},
      {TypPliku::DBase, Razy(9000, "5901234567893 Chleb\n"), u"plik tekstowy ze stałą szerokością kolumn"_s},
      {TypPliku::DBase, "Kod" + std::string(31, '\t') + "\n1\n", u"plik w formacie programu Zorvik"_s},
      {TypPliku::Rozdzielany, Tabela{.pola = {{"KOD", 4}}, .rekordy = {" 5901"}}.Bajty(),
       u"plik formatu DBase III"_s},
      {TypPliku::DBase, "", u"Plik jest krótszy niż nagłówek dBase"_s},
  };
  for (const auto& p : przypadki) {
    const QString odczyt =
        OdczytTresci(Struktura(RodzajRekordu::Towary, p.typ, {u"00KOD"_s}), p.tresc).join(u' ');
    EXPECT_TRUE(odczyt.contains(p.wyglada)) << odczyt.toStdString();
  }
}

}  // namespace
