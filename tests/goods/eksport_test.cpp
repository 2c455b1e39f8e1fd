#include <unistd.h>

#include "goods/eksport_towarow.h"
#include "tests/goods/import_testowy.h"
#include "tests/wspolne/plik_eksportu.h"
#include "tests/wspolne/zrzut_bazy.h"

namespace {

using namespace Qt::Literals::StringLiterals;

const QString kKoniec = u"Koniec: Eksport zakończono"_s;

class EksportTest : public testing::Test, protected ImportTestowy {
 protected:
  // One good with everything, one with nothing that is not needed (deleted), one that is exempt from tax.
  EksportTest() {
    for (const char* sql :
         {"insert into Magazyn (Nazwa) values ('Sklep'), ('Hurtownia')",
          "insert into Asort (Nazwa) values ('Nabiał')", "insert into JM (Nazwa, Precyzja) values ('kg', 3)",
          "insert into Kontrahent (Nazwa, NIP) values ('P', '111-11'), ('D', '222'), ('E', ' 333 '),"
          " ('B', '')",
          "insert into Kategoria (Nazwa) values ('Sery')",
          "insert into Parametr (Nazwa, Typ, Od, Do) values ('Smak', 0, 0, 0), ('Dni', 1, -2, 30),"
          " ('?', 2, 0, 0)",
          "insert into ParWartosc values (1, 0, 'słodki'), (1, 1, 'słony')",
          "insert into KatParam values (1, 2, 0), (1, 1, 1)",
          "insert into Towar (Kod, Nazwa, Skrot, TypTowaru, Indeks1, Indeks2, Opis1, Opis2, Opis3, Opis4,"
          " IleWZgrzewce, IleWCalosci, TermWazn, PrefPLU, Marza, HurtRabat, NocNarzut, CenaEw, CenaDet,"
          " CenaHurt, CenaNoc, CenaDod, CenaOtwarta, Stawka, AsId, JMId, KatId, Producent, Aktywny) values"
          " ('5900001', 'Ser \"żółty\" 100%', 'SER', 1, 'i1', 'i2', 'o''1', ' o2 ', '', 'o4', 12.5, 0.25,"
          " 14, 7, 0.123, 0.05, 0.1, 9.99, 10, 1.005, 0, 3, 1, 800, 1, 1, 1, 1, 1),"
          " ('0A', 'Ser dawny', 'SD', 9, '', '', '', '', '', '', 0, 0, 0, 0, 0, 0, 0, 1, 2, 0, 0, 0, 0,"
          " 2300, 1, 1, null, null, 0), ('5900003', 'Ćma', 'Ć', 2, '', '', '', '', '', '', 0, 0, 0, 0, 0,"
          " 0, 0, 1, 10, 0, 0, 0, 0, -1, 1, 1, null, null, 1)",
          "insert into KodDod (TowId, Kolejnosc, Kod, Skrot, PrefPLU) values (1, 1, '5900012', 'SERŁ', 3),"
          " (1, 5, '5900013', 'S2', 0)",
          "insert into TowWartosc values (1, 1, 1), (1, 2, -1)",
          "insert into TowDostawca values (1, 4, 0), (1, 3, 1), (1, 2, 2)",
          "update Istw set StanMag = 2.5004, BlokadaMag = 1 where TowId = 1 and MagId = 1",
          "update Istw set StanMag = -1 where TowId = 1 and MagId = 2"})
      b.baza.ExecSQL(sql);
  }

  WynikPrzebiegu Eksportuj() { return Eksportuj(Plik()); }
  WynikPrzebiegu Eksportuj(const QString& plik) {
    postep = {};
    return EksportujTowary({sesja, struktura, plik, postep, *oper, stop, separator, folder.path()}, eksport);
  }
  QString Plik() const { return folder.filePath(u"eksport.txt"_s); }

  std::vector<QStringList> Linie() const { return LinieEksportu(Plik()); }

