#include "tests/contractors/import_testowy.h"

namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using O = OpcjeImportuKontrahentow;

class ImportTest : public testing::Test, protected ImportTestowy {
 protected:
  std::string Wynik(const WynikPrzebiegu& wynik) const {
    const auto ile = [&](Licznik licznik) { return std::to_string(wynik.liczniki[licznik]); };
    return "+" + ile(Licznik::Dodane) + " ~" + ile(Licznik::Poprawione) + " -" + ile(Licznik::Pominiete) +
           " =" + ile(Licznik::BezZmian);
  }
  long long Kontrahentow() { return b.Liczba("select count(*) from Kontrahent"); }
};

// Two contractors share a tax number, two shops share a shop number.
constexpr const char* kBaza[] = {
    "insert into Kontrahent (Nazwa, NIP, Ulica, Miasto, Odbiorca) values"
    " ('Alfa', 'PL 123-456-78-90', 'Polna 1', 'Łódź', 1), ('Beta', '', 'Leśna 2', 'Radom', 1),"
    " ('Gamma', '1234567890', 'Polna', '1 Łódź', 1), ('Sklep A', '51', '', '', 0), ('Sklep B', '52', '', '', "
    "0),"
    " ('Nikt', '60', '', '', 0)",
    "insert into Sklep (SklepId, NrSklepu) values (4, 7), (5, 7)",
};

struct Przypadek {
  const char* opcje;  // of kOpcje, set; the others are not
  const char* rekordy;
  const char* wynik;
  const char* pominieci;
};
// + adding, ~ updating; "bez..." without a tax number, "jest..." with one in the database. "aktywni",
// "usunieci": the filter.
const std::map<std::string, bool O::*> kOpcje = {
    {"+", &O::cb_nowykontr},
    {"~", &O::cb_aktkontr},
    {"bezDodaj", &O::rb_dodajKontrBezNIPu},
    {"bezPomin", &O::rb_pominKontrBezNIPu},
    {"bezInnyAdres", &O::rb_dodajKontrBezNIPuJesliInnyAdres},
    {"jestPomin", &O::rb_PominBoTakiNIPJuzJest},
    {"jestDodaj", &O::rb_DodajChociazTakiNIPJuzJest},
    {"jestInnyAdres", &O::rb_DodajJesliMaInnyAdres},
    {"odb", &O::cb_odbiorca},
    {"sklep", &O::cb_sklep},
};
constexpr const char* kJuzJest = "123 456 78 90 | Nowa | Kontrahent z tym NIP-em już jest w bazie";
constexpr const char* kAdres = "1234567890 | Nowa | Kontrahent z tym NIP-em i tym adresem jest już w bazie";

