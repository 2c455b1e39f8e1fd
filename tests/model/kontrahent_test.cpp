#include "model/kontrahent.h"

#include <gtest/gtest.h>

#include "database/schemat.h"
#include "model/bledy.h"
#include "model/kontekst.h"
#include "model/lista_kontrahentow.h"
#include "model/numery_sklepow.h"
#include "model/parametry_systemu.h"
#include "tests/wspolne/baza_testowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using K = KolumnaKontrahenta;
using T = TDmVLTKontrahent;

class Kontrahenci : public testing::Test {
 protected:
  void SetUp() override {
    UtworzBaze(b.baza, {});
    b.baza.ExecSQL("insert into Magazyn (Nazwa) values ('Główny')");
  }
  std::unique_ptr<T> Nowy(const QString& nazwa, bool sklep = false) {
    auto kontrahent = std::make_unique<T>(kontekst);
    kontrahent->Nowy();
    kontrahent->UstawNazwa(nazwa);
    kontrahent->UstawSklep(sklep);
    return kontrahent;
  }
  std::unique_ptr<T> Wczytany(int id) {
    auto kontrahent = std::make_unique<T>(kontekst);
    kontrahent->Wczytaj(id);
    return kontrahent;
  }
  QString Osoby(int id) {
    return b.Kolumna("select Nazwisko from Osoba where KontrId = " + std::to_string(id) + " order by OsId");
  }
  QString OstatniWpis() { return b.OstatniWpis(); }

  BazaTestowa b;
  ParametrySystemu parametry;
  KontekstSesji kontekst{b.baza, parametry};
};

template <typename Praca>
int KodBledu(Praca praca) {
  try {
    praca();
  } catch (const EVLTWDError& blad) {
    return blad.MacCode();
  }
  return 0;
}

// Every column gets a value of its own, so that a column read or written in another's place shows.
TEST_F(Kontrahenci, KazdaKolumnaWracaZBazyPoDodaniuIPoPoprawce) {
  auto kontrahent = Nowy(u"x"_s, true);
  int id = -1;
  for (const int zapis : {1, 2}) {
    for (std::size_t i = K::AkwId; i <= K::Rezerwa2; ++i) {
      const int liczba = 100 * zapis + static_cast<int>(i);
      TMField& pole = kontrahent->Query.Field(i);
      const TypPola typ = pole.Value().Typ();
      pole.SetString(typ == TypPola::Czas    ? u"2026-02-0%1 13:14:15"_s.arg(zapis)
                     : typ == TypPola::Tekst ? u"zażółć 'x' %1"_s.arg(liczba)
                                             : QString::number(liczba));
    }
    kontrahent->UstawNrSklepu(zapis);
    kontrahent->UstawNrSeryjny(u"SN"_s + QString::number(zapis));
    kontrahent->UstawMagId(1);
    const QString wymImport = zapis == 2 ? u"2026-03-04 05:06:07"_s : QString();
    if (zapis == 2) kontrahent->UstawWymImport(QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7), Qt::UTC));
    kontrahent->UstawPelnyImport(zapis == 1);
    EXPECT_FALSE(kontrahent->TakiSamJakWBazie());
    id = kontrahent->Zapisz();
    EXPECT_TRUE(kontrahent->TakiSamJakWBazie());

    const auto jest = Wczytany(id);
    for (std::size_t i = 0; i < K::kIlosc; ++i)
      if (i != K::Zmiana && i != K::KolejnyWDniuBO) {  // filled by the database
        EXPECT_EQ(jest->Query.Field(i).AsString(), kontrahent->Query.Field(i).AsString())
            << jest->Query.Field(i).FieldName();
      }
    EXPECT_EQ(b.Tekst("select WymImport from Sklep"), wymImport);
    EXPECT_EQ(jest->PelnyImport(), zapis == 1);
    EXPECT_EQ(jest->TermWaznKarty(), QDate(2026, 2, zapis));
    EXPECT_FALSE(jest->Zmiana().isEmpty());
    EXPECT_TRUE(jest->Sklep() && jest->ZakPracChron());
  }
  EXPECT_EQ(b.Liczba("select count(*) from Kontrahent"), 1);

  b.baza.ExecSQL(
      "update Sklep set OstImport = '2026-01-01 01:00:00', DataBO = '2026-01-02 02:00:00', KolejnyWDniuBO = "
      "3,"
      " OstEksport = '2026-01-04 04:00:00', PotwEksport = '2026-01-05 05:00:00'");
  const auto sklep = Wczytany(id);
  const auto chwila = [](int n) { return QDateTime(QDate(2026, 1, n), QTime(n, 0), Qt::UTC); };
  EXPECT_EQ(sklep->OstImport(), chwila(1));
  EXPECT_EQ(sklep->DataBO(), chwila(2));
  EXPECT_EQ(sklep->KolejnyWDniuBO(), 3);
  EXPECT_EQ(sklep->OstEksport(), chwila(4));
  EXPECT_EQ(sklep->PotwEksport(), chwila(5));
  EXPECT_EQ(sklep->WymImport(), QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7), Qt::UTC));
}

