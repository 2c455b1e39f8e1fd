#include "database/schemat.h"

#include <map>
#include <string>
#include <string_view>

#include <QStringList>

#include "platform/baza/dialekt.h"
#include "platform/baza/sesja.h"
#include "platform/baza/szerokosci.h"
#include "platform/baza/transakcja.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The whole schema in the order it is made. Types stand as tokens which the dialect spells out:
// {klucz} automatic primary key, {calk} integer, {dzies} decimal number, {tekst} text, {dlugi} long text,
// {czas} date and time. Columns that a save always fills carry no default; the others get one, so that every
// row is whole. Identifiers of "none" are null. Nothing refers to Vat: its rows are deleted and written anew
// on every change.
constexpr std::string_view kSchemat[] = {
    // Dictionaries
    R"(create table Asort (
        AsId {klucz},
        Nazwa {tekst} not null))",
    "create index AsortNazwa on Asort (Nazwa)",
    R"(create table JM (
        JMId {klucz},
        Nazwa {tekst} not null,
        Precyzja {calk} not null default 0))",
    "create index JMNazwa on JM (Nazwa)",
    R"(create table Vat (
        Stawka {calk} not null primary key))",
    R"(create table Magazyn (
        MagId {klucz},
        Nazwa {tekst} not null))",
    R"(create table Kategoria (
        KatId {klucz},
        Nazwa {tekst} not null))",
    "create index KategoriaNazwa on Kategoria (Nazwa)",
    // Typ: 0 a list (its values stand in ParWartosc, counted from 0), 1 a range from Od to Do
    R"(create table Parametr (
        ParId {klucz},
        Nazwa {tekst} not null,
        Typ {calk} not null default 0,
        Od {dzies} not null default 0,
        Do {dzies} not null default 0))",
    "create index ParametrNazwa on Parametr (Nazwa)",
    R"(create table ParWartosc (
        ParId {calk} not null references Parametr (ParId),
        Kolejnosc {calk} not null,
        Wartosc {tekst} not null,
        primary key (ParId, Kolejnosc)))",
    R"(create table KatParam (
        KatId {calk} not null references Kategoria (KatId),
        ParId {calk} not null references Parametr (ParId),
        Kolejnosc {calk} not null default 0,
        primary key (KatId, ParId)))",
    R"(create table KodWazony (
        KWId {klucz},
        Nazwa {tekst} not null,
        Prefix {calk} not null,
        CzescStala {calk} not null,
        WartoscWKodzie {calk} not null default 0,
        DodKontrola {calk} not null default 0))",

    // Contractors
    R"(create table Kontrahent (
        KontrId {klucz},
        AkwId {calk} default 0,
        Nazwa {tekst} not null,
        NaPrzelewie1 {tekst} default '',
        NaPrzelewie2 {tekst} default '',
        Skrot {tekst} default '',
        Ulica {tekst} default '',
        Kod {tekst} default '',
        Miasto {tekst} default '',
        Telefon {tekst} default '',
        Fax {tekst} default '',
        EMail {tekst} default '',
        Bank {tekst} default '',
        Konto {tekst} default '',
        NIP {tekst} default '',
        Staly {calk} default 0,
        Dostawca {calk} default 0,
        RabatDost {dzies} default 0,
        FormaPlatDost {calk} default 0,
        TermPlatDost {calk} default 0,
        CzasRealZam {calk} default 0,
        Producent {calk} default 0,
        Odbiorca {calk} default 0,
        RabatOdb {dzies} default 0,
        FormaPlatOdb {calk} default 0,
        TermPlatOdb {calk} default 0,
        MaxKredyt {dzies} default 0,
        MaxPoTermPlat {calk} default 0,
        KodKarty {tekst} default '',
        KartaAktywna {calk} default 0,
        TermWaznKarty {czas},
        PoziomRabatu {calk} default 0,
        NrAnalityki {tekst} default '',
        KodKontr {tekst} default '',
        ZakPracChron {calk} default 0,
        Aktywny {calk} not null default 1,
        Rezerwa1 {tekst} default '',
        Rezerwa2 {tekst} default '',
        Zmiana {czas}))",
    "create index KontrahentNIP on Kontrahent (NIP)",
    // A contractor that is a shop of the chain; the identifier is the contractor's
    R"(create table Sklep (
        SklepId {calk} not null primary key references Kontrahent (KontrId),
        NrSklepu {calk} not null default 0,
        NrSeryjny {tekst} default '',
        OstImport {czas},
        WymImport {czas},
        DataBO {czas},
        KolejnyWDniuBO {calk} default 0,
        PelnyImport {calk} default 0,
        OstEksport {czas},
        PotwEksport {czas},
        MagId {calk} references Magazyn (MagId)))",
    "create index SklepNumer on Sklep (NrSklepu)",
    // OsId keeps the persons in the order of their entry. Databases made before it do without: there the
    // place
    // of a row tells, which a server may change with every update.
    R"(create table Osoba (
        KontrId {calk} not null references Kontrahent (KontrId),
        Nazwisko {tekst} not null,
        OsId {klucz}))",
    "create index OsobaKontr on Osoba (KontrId)",

    // Goods
    R"(create table Towar (
        TowId {klucz},
        AsId {calk} references Asort (AsId),
        JMId {calk} references JM (JMId),
        KatId {calk} references Kategoria (KatId),
        Producent {calk} references Kontrahent (KontrId),
        Nazwa {tekst} not null,
        Skrot {tekst} not null,
        Kod {tekst} not null,
        TypTowaru {calk} default 0,
        Indeks1 {tekst} default '',
        Indeks2 {tekst} default '',
        Opis1 {tekst} default '',
        Opis2 {tekst} default '',
        Opis3 {tekst} default '',
        Opis4 {tekst} default '',
        TermWazn {calk} default 0,
        Marza {dzies} default 0,
        HurtRabat {dzies} default 0,
        NocNarzut {dzies} default 0,
        OpcjaMarzy {calk} default 0,
        OpcjaRabatu {calk} default 0,
        OpcjaNarzutu {calk} default 0,
        CenaEw {dzies} default 0,
        CenaDet {dzies} default 0,
        CenaHurt {dzies} default 0,
        CenaNoc {dzies} default 0,
        CenaDod {dzies} default 0,
        CenaOtwarta {calk} default 0,
        PoziomCen {calk} default 0,
        PrefPLU {calk} default 0,
        Stawka {calk},
        IleWZgrzewce {dzies} default 0,
        IleWCalosci {dzies} default 0,
        KodZgrzewki {tekst} default '',
        Aktywny {calk} not null default 1,
        Zmiana {czas},
        Waga {calk} default 0,
        Szerokosc {calk} default 0,
        Wysokosc {calk} default 0,
        Glebokosc {calk} default 0,
        CKU {tekst} default '',
        BlokDostawcow {calk} default 0,
        BlokCenyZak {calk} default 0,
        BlokCenSp {calk} default 0,
        BlokZmian {calk} default 0,
        Rezerwa1 {tekst} default '',
        Rezerwa2 {tekst} default ''))",
    "create index TowarKod on Towar (Kod)",
    "create index TowarSkrot on Towar (Skrot)",
    "create index TowarNazwa on Towar (Nazwa)",
    // Few goods are central: the others cost nothing here. A select must say "CKU <> ''" to be served by it.
    "create index TowarCKU on Towar (CKU) where CKU <> ''",
    R"(create table KodDod (
        TowId {calk} not null references Towar (TowId),
        Kolejnosc {calk} not null,
        Skrot {tekst} not null default '',
        Kod {tekst} not null,
        PoziomCen {calk} default 0,
        PrefPLU {calk} default 0,
        IleWKodzie {dzies} default 0,
        primary key (TowId, Kolejnosc)))",
    "create index KodDodKod on KodDod (Kod)",
    "create index KodDodSkrot on KodDod (Skrot)",
    R"(create table Istw (
        TowId {calk} not null references Towar (TowId),
        MagId {calk} not null references Magazyn (MagId),
        StanMag {dzies} not null default 0,
        BlokadaMag {dzies} not null default 0,
        CenaMag {dzies} default 0,
        StanMin {dzies} default 0,
        StanMax {dzies} default 0,
        primary key (TowId, MagId)))",
    R"(create table Powiazanie (
        TowId {calk} not null primary key references Towar (TowId),
        OpakId {calk} not null references Towar (TowId),
        IleWOpak {dzies} default 0,
        Tandem {calk} default 0))",
    R"(create table TowWartosc (
        TowId {calk} not null references Towar (TowId),
        ParId {calk} not null references Parametr (ParId),
        Wartosc {dzies} not null default 0,
        primary key (TowId, ParId)))",
    R"(create table TowDostawca (
        TowId {calk} not null references Towar (TowId),
        KontrId {calk} not null references Kontrahent (KontrId),
        Kolejnosc {calk} not null default 0,
        primary key (TowId, KontrId)))",
    R"(create table Notatki (
        TowId {calk} not null references Towar (TowId),
        Kolejnosc {calk} not null,
        Tekst {dlugi},
        KoniecLinii {calk} default 0,
        primary key (TowId, Kolejnosc)))",

    // Cash registers and shops that hold copies of the goods. Wyslany other than 0: the register holds the
    // good.
    R"(create table KasTow (
        KasaId {calk} not null,
        TowId {calk} not null references Towar (TowId),
        KodWyslany {tekst} default '',
        ZmianyCen {calk} default 0,
        ZmianyInne {calk} default 0,
        Wyslany {calk} default 0,
        primary key (KasaId, TowId)))",
    "create index KasTowTow on KasTow (TowId)",
    "create index KasTowKod on KasTow (KodWyslany)",
    R"(create table SklepFlagi (
        SklepId {calk} not null references Sklep (SklepId),
        TowId {calk} not null references Towar (TowId),
        Zmiana {czas},
        primary key (SklepId, TowId)))",
    "create index SklepFlagiTow on SklepFlagi (TowId)",

    // Settings and the change log (which is only ever appended to)
    R"(create table Konfiguracja (
        Nazwa {tekst} not null,
        Kolejnosc {calk} not null,
        Parametr {tekst} not null,
        Wartosc {dlugi},
        primary key (Nazwa, Kolejnosc)))",
    R"(create table DziennikZmian (
        Czas {czas} not null,
        Tabela {calk} not null,
        Opis {dlugi},
        Id1 {calk},
        Id2 {calk}))",
};

