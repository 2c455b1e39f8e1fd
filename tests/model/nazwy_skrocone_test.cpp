#include "model/nazwy_skrocone.h"

#include <gtest/gtest.h>

#include "database/schemat.h"
#include "model/bufor_towarow.h"
#include "tests/wspolne/baza_testowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

RegulySkrotow Zmienione(void (*zmiana)(RegulySkrotow&)) {
  RegulySkrotow reguly;
  reguly.maxDlugosc = 18;
  zmiana(reguly);
  return reguly;
}

class Skroty : public testing::Test {
 protected:
  void SetUp() override { UtworzBaze(b.baza, {}); }

  int DodajTowar(const QString& skrot, bool aktywny = true, const QString& dodSkrot = {}) {
    const int id = b.baza.WstawOdRazu(
        "TowId", "insert into Towar (Nazwa, Skrot, Kod, Aktywny) values (:Nazwa, :Skrot, '', :Aktywny)",
        {{"Nazwa", u"Towar "_s + skrot}, {"Skrot", skrot}, {"Aktywny", aktywny ? 1 : 0}});
    if (!dodSkrot.isEmpty())
      b.baza.ExecSQL("insert into KodDod (TowId, Kolejnosc, Kod, Skrot) values (:TowId, 0, '1', :Skrot)",
                     {{"TowId", id}, {"Skrot", dodSkrot}});
    if (bufor.Gotowy()) bufor.Dodaj(id, {{}, {}, skrot, {}, {}});
    return id;
  }
  void Konfiguracja(std::initializer_list<Parametr> wpisy, const QString& nazwa) {
    int kolejnosc = 0;
    for (const auto& [parametr, wartosc] : wpisy)
      b.baza.ExecSQL(
          "insert into Konfiguracja (Nazwa, Kolejnosc, Parametr, Wartosc) values (:Nazwa, :Kol, :Par, :Wart)",
          {{"Nazwa", nazwa}, {"Kol", ++kolejnosc}, {"Par", std::string(parametr)}, {"Wart", wartosc}});
  }
  QString Zbuduj(const RegulySkrotow& reguly, const QString& nazwa) {
    TDmVLTNazwySkrocone skroty(b.baza, nullptr, reguly);
    return skroty.Utworz(nazwa, {}, -1, -1, true).value_or(u"<brak>"_s);
  }

  BazaTestowa b;
  TVLTBuforTowarow bufor;
};

TEST_F(Skroty, RegulyZObuMiejscKonfiguracji) {
  b.baza.ExecSQL("delete from Konfiguracja");
  const auto liczby = [](const RegulySkrotow& r) {
    return std::tuple(r.jakTworzyc, r.minDlugosc, r.maxDlugosc, r.spacjeNaZnak, r.polskieZnaki, r.maleLitery);
  };
  EXPECT_EQ(liczby(RegulySkrotow::Wczytaj(b.baza)), std::tuple(0, 1, 40, u' ', true, true));
  Konfiguracja({{"JakTworzycSkrotTowaru", u"7"_s}, {"SpacjeWSkrocie", u"2"_s}, {"MaxSkrotTowaru", u"24"_s}},
               u"Wykazy"_s);
  RegulySkrotow r = RegulySkrotow::Wczytaj(b.baza);
  EXPECT_EQ(liczby(r), std::tuple(1, 1, 24, u'_', true, true));
  EXPECT_EQ(r.inneSeparatory, u"'\""_s);
  Konfiguracja({{"JakTworzycSkrot", u"9"_s},
                {"CzyMaleLitery", u"0"_s},
                {"ZnakiSpecjalne", u"..-ą7-/"_s},
                {"SpacjeZamienicNaZnak", u"0"_s},
                {"InneSeparatory", u" ;| "_s}},
               u"NazwaSkrocona"_s);
  r = RegulySkrotow::Wczytaj(b.baza);
  EXPECT_EQ(liczby(r), std::tuple(1, 1, 40, u'\0', true, false));
  EXPECT_EQ(r.znakiSpecjalne + u' ' + r.inneSeparatory, u".-/ ;|"_s);
}