TEST_F(Kontrahenci, WartosciKtoreCzytajaSieTakSamoNieSaZmiana) {
  b.baza.ExecSQL(
      "insert into Kontrahent (Nazwa, Ulica, Staly, Dostawca, RabatDost, TermWaznKarty) values"
      " ('A', null, null, 7, 0.1, '2026-01-31 10:00:00')");
  const auto jest = Wczytany(1);
  EXPECT_FALSE(jest->Sklep());
  EXPECT_TRUE(jest->Query.Field(K::NrSklepu).IsNull());
  jest->UstawUlica({});
  jest->UstawStaly(false);
  jest->UstawDostawca(true);
  jest->UstawRabatDost(0.1 + 1e-9);
  jest->UstawTermWaznKarty(QDate(2026, 1, 31));
  jest->UstawSklep(true);
  EXPECT_FALSE(jest->TakiSamJakWBazie());
  jest->UstawSklep(false);
  EXPECT_TRUE(jest->TakiSamJakWBazie());
  const QString osoby[] = {u"A"_s};
  jest->UstawOsoby(osoby);
  EXPECT_FALSE(jest->TakiSamJakWBazie());
  jest->UstawTermWaznKarty({});
  jest->Zapisz();
  EXPECT_FALSE(Wczytany(1)->TermWaznKarty().isValid());
}

TEST_F(Kontrahenci, OsobyWKolejnosciIBezPowtorzen) {
  auto kontrahent = Nowy(u"A"_s);
  const QString osoby[] = {u"Żak"_s, {}, u"Adamek"_s, u" "_s, u"Żak"_s, u"O'Neil"_s};
  kontrahent->UstawOsoby(osoby);
  const int id = kontrahent->Zapisz();
  EXPECT_EQ(Osoby(id), u"Żak,Adamek,O'Neil");
  b.baza.ExecSQL("insert into Osoba (KontrId, Nazwisko) values (1, 'Adamek')");
  // A server puts a row that is written over behind the others.
  b.baza.ExecSQL("update Osoba set Nazwisko = 'Żak' where Nazwisko = 'Żak'");
  kontrahent->Wczytaj(id);
  ASSERT_EQ(kontrahent->IloscOsob(), 3);
  EXPECT_EQ(kontrahent->Osoba(1), u"Adamek");
  EXPECT_EQ(KodBledu([&] { kontrahent->Osoba(3); }), 2003);
  kontrahent->UstawOsoby(std::vector<QString>(kontrahent->Osoby().rbegin(), kontrahent->Osoby().rend()));
  kontrahent->Zapisz();
  EXPECT_EQ(Osoby(id), u"O'Neil,Adamek,Żak");
  kontrahent->UstawOsoby({});
  kontrahent->Zapisz();
  EXPECT_EQ(b.Liczba("select count(*) from Osoba"), 0);
  EXPECT_EQ(Nowy(u"B"_s)->IloscOsob(), 0);
}

// A database made before persons had numbers: their order is that of the rows.
TEST_F(Kontrahenci, OsobyWBazieBezNumerow) {
  b.baza.ExecSQL("drop table Osoba");
  b.baza.ExecSQL("create table Osoba (KontrId integer not null, Nazwisko varchar(1000) not null)");
  const QString osoby[] = {u"Żak"_s, u"Adamek"_s};
  auto kontrahent = Nowy(u"A"_s);
  for (const bool odwrotnie : {false, true}) {
    kontrahent->UstawOsoby(osoby);
    if (odwrotnie) kontrahent->UstawOsoby(std::vector<QString>(std::rbegin(osoby), std::rend(osoby)));
    const int id = kontrahent->Zapisz();
    EXPECT_EQ(Wczytany(id)->Osoba(0), odwrotnie ? u"Adamek" : u"Żak");
    EXPECT_EQ(b.Liczba("select count(*) from Osoba"), 2);
  }
}