  OpcjeEksportuTowarow eksport;
};

TEST_F(EksportTest, FazyIKolejnosc) {
  const WynikPrzebiegu wynik = Eksportuj();
  EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Zakonczono);
  EXPECT_EQ(wynik.liczniki[Licznik::Rekordy], 3);
  EXPECT_EQ(postep.linie, (QStringList{u"łączenie z bazą VLT Win"_s, u"przygotowanie bufora towarów"_s,
                                       u"eksport bazy towarów3"_s, u"zamykanie pliku eksportu"_s, kKoniec}));
  const auto linie = Linie();
  ASSERT_EQ(linie.size(), 4u);
  EXPECT_EQ(linie[1].join(u'^'),
            u"5900001^Ser \"żółty\" 100%^SER^1^i1^i2^o'1^ o2 ^^o4^12.500000^0.250000^14^7^12.300000^5.000000"
            "^10.000000^9.990000^10.000000^1.005000^0.000000^3.000000^1^800^Nabiał^kg^(5900012|SERŁ|3);"
            "(5900013|S2|0)^Sery: Dni(-1:-2..30);Smak(2:słodki|słony)^^111-11^(333|222)^1"_s);
  EXPECT_EQ(linie[0].join(u'^'),
            u"Kod towaru^Nazwa towaru^Skrót (nazwa na kasach)^Typ towaru^Indeks1 (SWW)^Indeks2 (PKWiU)^"
            "Opis 1^Opis 2^Opis 3^Opis 4^Ilość w opakowaniu zbiorczym^Ile kilogramów/litrów^Termin ważności^"
            "Preferowany numer na kasie^Marża^Rabat hurtowy^Narzut nocny^Cena ewidencyjna^Cena detaliczna "
            "(netto)^Cena hurtowa^Cena nocna^Cena dodatkowa^Cena otwarta^Stawka VAT^Nazwa asortymentu^"
            "Jednostka^Kody dodatkowe^Kategoria i parametry^Stan^NIP producenta^NIP-y dostawców^"
            "Status towaru"_s);
  for (const auto& [linia, pole, tekst] :
       {std::tuple{2, 3, u"0"_s}, {2, 27, u""_s}, {2, 30, u""_s}, {2, 31, u"0"_s}, {3, 23, u"-1"_s}})
    EXPECT_EQ(linie[static_cast<std::size_t>(linia)][pole], tekst) << linia << '/' << pole;
}

TEST_F(EksportTest, Opcje) {
  using O = OpcjeEksportuTowarow;
  const struct {
    void (*ustaw)(O&);
    char separator;
    int linia, pole;
    QString tekst;
  } przypadki[] = {
      {[](O&) {}, ',', 1, 10, u"12,5"_s},
      {[](O&) {}, ',', 1, 15, u"5,0"_s},
      {[](O& o) { o.cb_eksportBezCen = true; }, ',', 1, 17, u"0.00"_s},
      {[](O& o) { o.cb_eksportBezCen = true; }, ',', 1, 21, u"0.00"_s},
      {[](O& o) { o.cb_eksportBezCen = true; }, ',', 1, 14, u"12,3"_s},
      {[](O& o) { o.cb_eksportBezMarz = true; }, ',', 1, 16, u"0.00"_s},
      {[](O& o) { o.cb_eksportBezMarz = true; }, ',', 1, 17, u"9,99"_s},
      {[](O& o) { o.cb_eksportBezKodow = true; }, '.', 1, 0, u""_s},
      {[](O& o) { o.cb_eksportBezKodow = true; }, '.', 1, 26, u""_s},
      {[](O& o) { o.cb_eksportBezKategorii = true; }, '.', 1, 27, u""_s},
      {[](O& o) { o.cb_poziomCenyZakupuEksp = PoziomCeny::Brutto; }, ',', 1, 17, u"10,79"_s},
      {[](O& o) { o.cb_poziomCenyZakupuEksp = PoziomCeny::Brutto; }, ',', 1, 18, u"10,0"_s},
      {[](O& o) { o.cb_poziomCenSprzedazyEksp = PoziomCeny::Brutto; }, ',', 1, 18, u"10,8"_s},
      {[](O& o) { o.cb_poziomCenSprzedazyEksp = PoziomCeny::Brutto; }, ',', 1, 19, u"1,09"_s},
      {[](O& o) { o.cb_poziomCenSprzedazyEksp = PoziomCeny::Brutto; }, ',', 3, 18, u"10,0"_s},
      {[](O& o) { o.CBEksportStanow = 1; }, '.', 1, 28, u"1.500400"_s},
      {[](O& o) { o.CBEksportStanow = 2; }, ',', 1, 28, u"2,5"_s},
      {[](O& o) { o.CBEksportStanow = 3; }, ',', 1, 28, u"-1,0"_s},
      {[](O& o) { o.CBEksportStanow = 4; }, ',', 1, 28, u"0,0"_s},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(&p - przypadki);
    eksport = {};
    p.ustaw(eksport);
    separator = p.separator;
    Eksportuj();
    const QStringList pola = Linie()[static_cast<std::size_t>(p.linia)];
    EXPECT_EQ(pola.size(), 32);
    EXPECT_EQ(pola[p.pole], p.tekst);
  }
  // A parameter that is neither a list nor a range, and a value that is not stored.
  b.baza.ExecSQL("insert into KatParam values (1, 3, 2)");
  b.baza.ExecSQL("delete from TowWartosc");
  eksport = {};
  Eksportuj();
  EXPECT_EQ(Linie()[1][27], u"Sery: Dni(0:-2..30);Smak(1:słodki|słony);?()"_s);
}