// Fields of the records: name, tax number, street, city, customer, shop, phone, discount, persons, active.
const Przypadek kPrzypadki[] = {
    // Names and numbers.
    {"+ ~ odb", "#;1\n//;2\n ; ;\n ;55;\n\n", "+0 ~0 -2 =0",
     " |  | Brak nazwy i NIPu kontrahenta w linii 1\n55 |  | Brak nazwy kontrahenta"},
    {"~ jestPomin bezPomin odb", "Nowa;999\nNowa;brak", "+0 ~0 -2 =0",
     "999 | Nowa | Kontrahenta z tym NIP-em nie ma w bazie\nbrak | Nowa | Brak NIPu kontrahenta"},
    {"~ odb", "Nowa;PL 123-45-67-890;Polna 1;Łódź", "+0 ~1 -0 =0", ""},
    // Without a tax number.
    {"+ bezDodaj odb", "Nowa;-;Leśna 2;Radom\nNowa;;Leśna 2;Radom", "+2 ~0 -0 =0", ""},
    {"+ bezPomin odb", "Nowa;", "+0 ~0 -1 =0", " | Nowa | Brak NIPu kontrahenta"},
    {"+ bezInnyAdres odb", "Nowa;;Inna;Inne", "+0 ~0 -1 =0", " | Nowa | Brak NIPu kontrahenta"},
    {"+ ~ bezDodaj odb", "Nowa;", "+0 ~0 -1 =0", " | Nowa | Brak NIPu kontrahenta"},
    {"bezDodaj odb", "Nowa;", "+0 ~0 -1 =0", " | Nowa | Brak NIPu kontrahenta"},
    // With one that is in the database.
    {"+ jestPomin odb", "Nowa;123 456 78 90", "+0 ~0 -1 =0", kJuzJest},
    {"+ jestPomin jestDodaj odb", "Nowa;123 456 78 90", "+0 ~0 -1 =0", kJuzJest},
    {"+ odb", "Nowa;123 456 78 90", "+0 ~0 -1 =0", kJuzJest},
    {"jestDodaj odb", "Nowa;123 456 78 90", "+0 ~0 -1 =0", kJuzJest},
    {"+ jestDodaj odb", "Nowa;1234567890;Polna 1;Łódź\nNowa;1234567890;Polna 1;Łódź", "+2 ~0 -0 =0", ""},
    {"+ jestInnyAdres odb", "Nowa;1234567890;Polna 1;Łódź", "+0 ~0 -1 =0", kAdres},
    {"+ jestInnyAdres odb", "Nowa;1234567890;Polna;1 Łódź", "+0 ~0 -1 =0", kAdres},
    {"+ jestInnyAdres odb",
     "Nowa;1234567890;Polna 1Ł;ódź\nNowa;1234567890;POLNA 1;Łódź\nNowa;77;Polna 1;Łódź", "+3 ~0 -0 =0", ""},
    {"+ jestInnyAdres odb", "Nowa;1234567890;X;Y\nNowa;1234567890;X;Y", "+1 ~0 -1 =0", kAdres},
    {"+ ~ jestInnyAdres odb", "Nowa;1234567890;X;Y", "+0 ~1 -0 =0", ""},
    {"~ jestDodaj odb", "Nowa;1234567890;X;Y", "+0 ~1 -0 =0", ""},
    // Two lines with one new number.
    {"+ ~ jestPomin odb", "Nowa;99;X;Y\nNowsza;PL-99;X;Y\nNowsza;99;X;Y", "+1 ~1 -0 =1", ""},
    {"+ jestPomin odb", "Nowa;99\nNowsza;9-9", "+1 ~0 -1 =0",
     "9-9 | Nowsza | Kontrahent z tym NIP-em już jest w bazie"},
    // Kinds.
    {"+ ~", "Nowa;99;X;Y;0;x\nNikt;60\nNikt;60;;;1", "+0 ~1 -2 =0",
     "99 | Nowa | Nie ustawiono typu kontrahenta\n60 | Nikt | Nie ustawiono typu kontrahenta"},
    {"+ ~ odb", "Nikt;60;;;0;0\nNikt;60;;;0;0", "+0 ~1 -0 =1", ""},
    {"+ ~ sklep", "Nowa;99\nNowa;99", "+1 ~0 -0 =1", ""},
    {"~ odb", "Sklep A;51;X;;0;1\nSklep B;52;;;0;1", "+0 ~0 -1 =1",
     "51 | Sklep A | Numer sklepu nie jest unikalny"},
    {"~ odb", "Sklep A;51;X;;0;0\nSklep B;52;X;;0;1", "+0 ~2 -0 =0", ""},
    // Values.
    {"+ odb", "Nowa;99;;;;;;dużo", "+0 ~0 -1 =0", "99 | Nowa | dużo nie jest liczbą"},
    {"+ odb", "Nowa;99;;;;;;1000000000000000", "+0 ~0 -1 =0",
     "99 | Nowa | Przekroczony limit ilości lub kwoty"},
    {"+ odb", "Nowa;99;;;;;;;Kowalski\nNowa;98;;;;;;;(Nowak", "+2 ~0 -0 =0",
     "99 | Nowa | Błąd w polu osób uprawnionych do odbioru faktury\n"
     "98 | Nowa | Błąd w polu osób uprawnionych do odbioru faktury"},
    // Status.
    {"+ odb aktywni", "A;97;;;;;;;;1\nB;98;;;;;;;;0\nC;99;;;;;;;;x", "+2 ~0 -1 =0",
     "98 | B | Kontrahent usunięty"},
    {"+ odb usunieci", "A;97;;;;;;;;1\nB;98;;;;;;;;0", "+1 ~0 -1 =0", "97 | A | Kontrahent aktywny"},
};

