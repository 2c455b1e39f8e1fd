#include <gtest/gtest.h>

#include "database/kontrola_bazy.h"
#include "database/schemat.h"
#include "tests/wspolne/baza_testowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(KontrolaBazy, MowiCzegoBrakuje) {
  BazaTestowa b;
  UtworzBaze(b.baza, {});
  EXPECT_EQ(SprawdzBaze(b.baza), QStringList());
  const struct {
    const char* sql;
    QString brak;
    bool tylkoSerwer = false;
  } przypadki[] = {
      {"drop table Notatki", u"Brak tabeli Notatki"_s},
      {"alter table Osoba rename column Nazwisko to Imie", u"Brak kolumny Osoba.Nazwisko"_s},
      {"alter table Towar add column Nowa integer", u"Tabela Towar ma kolumny, których program nie zna"_s},
      {"drop index TowarKod",
       u"Brak indeksu zaczynającego się od kolumny Towar.Kod: praca będzie bardzo wolna"_s},
      {"alter table Towar alter column Opis1 type text",
       u"Kolumna Towar.Opis1 jest tekstem bez ograniczonej"_s, true},
      {NaSerwerze() ? "drop trigger TowarIstw on Towar" : "drop trigger TowarIstw",
       u"Brak działającego wyzwalacza TowarIstw w tabeli Towar"_s},
      {"alter table Magazyn disable trigger MagazynIstw",
       u"Brak działającego wyzwalacza MagazynIstw w tabeli Magazyn"_s, true},
      {"alter table Towar alter column Opis2 type varchar(250)",
       u"Kolumna Towar.Opis2 mieści 250 znaków, a powinna 1000"_s, true},
      {"alter table Notatki alter column Tekst type varchar(99999)",
       u"Kolumna Notatki.Tekst mieści 99999 znaków, a powinna 100000"_s, true},
      {"alter table Asort alter column AsId drop identity", u"Kolumna Asort.AsId nie ma sekwencji"_s, true},
      {"insert into JM (JMId, Nazwa) values (7, 'x')", u"Sekwencja kolumny JM.JMId jest w tyle"_s, true},
      {"alter table Sklep alter column NrSklepu type varchar(5)",
       u"Kolumna Sklep.NrSklepu ma typ character varying, a powinna to być liczba całkowita"_s, true},
  };
  for (const auto& p : przypadki) {
    if (p.tylkoSerwer && !NaSerwerze()) continue;
    SCOPED_TRACE(p.sql);
    b.baza.StartTransakcji();
    b.baza.ExecSQL(p.sql);
    const QStringList braki = SprawdzBaze(b.baza);
    b.baza.WycofTransakcji();
    ASSERT_EQ(braki.size(), 1) << braki.join(u'\n').toStdString();
    EXPECT_TRUE(braki[0].startsWith(p.brak)) << braki[0].toStdString();
  }
}

}  // namespace
