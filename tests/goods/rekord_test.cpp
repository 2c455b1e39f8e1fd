#include <gmock/gmock.h>

#include "model/towar.h"
#include "tests/goods/import_testowy.h"

namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

// The goods every case starts with: milk (with a supplier's NIP, a category and an additional code), a
// deleted good, a central good, a packaging, a good with an in-store code.
constexpr const char* kTowary =
    "5901234123457;Mleko świeże;;10.5;A;Nabiał;szt.;(5909876543210||3);Nabiał: Tłuszcz(2:3,2 %|2 %);(111);0\n"
    "4006381333931;Usunięty;;1;A;Nabiał;szt.;;;;0\n"
    "73513537;Centralny;;1;A;Nabiał;szt.;;;;0\n"
    "2000000000015;Z wagi;;1;B;Nabiał;kg;;;;0\n";

class Rekord : public testing::Test {
 protected:
  void SetUp() override {
    i.b.baza.ExecSQL("insert into Kontrahent (Nazwa, NIP, Aktywny) values ('Dostawca', '1-1-1', 1)");
    i.b.baza.ExecSQL("insert into Kontrahent (Nazwa, NIP, Aktywny) values ('Bez NIP', '', 1)");
    UstawPola();
    i.opcje.towarZTaSamaNazwa = TowarZTaSamaNazwa::RBDodajTowarZTaSamaNazwa;
    const WynikPrzebiegu wynik = i.Importuj(kTowary);
    ASSERT_THAT(i.Pominiete(), IsEmpty());
    ASSERT_EQ(wynik.liczniki[Licznik::Dodane], 4);
    i.b.baza.ExecSQL("update Towar set Aktywny = 0 where Kod = '4006381333931'");
    i.b.baza.ExecSQL("update Towar set CKU = 'C1' where Kod = '73513537'");
    i.opcje = {};
    i.UstawPola({0, 1});
  }
  void UstawPola() { i.UstawPola({0, 1, 2, 18, 23, 24, 25, 26, 27, 30, 17}); }
  QString Kolumna(const char* kolumna, const char* kod) {
    auto odczyt =
        i.b.baza.Otworz(std::string("select cast(") + kolumna + " as text) from Towar where Kod = :Kod",
                        {TypPola::Tekst}, {{"Kod", std::string(kod)}});
    QString tekst = odczyt.Nastepny() ? odczyt[0].AsString() : u"brak"_s;
    if (tekst.endsWith(u".0"_s)) tekst.chop(2);  // how a decimal number is spelt is the database's affair
    return tekst;
  }

  ImportTestowy i;
};

// One import of records and what the report says of them; the code and the name are left out of the lines.
struct Odmowa {
  const char* opis;
  std::function<void(ImportTestowy&)> ustaw;
  const char* rekordy;
  QStringList komunikaty;
  int pominietych = 1;
};

