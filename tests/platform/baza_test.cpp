#include <cstdio>
#include <functional>
#include <stdexcept>

#include <QFileInfo>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include "platform/baza/dialekt.h"
#include "platform/baza/transakcja.h"
#include "platform/baza/zapytanie.h"
#include "platform/config.h"
#include "tests/wspolne/baza_testowa.h"

namespace {

constexpr OpisPola kPola[] = {{"Id", TypPola::Calkowite},
                              {"Nazwa", TypPola::Tekst},
                              {"Cena", TypPola::Dziesietne},
                              {"Duza", TypPola::Calkowite}};

class Baza : public testing::Test {
 protected:
  void SetUp() override {
    const Dialekt& d = b.baza.Jezyk();
    b.baza.ExecSQL("create table T (Id " + d.TypAutoKlucz() + ", Nazwa " + d.TypTekst(1000) + ", Cena " +
                   d.TypDziesietny() + ", Duza bigint, Czas " + d.TypCzas() + ")");
    b.baza.ExecSQL("create unique index T_Nazwa on T (Nazwa)");
    b.baza.ExecSQL("create table Konfiguracja (Nazwa " + d.TypTekst(50) + ", Kolejnosc integer, Parametr " +
                   d.TypTekst(50) + ", Wartosc " + d.TypTekst(50) + ")");
  }
  void Dodaj(const QString& nazwa) {
    b.baza.ExecSQL("insert into T (Nazwa) values (:Nazwa)", {{"Nazwa", nazwa}});
  }
  long long Ile() { return b.Liczba("select count(*) from T"); }

