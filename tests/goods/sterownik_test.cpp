#include "tests/goods/import_testowy.h"

namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;

const QString kKoniec = u"Koniec: Aktualizację zakończono"_s;
const QString kStany =
    u"UWAGA: Wykonano import stanów magazynowych. Należy uruchomić program Veltrana i wywołać operację:\r"
    u"Kontrola->Operacje serwisowe->Automatyczna inicjacja-> według stanów towarowych"_s;

class SterownikTest : public testing::Test, protected ImportTestowy {};

TEST_F(SterownikTest, FazyICalePodsumowanie) {
  UstawPola({0, 1, 24});
  Importuj("590001;Chleb;Pieczywo\n590002;;X\n");
  EXPECT_THAT(
      postep.linie,
      ElementsAre(u"łączenie z bazą VLT Win"_s, u"przygotowanie bufora towarów"_s,
                  u"Wstępne przeglądanie pliku"_s, u"Ilość rekordów do przetworzenia 2"_s,
                  u"Numer aktualnego rekordu 2"_s, u"zamykanie pliku importu"_s, kKoniec,
                  u"Uwaga: Plik nie zawiera stawki VAT; nowe towary dostają stawkę 22 %. Rekordów: 1 (1)."_s,
                  u"Ilość dodanych towarów 1"_s, u"Ilość poprawionych towarów 0"_s,
                  u"Ilość pominiętych towarów 1"_s, u"Ilość dodanych asortymentów1"_s,
                  u"Ilość dodanych jednostek1"_s, u"Ilość dodanych stawek1"_s, u"Ilość dodanych kategorii0"_s,
                  u"Ilość dodanych parametrów0"_s, u"Ilość dodanych formatów kodów ważonych0"_s));
  EXPECT_EQ(b.Kolumna("select Nazwa || Precyzja from JM"), u"szt.0"_s);
  // The buffer is kept; a header alone is no record.
  struktura.CBNieAnalizujPierwszejLinii = true;
  Importuj("590003;Bułka;Pieczywo\n");
  EXPECT_FALSE(postep.linie.contains(u"przygotowanie bufora towarów"_s));
  EXPECT_TRUE(postep.linie.contains(u"Ilość rekordów do przetworzenia 0"_s));
  EXPECT_EQ(b.Kolumna("select Nazwa from Magazyn"), u"Magazyn nr 1"_s);
}

// "kind text count: records"
QStringList Uwagi(const WynikPrzebiegu& wynik) {
  QStringList uwagi;
  for (const Uwaga& u : wynik.uwagi)
    uwagi << u"%1 %2 %3: %4"_s.arg(u.NazwaRodzaju(), u.tekst).arg(u.ile).arg(u.NumeryRekordow());
  return uwagi;
}

TEST_F(SterownikTest, UwagiOStawkachVat) {
  b.baza.ExecSQL("delete from Vat");
  for (const int stawka : {2300, 800, 550, -1})
    b.baza.ExecSQL("insert into Vat (Stawka) values (:Stawka)", {{"Stawka", stawka}});
  opcje.cb_nowestawki = opcje.cb_akttow = opcje.cb_nowetowary = true;
  const QString bezOpisu =
      u"nieznany-vat Stawka VAT 5,5 % jest w bazie, a w strukturze pliku nie ma jej opisu; towary z tą stawką w pliku dostają stawkę 22 % 0: "_s;
  const auto nieznana = [](const char* tekst, const char* rekordy) {
    return u"nieznany-vat Tekst „%1” nie jest opisem żadnej stawki VAT; przyjęto stawkę 22 % %2"_s.arg(
        QString::fromUtf8(tekst), QString::fromUtf8(rekordy));
  };
  UstawPola({0, 1, 23});
  EXPECT_THAT(Uwagi(Importuj("590001;a;5%\n590002;b;A\n590003;c;ż5\n590004;d;5%\n590005;e; \n;f;7%\n")),
              ElementsAre(nieznana("5%", "2: 1, 4"), nieznana("ż5", "1: 3"), nieznana("", "1: 5"), bezOpisu));
  // A good whose rate is not written takes none.
  struktura.UstawOferowane(PoleTowaru::StawkaVat, false);
  EXPECT_THAT(Uwagi(Importuj("590001;aa;7%\n590007;g;7%\n")),
              ElementsAre(nieznana("7%", "1: 2"), QString(bezOpisu).replace("5,5", "22"), bezOpisu));
  UstawPola({0, 1});
  EXPECT_THAT(
      Uwagi(Importuj("590001;ab\n590008;h\n")),
      ElementsAre(u"vat-domyslny Plik nie zawiera stawki VAT; nowe towary dostają stawkę 22 % 1: 2"_s));
  struktura.CBTypPliku = TypPliku::Zorvik;
  const QString linia = u"naglowek\n590010\ti"_s + QString(22, u'\t') + u"x%"_s + QString(8, u'\t') +
                        u"1\n590011\tj"_s + QString(22, u'\t') + u"10000"_s + QString(8, u'\t') +
                        u"1\n590012\tk"_s + QString(22, u'\t') + u"10001"_s + QString(8, u'\t') + u"1\n"_s;
  EXPECT_THAT(Uwagi(Importuj(linia)), ElementsAre(nieznana("x%", "1: 1")));
  EXPECT_EQ(b.Kolumna("select Kod from Towar where Stawka = 10000"), u"590011"_s);
  EXPECT_EQ(Pominiete(), QStringList{u"590012 | k | Błąd w polu 'stawka'"_s});
}