TEST_F(ImportTest, KazdaDecyzjaIKazdyPowod) {
  UstawPola({0, 1, 3, 5, 12, 14, 6, 21, 34, 35});
  oper = &osoba;
  osoba.liczbaPol = OdpowiedzLiczbaPol::Ignoruj;
  for (const auto& [nazwyOpcji, rekordy, oczekiwany, pominieci] : kPrzypadki) {
    SCOPED_TRACE(std::string(nazwyOpcji) + ": " + rekordy);
    for (const char* tabela : {"Osoba", "Sklep", "Kontrahent"})
      b.baza.ExecSQL("delete from " + std::string(tabela));
    if (NaSerwerze())
      WyrownajAutoKlucze(b.baza);
    else
      b.baza.ExecSQL("delete from sqlite_sequence");
    for (const char* sql : kBaza) b.baza.ExecSQL(sql);
    opcje = {};
    for (const QString& nazwa : QString::fromUtf8(nazwyOpcji).split(u' '))
      if (nazwa == u"aktywni")
        opcje.jacyKontrahenci = JacyKontrahenci::RBKontrahenciAktywni;
      else if (nazwa == u"usunieci")
        opcje.jacyKontrahenci = JacyKontrahenci::RBKontrahenciUsunieci;
      else
        opcje.*kOpcje.at(nazwa.toStdString()) = true;
    const long long bylo = Kontrahentow();
    const WynikPrzebiegu wynik = Importuj(rekordy);
    EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Zakonczono);
    EXPECT_EQ(Wynik(wynik), oczekiwany);
    EXPECT_EQ(Pominieci().join(u'\n'), QString::fromUtf8(pominieci));
    EXPECT_EQ(Kontrahentow(), bylo + wynik.liczniki[Licznik::Dodane]);
  }
}

// By the kind of a field: a value and what is stored of it; another value; one that cannot be read and what
// it stores, null when what was there stays.
struct Wartosci {
  const char *wartosc, *zapisana, *inna, *zla, *poZlej;
};
const std::map<QChar, Wartosci> kRodzaje = {
    {u't', {" Żółć 'x' ", " Żółć 'x' ", "inny", "", ""}},
    {u'1', {"1", "1", "0", "x", "1"}},
    {u'0', {"1", "1", "0", "x", "0"}},
    {u'z', {"1", "1", "1", "x", "0"}},  // a customer for good, so that a kind is always left
    {u'i', {" -12 ", "-12", "13", "1,5", "0"}},
    {u'n', {"12,5", "12.5", "0.25", "", "0"}},
    {u'o', {"(Żak| Nowak ||Żak)", "Żak|Nowak", "(Lis)", "Lis", nullptr}},
    {u'd', {"1.02.2026", "2026-02-01 00:00:00", "28.2.2027", "29.02.2027", nullptr}},
};

// Kind and column of the fields from 2 on.
const QStringList kPola =
    u"t:Skrot t:Ulica t:Kod t:Miasto t:Telefon t:Fax t:EMail t:Bank t:Konto 0:Dostawca z:Odbiorca "
    u"0:Producent "
    "0:JestSklepem 1:Staly t:NrAnalityki t:KodKontr 0:ZakPracChron t:NaPrzelewie1 t:NaPrzelewie2 n:RabatDost "
    "i:FormaPlatDost i:TermPlatDost i:CzasRealZam n:RabatOdb i:FormaPlatOdb i:TermPlatOdb n:MaxKredyt "
    "i:MaxPoTermPlat t:KodKarty 0:KartaAktywna d:TermWaznKarty i:PoziomRabatu o:Osoby 1:Aktywny"_s.split(
        u' ');