  BazaTestowa b;
};

TEST_F(Baza, WartosciWracajaTakieSame) {
  const QString nazwa = QStringLiteral("Żółć 'x' \" : % ;");
  const long long duza = 9'007'199'254'740'993;
  EXPECT_EQ(b.baza.WstawOdRazu("Id", "insert into T (Nazwa, Cena, Duza) values (:Nazwa, :Cena, :Duza)",
                               {{"Nazwa", nazwa}, {"Cena", 0.1}, {"Duza", duza}}),
            1);
  b.baza.ExecSQL("insert into T (Nazwa, Cena) values (:Nazwa, :Cena)",
                 {{"Nazwa", Wartosc(TypPola::Tekst)}, {"Cena", Wartosc(TypPola::Dziesietne)}});
  EXPECT_EQ(b.baza.PobierzAutoId(), 1);  // of the row whose key was asked for

  TKMQuery query(kPola);
  EXPECT_THROW(query.Open(), EBladBazy);
  b.baza.PowiazQuery(query);
  query.SetSql("select Id, Nazwa, Cena, Duza from T order by Id");
  query.Open();
  ASSERT_EQ(query.RecordCount(), 2);
  EXPECT_EQ(query.FieldByName("Nazwa").AsString(), nazwa);
  EXPECT_EQ(query.FieldByName("Cena").AsFloat(), 0.1);
  EXPECT_EQ(query.FieldByName("Duza").AsInteger(), duza);
  query.MoveTo(1);
  EXPECT_TRUE(query.FieldByName("Nazwa").IsNull());
  EXPECT_TRUE(query.FieldByName("Cena").IsNull());
  EXPECT_THROW(query.FieldByName("Brak"), std::out_of_range);

  // A reading that fails behind its first row.
  b.baza.ExecSQL("update T set Duza = -9223372036854775807 - 1 where Id = 2");
  query.Close();
  query.SetSql("select Id, Nazwa, Cena, abs(Duza) from T order by Id");
  EXPECT_THROW(query.Open(), EBladBazy);
  EXPECT_FALSE(query.Active());
  EXPECT_EQ(std::pair(query.RecordCount(), query.RecNo()), std::pair(0, -1));
}

TEST_F(Baza, LiczbyJakoTeksty) {
  const std::pair<double, const char*> kLiczby[] = {
      {9.99, "9.99"},     {0.1 + 0.2, "0.3"}, {-1250, "-1250"},  {-0.0, "0"},
      {0.00001, "1e-05"}, {1e15, "1e+15"},    {1e300, "1e+300"}, {2.0 / 3, "0.666666666666667"}};
  for (const auto& [liczba, tekst] : kLiczby) {
    EXPECT_EQ(Wartosc(liczba).AsString(), QLatin1String(tekst));
    Wartosc jakoTekst(TypPola::Tekst);
    jakoTekst.SetFloat(liczba);
    EXPECT_EQ(jakoTekst.AsUtf8(), tekst);
  }
  EXPECT_EQ(std::pair(Wartosc(2.7).AsInteger(), Wartosc(-2.5).AsInteger()), std::pair(3LL, -3LL));
}

TEST_F(Baza, ZmianyPolPamietajaStaraWartosc) {
  Dodaj(QStringLiteral("a"));
  TKMQuery query(kPola);
  b.baza.PowiazQuery(query);
  query.SetSql("select Id, Nazwa, Cena, Duza from T");
  query.Open();
  TMField& nazwa = query.FieldByName("Nazwa");
  nazwa.SetString(QStringLiteral("b"));
  nazwa.SetString(QStringLiteral("c"));
  EXPECT_TRUE(query.GetUpdatesPending());
  EXPECT_EQ(nazwa.OldValue().AsString(), QStringLiteral("a"));
  nazwa.SetString(QStringLiteral("a"));
  EXPECT_FALSE(query.GetUpdatesPending());
  query.Append();
  EXPECT_TRUE(query.GetUpdatesPending());
  query.ZatwierdzZmiany();
  EXPECT_FALSE(query.GetUpdatesPending());
}

TEST_F(Baza, JednostkaCofaTylkoSiebie) {
  b.baza.StartTransakcji();
  {
    JednostkaZapisu pierwsza(b.baza);
    Dodaj(QStringLiteral("zostaje"));
    try {
      JednostkaZapisu zagniezdzona(b.baza);
      Dodaj(QStringLiteral("znika"));
      Dodaj(QStringLiteral("zostaje"));
      FAIL() << "a repeated name was accepted";
    } catch (const EBladBazy& blad) {
      EXPECT_EQ(blad.Rodzaj(), RodzajBleduBazy::Ograniczenie);
      EXPECT_FALSE(blad.KonczyPrzebieg());
      EXPECT_FALSE(blad.MacDescription().contains(QStringLiteral("zostaje")));  // a bound value
      EXPECT_TRUE(blad.MacDescription().contains(QStringLiteral("insert into T")));
    }
    pierwsza.Zatwierdz();
  }
  EXPECT_TRUE(b.baza.GetCzyWTransakcji());
  b.baza.KoniecTransakcji();
  EXPECT_EQ(Ile(), 1);
  {
    JednostkaZapisu wlasna(b.baza);
    Dodaj(QStringLiteral("bez zatwierdzenia"));
  }
  EXPECT_FALSE(b.baza.GetCzyWTransakcji());
  EXPECT_EQ(Ile(), 1);

  // A unit that cannot be undone alone takes the transaction with it.
  b.baza.StartTransakcji();
  b.baza.UstawPodsluch([](std::string_view sql) {
    if (sql.starts_with("rollback to")) throw std::runtime_error("broken");
  });
  {
    JednostkaZapisu niecofnieta(b.baza);
    Dodaj(QStringLiteral("pół"));
  }
  b.baza.UstawPodsluch({});
  EXPECT_FALSE(b.baza.GetCzyWTransakcji());
  EXPECT_EQ(Ile(), 1);
}

TEST_F(Baza, CzytaniaNieTrzymajaTransakcji) {
  for (const char* nazwa : {"a", "b", "c"}) Dodaj(QString::fromLatin1(nazwa));
  TVLTBazaDanych druga, trzecia;
  b.Polacz(druga);
  b.Polacz(trzecia);
  const long long przed = druga.ZnacznikObcychZmian();
  EXPECT_NE(trzecia.ZnacznikObcychZmian(), przed) << "one connection cannot tell what another has seen";
  {
    // The same text read again while its first reading stands in the middle.
    auto zewnetrzny = druga.Otworz("select Nazwa from T order by Id", {TypPola::Tekst});
    ASSERT_TRUE(zewnetrzny.Nastepny());
    auto wewnetrzny = druga.Otworz("select Nazwa from T order by Id", {TypPola::Tekst});
    int ile = 0;
    while (wewnetrzny.Nastepny()) ++ile;
    EXPECT_EQ(ile, 3);
    ASSERT_TRUE(zewnetrzny.Nastepny());
    EXPECT_EQ(zewnetrzny[0].AsString(), QStringLiteral("b"));
  }
  Dodaj(QStringLiteral("d"));
  EXPECT_NE(druga.ZnacznikObcychZmian(), przed);
  auto odczyt = druga.Otworz("select count(*) from T", {TypPola::Calkowite});
  ASSERT_TRUE(odczyt.Nastepny());
  EXPECT_EQ(odczyt[0].AsInteger(), 4);
}

TEST_F(Baza, RodzajeBledow) {
  const QRegularExpression kAngielskie(
      QStringLiteral("error|database|locked|cannot|unable|transaction|insert|select|full|constraint"),
      QRegularExpression::CaseInsensitiveOption);
  TVLTBazaDanych druga;
  b.Polacz(druga);
  b.baza.StartTransakcji();
  const auto rodzaj = [&](auto&& praca) {
    try {
      praca();
    } catch (const EBladBazy& blad) {
      EXPECT_FALSE(blad.MacMessage().isEmpty());
      // The words of a library only behind ours.
      for (const QString& linia : blad.Tresc().split(u'\n'))
        EXPECT_TRUE(linia.startsWith(kSzczegoly) || !linia.contains(kAngielskie)) << linia.toStdString();
      return blad.Rodzaj();
    }
    ADD_FAILURE() << "no error";
    return RodzajBleduBazy::Inny;
  };
  EXPECT_EQ(rodzaj([&] { druga.StartTransakcji(); }), RodzajBleduBazy::Blokada);
  b.baza.WycofTransakcji();
  const bool serwer = NaSerwerze();
  EXPECT_EQ(rodzaj([&] {
              druga.ExecSQL(serwer ? "set default_transaction_read_only = on" : "pragma query_only = on");
              druga.ExecSQL("insert into T (Nazwa) values ('x')");
            }),
            RodzajBleduBazy::TylkoOdczyt);
  Dodaj(QStringLiteral("dwa"));
  for (const auto& [sql, powod] :
       {std::pair{"insert into T (Nazwa) values ('dwa')", u"Taki wiersz już jest w bazie."},
        {"insert into NieMa values (1)",
         serwer ? u"W bazie brakuje tabeli" : u"Baza jest zbudowana inaczej"}}) {
    EXPECT_NE(rodzaj([&] { b.baza.ExecSQL(sql); }), RodzajBleduBazy::Polaczenie);
    try {
      b.baza.ExecSQL(sql);
    } catch (const EBladBazy& blad) {
      EXPECT_TRUE(blad.MacDescription().startsWith(powod)) << blad.MacDescription().toStdString();
      EXPECT_TRUE(blad.MacDescription().contains(u"\r\nSzczegóły: ")) << blad.MacDescription().toStdString();
    }
  }
  if (serwer) return;
  b.baza.ExecSQL("pragma max_page_count = 6");
  EXPECT_EQ(rodzaj([&] { Dodaj(QString(200'000, QLatin1Char('x'))); }), RodzajBleduBazy::PelnyDysk);

  TVLTBazaDanych brak(*ParametryPolaczenia::ZTekstu(b.Sciezka() + QStringLiteral(".brak")));
  EXPECT_EQ(rodzaj([&] { brak.Polacz(); }), RodzajBleduBazy::Polaczenie);
  EXPECT_EQ(rodzaj([&] { brak.ExecSQL("select 1"); }), RodzajBleduBazy::Polaczenie);

  const QString zwykly = b.Sciezka() + QStringLiteral(".txt");
  QFile plik(zwykly);
  ASSERT_TRUE(plik.open(QIODevice::WriteOnly));
  plik.write(QByteArray(4096, 'x'));
  plik.close();
  TVLTBazaDanych nieBaza(*ParametryPolaczenia::ZTekstu(QStringLiteral("sqlite:") + zwykly));
  EXPECT_EQ(rodzaj([&] { nieBaza.Polacz(); }), RodzajBleduBazy::Wejscie);
  EXPECT_FALSE(nieBaza.Polaczona());
}

// Another value shows only on a bad day: a power cut, two programs, a half record.
TEST_F(Baza, PolaczenieMaUstawieniaTrwalosciIBlokad) {
  const std::pair<const char*, const char*> plik[] = {{"pragma synchronous", "1"},
                                                      {"pragma foreign_keys", "1"},
                                                      {"pragma journal_mode", "wal"},
                                                      {"pragma busy_timeout", "1000"}};
  const std::pair<const char*, const char*> serwer[] = {{"show transaction_isolation", "read committed"},
                                                        {"show lock_timeout", "1s"},
                                                        {"show client_encoding", "UTF8"}};
  b.baza.StartTransakcji();
  for (const auto& [sql, wartosc] :
       NaSerwerze() ? std::span<const std::pair<const char*, const char*>>(serwer) : plik)
    EXPECT_EQ(b.Tekst(sql), QLatin1String(wartosc)) << sql;
  Dodaj(QStringLiteral("a"));
  b.baza.KoniecTransakcji();
  if (NaSerwerze()) return;
  const QString dziennik = b.Sciezka() + QStringLiteral("-wal");
  EXPECT_GT(QFileInfo(dziennik).size(), 0);
  b.baza.Utrwal();
  EXPECT_EQ(QFileInfo(dziennik).size(), 0);
}

// Neither a file that is gone nor one that stands in its place takes what the session believes to save.
TEST_F(Baza, ZniknieciePlikuJestZauwazane) {
  if (NaSerwerze()) GTEST_SKIP() << "files of an embedded database";
  using Zniszczenie = std::function<void(const QString&)>;
  const Zniszczenie zniszczenia[] = {
      [](const QString& plik) { QFile::remove(plik); },
      [](const QString& plik) { QFile::remove(plik + QStringLiteral("-wal")); },
      [](const QString& plik) {
        QFile::copy(plik, plik + QStringLiteral("2"));
        EXPECT_EQ(std::rename((plik + QStringLiteral("2")).toUtf8(), plik.toUtf8()), 0);
      },
      [](const QString& plik) { QFile::resize(plik, 5000); },
      [](const QString& plik) { QFile::resize(plik, 0); }};
  using Krok = std::function<void(TVLTBazaDanych&)>;
  const Krok kroki[] = {[](auto& baza) { baza.StartTransakcji(); },
                        [](auto& baza) { baza.KoniecTransakcji(); }, [](auto& baza) { baza.Utrwal(); }};
  for (const Zniszczenie& zniszczenie : zniszczenia)
    for (std::size_t ktory = 0; ktory < std::size(kroki); ++ktory) {
      BazaTestowa nasza;
      nasza.baza.ExecSQL("create table T (Nazwa text)");
      for (int i = 0; i < 20; ++i)
        nasza.baza.ExecSQL("insert into T (Nazwa) values (:N)", {{"N", QString(2000, u'x')}});
      nasza.baza.Utrwal();
      for (std::size_t i = 0; i < ktory; ++i) kroki[i](nasza.baza);
      zniszczenie(nasza.Sciezka());
      try {
        kroki[ktory](nasza.baza);
        ADD_FAILURE() << "not noticed: " << (&zniszczenie - zniszczenia) << ' ' << ktory;
      } catch (const EBladBazy& blad) {
        EXPECT_EQ(blad.Rodzaj(), RodzajBleduBazy::Zniknela);
      }
      EXPECT_FALSE(nasza.baza.Polaczona());  // the next run connects anew
    }
  // A vacuum makes the file shorter too, and nothing is lost.
  for (int i = 0; i < 50; ++i) Dodaj(QString(2000, u'x') + QString::number(i));
  b.baza.Utrwal();
  const qint64 przed = QFile(b.Sciezka()).size();
  TVLTBazaDanych inna;
  b.Polacz(inna);
  inna.ExecSQL("delete from T");
  inna.ExecSQL("vacuum");
  inna.Utrwal();
  EXPECT_LT(QFile(b.Sciezka()).size(), przed);
  EXPECT_NO_THROW(b.baza.StartTransakcji());
}

// A reader who stays keeps the log from being moved, and so does a transaction of our own; the disk confirms
// it all the same, and nobody waits.
TEST_F(Baza, UtrwalNieCzekaNaCzytajacych) {
  TVLTBazaDanych inna;
  b.Polacz(inna, false, 15);
  const OdczytJednejChwili chwila(inna);
  inna.Otworz("select count(*) from T", {TypPola::Calkowite}).Nastepny();
  for (const bool wTransakcji : {false, true}) {
    JednostkaZapisu zapis(b.baza);
    Dodaj(wTransakcji ? QStringLiteral("b") : QStringLiteral("a"));
    zapis.Zatwierdz();
    std::optional<JednostkaZapisu> otwarta;
    if (wTransakcji) otwarta.emplace(b.baza);
    EXPECT_NO_THROW(b.baza.Utrwal());
  }
  EXPECT_EQ(Ile(), 2);
}

// What others write while it is made neither gets into it nor begins it anew.
TEST_F(Baza, KopiaJestZJednejChwiliIDajeSieZatrzymac) {
  if (NaSerwerze()) GTEST_SKIP() << "files of an embedded database";
  QFile kopia(b.Sciezka() + QStringLiteral(".kopia"));
  ASSERT_TRUE(kopia.open(QIODevice::WriteOnly));
  for (int i = 0; i < 100; ++i) Dodaj(QString(60'000, u'x') + QString::number(i));
  TVLTBazaDanych inna, skopiowana(*ParametryPolaczenia::ZTekstu(kopia.fileName()));
  b.Polacz(inna);
  for (const bool cala : {false, true}) {
    ASSERT_TRUE(kopia.resize(0));
    long long dotad = 0;
    EXPECT_EQ(b.baza.KopiujDo(kopia.fileName(),
                              [&](long long zrobionych, long long wszystkich) {
                                EXPECT_GT(wszystkich, 1500);
                                inna.ExecSQL("update T set Duza = :Ile", {{"Ile", zrobionych}});
                                return cala && std::exchange(dotad, zrobionych) < zrobionych;
                              }),
              cala);
  }
  skopiowana.Polacz();
  auto odczyt = skopiowana.Otworz("select count(*) from T where Duza = 1024", {TypPola::Calkowite});
  ASSERT_TRUE(odczyt.Nastepny());
  EXPECT_EQ(odczyt[0].AsInteger(), 100);
}

TEST_F(Baza, KonfiguracjaJestZastepowanaWCalosci) {
  const QString nazwa = QStringLiteral("ZORVIK");
  TMConfig pierwsza;
  pierwsza.Ustaw(QStringLiteral("A"), QStringLiteral("1"));
  pierwsza.Ustaw(QStringLiteral("B"), QStringLiteral("ż"));
  b.baza.ZapiszKonfiguracje(nazwa, pierwsza);
  TMConfig druga;
  druga.Ustaw(QStringLiteral("C"), QStringLiteral("3"));
  b.baza.ZapiszKonfiguracje(nazwa, druga);
  TMConfig wynik;
  wynik.Ustaw(QStringLiteral("A"), QStringLiteral("stare"));
  b.baza.WczytajKonfiguracje(nazwa, wynik);
  ASSERT_EQ(wynik.Params().size(), 2U);
  EXPECT_EQ(wynik.ParamByName(QStringLiteral("A"))->Wartosc(), QStringLiteral("stare"));
  EXPECT_EQ(wynik.ParamByName(QStringLiteral("C"))->Wartosc(), QStringLiteral("3"));
}

}  // namespace