TEST_F(SterownikTest, BuforNipTylkoGdyPotrzebny) {
  struct {
    int pole;
    bool oferowane, jest;
  } const przypadki[] = {{24, true, false}, {29, true, true}, {30, true, true}, {29, false, false}};
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.pole);
    UstawPola({0, 1, p.pole});
    struktura.UstawOferowane(p.pole, p.oferowane);
    Importuj("");
    EXPECT_EQ(postep.linie.contains(u"przygotowanie bufora NIP-ów"_s), p.jest);
  }
}

TEST_F(SterownikTest, OstrzezenieOStanach) {
  UstawPola({0, 1, 28});
  opcje.CBImportStanow = 1;
  const auto gdzie = [&](const char* rekordy) {
    Importuj(rekordy);
    const qsizetype poKoncu = postep.linie.indexOf(kKoniec) + 1;
    return postep.linie.contains(kStany) ? postep.linie.indexOf(kStany) - poKoncu : -1;
  };
  EXPECT_EQ(gdzie("59001;Chleb;2\n"), 0);
  EXPECT_EQ(gdzie("59001;Chleb;2\n"), -1);
  oper = &osoba;
  osoba.liczbaPol = OdpowiedzLiczbaPol::Przerwij;
  EXPECT_EQ(gdzie("59001;Chleb;3\n59002\n"), 0);
}

// With everything a file can carry, each further good costs a server the rows that come together and nothing
// of its own.
TEST_F(SterownikTest, DodawanyTowarNiePytaBazy) {
  UstawPola({0, 1, 24, 25, 26, 27, 28, 29, 30});
  opcje.CBImportStanow = 1;
  struktura.separator = u"\t"_s;
  b.baza.ExecSQL("insert into Kontrahent (Nazwa, NIP) values ('Mlekpol', '525-000-00-07')");
  const auto importuj = [&](int od, int ile) {
    QString plik;
    for (int i = od; i < od + ile; ++i)
      plik += u"59%1\tSer %1\tNabiał\tkg\t(58%1|S%1|7)\tSmak: Ostry(1:tak|nie);Moc(%2:0..9999)\t%2.5\t"_s
                  .arg(1000 + i)
                  .arg(i) +
              u"5250000007\t(525 000 00 07)\n"_s;
    std::map<std::string, int> polecenia;
    b.baza.UstawPodsluch([&](std::string_view sql) { ++polecenia[std::string(sql.substr(0, 30))]; });
    EXPECT_EQ(Importuj(plik).liczniki[Licznik::Dodane], ile) << Pominiete().join(u'\n').toStdString();
    b.baza.UstawPodsluch({});
    return polecenia;
  };
  importuj(0, 1);  // the dictionaries
  const auto jeden = importuj(1, 1);
  int ponad = 0;
  for (const auto& [sql, ile] : importuj(2, 101)) {
    const int przybylo = ile - (jeden.contains(sql) ? jeden.at(sql) : 0);
    const bool klucz = sql.starts_with("select last_insert") || sql.starts_with("select nextval");
    EXPECT_TRUE(przybylo <= 0 || klucz || !sql.starts_with("select")) << sql;
    ponad += przybylo;
  }
  EXPECT_TRUE(ponad <= 100 || !NaSerwerze()) << ponad;
  EXPECT_EQ(b.Liczba("select count(*) from TowWartosc"), 206);
  EXPECT_EQ(b.Liczba("select count(*) from TowDostawca where KontrId = 1"), 103);
  EXPECT_EQ(b.Liczba("select count(*) from Istw where StanMag = TowId - 1 + 0.5"), 103);
}