TEST_F(EksportTest, ImportTegoSamegoPlikuNicNieZmienia) {
  struktura = StrukturaPliku(RodzajRekordu::Towary);
  struktura.PrzyjmijTypPliku(TypPliku::Zorvik);
  for (int pole = PoleTowaru::Nazwa; pole < PoleTowaru::LiczbaWartosci; ++pole)
    struktura.UstawOferowane(pole, true);
  opcje.EdKodyKrotkie = u"0"_s;
  opcje.UpDownMaxDlugoscKodu = 20;
  opcje.cb_KodyZaczynajaceSieOdZera = opcje.cb_KodyZawierajaceLitery = opcje.cb_KodyWazone = true;
  opcje.cb_akceptujKodyWlasneEAN = true;
  opcje.towarZTaSamaNazwa = TowarZTaSamaNazwa::RBDodajTowarZTaSamaNazwa;
  const QStringList przed = ZrzutBazy(b.baza);
  for (const char znak : {'.', ','}) {
    SCOPED_TRACE(znak);
    separator = znak;
    Eksportuj();
    const WynikPrzebiegu wynik = ImportujTowary(
        {sesja, struktura, Plik(), postep, *oper, stop, separator, folder.path()}, opcje, bufor);
    EXPECT_EQ(wynik.liczniki[Licznik::Rekordy], 3);
    EXPECT_EQ(wynik.liczniki[Licznik::BezZmian], 3) << Pominiete().join(u" # "_s).toStdString();
    EXPECT_EQ(RozniceZrzutow(przed, ZrzutBazy(b.baza)), QStringList());
  }
}