TEST_F(Skroty, WerdyktyWKolejnosci) {
  const TDmVLTNazwySkrocone skroty(b.baza, nullptr, Zmienione([](RegulySkrotow& r) {
                                     r.minDlugosc = 2, r.znakiSpecjalne = u"."_s,
                                     r.polskieZnaki = r.maleLitery = false;
                                   }));
  const std::pair<QString, QString> przypadki[] = {
      {u""_s, u"nie został wpisany"_s},
      {u"ą"_s, u"jest za krótki. Powinien mieć przynajmniej długość 2"_s},
      {u"1234567890123456789"_s, u"jest za długi. Powinien mieć najwyżej długość 18"_s},
      {u"123456789012345678"_s, u"jest poprawny"_s},
      {u"A%  ą"_s, u"zawiera niedozwolone znaki"_s},
      {u"A  ą"_s, u"zawiera sąsiadujące podwójne znaki odstępu"_s},
      {u"Żab"_s, u"zawiera polskie znaki"_s},
      {u"A.b"_s, u"zawiera małe litery"_s}};
  for (const auto& [skrot, werdykt] : przypadki) {
    const auto wynik = skroty.Sprawdz(skrot, false);
    EXPECT_EQ(wynik.komunikat, u"Skrót "_s + skrot + u"' "_s + werdykt);
    EXPECT_EQ(wynik.dobry, werdykt == u"jest poprawny"_s);
    EXPECT_EQ(skroty.Sprawdz(skrot, true).komunikat,
              u"Skrót kodu dodatkowego '"_s + skrot + u"' "_s + werdykt);
  }
}

TEST_F(Skroty, UnikalnoscWBazie) {
  const int mleko = DodajTowar(u"Mleko"_s, true, u"Mleko 2"_s);
  const int sery = DodajTowar(u"Sery"_s, false, u"Sery 2"_s);
  const std::tuple<QString, int, bool, int, QString> przypadki[] = {
      {u""_s, -1, false, -1, u"Pusta nazwa skrócona"_s},
      {u"Masło"_s, -1, false, -1, u""_s},
      {u"Mleko"_s, mleko, false, -1, u""_s},
      {u"Mleko 2"_s, mleko, true, -1, u""_s},
      {u"Mleko"_s, sery, false, mleko, u"Skrót Mleko' jest już używany przez towar [Towar Mleko]"_s},
      {u"Sery"_s, -1, true, sery,
       u"Skrót kodu dodatkowego Sery' jest już używany przez usunięty towar [Towar Sery]"_s},
      {u"Mleko 2"_s, -1, false, mleko,
       u"Skrót Mleko 2' jest już używany przez przez jeden z kodów dodatkowych towaru [Towar Mleko]"_s},
      {u"Sery 2"_s, mleko, false, sery,
       u"Skrót Sery 2' jest już używany przez przez jeden z kodów dodatkowych usuniętego towaru [Towar "_s
       u"Sery]"_s}};
  for (const bool zBuforem : {false, true}) {
    ASSERT_TRUE(!zBuforem || bufor.Napelnij(b.baza));
    const TDmVLTNazwySkrocone skroty(b.baza, &bufor);
    for (const auto& [skrot, wlasneId, dodatkowy, zajety, komunikat] : przypadki) {
      const auto wynik = skroty.SprawdzUnikalnosc(skrot, wlasneId, dodatkowy);
      EXPECT_EQ(wynik.towId, zajety);
      EXPECT_EQ(wynik.komunikat, komunikat);
    }
  }
  // What the buffer knows for certain costs no statement; after somebody else's change the database is asked.
  const TDmVLTNazwySkrocone skroty(b.baza, &bufor);
  int polecen = 0;
  b.baza.UstawPodsluch([&](std::string_view sql) { polecen += sql.starts_with("select T") ? 1 : 0; });
  EXPECT_EQ(skroty.SprawdzUnikalnosc(u"Masło"_s, -1, false).towId, -1);
  EXPECT_EQ(skroty.SprawdzUnikalnosc(u"Mleko"_s, mleko, false).towId, -1);
  EXPECT_EQ(polecen, 0);
  TVLTBazaDanych obca;
  b.Polacz(obca);
  obca.ExecSQL("insert into Towar (Nazwa, Skrot, Kod) values ('n', 'Masło', '')");
  bufor.SprawdzObceZmiany(b.baza);
  EXPECT_EQ(skroty.SprawdzUnikalnosc(u"Masło"_s, -1, false).towId, sery + 1);
}