// What another program has written between the reading of a contractor and its save stays, unless the save
// itself changes it.
TEST_F(Kontrahenci, CudzeZmianyPrzezywajaZapis) {
  auto sklep = Nowy(u"Sklep"_s, true);
  sklep->UstawNrSeryjny(u"S1"_s);
  const QString osoby[] = {u"Adamek"_s};
  sklep->UstawOsoby(osoby);
  const int id = sklep->Zapisz();
  TVLTBazaDanych inny;
  b.Polacz(inny);
  const auto zmien = [&](std::initializer_list<const char*> polecenia) {
    for (const char* sql : polecenia) inny.ExecSQL(sql);
  };
  const auto stan = [&] {
    return b.Tekst(
               "select K.Nazwa || ' ' || K.Telefon || ' ' || S.NrSklepu || ' ' || S.NrSeryjny || ' '"
               " || S.PelnyImport from Kontrahent K, Sklep S where K.KontrId = S.SklepId") +
           u' ' + Osoby(id);
  };
  const auto jest = Wczytany(id), zOsobami = Wczytany(id);
  zmien({"update Kontrahent set Telefon = '12'", "insert into Osoba (KontrId, Nazwisko) values (1, 'Żak')",
         "update Sklep set NrSeryjny = 'S2', PelnyImport = 0"});
  jest->UstawNazwa(u"Inny"_s);
  jest->Zapisz();
  EXPECT_EQ(stan(), u"Inny 12 1 S2 0 Adamek,Żak");
  EXPECT_EQ(OstatniWpis(), u"Zmiana kontrahenta: nazwa z 'Sklep' na 'Inny'");
  EXPECT_EQ(jest->NrSeryjny(), u"S2");

  const QString nowe[] = {u"Lis"_s};
  zOsobami->UstawOsoby(nowe);
  zOsobami->UstawNrSklepu(5);
  zOsobami->Zapisz();
  EXPECT_EQ(stan(), u"Inny 12 5 S2 0 Lis");

  // Somebody has made the same change already: nothing is left to be written.
  const auto taki = Wczytany(id);
  zmien({"delete from Osoba", "insert into Osoba (KontrId, Nazwisko) values (1, 'Wilk')",
         "update Kontrahent set Nazwa = 'Cudzy'"});
  const QString wilk[] = {u"Wilk"_s};
  taki->UstawOsoby(wilk);
  taki->UstawTelefon(u"13"_s);
  taki->UstawNazwa(u"Nasz"_s);
  b.baza.UstawPodsluch([](std::string_view sql) {
    EXPECT_FALSE(sql.starts_with("delete from Osoba") || sql.starts_with("update Sklep")) << sql;
  });
  taki->Zapisz();
  b.baza.UstawPodsluch({});
  EXPECT_EQ(stan(), u"Nasz 13 5 S2 0 Wilk");
  EXPECT_TRUE(OstatniWpis().contains(u"nazwa z 'Cudzy' na 'Nasz'"_s)) << OstatniWpis().toStdString();

  // No longer a shop, a shop again with the row that somebody has made meanwhile.
  const auto bezSklepu = Wczytany(id);
  bezSklepu->UstawSklep(false);
  bezSklepu->Zapisz();
  bezSklepu->UstawSklep(true);
  zmien({"insert into Sklep (SklepId, NrSklepu, NrSeryjny) values (1, 9, 'S3')"});
  bezSklepu->Zapisz();
  EXPECT_EQ(stan(), u"Nasz 13 9 S3 0 Wilk");
}