TEST_F(ImportTest, KazdePoleTrafiaDoSwojejKolumnyGdyWolno) {
  struktura.CBTypPliku = TypPliku::Zorvik;
  const auto linia = [](const char* Wartosci::*ktora, int zlePole = -1) {
    QString tekst = u"nagłówek\nNazwa\t12-3"_s;
    int numer = PoleKontrahenta::Nip;
    for (const QString& pole : kPola)
      tekst += u'\t' + QString::fromUtf8(kRodzaje.at(pole[0]).*(++numer == zlePole ? &Wartosci::zla : ktora));
    return tekst + u'\n';
  };
  const auto stan = [&] {
    QStringList wartosci;
    for (const QString& pole : kPola) {
      wartosci << (pole == u"o:Osoby"_s
                       ? b.Kolumna("select Nazwisko from Osoba order by OsId", TypPola::Tekst, u'|')
                   : pole == u"0:JestSklepem"_s ? b.Kolumna("select count(*) from Sklep")
                                                : b.Tekst("select cast(" + pole.mid(2).toStdString() +
                                                          " as varchar(100)) from Kontrahent"));
      if (wartosci.last().endsWith(u".0"_s)) wartosci.last().chop(2);
    }
    return wartosci;
  };
  // A new contractor takes every field, whatever the flags say.
  for (int pole = 0; pole < PoleKontrahenta::LiczbaWartosci; ++pole) struktura.UstawOferowane(pole, false);
  EXPECT_EQ(Wynik(Importuj(linia(&Wartosci::wartosc))), "+1 ~0 -0 =0");
  QStringList oczekiwany;
  for (const QString& pole : kPola) oczekiwany << QString::fromUtf8(kRodzaje.at(pole[0]).zapisana);
  EXPECT_EQ(stan(), oczekiwany);
  // A stored one takes what is flagged.
  const QString inne = linia(&Wartosci::inna);
  EXPECT_EQ(Wynik(Importuj(inne)), "+0 ~0 -0 =1");
  for (qsizetype i = 0; i < oczekiwany.size(); ++i) {
    const int pole = PoleKontrahenta::NazwaSkrocona + static_cast<int>(i);
    SCOPED_TRACE(pole);
    struktura.UstawOferowane(pole, true);
    const bool zmienia = pole != PoleKontrahenta::Odbiorca;
    EXPECT_EQ(Wynik(Importuj(inne)), zmienia ? "+0 ~1 -0 =0" : "+0 ~0 -0 =1");
    const QString po = stan()[i];
    EXPECT_NE(po == oczekiwany[i], zmienia);
    oczekiwany[i] = po;
    EXPECT_EQ(stan(), oczekiwany);
    Importuj(linia(&Wartosci::inna, pole));
    const char* const poZlej = kRodzaje.at(kPola[i][0]).poZlej;
    EXPECT_EQ(stan()[i], poZlej ? QString::fromUtf8(poZlej) : po);
    Importuj(inne);
    EXPECT_EQ(stan(), oczekiwany);
  }
  EXPECT_EQ(b.Tekst("select Nazwa || NIP from Kontrahent"), u"Nazwa12-3"_s);
  // The name has its flag too; the number stays as it was entered first.
  const QString nowaNazwa = u"nagłówek\nInna\tPL 123"_s + inne.mid(inne.indexOf(u"12-3"_s) + 4);
  EXPECT_EQ(Wynik(Importuj(nowaNazwa)), "+0 ~0 -0 =1");
  struktura.UstawOferowane(PoleKontrahenta::Nazwa, true);
  EXPECT_EQ(Wynik(Importuj(nowaNazwa)), "+0 ~1 -0 =0");
  EXPECT_EQ(b.Tekst("select Nazwa || NIP from Kontrahent"), u"Inna12-3"_s);
}