// A stock row for every good in every warehouse: nobody else inserts into Istw. {nowe} are the new rows.
struct Wyzwalacz {
  const char *nazwa, *tabela, *klucz, *polecenie;
};
constexpr Wyzwalacz kWyzwalacze[] = {
    {"TowarIstw", "Towar", "TowId",
     "insert into Istw (TowId, MagId) select N.TowId, M.MagId from {nowe} N, Magazyn M"},
    {"MagazynIstw", "Magazyn", "MagId",
     "insert into Istw (TowId, MagId) select T.TowId, N.MagId from Towar T, {nowe} N"},
};

constexpr PrawaTabeli kPrawa[] = {
    {"Asort", true, true, false, "Nazwa"},         {"JM", true, true, false, "Nazwa"},
    {"Vat", true, false, true, "Stawka"},          {"Magazyn", true, true, false, "Nazwa"},
    {"Kategoria", true, true, false, "Nazwa"},     {"Parametr", true, true, false, "Nazwa"},
    {"ParWartosc", true, false, true, "Wartosc"},  {"KatParam", true, false, true, "Kolejnosc"},
    {"KodWazony", true, true, false, "Nazwa"},     {"Kontrahent", true, true, false, "Nazwa", true},
    {"Sklep", true, true, true, "NrSklepu"},       {"Osoba", true, false, true, "Nazwisko"},
    {"Towar", true, true, false, "Nazwa", true},   {"KodDod", true, true, true, "Kod"},
    {"Istw", true, true, false, "StanMag"},        {"Powiazanie", true, false, true, "Tandem"},
    {"TowWartosc", true, false, true, "Wartosc"},  {"TowDostawca", true, false, true, "Kolejnosc"},
    {"Notatki", true, false, true, "Tekst"},       {"KasTow", false, true, false, "ZmianyInne"},
    {"SklepFlagi", false, true, true, "Zmiana"},   {"Konfiguracja", true, false, true, "Wartosc"},
    {"DziennikZmian", true, false, false, "Opis"},
};