// Each statement of a run fails in turn, as a full disk, as refused values and as a collision with another
// program. Whatever happens, the counters and the buffer say what the database holds, and the same import
// afterwards completes. A collision in a batch is not seen at all: its records come again.
TEST_F(SterownikTest, PamiecZgadzaSieZBaza) {
  UstawPola({0, 1, 23, 24, 25, 26, 27, 28});
  opcje.CBImportStanow = 1;
  opcje.cb_KodyWazone = true;
  const char* const rekordy =
      "590001;Chleb;A;Pieczywo;szt.;(590002|Kromka|7);Smak: Ostry(1:tak|nie);0\n"
      "590003;Ser;S;Nabiał;kg;;;4\n"
      "590001;Chleb;A;PIECZYWO;szt.;(590002|Kromka|7);Smak: Moc(5:0..9);2\n"
      "2712???????;Szynka;A;Wędliny;kg;;;0\n";
  const char* const kTabele[] = {"Towar",    "KodDod",   "Asort",     "JM",         "Vat",    "Kategoria",
                                 "Parametr", "KatParam", "KodWazony", "TowWartosc", "Magazyn"};
  const auto ile = [&](std::string_view tabela) {
    return b.Liczba("select count(*) from " + std::string(tabela));
  };
  if (!NaSerwerze()) b.baza.ExecSQL("pragma synchronous = off");  // hundreds of runs
  const auto wyczysc = [&] {
    for (const char* tabela : {"DziennikZmian", "TowWartosc", "KodDod", "Istw", "Towar", "Asort", "JM",
                               "KatParam", "ParWartosc", "Parametr", "Kategoria", "KodWazony", "Magazyn"})
      b.baza.ExecSQL("delete from " + std::string(tabela));
    b.baza.ExecSQL("delete from Vat where Stawka = 700");
    bufor.Uniewaznij();
  };
  const auto sprawdzPamiec = [&](const Liczniki& liczniki) {
    EXPECT_FALSE(b.baza.GetCzyWTransakcji());
    const std::pair<Licznik, const char*> zliczane[] = {{Licznik::Dodane, "Towar"},
                                                        {Licznik::Asortymenty, "Asort"},
                                                        {Licznik::Jednostki, "JM"},
                                                        {Licznik::Kategorie, "Kategoria"},
                                                        {Licznik::Parametry, "Parametr"},
                                                        {Licznik::FormatyKodowWazonych, "KodWazony"},
                                                        {Licznik::Stawki, "Vat where Stawka = 700"}};
    for (const auto& [licznik, tabela] : zliczane) EXPECT_EQ(liczniki[licznik], ile(tabela)) << tabela;
    EXPECT_EQ(Pominiete().size() == 0, liczniki[Licznik::Pominiete] == 0);
    if (!bufor.Gotowy()) return;
    TVLTBuforTowarow swiezy;
    swiezy.Napelnij(b.baza);
    EXPECT_EQ(bufor.Ilosc(), swiezy.Ilosc());
    for (const QString& kod : {u"590001"_s, u"590002"_s, u"590003"_s, u"2712???????"_s})
      EXPECT_EQ(bufor.TowaryZKodem(kod), swiezy.TowaryZKodem(kod));
    for (const QString& nazwa : {u"Chleb"_s, u"Ser"_s, u"Szynka"_s, u"Kromka"_s}) {
      EXPECT_EQ(bufor.TowaryZNazwa(nazwa), swiezy.TowaryZNazwa(nazwa));
      EXPECT_EQ(bufor.TowaryZeSkrotem(nazwa), swiezy.TowaryZeSkrotem(nazwa));
    }
  };

  int polecen = 0;
  b.baza.UstawPodsluch([&](std::string_view) { ++polecen; });
  const WynikPrzebiegu wzor = Importuj(rekordy);
  b.baza.UstawPodsluch({});
  ASSERT_EQ(wzor.liczniki[Licznik::Dodane], 3) << (Pominiete() + postep.linie).join(u" # "_s).toStdString();
  ASSERT_EQ(wzor.liczniki[Licznik::Poprawione], 1);
  sprawdzPamiec(wzor.liczniki);
  std::vector<long long> oczekiwane;
  for (const char* tabela : kTabele) oczekiwane.push_back(ile(tabela));

  int powtorzonych = 0;
  for (const RodzajBleduBazy rodzaj :
       {RodzajBleduBazy::PelnyDysk, RodzajBleduBazy::Ograniczenie, RodzajBleduBazy::Kolizja}) {
    for (int ktore = 1; ktore <= polecen; ++ktore) {
      wyczysc();
      int numer = 0;
      std::string polecenie;
      b.baza.UstawPodsluch([&](std::string_view sql) {
        if (++numer != ktore) return;
        polecenie = sql;
        throw EBladBazy(rodzaj, u"Błąd"_s, {});
      });
      const WynikPrzebiegu wynik = Importuj(rekordy);
      b.baza.UstawPodsluch({});
      SCOPED_TRACE(std::to_string(ktore) + ": " + polecenie);
      sprawdzPamiec(wynik.liczniki);
      // A rollback is what is done after a failure.
      const bool bezSkutku = polecenie.empty() || polecenie.starts_with("rollback");
      if (rodzaj == RodzajBleduBazy::Kolizja && wynik.koniec == KoniecPrzebiegu::Zakonczono) {
        ++powtorzonych;
        for (const Licznik licznik : {Licznik::Rekordy, Licznik::Dodane, Licznik::Poprawione, Licznik::Stany})
          EXPECT_EQ(wynik.liczniki[licznik], wzor.liczniki[licznik]);
        for (std::size_t i = 0; i < oczekiwane.size(); ++i)
          EXPECT_EQ(ile(kTabele[i]), oczekiwane[i]) << kTabele[i];
      } else {
        EXPECT_TRUE(wynik.koniec == KoniecPrzebiegu::Blad || rodzaj == RodzajBleduBazy::Ograniczenie ||
                    bezSkutku);
      }
      Importuj(rekordy);
      for (std::size_t i = 0; i < oczekiwane.size(); ++i)
        EXPECT_EQ(ile(kTabele[i]), oczekiwane[i]) << kTabele[i];
      if (HasFailure()) return;
    }
  }
  EXPECT_GT(powtorzonych, polecen * 3 / 4);
  // A batch that collides before it has begun takes nothing of the one committed before with it.
  wyczysc();
  Importuj(rekordy);
  int rozpoczec = 0;
  b.baza.UstawPodsluch([&](std::string_view sql) {
    if (sql.starts_with("begin") && ++rozpoczec == 1)
      throw EBladBazy(RodzajBleduBazy::Kolizja, u"Błąd"_s, {});
  });
  EXPECT_EQ(Importuj(rekordy).koniec, KoniecPrzebiegu::Zakonczono);
  b.baza.UstawPodsluch({});
  EXPECT_EQ(rozpoczec, 2);
  EXPECT_EQ(ile("Towar"), oczekiwane.front());
}