// An update asks and says no more than it must: the first word of every statement of a reading and a save.
TEST_F(Kontrahenci, PoleceniaPoprawkiWPaczce) {
  const QString osoby[] = {u"Adamek"_s};
  auto kontrahent = Nowy(u"A"_s);
  kontrahent->UstawOsoby(osoby);
  const int id = kontrahent->Zapisz();
  Wczytany(id);  // the catalogue is read once
  const auto polecenia = [&](const char16_t* telefon, bool zOsobami) {
    QStringList slowa;
    b.baza.GrupujZapisy(true);
    b.baza.StartTransakcji();
    b.baza.UstawPodsluch([&](std::string_view sql) {
      const QString tekst = QString::fromUtf8(sql.data(), static_cast<qsizetype>(sql.size()));
      slowa << (tekst.contains(u"for update"_s) ? u"blokada"_s : tekst.section(u' ', 0, 0));
    });
    kontrahent->Wczytaj(id);
    kontrahent->UstawTelefon(QString::fromUtf16(telefon));
    if (zOsobami) kontrahent->UstawOsoby({});
    kontrahent->Zapisz();
    b.baza.UstawPodsluch({});
    b.baza.KoniecTransakcji();
    return slowa.join(u' ');
  };
  if (NaSerwerze()) {
    EXPECT_EQ(polecenia(u"1", false), u"select select savepoint blokada update insert release");
    EXPECT_EQ(polecenia(u"2", true), u"select select savepoint blokada select update delete insert release");
  } else {
    EXPECT_EQ(polecenia(u"1", false), u"select select savepoint update insert release");
    EXPECT_EQ(polecenia(u"2", true), u"select select savepoint update delete insert release");
  }
}

// What the saves of a batch share never differs from what the database would say.
TEST_F(Kontrahenci, WspolneNumerySklepowWPaczce) {
  NumerySklepow numery;
  const auto zapisz = [&](int numer, const QString& nazwa = u"A"_s) {
    auto kontrahent = Nowy(nazwa, true);
    kontrahent->WspolneNumerySklepow(numery);
    if (numer > 0) kontrahent->UstawNrSklepu(numer);
    if (KodBledu([&] { kontrahent->Zapisz(); }) != 0) return kontrahent;
    EXPECT_EQ(kontrahent->NrSklepu(), b.Liczba("select NrSklepu from Sklep order by SklepId desc"));
    return kontrahent;
  };
  b.baza.GrupujZapisy(true);
  b.baza.StartTransakcji();
  EXPECT_EQ(zapisz(0)->NrSklepu(), 1);
  zapisz(0, u" "_s);  // refused
  EXPECT_EQ(zapisz(0)->NrSklepu(), 2);
  const auto dziewiaty = zapisz(9);
  EXPECT_EQ(zapisz(0)->NrSklepu(), 10);
  zapisz(5);
  const auto ostatni = zapisz(0);
  EXPECT_EQ(ostatni->NrSklepu(), 11);
  int zapytan = 0;
  b.baza.UstawPodsluch([&](std::string_view sql) { zapytan += sql.starts_with("select max"); });
  for (const int numer : {12, 13}) EXPECT_EQ(zapisz(0)->NrSklepu(), numer);
  EXPECT_EQ(zapytan, 0);
  dziewiaty->UstawNrSklepu(20);
  dziewiaty->Zapisz();
  const auto nowy = zapisz(0);
  EXPECT_EQ(nowy->NrSklepu(), 21);
  for (const auto& byly : {dziewiaty.get(), nowy.get()}) {
    byly->UstawSklep(false);
    byly->Zapisz();
  }
  EXPECT_EQ(zapisz(0)->NrSklepu(), 14);
  b.baza.KoniecTransakcji();
}