TEST_F(Rekord, KazdaOdmowaMaSwojKomunikat) {
  const auto bez = [](ImportTestowy&) {};
  const auto statusy = [](JakieTowary jakie) {
    return [jakie](ImportTestowy& im) {
      im.UstawPola({0, 1, 31});
      im.opcje.jakieTowary = jakie;
    };
  };
  const auto pola = [](std::initializer_list<int> lista) {
    const std::vector<int> kopia(lista);
    return [kopia](ImportTestowy& im) {
      im.struktura.pola.clear();
      for (const int pole : kopia) im.struktura.pola.emplace_back(pole, QString());
    };
  };
  const auto slowniki = [](bool wlaczone) {
    return [wlaczone](ImportTestowy& im) {
      im.opcje.cb_noweasortymenty = im.opcje.cb_nowejednostki = im.opcje.cb_nowestawki = wlaczone;
      im.opcje.cb_nowekategorie = im.opcje.cb_noweparametry = im.opcje.cb_nowekodywazone = wlaczone;
    };
  };
  const Odmowa odmowy[] = {
      {"aktywny", statusy(JakieTowary::RBTowaryUsuniete), "5900000000015;x;1\n", {u"Towar aktywny"_s}},
      {"usuniety", statusy(JakieTowary::RBTowaryAktywne), "5900000000015;x;0\n", {u"Towar usunięty"_s}},
      {"bez kodu", bez, ";x\n", {u"Brak kodu"_s}},
      {"bez nazwy", bez, "5900000000015;;\n", {u"Brak nazwy towaru"_s}},
      {"wazony", bez, "27????????;x\n", {u"Kod ważony"_s}},
      {"format wazony",
       [](ImportTestowy& im) { im.opcje.cb_KodyWazone = true, im.opcje.cb_nowekodywazone = false; },
       "27????????;x\n2?????????;x\n",
       {u"Nie ma takiego kodu ważonego"_s, u"Nie ma takiego kodu ważonego"_s},
       2},
      {"krotki", bez, "9999;x\n0123;x\n", {u"Kod krótki"_s, u"Kod krótki"_s}, 2},
      {"nadany krotki",
       [](ImportTestowy& im) { im.opcje.towarBezKodu = TowarBezKodu::RBDodajKodWlasny; },
       ";x\n",
       {u"Towar nie miał kodu. Nadany kod (krótki) nie spełniał ustawionych warunków"_s}},
      {"wlasny tylko dla znalezionych", bez, "2000000000015;Z wagi\n", {u"Kod własny"_s}},
      {"dlugosc", bez, "59000000000151;x\n", {u"Błąd w kodzie głównym towaru: 59000000000151"_s}},
      {"suma",
       [](ImportTestowy& im) { im.opcje.cb_SprawdzajCyfreKontrolnaWEAN = true; },
       "5900000000016;x\n",
       {u"Błąd sumy kontrolnej"_s}},
      {"zero", bez, "0590000;x\n", {u"Kod zaczyna się od zera"_s}},
      {"litery", bez, "59A0000;x\n", {u"Kod zawiera inne znaki poza cyframi"_s}},
      {"jest w bazie",
       [&](ImportTestowy& im) { slowniki(false)(im), im.opcje.cb_akttow = false; },
       "5901234123457;Mleko świeże\n",
       {u"Towar o tym kodzie już jest w bazie"_s}},
      {"nie ma w bazie",
       [&](ImportTestowy& im) { slowniki(false)(im), im.opcje.cb_nowetowary = false; },
       "5900000000015;x\n",
       {u"Towaru o tym kodzie nie ma w bazie"_s}},
      {"ta sama nazwa", bez, "5900000000015;Mleko świeże\n", {u"Towar o takiej nazwie jest już w bazie"_s}},
      {"kod dodatkowy z literami",
       [](ImportTestowy& im) {
         im.opcje.towarZTaSamaNazwa = TowarZTaSamaNazwa::RBDodajJakoKodDodatkowy;
         im.opcje.cb_KodyWazone = true;
       },
       "27????????;Mleko świeże\n",
       {u"Błąd w kodzie dodatkowym: 27????????"_s}},
      {"liczba",
       pola({0, 1, 18}),
       "5900000000015;x;1,2,3\n5900000000022;y;1e9\n",
       {u"1,2,3 nie jest liczbą"_s, u"1e9 nie jest liczbą"_s},
       2},
      {"asortyment",
       [&](ImportTestowy& im) {
         slowniki(false)(im), pola({0, 1, 23, 24})(im);
       },
       "5900000000015;x;A;Nowy\n",
       {u"Nie ma takiego asortymentu"_s, u"Błąd w polu 'asortyment'"_s}},
      {"jednostka",
       [&](ImportTestowy& im) {
         slowniki(false)(im), pola({0, 1, 24, 25, 23})(im);
       },
       "5900000000015;x;Nabiał;worek;A\n",
       {u"Nie ma takiej jednostki"_s, u"Błąd w polu 'jednosta'"_s}},
      {"stawka",
       [&](ImportTestowy& im) {
         slowniki(false)(im), pola({0, 1, 23})(im);
       },
       "5900000000015;x;S\n",
       {u"Nie ma takiej jednostki"_s, u"Błąd w polu 'stawka'"_s}},
      {"kody dodatkowe",
       pola({0, 1, 26, 26}),
       "5900000000015;x;(1|2;(8||)\n5900000000022;y;(59A||);(8||)\n5900000000039;z;(590||q);(8||)\n"
       "5900000000053;v;(777|a|);(777|b|)\n",
       {u"Błąd w polu kodów dodatkowych"_s, u"Błąd w kodzie dodatkowym: 59A"_s, u"q nie jest liczbą"_s,
        u"Błąd w kodzie dodatkowym: 777"_s},
       4},
      {"kategoria",
       [&](ImportTestowy& im) {
         slowniki(false)(im), pola({0, 1, 24, 25, 23, 27})(im);
       },
       "5900000000015;x;Nabiał;kg;A;Inna\n5900000000022;y;Nabiał;kg;A;Nabiał: Inny(1:a)\n"
       "5900000000039;z;Nabiał;kg;A;Nabiał: Tłuszcz(1:1..2)\n5900000000046;w;Nabiał;kg;A;Nabiał: Tłuszcz(1\n"
       "5900000000053;v;Nabiał;kg;A;Nabiał: Tłuszcz(k:a)\n",
       {u"Nie ma takiej kategorii"_s, u"Nie ma takiego parametru"_s, u"Istniejący parametr ma inny typ"_s,
        u"Błąd w polu parametrów"_s, u"k nie jest liczbą"_s},
       5},
      {"dostawcy",
       pola({0, 1, 30}),
       "5901234123457;Mleko świeże;(111|\n",
       {u"Błąd w polu NIP-ów dostawców"_s}},
      {"identyczny", bez, "5901234123457;Mleko świeże\n", {u"Towar identyczny z towarem w bazie"_s}},
      {"identyczny bez flagi",
       [&](ImportTestowy& im) {
         pola({0, 1, 18})(im);
         im.struktura.UstawOferowane(PoleTowaru::CenaDet, false);
       },
       "5901234123457;Mleko świeże;99\n",
       {u"Towar identyczny z towarem w bazie"_s}},
      {"usuwanie",
       [&](ImportTestowy& im) {
         pola({0, 1, 31})(im);
         im.b.baza.ExecSQL("insert into Magazyn (Nazwa) values ('M')");
         im.b.baza.ExecSQL("update Istw set BlokadaMag = 0.5");
       },
       "73513537;Centralny;0\n5901234123457;Mleko świeże;0\n",
       {u"Nie można usunąć towaru centralnego"_s, u"Towar identyczny z towarem w bazie"_s,
        u"Nie można usunąć towaru z niezerowym stanem lub blokadą"_s,
        u"Towar identyczny z towarem w bazie"_s},
       2},
      {"zapis dodany",
       pola({0, 1, 26}),
       "5900000000015;x;(5901234123457||)\n5900000000022;y;(5900000000022||)\n",
       {u"Błąd dodania do bazy (użytkownik zrezygnował)"_s,
        u"Błąd dodania do bazy (użytkownik zrezygnował)"_s},
       2},
      {"zapis poprawiony",
       pola({0, 2}),
       "5901234123457;Usunięty\n",
       {u"Błąd zapisu (użytkownik zrezygnował)"_s}},
      {"dwa towary o kodzie",
       [](ImportTestowy& im) {
         EXPECT_EQ(im.b.baza.ExecSQL("update KodDod set Kod = '2000000000015'"), 1);
         im.bufor.Uniewaznij();
       },
       "2000000000015;x\n",
       {u"Kod jest przypisany do więcej niż jednego towaru"_s}},
      {"stan poza zakresem",
       [&](ImportTestowy& im) {
         pola({0, 1, 28})(im);
         im.opcje.CBImportStanow = 1;
       },
       "5900000000015;x;1000000000000000\n",
       {u"Przekroczony limit ilości lub kwoty"_s}},
      {"suma centralnego",
       [&](ImportTestowy& im) {
         pola({0, 1, 18})(im);
         im.b.baza.ExecSQL("update Towar set Kod = '73513530' where Kod = '73513537'");
         im.bufor.Uniewaznij();
       },
       "73513530;Centralny;99\n",
       {u"Nie można poprawić sumy kontrolnej EAN towaru wysłanego na kasę"_s}},
  };
  for (const Odmowa& odmowa : odmowy) {
    SCOPED_TRACE(odmowa.opis);
    i.b.baza.StartTransakcji();
    i.b.baza.KoniecTransakcji();
    i.opcje = {};
    i.UstawPola({0, 1});
    std::fill(i.struktura.oferowane.begin(), i.struktura.oferowane.end(), 1);
    odmowa.ustaw(i);
    const long long przedtem = i.b.Liczba("select count(*) from Towar");
    const WynikPrzebiegu wynik = i.Importuj(odmowa.rekordy);
    EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Zakonczono);
    QStringList komunikaty;
    for (const QString& linia : i.Pominiete()) komunikaty << linia.section(u" | "_s, 2);
    EXPECT_EQ(komunikaty, odmowa.komunikaty);
    EXPECT_EQ(wynik.liczniki[Licznik::Pominiete], odmowa.pominietych);
    EXPECT_EQ(wynik.liczniki[Licznik::Poprawione], 0);
    EXPECT_EQ(i.b.Liczba("select count(*) from Towar"), przedtem);
  }
}