// In hundredths of a percent; -1 is the exempt rate.
constexpr int kStawkiVat[] = {2300, 800, 500, 0, -1};

const WpisKonfiguracji kNazwySkrocone[] = {
    {u"NazwaSkrocona"_s, u"JakTworzycSkrot"_s, u"0"_s},  // the whole name while it fits
    {u"NazwaSkrocona"_s, u"CzyPolskieZnaki"_s, u"1"_s},
    {u"NazwaSkrocona"_s, u"CzyMaleLitery"_s, u"1"_s},
    {u"NazwaSkrocona"_s, u"ZnakiSpecjalne"_s, u".,-/%&+"_s},
    {u"NazwaSkrocona"_s, u"SpacjeZamienicNaZnak"_s, u"32"_s},  // a blank: spaces stay
    {u"NazwaSkrocona"_s, u"InneSeparatory"_s, u""_s},
    {u"NazwaSkrocona"_s, u"MinDlugosc"_s, u"1"_s},
    {u"NazwaSkrocona"_s, u"MaxDlugosc"_s, u"18"_s},
};

std::string Rozwin(std::string_view instrukcja, const Dialekt& dialekt) {
  const std::pair<std::string_view, std::string> typy[] = {
      {"{klucz}", dialekt.TypAutoKlucz()},
      {"{calk}", dialekt.TypCalkowity()},
      {"{dzies}", dialekt.TypDziesietny()},
      {"{tekst}", dialekt.TypTekst(kZnakowTekstu)},
      {"{dlugi}", dialekt.TypTekst(kZnakowDlugiego)},
      {"{czas}", dialekt.TypCzas()},
  };
  std::string wynik(instrukcja);
  for (const auto& [znacznik, typ] : typy) {
    for (auto gdzie = wynik.find(znacznik); gdzie != std::string::npos; gdzie = wynik.find(znacznik, gdzie)) {
      wynik.replace(gdzie, znacznik.size(), typ);
    }
  }
  return wynik;
}