TEST_F(EksportTest, MowiOTymCoNieWroci) {
  struct Przypadek {
    const char* sql;
    QString powod;  // empty: a character was lost
  };
  const QString kCudzyNip = u"NIP nie wskaże tego kontrahenta"_s;
  const Przypadek przypadki[] = {
      {"update Towar set Opis1 = 'a\tb' where TowId = 3", u"tabulator"_s},
      {"update Towar set Indeks2 = '\r\n' where TowId = 3", u"koniec wiersza"_s},
      {"update Towar set Skrot = ' a' where TowId = 3", u"odstęp na brzegu"_s},
      // Every reason, in the order of the columns, each once.
      {"update Towar set Opis1 = 'a\tb', Opis2 = 'c\t', Skrot = ' a' where TowId = 3",
       u"odstęp na brzegu, tabulator"_s},
      {"update Towar set Kod = '#1' where TowId = 3", u"kod czytany jako komentarz"_s},
      {"update Towar set Kod = '//1' where TowId = 3", u"kod czytany jako komentarz"_s},
      {"insert into KodDod (TowId, Kolejnosc, Kod) values (3, 1, '1|2')", u"znaki bloku w nazwie"_s},
      {"update Towar set Opis3 = '€Ω' where TowId = 3", u""_s},
      {"update Towar set Kod = '' where TowId = 3", u"brak kodu"_s},
      {"insert into KodDod (TowId, Kolejnosc, Kod) values (3, 1, '12')", u"kod dodatkowy bez skrótu"_s},
      {"update Towar set KatId = 2 where TowId = 3", u"kategoria czytana inaczej"_s},
      {"insert into KatParam values (3, 4, 0)", u"kategoria czytana inaczej"_s},  // a list without values
      {"insert into KatParam values (3, 5, 0)", u"kategoria czytana inaczej"_s},  // one like a range
      {"insert into KatParam values (3, 6, 0)", u"kategoria czytana inaczej"_s},  // a value with blanks
      {"insert into KatParam values (3, 3, 0)", u"kategoria czytana inaczej"_s},  // of an unknown type
      {"update Towar set Producent = 5 where TowId = 3", kCudzyNip},
      {"insert into TowDostawca values (3, 2, 0), (3, 6, 1)", kCudzyNip},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.sql);
    b.baza.StartTransakcji();
    // What a case refers to; the good has a category and a producer that come back.
    for (const char* sql :
         {"insert into Kategoria (Nazwa) values ('a:b'), ('Ser')",
          "insert into Parametr (Nazwa, Typ, Od, Do) values ('P', 0, 0, 0), ('Z', 0, 0, 0), ('B', 0, 0, 0)",
          "insert into ParWartosc values (5, 0, '1..5'), (6, 0, 'a'), (6, 1, ' b')",
          "insert into Kontrahent (Nazwa, NIP) values ('N', 'brak'), ('T', '22-2')",
          "update Towar set KatId = 3, Producent = 1 where TowId = 3", p.sql})
      b.baza.ExecSQL(sql);
    const QString towar = b.Tekst("select trim(Kod || ' Ćma') from Towar where TowId = 3");
    Eksportuj();
    b.baza.WycofTransakcji();
    WyrownajAutoKlucze(b.baza);
    const qsizetype poKoncu = postep.linie.indexOf(kKoniec) + 1;
    EXPECT_EQ(
        postep.linie.value(poKoncu),
        p.powod.isEmpty()
            ? u"UWAGA: Rekordy ze znakami spoza strony kodowej Windows-1250, zapisanymi jako \"?\": 1\nSą to: "_s +
                  towar
            : u"UWAGA: Rekordy, których import nie odczyta takimi, jakie są w bazie: 1\nSą to: %1 (%2)"_s.arg(
                  towar, p.powod));
  }
}