TEST_F(Skroty, WsrodKodowTegoSamegoTowaru) {
  const QString dodatkowe[] = {u"B"_s, u"C"_s};
  const SkrotyTowaru kody{u"A"_s, dodatkowe};
  const std::tuple<QString, int, QString> przypadki[] = {
      {u"A"_s, -1, u"Skrót A' nie jest używany dla innych kodów tego samego towaru"_s},
      {u"B"_s, 0, u"Skrót kodu dodatkowego 'B' nie jest używany dla innych kodów tego samego towaru"_s},
      {u"B"_s, -1, u"Skrót B' jest używany dla kodu dodatkowego tego samego towaru"_s},
      {u"A"_s, 1, u"Skrót kodu dodatkowego 'A' jest używany dla kodu głównego tego samego towaru"_s},
      {u"B"_s, 1,
       u"Skrót kodu dodatkowego 'B' jest używany dla innego kodu dodatkowego tego samego towaru"_s}};
  for (const auto& [skrot, indeks, komunikat] : przypadki) {
    const auto wynik = TDmVLTNazwySkrocone::SprawdzWsrodKodow(skrot, kody, indeks);
    EXPECT_EQ(wynik.komunikat, komunikat);
    EXPECT_EQ(wynik.dobry, wynik.komunikat.contains(u"nie jest"_s));
  }
}

TEST_F(Skroty, BudowaZNazwy) {
  const std::tuple<void (*)(RegulySkrotow&), QString, QString> przypadki[] = {
      {[](RegulySkrotow&) {}, u" Masło\t 'Łąka'  "_s, u"Masło Łąka"_s},
      {[](RegulySkrotow&) {}, u"Czekolada mleczna duża"_s, u"Cze mle duż"_s},
      {[](RegulySkrotow&) {}, u"Abcdef Bcdefg Cdefgh Defghi Efghij"_s, u"Abc Bcd Cde Def Ef"_s},
      {[](RegulySkrotow&) {}, u" \t "_s, u""_s},
      {[](RegulySkrotow&) {}, u"Sok & woda 5%"_s, u"Sok woda 5"_s},
      {[](RegulySkrotow&) {}, u"&%"_s, u"0"_s},
      {[](RegulySkrotow& r) { r.znakiSpecjalne = u"%&"_s; }, u"Sok & 5%"_s, u"Sok & 5%"_s},
      {[](RegulySkrotow& r) { r.jakTworzyc = 1; }, u"Żółty ser ab"_s, u"Żół ser ab"_s},
      {[](RegulySkrotow& r) { r.spacjeNaZnak = 0; }, u"Sok z malin"_s, u"Sokzmalin"_s},
      {[](RegulySkrotow& r) { r.spacjeNaZnak = u'_'; }, u"Sok z malin"_s, u"Sok_z_malin"_s},
      {[](RegulySkrotow& r) { r.polskieZnaki = false; }, u"ĄĆĘŁŃÓŚŹŻąćęłńóśźż"_s, u"ACELNOSZZacelnoszz"_s},
      {[](RegulySkrotow& r) { r.maleLitery = false; }, u"Zażółć gęślą jaźń"_s, u"ZAŻÓŁĆ GĘŚLĄ JAŹŃ"_s},
      {[](RegulySkrotow& r) { r.minDlugosc = 5; }, u"Ser"_s, u"Ser00"_s},
      {[](RegulySkrotow& r) { r.minDlugosc = 5, r.znakiSpecjalne = u"."_s; }, u"Ser"_s, u"Ser.."_s},
      {[](RegulySkrotow& r) { r.minDlugosc = 19; }, u"Ser"_s, u"<brak>"_s},
      {[](RegulySkrotow& r) { r.maxDlugosc = 8; }, u"Abcde Bcdef Cdefg"_s, u"Abc Bcd"_s}};
  for (const auto& [zmiana, nazwa, skrot] : przypadki)
    EXPECT_EQ(Zbuduj(Zmienione(zmiana), nazwa), skrot) << nazwa.toStdString();
}