TEST_F(Kontrahenci, WierszSklepuPowstajeZmieniaSieIZnika) {
  auto a = Nowy(u"A"_s, true);
  a->UstawNrSklepu(7);
  const int id = a->Zapisz();
  auto drugi = Nowy(u"B"_s, true);
  const int drugiId = drugi->Zapisz();
  EXPECT_EQ(drugi->NrSklepu(), 8);
  EXPECT_TRUE(drugi->PelnyImport()) << "memory holds what the new row holds";
  EXPECT_TRUE(Wczytany(drugiId)->PelnyImport() && Wczytany(drugiId)->NrSklepu() == 8);

  auto trzeci = Nowy(u"C"_s, true);
  trzeci->UstawNrSklepu(8);
  EXPECT_EQ(KodBledu([&] { trzeci->Zapisz(); }), 2860);
  EXPECT_EQ(b.Liczba("select count(*) from Kontrahent"), 2);
  // Of two shops with the number the one with the lower identifier is named, though a server meets the other
  // first.
  for (const char* sql :
       {"insert into Kontrahent (KontrId, Nazwa) values (9, 'D')", "delete from Sklep where SklepId = 1",
        "insert into Sklep (SklepId, NrSklepu) values (9, 7), (1, 7)"})
    b.baza.ExecSQL(sql);
  drugi->UstawNrSklepu(7);
  try {
    drugi->Zapisz();
    ADD_FAILURE() << "taken";
  } catch (const EVLTWDError& blad) {
    EXPECT_EQ(blad.MacMessage(), u"Numer sklepu nie jest unikalny");
    EXPECT_EQ(blad.Detail(), u"[1]: A");
  }
  b.baza.ExecSQL("delete from Sklep where SklepId = 9");

  b.baza.ExecSQL("insert into Asort (Nazwa) values ('x')");
  b.baza.ExecSQL("insert into JM (Nazwa) values ('x')");
  b.baza.ExecSQL("insert into Towar (Nazwa, Skrot, Kod, AsId, JMId) values ('x', 'x', 'x', 1, 1)");
  b.baza.ExecSQL("insert into SklepFlagi (SklepId, TowId) values (1, 1)");
  a->UstawSklep(false);
  a->Zapisz();
  EXPECT_EQ(b.Kolumna("select SklepId from Sklep"), QString::number(drugiId));
  a->UstawSklep(true);
  a->Zapisz();
  EXPECT_EQ(Wczytany(id)->NrSklepu(), 9) << "a new shop again";
  b.baza.ExecSQL("delete from SklepFlagi");
  b.baza.ExecSQL("delete from Sklep where SklepId = 1");
  a->Zapisz();
  EXPECT_EQ(Wczytany(id)->NrSklepu(), 9) << "a shop whose row was lost";
}

TEST_F(Kontrahenci, OdmowyZapisu) {
  struct Przypadek {
    int kod;
    std::function<void(T&)> zmien;
    QString pole = {};
  };
  const Przypadek przypadki[] = {
      {2839, [](T& t) { t.UstawNazwa(u" "_s); }},
      {2006, [](T& t) { t.UstawCzasRealZam(1LL << 31); }},
      {2006, [](T& t) { t.UstawMaxKredyt(1e15); }},
      {2006, [](T& t) { t.UstawNrSklepu(1LL << 31), t.UstawSklep(true); }},
      {2040, [](T& t) { t.UstawNazwa(QString(1001, u'ż')); }, u"Nazwa kontrahenta"_s},
      {2040, [](T& t) { t.UstawKod(QString(1001, u'0')); }, u"Kod pocztowy"_s},
      {2040, [](T& t) { t.UstawUlica(QString(1001, u'a')); }, u"Ulica"_s},
      {2040, [](T& t) { t.UstawNrSeryjny(QString(1001, u'1')); }, u"Numer seryjny"_s},
      {2040,
       [](T& t) {
         t.UstawOsoby(std::vector{u"A"_s, QString(1001, u'b')});
       },
       u"Osoby uprawnione"_s}};
  for (const Przypadek& p : przypadki) {
    auto kontrahent = Nowy(u"A"_s);
    p.zmien(*kontrahent);
    try {
      kontrahent->Zapisz();
      ADD_FAILURE() << p.kod;
    } catch (const EVLTWDError& blad) {
      EXPECT_EQ(blad.MacCode(), p.kod);
      if (!p.pole.isEmpty()) {
        EXPECT_EQ(blad.MacDescription(),
                  u"Tekst w polu '%1' ma 1001 znaków, a mieści się ich 1000"_s.arg(p.pole));
      }
    }
  }
  auto pelny = Nowy(QString(1000, u'ż'));  // of two bytes each
  pelny->UstawOsoby(std::vector{QString(1000, u'ó')});
  const int pelnyId = pelny->Zapisz();
  EXPECT_EQ(Wczytany(pelnyId)->Osoba(0).size() + Wczytany(pelnyId)->Nazwa().size(), 2000);
  b.baza.ExecSQL("delete from Osoba");
  b.baza.ExecSQL("delete from Kontrahent");
  EXPECT_EQ(b.Liczba("select count(*) from Kontrahent"), 0);
  auto znikniety = Nowy(u"A"_s);
  znikniety->Zapisz();
  b.baza.ExecSQL("delete from Kontrahent");
  EXPECT_EQ(KodBledu([&] { znikniety->Zapisz(); }), 2001);
  EXPECT_EQ(KodBledu([&] { Wczytany(1); }), 2001);
}