TEST_F(Rekord, NowyTowarBierzeWszystkiePola) {
  i.UstawPola({0, 1, 3, 4, 9, 12, 14, 17, 18, 22, 23, 24, 25, 26, 27, 30});
  i.opcje.cb_poziomCenyZakupuImp = i.opcje.cb_poziomCenSprzedazyImp = PoziomCeny::Brutto;
  std::fill(i.struktura.oferowane.begin(), i.struktura.oferowane.end(), 0);
  i.struktura.UstawOferowane(PoleTowaru::NipyDostawcow, true);
  i.Importuj(
      "5900000000015;Żurek;2;sww;o4;7;12.5;12.30;12.35;1;A;Zupy;słoik;5900000000022;Zupy: Moc(5:1..9);111\n");
  EXPECT_THAT(i.Pominiete(), IsEmpty());
  const std::pair<const char*, QString> kolumny[] = {{"Nazwa", u"Żurek"_s},
                                                     {"Skrot", u"Żurek"_s},
                                                     {"TypTowaru", u"2"_s},
                                                     {"Indeks1", u"sww"_s},
                                                     {"Opis4", u"o4"_s},
                                                     {"TermWazn", u"7"_s},
                                                     {"round(Marza * 1000000)", u"125000"_s},
                                                     {"CenaEw", u"10"_s},
                                                     {"round(CenaDet * 100000)", u"1004065"_s},
                                                     {"CenaOtwarta", u"1"_s},
                                                     {"Stawka", u"2300"_s},
                                                     {"Aktywny", u"1"_s}};
  for (const auto& [kolumna, wartosc] : kolumny)
    EXPECT_EQ(Kolumna(kolumna, "5900000000015"), wartosc) << kolumna;
  EXPECT_EQ(
      i.b.Tekst(
          "select J.Nazwa || J.Precyzja || A.Nazwa || K.Nazwa from Towar T, JM J, Asort A, Kategoria K where "
          "T.Kod = '5900000000015' and J.JMId = T.JMId and A.AsId = T.AsId and K.KatId = T.KatId"),
      u"słoik3ZupyZupy"_s);
  EXPECT_EQ(i.b.Tekst("select Kod || ',' || Skrot || ',' || PrefPLU from KodDod where Kod = '5900000000022'"),
            u"5900000000022,Żurek 1,0"_s);
  EXPECT_EQ(
      i.b.Liczba(
          "select W.Wartosc from TowWartosc W, Towar T where T.TowId = W.TowId and T.Kod = '5900000000015'"),
      5);
  // The same file again finds nothing to do, gross prices and the built short names included.
  std::fill(i.struktura.oferowane.begin(), i.struktura.oferowane.end(), 1);
  i.Importuj(
      "5900000000015;Żurek;2;sww;o4;7;12.5;12.30;12.35;1;A;Zupy;słoik;5900000000022;Zupy: Moc(5:1..9);111\n");
  EXPECT_THAT(i.Pominiete(), ElementsAre(u"5900000000015 | Żurek | Towar identyczny z towarem w bazie"_s));
}