// A column that the file lacks changes nothing; a new contractor gets the defaults.
TEST_F(ImportTest, BrakujaceKolumny) {
  Importuj("Nazwa; 12-3 \n");
  EXPECT_EQ(b.Tekst("select NIP || Staly || Aktywny || Odbiorca || Dostawca || AkwId from Kontrahent"),
            u"12-311100"_s);
  b.baza.ExecSQL("update Kontrahent set Staly = 0, Aktywny = 0, Odbiorca = 0, Dostawca = 1, Ulica = 'Polna'");
  b.baza.ExecSQL("insert into Osoba (KontrId, Nazwisko) values (1, 'Lis')");
  EXPECT_EQ(Wynik(Importuj("Nazwa;123\n")), "+0 ~0 -0 =1");
  UstawPola({0, 34, 1});
  EXPECT_EQ(Wynik(Importuj("Nazwa;;123\n")), "+0 ~0 -0 =1");
  EXPECT_EQ(Wynik(Importuj("Nazwa;();123\n")), "+0 ~1 -0 =0");
  UstawPola({0, 32, 1});
  for (const QString& zla : {u"1.2.27"_s, u"1.2.20270"_s, u"001.2.2027"_s})
    EXPECT_EQ(Wynik(Importuj(u"Nazwa;%1;123\n"_s.arg(zla))), "+0 ~0 -0 =1") << zla.toStdString();
  EXPECT_EQ(b.Tekst("select Ulica || Staly || Aktywny || (select count(*) from Osoba) from Kontrahent"),
            u"Polna000"_s);
}

TEST_F(ImportTest, TekstDluzszyNizKolumnaOdrzucaSamRekord) {
  const QString dlugi(1001, u'a'), pelny(1000, u'b');
  UstawPola({0, 1, 3, 34});
  EXPECT_EQ(Wynik(Importuj(u"A;1;%1;(Lis)\nB;2;;(Lis|%1)\nC;3;%2;(%2)\nC;3;%1;(%2)\n"_s.arg(dlugi, pelny))),
            "+1 ~0 -3 =0");
  const QString wada = u"Tekst w polu '%1' ma 1001 znaków, a mieści się ich 1000"_s;
  EXPECT_EQ(Pominieci(), (QStringList{u"1 | A | "_s + wada.arg(u"Ulica"_s),
                                      u"2 | B | "_s + wada.arg(u"Osoby uprawnione"_s),
                                      u"3 | C | "_s + wada.arg(u"Ulica"_s)}));
  EXPECT_EQ(b.Tekst("select Ulica from Kontrahent"), pelny);
}

TEST_F(ImportTest, NumeryNowychSklepow) {
  UstawPola({0, 1, 14});
  for (const char* sql : kBaza) b.baza.ExecSQL(sql);
  EXPECT_EQ(Wynik(Importuj("Nowy;99;1\nDrugi;98;1\nAlfa;1234567890;1\n")), "+2 ~1 -0 =0");
  EXPECT_EQ(b.Kolumna("select SklepId || ':' || NrSklepu from Sklep order by SklepId"),
            u"1:10,4:7,5:7,7:8,8:9"_s);
}

// A record is named by its number first, and counted by the numbers of records.
TEST_F(ImportTest, LiczbaPolIPusteLinieUkladuWlasnego) {
  struktura.CBTypPliku = TypPliku::Zorvik;
  oper = &osoba;
  osoba.liczbaPol = OdpowiedzLiczbaPol::Pomin;
  const QString pelny = u"A\t1"_s + QString(34, u'\t') + u"1\n"_s;
  EXPECT_EQ(Wynik(Importuj(u"nagłówek\n# nic\n"_s + pelny + u"B\t2\n\n"_s + pelny)), "+1 ~0 -2 =1");
  const QString pytanie = u"Liczba pól w rekordzie %1 wynosi %2, deklarowana liczba pól wynosi 36."_s;
  EXPECT_EQ(osoba.pytania, (QStringList{pytanie.arg(2).arg(2), pytanie.arg(3).arg(1)}));
  EXPECT_EQ(Pominieci(), (QStringList{u"2 | B | "_s + osoba.pytania[0], u" |  | "_s + osoba.pytania[1]}));
  osoba.liczbaPol = OdpowiedzLiczbaPol::Ignoruj;
  EXPECT_EQ(Wynik(Importuj(u"nagłówek\n\nB\t2\n\n\t\n"_s)), "+1 ~0 -1 =0");
  EXPECT_EQ(Pominieci(), QStringList{u" |  | Brak nazwy i NIPu kontrahenta w linii 4"_s});
}