TEST_F(EksportTest, OdmawiaPlikuKtoregoNieWolnoNadpisac) {
  QFile pominiete(folder.filePath(u"POMINIETE.TXT"_s));
  ASSERT_TRUE(pominiete.open(QIODevice::WriteOnly) && pominiete.write("x") == 1);
  pominiete.close();
  QFile::link(pominiete.fileName(), folder.filePath(u"dowiązanie"_s));
  const auto polacz = [](const QString& co, const QString& gdzie) {
    EXPECT_EQ(link(co.toStdString().c_str(), gdzie.toStdString().c_str()), NaSerwerze() ? -1 : 0);
    return gdzie;
  };
  const QString twarde = folder.filePath(u"twarde"_s);
  EXPECT_EQ(link(pominiete.fileName().toStdString().c_str(), twarde.toStdString().c_str()), 0);
  qputenv("XDG_DATA_HOME", folder.filePath(u"dane"_s).toLocal8Bit());
  const QString zapas = RaportProblemow::KatalogZapasowy();
  EXPECT_TRUE(QDir().mkpath(zapas));
  const std::pair<QString, QString> przypadki[] = {
      {twarde, u"jest plikiem pominiętych rekordów"_s},
      {polacz(b.Sciezka(), b.Sciezka() + u"-kopia"_s), u"jest plikiem bazy danych"_s},
      {polacz(b.Sciezka() + u"-wal"_s, b.Sciezka() + u"-zapis"_s), u"jest plikiem bazy danych"_s},
      {pominiete.fileName(), u"jest plikiem pominiętych rekordów"_s},
      {folder.filePath(u"../x/../POMINIETE.TXT"_s), u"Błąd otwarcia pliku"_s},
      {folder.filePath(u"dowiązanie"_s), u"jest plikiem pominiętych rekordów"_s},
      {folder.filePath(u"POMINIECI.TXT"_s), u"jest plikiem pominiętych rekordów"_s},
      {b.Sciezka(), u"jest plikiem bazy danych"_s},
      {b.Sciezka() + u"-journal"_s, u"jest plikiem bazy danych"_s},
      {zapas + u"/POMINIECI.TXT"_s, u"jest plikiem pominiętych rekordów"_s},
      {folder.path(), u"Błąd otwarcia pliku"_s},
      {QString(), u"Błąd otwarcia pliku"_s}};
  for (const auto& [plik, odmowa] : przypadki) {
    if (NaSerwerze() && plik.startsWith(b.Sciezka())) continue;
    SCOPED_TRACE(plik.toStdString());
    const WynikPrzebiegu wynik = Eksportuj(plik);
    EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Odmowa);
    EXPECT_TRUE(postep.linie.join(u' ').contains(odmowa)) << postep.linie.join(u' ').toStdString();
  }
  EXPECT_EQ(Zawartosc(pominiete.fileName()), "x");
  EXPECT_EQ(b.Liczba("select count(*) from Towar"), 3);
}

TEST_F(EksportTest, BladNigdyNieKonczySieZakonczeniem) {
  // Three goods fill the file when it is closed, a long text does it earlier.
  // A server's column is shorter than what the file keeps to itself.
  for (const int znakow : {0, NaSerwerze() ? 1000 : 400'000}) {
    b.baza.ExecSQL("update Towar set Opis4 = :Opis4 where TowId = 1", {{"Opis4", QString(znakow, u'0')}});
    SprawdzNiepelny(Eksportuj(u"/dev/full"_s), postep, u"Błąd zapisu do pliku /dev/full"_s);
  }
  SprawdzAwariePolecen(b, postep, [&] { return Eksportuj(); });
  // A good that goes after the identifiers were read ends the run; what was written before it stays.
  WykonajPrzed(b, "select AsId", {"delete from Istw where TowId = 2", "delete from Towar where TowId = 2"});
  SprawdzNiepelny(Eksportuj(), postep, u"Brak obiektu w bazie danych"_s);
  EXPECT_EQ(Linie().size(), 2u);
}

TEST_F(EksportTest, CalyZJednejChwili) {
  eksport.CBEksportStanow = 1;
  b.baza.ExecSQL(
      "with recursive c(n) as (select 4 union all select n + 1 from c where n < 13000)"
      " insert into Towar (Nazwa, Skrot, Kod, AsId) select 'Żuk', n, n, 1 from c");
  b.baza.ExecSQL(
      "insert into KodDod (TowId, Kolejnosc, Kod, Skrot) select TowId, 1, 'd' || Kod, '' from Towar"
      " where TowId > 3");
  SprawdzJednaChwile(b, postep, stop, "select TowId, Kod, Nazwa",
                     {"update Towar set Nazwa = 'Bąk' where TowId > 3", "update Istw set StanMag = 5",
                      "update KodDod set Skrot = 'x'", "delete from KodDod where TowId in (12000, 12001)",
                      "delete from Istw where TowId = 12001", "delete from Towar where TowId = 12001",
                      "insert into Towar (Nazwa, Skrot, Kod) values ('Nowy', 'N', 'N')"},
                     Plik(), [&] { return Eksportuj(); });
  const auto linie = Linie();
  ASSERT_EQ(linie.size(), 13'001u);
  EXPECT_EQ(linie[12'000][1], u"Bąk"_s);
  EXPECT_EQ(linie[12'001][0], u"12002"_s);
  EXPECT_EQ(linie[12'001][26], u"(d12002|x|0)"_s);
  EXPECT_EQ(linie[13'000][0], u"N"_s);
}

}  // namespace