TEST_F(Rekord, PolowaGroszaIdzieWGore) {
  i.UstawPola({0, 1, 17, 23});
  i.opcje.cb_poziomCenyZakupuImp = PoziomCeny::Brutto;
  i.Importuj("5900000000015;x;1.0854;B\n");
  EXPECT_EQ(Kolumna("CenaEw", "5900000000015"), u"1.01"_s);
}

TEST_F(Rekord, PlikZKodemICenaNieRuszaReszty) {
  i.UstawPola({0, 17});
  const QString przedtem =
      i.b.Tekst("select Nazwa || Skrot || Stawka || JMId || AsId from Towar where TowId = 1");
  const WynikPrzebiegu wynik = i.Importuj("5901234123457;99\n73513537;5\n5909876543210;99\n");
  EXPECT_EQ(wynik.liczniki[Licznik::Poprawione], 2);
  EXPECT_EQ(wynik.liczniki[Licznik::BezZmian], 1);  // found by the additional code
  EXPECT_EQ(Kolumna("CenaEw", "5901234123457"), u"99"_s);
  EXPECT_EQ(i.b.Tekst("select Nazwa || Skrot || Stawka || JMId || AsId from Towar where TowId = 1"),
            przedtem);
  EXPECT_EQ(i.b.Liczba("select count(*) from KodDod"), 1);
  EXPECT_EQ(i.b.Liczba("select count(*) from TowDostawca"), 1);
}