TEST_F(ImportTest, StalaSzerokoscIDbase) {
  struktura.EdPoleOdbiorca = u"TAK"_s;
  struktura.CBPolskieZnaki = StronaKodowa::LatinII;
  struktura.CBTypPliku = TypPliku::StalaSzerokosc;
  struktura.pola = {WpisPola(1, u"    4"_s), WpisPola(0, u"    6"_s), WpisPola(12, u"    3"_s),
                    WpisPola(0, u"    5"_s)};
  const QString rekord = windows1250::NaUnicode("12-3Ma\x88y  TAKsklep");
  EXPECT_EQ(Wynik(Importuj(rekord + u'\n')), "+1 ~0 -0 =0");
  EXPECT_EQ(b.Tekst("select Nazwa || NIP || Odbiorca from Kontrahent"), u"Mały sklep12-31"_s);

  struktura.CBTypPliku = TypPliku::DBase;
  struktura.pola = {WpisPola(1, u"nip"_s), WpisPola(0, u"n1"_s), WpisPola(12, u"odb"_s),
                    WpisPola(0, u"n2"_s)};
  std::string plik("\x03\x1A\x01\x01\x01\0\0\0\xA1\0\x13\0", 12);
  plik.resize(32);
  for (const auto& [nazwa, dlugosc] : {std::pair{"NIP", 4}, {"N1", 6}, {"ODB", 3}, {"N2", 5}}) {
    std::string opis = nazwa;
    opis.resize(32);
    opis[11] = 'C';
    opis[16] = static_cast<char>(dlugosc);
    plik += opis;
  }
  const QString naglowek = windows1250::NaUnicode(plik + "\r");
  EXPECT_EQ(Wynik(Importuj(naglowek + u' ' + rekord + u'\x1A')), "+0 ~0 -0 =1");
  struktura.pola.emplace_back(3, u"ulica"_s);
  EXPECT_EQ(Importuj(naglowek + u' ' + rekord + u'\x1A').koniec, KoniecPrzebiegu::Odmowa);
  EXPECT_THAT(postep.linie, ElementsAre(u"Błąd: W importowanym pliku brak pola: ulica"_s));
}

TEST_F(ImportTest, FazyIPodsumowanie) {
  Importuj("A;1\nB;-\nA;1\n");
  EXPECT_THAT(postep.linie,
              ElementsAre(u"łączenie z bazą VLT Win"_s, u"przygotowanie bufora NIP-ów"_s,
                          u"Wstępne przeglądanie pliku"_s, u"Ilość rekordów do przetworzenia 3"_s,
                          u"Numer aktualnego rekordu 3"_s, u"zamykanie pliku importu"_s,
                          u"Koniec: Aktualizację zakończono"_s, u"Ilość dodanych kontrahentów 1"_s,
                          u"Ilość poprawionych kontrahentów 0"_s, u"Ilość pominiętych kontrahentów 1"_s));
}

// While a person thinks, another program adds the contractor of the next line.
TEST_F(ImportTest, NumerDodanyPrzezInnyProgram) {
  TVLTBazaDanych inny;
  b.Polacz(inny);
  oper = &osoba;
  osoba.liczbaPol = OdpowiedzLiczbaPol::Pomin;
  UstawPola({0, 1, 14});
  osoba.przyPytaniu = [&] {
    inny.ExecSQL("insert into Kontrahent (Nazwa, NIP, Odbiorca) values ('B', '2-2', 1)");
    inny.ExecSQL(
        "insert into Sklep (SklepId, NrSklepu) select KontrId, 50 from Kontrahent where NIP = '2-2'");
  };
  EXPECT_EQ(Wynik(Importuj("A;1;1\nX\nB;22;1\nA;1;1\nC;3;1\n")), "+2 ~0 -1 =2");
  EXPECT_EQ(b.Kolumna("select NrSklepu from Sklep order by NrSklepu", TypPola::Calkowite), u"1,50,51"_s);
}