// Own codes, automatic names and short names of a batch that is undone and comes again are given anew, none
// is left out; those of the batch before (committed by the question) stay given.
TEST_F(SterownikTest, PowtorzonaPaczkaNadajeToSamo) {
  opcje.towarBezKodu = TowarBezKodu::RBDodajKodWlasny;
  opcje.towarBezNazwy = TowarBezNazwy::RBDodajTowarZNazwaAuto;
  opcje.towarZTaSamaNazwa = TowarZTaSamaNazwa::RBDodajTowarZTaSamaNazwa;
  opcje.EdKodyKrotkie = u"0"_s;
  parametry.Ustaw(IdParametru::WykorzystanieZwolnionychKodow, u"0"_s);
  oper = &osoba;
  osoba.liczbaPol = OdpowiedzLiczbaPol::Pomin;
  int zatwierdzen = 0;
  b.baza.UstawPodsluch([&](std::string_view sql) {
    if (sql == "commit" && ++zatwierdzen % 2 == 0 && zatwierdzen < 5)
      throw EBladBazy(RodzajBleduBazy::Kolizja, u"Błąd"_s, {});
  });
  EXPECT_EQ(Importuj(";Mleko\n;;\n5\n;Mleko\n;;\n").koniec, KoniecPrzebiegu::Zakonczono);
  b.baza.UstawPodsluch({});
  EXPECT_EQ(zatwierdzen, 6);  // of the warehouse, twice at the question, once more there and twice at the end
  EXPECT_EQ(b.Kolumna("select Kod || ' ' || Nazwa || '=' || Skrot from Towar order by TowId"),
            u"1001 Mleko=Mleko,1002 Towar bez nazwy 0001=Tow bez naz 000,1003 Mleko=Mleko 1,"
            "1004 Towar bez nazwy 0002=Tow bez naz 000 1"_s);
}