TEST_F(Rekord, PusteBlokiNieNiosaNiczegoACentralnyZachowujeNazwe) {
  i.b.baza.ExecSQL("insert into TowDostawca (TowId, KontrId, Kolejnosc) values (1, 2, 5)");
  UstawPola();
  i.Importuj("5901234123457;;;10.5;A;nabiał;szt.;;;;0\n73513537;Inna nazwa;;2;B;nabiał;szt.;;;;0\n");
  EXPECT_THAT(i.Pominiete(), ElementsAre(u"5901234123457 |  | Towar identyczny z towarem w bazie"_s));
  EXPECT_EQ(Kolumna("Nazwa", "5901234123457"), u"Mleko świeże"_s);
  EXPECT_EQ(i.b.Kolumna("select Nazwa from Asort"), u"nabiał"_s);
  EXPECT_EQ(i.b.Liczba("select count(*) from KodDod"), 1);
  EXPECT_EQ(i.b.Liczba("select count(*) from TowDostawca"), 2);
  EXPECT_EQ(i.b.Liczba("select count(*) from TowWartosc"), 1);
  EXPECT_EQ(Kolumna("Nazwa || Stawka || CenaDet", "73513537"), u"Centralny23002"_s);
}

TEST_F(Rekord, BrakujacyKontrahentNieZatrzymujeTowaru) {
  i.UstawPola({0, 1, 29, 30});
  i.Importuj("5900000000015;x;999;(222|1 1 1)\n");
  EXPECT_THAT(i.Pominiete(), ElementsAre(u"5900000000015 | x | Brak kontrahenta z NIPem 999"_s,
                                         u"5900000000015 | x | Brak kontrahenta z NIPem 222"_s));
  EXPECT_EQ(i.b.Liczba("select count(*) from TowDostawca"), 2);
}

TEST_F(Rekord, StatusIStanZmieniajaSieTakzeBezAktualizacji) {
  i.UstawPola({0, 1, 28, 31, 17});
  i.opcje.cb_akttow = false;
  i.opcje.CBImportStanow = 1;
  i.opcje.cb_PrzywrocUsuniety = true;
  const WynikPrzebiegu wynik = i.Importuj(
      "5901234123457;Mleko świeże;12.5;1;7\n"  // stock
      "4006381333931;Usunięty;;1;0\n"          // restored
      "2000000000015;Z wagi;-3;0;0\n"          // an in-store code
      "73513537;Centralny;-3;1;0\n");          // negative stock is not written
  EXPECT_EQ(wynik.liczniki[Licznik::Poprawione], 2);
  EXPECT_EQ(wynik.liczniki[Licznik::Pominiete], 2);
  EXPECT_EQ(i.b.Kolumna("select StanMag from Istw order by TowId", TypPola::Dziesietne), u"12.5,0,0,0"_s);
  EXPECT_EQ(Kolumna("Aktywny || ' ' || CenaEw", "4006381333931"), u"1 0"_s);
  EXPECT_EQ(Kolumna("CenaEw", "5901234123457"), u"0"_s);
  EXPECT_TRUE(i.postep.linie.join(u'\n').contains(u"Wykonano import stanów magazynowych"_s));
}