// Each statement of a save fails in turn: the error passes as it is, nothing stays, the record can be saved.
TEST_F(Kontrahenci, NieudanyZapisNieZostawiaSladu) {
  auto kontrahent = Nowy(u"A"_s, true);
  for (const bool nowy : {true, false}) {
    const QString osoby[] = {u"A"_s, nowy ? u"B"_s : u"C"_s};
    kontrahent->UstawOsoby(osoby);
    kontrahent->UstawMagId(1);
    kontrahent->UstawNIP(nowy ? u"1"_s : u"2"_s);
    const QString przed = Osoby(kontrahent->Id()) + b.Tekst("select NIP from Kontrahent");
    int ktora = 0;
    for (bool udany = false; !udany; ++ktora) {
      int numer = -1;
      b.baza.StartTransakcji();
      b.baza.UstawPodsluch([&](std::string_view sql) {
        if (sql.starts_with("rollback") || numer++ != ktora || sql.starts_with("release")) return;
        throw EBladBazy(RodzajBleduBazy::Ograniczenie, u"próba"_s, {});
      });
      try {
        kontrahent->Zapisz();
        udany = true;
      } catch (const EBladBazy&) {
      }
      b.baza.UstawPodsluch({});
      b.baza.KoniecTransakcji();
      if (udany) break;
      EXPECT_EQ(Osoby(kontrahent->Id()) + b.Tekst("select NIP from Kontrahent"), przed) << ktora;
      EXPECT_EQ(kontrahent->CzyNowy(), nowy);
      EXPECT_EQ(b.Liczba("select count(*) from Sklep"), nowy ? 0 : 1);
    }
    EXPECT_GE(ktora, 7);
    EXPECT_EQ(Osoby(kontrahent->Id()), nowy ? u"A,B" : u"A,C");
    EXPECT_TRUE(Wczytany(kontrahent->Id())->Sklep());
  }
}

TEST_F(Kontrahenci, DziennikMowiCoSieZmienilo) {
  auto kontrahent = Nowy(u"A"_s, true);
  kontrahent->UstawDostawca(true);
  kontrahent->UstawKodKarty(u"123"_s);
  const int id = kontrahent->Zapisz();
  EXPECT_EQ(OstatniWpis(), u"Nowy kontrahent: dostawca, sklep, karta '123'");
  kontrahent->UstawNazwa(u"B"_s);
  kontrahent->UstawAkwId(5);
  kontrahent->UstawDostawca(false);
  kontrahent->UstawUlica(u"Długa"_s);
  kontrahent->Zapisz();
  EXPECT_EQ(OstatniWpis(), u"Zmiana kontrahenta: nazwa z 'A' na 'B', grupa kont z '0' na '5', dostawca: nie");
  EXPECT_EQ(b.Liczba("select count(*) from DziennikZmian where Tabela = 7 and Id1 = 1"), 2);

  kontrahent->UstawMiasto(u"czeka"_s);
  kontrahent->Usun();
  EXPECT_EQ(b.Tekst("select Aktywny || Miasto from Kontrahent"), u"0");
  EXPECT_EQ(KodBledu([&] { kontrahent->Usun(); }), 2802);
  kontrahent->Wczytaj(id);
  kontrahent->Przywroc();
  EXPECT_TRUE(kontrahent->TakiSamJakWBazie() && Wczytany(id)->Aktywny());
  EXPECT_EQ(KodBledu([&] { kontrahent->Przywroc(); }), 2803);
}

TEST_F(Kontrahenci, ListaPoIdentyfikatorzeZUsunietymi) {
  for (const QString& nip : {u"9"_s, u"1-2"_s}) {
    auto kontrahent = Nowy(u"K"_s + nip);
    kontrahent->UstawNIP(nip);
    kontrahent->UstawAktywny(nip != u"9");
    kontrahent->Zapisz();
  }
  TDmVLTListaKontrahentow lista(kontekst);
  lista.Otworz();
  ASSERT_EQ(lista.Ilosc(), 2);
  EXPECT_EQ(lista.NIP(), u"9");
  auto trzeci = Nowy(u"K"_s);
  trzeci->UstawNIP(u"3"_s);
  lista.DodajElement(trzeci->Zapisz());
  EXPECT_EQ(lista.IdBiezacego(), 3);
  EXPECT_EQ(lista.NIP(), u"3");
}

}  // namespace