void ZapiszWpisy(TVLTBazaDanych& baza, std::span<const WpisKonfiguracji> wpisy) {
  std::map<QString, int> ilosc;
  for (const WpisKonfiguracji& wpis : wpisy) {
    baza.ExecSQL(
        "insert into Konfiguracja (Nazwa, Kolejnosc, Parametr, Wartosc) values (:Nazwa, :Kolejnosc, "
        ":Parametr, :Wartosc)",
        {{"Nazwa", wpis.konfiguracja},
         {"Kolejnosc", ilosc[wpis.konfiguracja]++},
         {"Parametr", wpis.parametr},
         {"Wartosc", wpis.wartosc}});
  }
}

}  // namespace

void UtworzBaze(TVLTBazaDanych& baza, std::span<const WpisKonfiguracji> konfiguracja) {
  JednostkaZapisu jednostka(baza);
  const Dialekt& dialekt = baza.Jezyk();
  for (const std::string_view instrukcja : kSchemat) baza.ExecSQL(Rozwin(instrukcja, dialekt));
  for (const Wyzwalacz& w : kWyzwalacze)
    for (const std::string& instrukcja : dialekt.Wyzwalacz(w.nazwa, w.tabela, w.klucz, w.polecenie))
      baza.ExecSQL(instrukcja);
  for (const int stawka : kStawkiVat) {
    baza.ExecSQL("insert into Vat (Stawka) values (:Stawka)", {{"Stawka", stawka}});
  }
  ZapiszWpisy(baza, kNazwySkrocone);
  ZapiszWpisy(baza, konfiguracja);
  jednostka.Zatwierdz();
}

bool BazaPusta(TVLTBazaDanych& baza) {
  return !baza.Otworz(baza.Jezyk().ListaTabel(), {TypPola::Tekst}).Nastepny();
}

void WyrownajAutoKlucze(TVLTBazaDanych& baza) {
  for (const KolumnaSchematu& kolumna : KolumnySchematu()) {
    if (kolumna.znacznik != "{klucz}") continue;
    const std::string sql = baza.Jezyk().WyrownajAutoKlucz(kolumna.tabela, kolumna.nazwa);
    if (!sql.empty()) baza.Otworz(sql, {TypPola::Calkowite}).Nastepny();
  }
}

std::vector<KolumnaSchematu> KolumnySchematu() {
  constexpr std::string_view kTabela = "create table ";
  std::vector<KolumnaSchematu> kolumny;
  for (const std::string_view instrukcja : kSchemat) {
    if (!instrukcja.starts_with(kTabela)) continue;
    const QStringList linie =
        QString::fromUtf8(instrukcja.data(), static_cast<qsizetype>(instrukcja.size())).split(u'\n');
    const std::string tabela = linie[0].section(u' ', 2, 2).toStdString();
    for (const QString& linia : linie.mid(1)) {
      const QStringList slowa = linia.simplified().split(u' ');
      if (slowa.size() < 2 || !slowa[1].startsWith(u'{')) continue;
      kolumny.push_back({tabela, slowa[0].toStdString(), slowa[1].section(u'}', 0, 0).toStdString() + '}'});
    }
  }
  return kolumny;
}

std::string TypKolumny(const KolumnaSchematu& kolumna, const Dialekt& dialekt) {
  return Rozwin(kolumna.znacznik, dialekt);
}

std::vector<std::pair<std::string, std::string>> WyzwalaczeSchematu() {
  std::vector<std::pair<std::string, std::string>> wyzwalacze;
  for (const Wyzwalacz& w : kWyzwalacze) wyzwalacze.emplace_back(w.tabela, w.nazwa);
  return wyzwalacze;
}

std::vector<std::pair<std::string, std::string>> IndeksySchematu() {
  constexpr std::string_view kIndeks = "create index ";
  std::vector<std::pair<std::string, std::string>> indeksy;
  for (const std::string_view instrukcja : kSchemat) {
    if (!instrukcja.starts_with(kIndeks)) continue;
    const QString tekst = QString::fromUtf8(instrukcja.data(), static_cast<qsizetype>(instrukcja.size()));
    indeksy.emplace_back(tekst.section(u' ', 4, 4).toStdString(),
                         tekst.section(u'(', 1).section(u')', 0, 0).section(u',', 0, 0).toStdString());
  }
  for (const KolumnaSchematu& kolumna : KolumnySchematu())
    if (kolumna.znacznik == "{klucz}") indeksy.emplace_back(kolumna.tabela, kolumna.nazwa);
  return indeksy;
}

std::span<const PrawaTabeli> PrawaTabel() {
  return kPrawa;
}