TEST_F(Rekord, BezKolumnyStatusuTowarJestAktywny) {
  for (const bool przywracac : {false, true}) {
    i.opcje.cb_PrzywrocUsuniety = przywracac;
    EXPECT_EQ(i.Importuj("4006381333931;Usunięty\n").liczniki[Licznik::Poprawione], przywracac ? 1 : 0);
    EXPECT_EQ(Kolumna("Aktywny", "4006381333931"), przywracac ? u"1"_s : u"0"_s);
  }
}

TEST_F(Rekord, WlasnyUkladCzytaTypIStawkeJakoLiczby) {
  i.struktura.CBTypPliku = TypPliku::Zorvik;
  const auto rekord = [](const char* kod, const char* typ, const char* stawka) {
    QStringList pola(32);
    pola[PoleTowaru::Kod] = pola[PoleTowaru::Nazwa] = QString::fromUtf8(kod);
    pola[PoleTowaru::TypTowaru] = QString::fromUtf8(typ);
    pola[PoleTowaru::StawkaVat] = QString::fromUtf8(stawka);
    return pola.join(u'\t') + u'\n';
  };
  i.Importuj(u"Kod\n"_s + rekord("590001", "1", "-1") + rekord("590002", "7", "22.00") +
             rekord("590003", "O", "") + rekord("590004", "", "10001") + rekord("590005", "", "99999999999"));
  EXPECT_EQ(Kolumna("TypTowaru || ' ' || Stawka", "590001"), u"1 -1"_s);
  EXPECT_EQ(Kolumna("TypTowaru || ' ' || Stawka", "590002"), u"0 2200"_s);
  EXPECT_THAT(i.Pominiete(), ElementsAre(u"590003 | 590003 | O nie jest liczbą"_s,
                                         u"590004 | 590004 | Błąd w polu 'stawka'"_s,
                                         u"590005 | 590005 | Błąd w polu 'stawka'"_s));
}

TEST_F(Rekord, NadaneKodyINazwySaKolejne) {
  i.opcje.towarBezKodu = TowarBezKodu::RBDodajKodWlasny;
  i.opcje.towarBezNazwy = TowarBezNazwy::RBDodajTowarZNazwaAuto;
  i.opcje.EdKodyKrotkie = u"0"_s;
  i.Importuj(";;\n;;\n1003;Zajęty\n;;\n");
  EXPECT_THAT(i.Pominiete(), IsEmpty());
  EXPECT_EQ(i.b.Kolumna("select Kod || ' ' || Nazwa from Towar where length(Kod) = 4 order by TowId"),
            u"1001 Towar bez nazwy 0001,1002 Towar bez nazwy 0002,1003 Zajęty,1004 Towar bez nazwy 0003"_s);
}