// What an undone batch had added is added when its records come again, under the same numbers of shops.
TEST_F(ImportTest, PowtorzonaPaczkaZaczynaOdNowa) {
  UstawPola({0, 1, 14});
  int zatwierdzen = 0;
  b.baza.UstawPodsluch([&](std::string_view sql) {
    if (sql == "commit" && ++zatwierdzen == 1) throw EBladBazy(RodzajBleduBazy::Kolizja, u"Błąd"_s, {});
  });
  EXPECT_EQ(Wynik(Importuj("A;1;1\nA;1;1\nB;2;1\n")), "+2 ~0 -0 =1");
  b.baza.UstawPodsluch({});
  EXPECT_EQ(b.Kolumna("select NrSklepu from Sklep order by NrSklepu", TypPola::Calkowite), u"1,2"_s);
}

// Each statement of a run fails in turn. Every fault of the database ends the run, the counters say what the
// database holds, and the same import afterwards completes without a number twice.
TEST_F(ImportTest, BladBazyKonczyPrzebiegAPamiecZgadzaSieZBaza) {
  UstawPola({0, 34, 14, 1});
  const char* const rekordy = "A;(Lis|Wilk);1;1\nB;;0;2\nA2;(Lis);0;1\nB;;0;2\nC;(Ryś);1;3\n";
  if (!NaSerwerze()) b.baza.ExecSQL("pragma synchronous = off");
  const auto ile = [&](const std::string& tabela) { return b.Liczba("select count(*) from " + tabela); };
  const auto calosc = [&] { return b.Kolumna("select Nazwa || NIP from Kontrahent order by KontrId"); };
  int polecen = 0;
  b.baza.UstawPodsluch([&](std::string_view) { ++polecen; });
  EXPECT_EQ(Wynik(Importuj(rekordy)), "+3 ~1 -0 =1");
  for (const RodzajBleduBazy rodzaj : {RodzajBleduBazy::PelnyDysk, RodzajBleduBazy::Ograniczenie})
    for (int ktore = 1; ktore <= polecen; ++ktore) {
      b.baza.UstawPodsluch({});
      for (const char* tabela : {"DziennikZmian", "Osoba", "Sklep", "Kontrahent"})
        b.baza.ExecSQL("delete from " + std::string(tabela));
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
      EXPECT_FALSE(b.baza.GetCzyWTransakcji());
      // A server's keys come in blocks: a later run may need fewer statements.
      const bool bezSkutku = polecenie.empty();
      // Rows refused together are written again one by one.
      const bool osobno = wynik.koniec == KoniecPrzebiegu::Zakonczono && NaSerwerze() &&
                          rodzaj == RodzajBleduBazy::Ograniczenie && polecenie.starts_with("insert");
      EXPECT_EQ(wynik.koniec == KoniecPrzebiegu::Blad, !bezSkutku && !osobno);
      EXPECT_EQ(wynik.liczniki[Licznik::Dodane], Kontrahentow());
      EXPECT_EQ(wynik.liczniki[Licznik::Dodane] + wynik.liczniki[Licznik::Poprawione], ile("DziennikZmian"));
      Importuj(rekordy);
      EXPECT_EQ(calosc(), u"A21,B2,C3"_s);
      EXPECT_EQ(ile("Osoba") * 10 + ile("Sklep"), 21);
      if (HasFailure()) return;
    }
}

// The date is left out of the record, which is stored; an empty field says nothing.
TEST_F(ImportTest, NierozpoznanaDataJestUwaga) {
  UstawPola({0, 1, 12, 32});
  const WynikPrzebiegu wynik = Importuj("A;11;1;2031-05-01\nB;12;1;1.5.2031\nC;13;1; \nD;14;1;31.02.2031\n");
  EXPECT_EQ(Wynik(wynik), "+4 ~0 -0 =0");
  ASSERT_EQ(wynik.uwagi.size(), 1u);
  EXPECT_EQ(wynik.uwagi[0].NazwaRodzaju(), u"data"_s);
  EXPECT_THAT(wynik.uwagi[0].rekordy, ElementsAre(1, 4));
  EXPECT_EQ(wynik.uwagi[0].ile, 2);
  struktura.UstawOferowane(PoleKontrahenta::TerminWaznosciKarty, false);
  EXPECT_EQ(Importuj("A;11;1;wczoraj\n").uwagi.size(), 0u);
}

}  // namespace