TEST_F(Skroty, NumeryOmijajaZajete) {
  DodajTowar(u"Mleko"_s, true, u"Mleko 2"_s);
  const RegulySkrotow reguly = Zmienione([](RegulySkrotow& r) { r.maxDlugosc = 7; });
  TDmVLTNazwySkrocone skroty(b.baza, nullptr, reguly);
  const QString mleko = u"Mleko"_s;
  EXPECT_EQ(skroty.Utworz(mleko, {}, -1, -1, true), u"Mleko 1"_s);
  EXPECT_EQ(skroty.Utworz(mleko, {}, -1, -1, true), u"Mleko 3"_s) << "held for the record in hand";
  skroty.Zwolnij();
  EXPECT_EQ(skroty.Utworz(mleko, {}, -1, -1, true), u"Mleko 1"_s) << "free again";
  skroty.Potwierdz();
  skroty.Zwolnij();
  EXPECT_EQ(skroty.Utworz(mleko, {}, -1, -1, true), u"Mleko 3"_s);
  const QString wlasne[] = {u"Mleko 4"_s, u"Mleko 5"_s};
  EXPECT_EQ(skroty.Utworz(mleko, {u"X"_s, wlasne}, 0, -1, true), u"Mleko 4"_s);
  EXPECT_EQ(skroty.Utworz(mleko, {u"X"_s, wlasne}, -1, -1, true, 5), u"Mleko 6"_s);
  EXPECT_EQ(skroty.Utworz(mleko, {}, -1, -1, false), mleko) << "the database is not asked";
  EXPECT_EQ(skroty.Utworz(u"Ml eko"_s, {}, -1, -1, false, 1000), u"Ml 1000"_s);

  TDmVLTNazwySkrocone ciasne(b.baza, nullptr, Zmienione([](RegulySkrotow& r) { r.maxDlugosc = 3; }));
  for (int i = 0; i < 10; ++i) ASSERT_TRUE(ciasne.Utworz(mleko, {}, -1, -1, true)) << i;
  EXPECT_FALSE(ciasne.Utworz(mleko, {}, -1, -1, true)) << "no number fits any more";
}

TEST_F(Skroty, TysiaceTychSamychNazwNieSzukajaOdNowa) {
  ASSERT_TRUE(bufor.Napelnij(b.baza));
  TDmVLTNazwySkrocone skroty(b.baza, &bufor);
  int polecen = 0;
  b.baza.UstawPodsluch([&](std::string_view sql) { polecen += sql.starts_with("select T") ? 1 : 0; });
  constexpr int kTowarow = 3000;
  b.baza.StartTransakcji();
  for (int i = 0; i < kTowarow; ++i) {
    const auto skrot = skroty.Utworz(u"Mleko"_s, {}, -1, -1, true);
    ASSERT_EQ(skrot, i == 0 ? u"Mleko"_s : u"Mleko %1"_s.arg(i));
    DodajTowar(*skrot);
    skroty.Potwierdz();
  }
  b.baza.KoniecTransakcji();
  EXPECT_EQ(polecen, 0) << "names of this run are known without the database";
  // A later run finds them in the database, each once.
  TDmVLTNazwySkrocone pozniej(b.baza, &bufor);
  for (int i = 0; i < 50; ++i) {
    const auto skrot = pozniej.Utworz(u"Mleko"_s, {}, -1, -1, true);
    ASSERT_EQ(skrot, u"Mleko %1"_s.arg(kTowarow + i));
    DodajTowar(*skrot);
    pozniej.Potwierdz();
  }
  EXPECT_LE(polecen, kTowarow + 50);
}

}  // namespace