// What a record takes or sets free counts for those behind it, whether the batch is undone and gone through
// again or not.
TEST_F(Rekord, NumeryNazwISkrotowPamietajaTenImport) {
  i.UstawPola({0, 1, 2});
  i.opcje.towarBezNazwy = TowarBezNazwy::RBDodajTowarZNazwaAuto;
  i.opcje.towarZTaSamaNazwa = TowarZTaSamaNazwa::RBDodajTowarZTaSamaNazwa;
  i.Importuj("611111;Ser;;\n611112;Ser;;\n611113;Ser;;\n");
  for (const char* seria : {"62", "63"}) {
    SCOPED_TRACE(seria);
    const bool zderzenie = seria == std::string("63");
    int zatwierdzen = 0;
    i.b.baza.UstawPodsluch([&](std::string_view sql) {
      if (sql == "commit" && ++zatwierdzen == 1 && zderzenie)
        throw EBladBazy(RodzajBleduBazy::Kolizja, u"Błąd"_s, {});
    });
    i.opcje.towarZTaSamaNazwa = TowarZTaSamaNazwa::RBDodajJakoKodDodatkowy;
    const auto zKodami = [&](QString tekst) { return tekst.replace(u'*', QString::fromLatin1(seria)); };
    i.Importuj(
        zKodami(u"*0001;;;\n*0002;Towar bez nazwy 0002;;\n*0003;;;\n*0005;Towar bez nazwy 0009;;\n"
                u"5901234123457;Towar bez nazwy 0011;;\n*0004;;;\n"_s));
    EXPECT_EQ(i.b.Kolumna("select Kod || ' ' || Nazwa from Towar where Kod like '" + std::string(seria) +
                          "000_' order by Kod"),
              zKodami(u"*0001 Towar bez nazwy 0001,*0002 Towar bez nazwy 0002,*0003 Towar bez nazwy 0003,"
                      u"*0004 Towar bez nazwy 0012,*0005 Towar bez nazwy 0009"_s));
    EXPECT_EQ(i.b.Liczba("select count(*) from KodDod"), 1);
    EXPECT_GE(zatwierdzen, zderzenie ? 2 : 1);

    zatwierdzen = 0;
    i.opcje.towarZTaSamaNazwa = TowarZTaSamaNazwa::RBDodajTowarZTaSamaNazwa;
    i.Importuj(zKodami(u"*0011;Ser;;\n611112;Ser;*\n*0012;Ser;;\n*0013;Ser;;\n"_s));
    EXPECT_EQ(
        i.b.Kolumna("select Skrot from Towar where Kod like '" + std::string(seria) + "001_' order by Kod"),
        u"Ser 3,Ser 1,Ser 4"_s);
    i.b.baza.UstawPodsluch({});
    for (const char* sql :
         {"delete from Istw where TowId in (select TowId from Towar where Kod like '6_0%')",
          "delete from Towar where Kod like '6_0%'", "update Towar set Skrot = 'Ser 1' where Kod = '611112'",
          "update Towar set Nazwa = 'Mleko świeże' where Kod = '5901234123457'"})
      i.b.baza.ExecSQL(sql);
    i.bufor.Uniewaznij();
  }
}

TEST_F(Rekord, KodDochodziDoTowaruOTejSamejNazwie) {
  i.opcje.towarZTaSamaNazwa = TowarZTaSamaNazwa::RBDodajJakoKodDodatkowy;
  i.opcje.cb_akttow = false;
  // Of several the one with the lowest identifier, wherever a server keeps its row.
  i.b.baza.ExecSQL("update Towar set Nazwa = 'Mleko świeże' where TowId = 2");
  i.b.baza.ExecSQL("update Towar set Opis1 = 'x' where TowId = 1");
  i.bufor.Uniewaznij();
  const WynikPrzebiegu wynik = i.Importuj("5900000000015;Mleko świeże\n5900000000015;Mleko świeże\n");
  EXPECT_EQ(wynik.liczniki[Licznik::Poprawione], 1);
  EXPECT_EQ(i.b.Kolumna("select Kod from KodDod where TowId = 1 order by Kolejnosc"),
            u"5909876543210,5900000000015"_s);
}

TEST_F(Rekord, TekstDluzszyNizKolumnaOdrzucaSamRekord) {
  const QString dlugi(1001, u'a'), pelny(1000, u'b');
  i.UstawPola({0, 1, 6, 27, 24});
  i.opcje.cb_noweasortymenty = i.opcje.cb_nowekategorie = true;
  const WynikPrzebiegu wynik = i.Importuj(
      u"5900000000015;%1;;;N\n5900000000022;B;%1;;N\n5900000000039;C;;;%1\n5900000000046;D;;%1;N\n"
      "5900000000053;%2;%2;%2;%2\n"_s.arg(dlugi, pelny));
  QStringList pola;
  for (const QString& linia : i.Pominiete()) pola << linia.section(u" | "_s, 2);
  const QString wada = u"Tekst w polu '%1' ma 1001 znaków, a mieści się ich 1000"_s;
  EXPECT_EQ(pola, (QStringList{wada.arg(u"Nazwa towaru"_s), wada.arg(u"Opis 1"_s),
                               wada.arg(u"Nazwa asortymentu"_s), wada.arg(u"Nazwa kategorii"_s)}));
  EXPECT_EQ(wynik.liczniki[Licznik::Pominiete], 4);
  EXPECT_EQ(wynik.liczniki[Licznik::Dodane], 1);
  EXPECT_EQ(Kolumna("Opis1", "5900000000053"), pelny);
}