// Records of one good in one block: each sees what the one before has done to the status and the stock.
TEST_F(SterownikTest, StatusIStanTegoSamegoTowaruKilkaRazy) {
  UstawPola({0, 1, 31});
  opcje.cb_PrzywrocUsuniety = true;
  Importuj("590001;Chleb;1\n590002;Ser;1\n");
  const WynikPrzebiegu wynik =
      Importuj("590001;Chleb;0\n590001;Chleb;1\n590002;Ser;1\n590002;Ser;0\n590002;Ser;0\n");
  EXPECT_EQ(wynik.liczniki[Licznik::Poprawione], 3);
  EXPECT_EQ(wynik.liczniki[Licznik::BezZmian], 2);
  EXPECT_EQ(b.Kolumna("select Aktywny from Towar order by TowId", TypPola::Calkowite), u"1,0"_s);
  UstawPola({0, 28});
  opcje.CBImportStanow = 1;
  Importuj("590001;4\n");
  EXPECT_EQ(Importuj("590001;5\n590001;4\n").liczniki[Licznik::Poprawione], 2);
  EXPECT_EQ(b.Kolumna("select StanMag from Istw order by TowId", TypPola::Dziesietne), u"4,0"_s);
}

// One kind of dictionary to complete is enough for a stored good that is not to be updated.
TEST_F(SterownikTest, SameStawkiDoUzupelnienia) {
  Importuj("590001;Chleb\n");
  opcje.cb_akttow = opcje.cb_noweasortymenty = opcje.cb_nowejednostki = false;
  for (const bool stawki : {true, false}) {
    opcje.cb_nowestawki = stawki;
    Importuj("590001;Chleb\n");
    EXPECT_EQ(Pominiete().value(0).section(u" | "_s, 2),
              stawki ? u"Towar identyczny z towarem w bazie"_s : u"Towar o tym kodzie już jest w bazie"_s);
  }
}

// What another program writes while a person thinks is seen by the records behind the question.
TEST_F(SterownikTest, CudzeZmianyPrzyPytaniu) {
  UstawPola({0, 1, 24, 17, 28});
  opcje.CBImportStanow = 1;
  const char* const towary = "590001;Chleb;Pieczywo;5;4\n590002;Ser;Nabiał;6;7\n";
  Importuj(towary);
  oper = &osoba;
  osoba.liczbaPol = OdpowiedzLiczbaPol::Pomin;
  osoba.przyPytaniu = [&] {
    TVLTBazaDanych inna;
    b.Polacz(inna);
    inna.ExecSQL("update Towar set CenaEw = 9 where Kod = '590001'");
    inna.ExecSQL("update Istw set StanMag = 1 where StanMag = 7");
    inna.ExecSQL("insert into Asort (Nazwa) values ('Cudzy')");
    inna.ExecSQL(
        "insert into Towar (Nazwa, Skrot, Kod, AsId, JMId, Stawka) values ('Obcy', 'o', '590003', 1, 1, "
        "2300)");
  };
  const WynikPrzebiegu wynik =
      Importuj("5\n" + QString::fromUtf8(towary) + u"590003;Obcy;Cudzy;8;0\n590004;Nowy;Cudzy;8;0\n"_s);
  EXPECT_EQ(Pominiete().size(), 1) << Pominiete().join(u'#').toStdString();
  EXPECT_EQ(wynik.liczniki[Licznik::Poprawione], 3);
  EXPECT_EQ(wynik.liczniki[Licznik::Asortymenty], 0);
  EXPECT_EQ(b.Kolumna("select CenaEw from Towar order by TowId", TypPola::Dziesietne), u"5,6,8,8"_s);
  EXPECT_EQ(b.Kolumna("select StanMag from Istw order by TowId", TypPola::Dziesietne), u"4,7,0,0"_s);
}

}  // namespace