// What another program sells at while a person corrects a good stays.
TEST_F(Rekord, CenaZmienionaPodczasPoprawianiaZostaje) {
  TVLTBazaDanych inny;
  i.b.Polacz(inny);
  i.oper = &i.osoba;
  i.osoba.popraw = [&](TDmVLTElement& rekord, const OdmowaZapisu&) {
    inny.ExecSQL("update Towar set CenaDet = 77 where Kod = '4006381333931'");
    static_cast<TDmVLTTowar&>(rekord).UstawSkrot(u"Krótki"_s);
    return Poprawka::Poprawiono;
  };
  i.UstawPola({0, 2});
  EXPECT_EQ(i.Importuj("4006381333931;zbyt długa nazwa na kasie\n").liczniki[Licznik::Poprawione], 1);
  EXPECT_EQ(Kolumna("CenaDet", "4006381333931") + Kolumna("Skrot", "4006381333931"), u"77Krótki"_s);
}

TEST_F(Rekord, OperatorPoprawiaRezygnujeAlboZatrzymuje) {
  i.oper = &i.osoba;
  i.opcje.towarBezNazwy = TowarBezNazwy::RBDodajTowarBezNazwy;
  i.opcje.towarBezKodu = TowarBezKodu::RBPytajOKodTowaru;
  i.osoba.tekst = u"5900000000015"_s;  // answers both questions: a name and, for the second good, a code
  i.osoba.przyPytaniu = [&] { EXPECT_FALSE(i.b.baza.GetCzyWTransakcji()); };
  i.UstawPola({0, 1, 26});
  WynikPrzebiegu wynik = i.Importuj("5900000000022;;(777||)\n;Nazwany;(778||)\n");
  EXPECT_EQ(wynik.liczniki[Licznik::Dodane], 2);
  EXPECT_EQ(i.b.Tekst("select Skrot from KodDod where Kod = '777'"), u"5900000000015 1"_s);
  EXPECT_EQ(Kolumna("Nazwa", "5900000000022"), u"5900000000015"_s);
  EXPECT_EQ(Kolumna("Nazwa", "5900000000015"), u"Nazwany"_s);

  // The code is asked for before it becomes an additional one of the good with the same name.
  i.UstawPola({0, 1});
  i.osoba.pytania.clear();
  i.opcje.towarZTaSamaNazwa = TowarZTaSamaNazwa::RBDodajJakoKodDodatkowy;
  i.osoba.tekst = u" 779 "_s;
  i.Importuj(";Nazwany\n;Nazwany\n");
  EXPECT_THAT(i.osoba.pytania, ElementsAre(u"Podaj kod towaru Nazwany"_s, u"Podaj kod towaru Nazwany"_s));
  EXPECT_EQ(
      i.b.Kolumna("select Kod from KodDod where TowId = (select TowId from Towar where Nazwa = 'Nazwany')"
                  " order by Kolejnosc"),
      u"778,779"_s);
  EXPECT_THAT(i.Pominiete(), ElementsAre(u" | Nazwany | Towar o tym kodzie już jest w bazie"_s));

  i.osoba.tekst.reset();
  i.osoba.pytania.clear();
  wynik = i.Importuj("5900000000039;;\n");
  EXPECT_THAT(i.osoba.pytania,
              ElementsAre(u"Podaj nazwę towaru o kodzie 5900000000039"_s, u"Brak nazwy towaru"_s,
                          u"Nie poprawiasz?"_s, u"Zignorować ten towar? Jesteś pewny?"_s));
  EXPECT_EQ(wynik.liczniki[Licznik::Pominiete], 1);

  i.osoba.poprawka = Poprawka::Stop;
  wynik = i.Importuj("5900000000046;Przed\n5900000000039;;\n5900000000053;Po\n");
  EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Przerwano);
  EXPECT_EQ(wynik.liczniki[Licznik::Dodane], 1);
  EXPECT_EQ(Kolumna("Nazwa", "5900000000053"), u"brak"_s);
}

}  // namespace
