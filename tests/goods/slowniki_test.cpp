#include "goods/kontrola_kodu.h"
#include "goods/nazwy_jednostek.h"
#include "goods/numeracja_nazw.h"
#include "goods/rozpoznawanie_slownikow.h"
#include "run/liczniki.h"
#include "run/raport_problemow.h"
#include "tests/goods/import_testowy.h"

namespace {

using namespace Qt::Literals::StringLiterals;
using Nazwany = int (RozpoznawanieSlownikow::*)(const QString&, int);

class SlownikiTest : public testing::Test, protected ImportTestowy {
 protected:
  SlownikiTest() {
    for (const char* sql :
         {"insert into Asort (Nazwa) values ('Pieczywo'), ('Żółte sery')",
          "insert into JM (Nazwa) values ('szt.')", "insert into Kategoria (Nazwa) values ('Wina')",
          "insert into KodWazony (Nazwa, Prefix, CzescStala) values ('Waga', 27, 5)"})
      b.baza.ExecSQL(sql);
    slowniki.Wczytaj();
    Problemy();
  }
  // What was reported since the last call; then a new record begins.
  QStringList Problemy() {
    liczniki.Zatwierdz();
    raport.Zatwierdz();
    QStringList linie = Pominiete();
    raport.Zamknij();
    raport.Otworz(folder.path(), u"POMINIETE.TXT"_s, {});
    raport.NowyRekord(u" 1"_s, u"A "_s);
    return linie.replaceInStrings(u"1 | A | "_s, QString());
  }
  QString NazwaW(const char* tabela, int id) {
    for (const KolumnaSchematu& k : KolumnySchematu())
      if (k.tabela == tabela && k.znacznik == "{klucz}")
        return b.Tekst("select Nazwa from " + k.tabela + " where " + k.nazwa + " = " + std::to_string(id));
    return {};
  }
  long long Ile(const char* tabela) { return b.Liczba("select count(*) from " + std::string(tabela)); }
  void ZakazNowych() {
    opcje.cb_noweasortymenty = opcje.cb_nowejednostki = opcje.cb_nowestawki = opcje.cb_nowekategorie = false;
    opcje.cb_noweparametry = opcje.cb_nowekodywazone = false;
  }
  void Odmawiaj(std::string_view poczatek) {
    b.baza.UstawPodsluch([=](std::string_view sql) {
      if (sql.starts_with(poczatek)) throw EBladBazy(RodzajBleduBazy::Ograniczenie, u"Błąd"_s, {});
    });
  }
  static ParametrZBloku Lista(const QString& nazwa, int n, std::vector<QString> wartosci) {
    return {nazwa, ParametrZBloku::Typ::Lista, n, std::move(wartosci), 0, 0};
  }
  static ParametrZBloku Zakres(const QString& nazwa, int n) {
    return {nazwa, ParametrZBloku::Typ::Zakres, n, {}, 0, 100};
  }

  Liczniki liczniki;
  RaportProblemow raport{postep, liczniki};
  FormatyKodowWazonych formaty;
  RozpoznawanieSlownikow slowniki{sesja, opcje, raport, liczniki, formaty};
};

TEST_F(SlownikiTest, WpisyPoNazwie) {
  struct {
    const char* tabela;
    Nazwany rozpoznaj;
    Licznik licznik;
    QString istniejacy, innaPisownia;
    int id;
    bool przemianowany;
    QString brak;
  } const przypadki[] = {
      {"Asort", &RozpoznawanieSlownikow::Asortyment, Licznik::Asortymenty, u"Żółte sery"_s, u"ŻÓŁTE SERY"_s,
       2, true, u"Nie ma takiego asortymentu"_s},
      {"JM", &RozpoznawanieSlownikow::Jednostka, Licznik::Jednostki, u"szt."_s, u"Szt."_s, 1, true,
       u"Nie ma takiej jednostki"_s},
      {"Kategoria", &RozpoznawanieSlownikow::Kategoria, Licznik::Kategorie, u"Wina"_s, u"WINA"_s, 1, false,
       u"Nie ma takiej kategorii"_s},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.tabela);
    opcje = {};
    const long long ile = Ile(p.tabela);
    EXPECT_EQ((slowniki.*p.rozpoznaj)(u" "_s, 0), -1);
    // By name: nothing is renamed. As the good's own entry: its spelling follows, except a category's.
    EXPECT_EQ((slowniki.*p.rozpoznaj)(p.innaPisownia, 0), p.id);
    EXPECT_EQ(NazwaW(p.tabela, p.id), p.istniejacy);
    EXPECT_EQ((slowniki.*p.rozpoznaj)(p.innaPisownia, p.id), p.id);
    EXPECT_EQ(NazwaW(p.tabela, p.id), p.przemianowany ? p.innaPisownia : p.istniejacy);
    EXPECT_EQ(Problemy(), QStringList());

    const int nowy = (slowniki.*p.rozpoznaj)(u"Nowość"_s, p.id);
    EXPECT_EQ(NazwaW(p.tabela, nowy), u"Nowość"_s);
    EXPECT_EQ((slowniki.*p.rozpoznaj)(u"NOWOŚĆ"_s, 0), nowy);

    // A refused save leaves neither a row nor a memory of one, and no line.
    Odmawiaj("insert");
    EXPECT_EQ((slowniki.*p.rozpoznaj)(u"Inna"_s, 0), -1);
    b.baza.UstawPodsluch({});
    ZakazNowych();
    EXPECT_EQ(Problemy(), QStringList());
    EXPECT_EQ((slowniki.*p.rozpoznaj)(u"Inna"_s, 0), -1);
    EXPECT_EQ(Problemy(), QStringList{p.brak});
    EXPECT_EQ(Ile(p.tabela), ile + 1);
    EXPECT_EQ(liczniki[p.licznik], 1);
  }
  EXPECT_EQ(liczniki[Licznik::Pominiete], 3);
  EXPECT_EQ(b.Kolumna("select Precyzja from JM order by JMId"), u"0,3"_s);
}

// Two entries that differ in case only: the good keeps its own as it is when the other bears the file's
// spelling.
TEST_F(SlownikiTest, ZajetaPisowniaZostajePrzyDrugimWpisie) {
  b.baza.ExecSQL("insert into Asort (Nazwa) values ('PIECZYWO')");
  slowniki.Wczytaj();
  EXPECT_EQ(slowniki.Asortyment(u"PIECZYWO"_s, 1), 1);
  EXPECT_EQ(NazwaW("Asort", 1), u"Pieczywo"_s);
  EXPECT_EQ(slowniki.Asortyment(u"pieczywo"_s, 0), 1);
}

TEST_F(SlownikiTest, StawkiVat) {
  EXPECT_TRUE(slowniki.Stawka(-1));
  EXPECT_TRUE(slowniki.Stawka(2200));
  EXPECT_TRUE(slowniki.Stawka(2200));
  EXPECT_EQ(Ile("Vat"), 6);
  // The dictionary is rewritten: an insert that fails leaves it as it was, in memory too.
  Odmawiaj("insert into Vat");
  EXPECT_FALSE(slowniki.Stawka(700));
  b.baza.UstawPodsluch({});
  EXPECT_EQ(Ile("Vat"), 6);
  ZakazNowych();
  EXPECT_FALSE(slowniki.Stawka(700));
  EXPECT_EQ(Problemy().count(u"Nie ma takiej jednostki"_s), 2);
  EXPECT_EQ(liczniki[Licznik::Stawki], 1);
  EXPECT_EQ(liczniki[Licznik::Pominiete], 1);  // both lines are of one record
}

TEST_F(SlownikiTest, FormatyKodowWazonych) {
  struct {
    QString maska;
    bool nowe, wynik;
    long long formatow;
  } const przypadki[] = {
      {u"2712345???????"_s, false, true, 1}, {u"27?????"_s, false, false, 1}, {u"27?????"_s, true, true, 2},
      {u"2712?????"_s, true, true, 3},       {u"2712?????"_s, true, true, 3}, {u"AB???"_s, true, false, 3},
      {u"2????"_s, true, false, 3},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.maska.toStdString());
    opcje.cb_nowekodywazone = p.nowe;
    EXPECT_EQ(slowniki.FormatKodu(p.maska), p.wynik);
    EXPECT_EQ(Problemy().size(), p.wynik ? 0 : 1);
    EXPECT_EQ(Ile("KodWazony"), p.formatow);
  }
  EXPECT_EQ(b.Tekst("select Nazwa || Prefix || '/' || CzescStala from KodWazony where KWId = 3"),
            u"KW typ 327/2"_s);
  EXPECT_TRUE(formaty.Zawiera({27, 0}));
  EXPECT_EQ(liczniki[Licznik::FormatyKodowWazonych], 2);
}

TEST_F(SlownikiTest, ParametryKategorii) {
  const int wina = 1;
  const int piwa = slowniki.Kategoria(u"Piwa"_s, 0);
  struct {
    int kategoria;
    ParametrZBloku parametr;
    std::optional<std::pair<int, double>> wynik;
    QString problem;
  } const przypadki[] = {
      {wina, Lista(u"Kolor"_s, 2, {u"białe"_s, u"czerwone"_s}), {{1, 1}}, {}},
      {wina, Zakres(u"Rocznik"_s, 42), {{2, 42}}, {}},
      // the text decides, then the position
      {wina, Lista(u"KOLOR"_s, 1, {u"czerwone"_s}), {{1, 1}}, {}},
      {wina, Lista(u"Kolor"_s, 1, {u"różowe"_s}), {{1, 0}}, {}},
      {wina, Lista(u"Kolor"_s, 3, {u"a"_s, u"b"_s, u"c"_s}), {}, u"Nie ma takiego parametru"_s},
      {wina, Zakres(u"Kolor"_s, 1), {}, u"Istniejący parametr ma inny typ"_s},
      // known elsewhere: attached, not made again, its values kept
      {piwa, Lista(u"kolor"_s, 1, {u"czerwone"_s, u"x"_s}), {{1, 1}}, {}},
      {piwa, Lista(u"Rocznik"_s, 1, {u"a"_s}), {}, u"Istniejący parametr ma inny typ"_s},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.parametr.nazwa.toStdString() + std::to_string(p.parametr.n));
    EXPECT_EQ(slowniki.Parametr(p.kategoria, p.parametr), p.wynik);
    EXPECT_EQ(Problemy(), p.problem.isEmpty() ? QStringList() : QStringList{p.problem});
  }
  EXPECT_EQ(slowniki.ParametryKategorii(wina), (std::vector<int>{1, 2}));
  EXPECT_EQ(slowniki.ParametryKategorii(piwa), (std::vector<int>{1}));
  EXPECT_EQ(Ile("ParWartosc"), 2);
  EXPECT_EQ(liczniki[Licznik::Parametry], 2);

  // Attaching fails: the new parameter goes with it.
  Odmawiaj("insert into KatParam");
  EXPECT_EQ(slowniki.Parametr(piwa, Zakres(u"Moc"_s, 5)), std::nullopt);
  b.baza.UstawPodsluch({});
  EXPECT_EQ(Ile("Parametr"), 2);
  EXPECT_EQ(slowniki.ParametryKategorii(piwa).size(), 1u);
  opcje.cb_noweparametry = false;
  EXPECT_EQ(slowniki.Parametr(piwa, Zakres(u"Rocznik"_s, 5)), std::nullopt);
}

TEST(NazwyJednostek, Normalizacja) {
  const std::pair<QString, QString> jednostki[] = {{u"KG|kg."_s, u"kg"_s},
                                                   {u"szt|SZT."_s, u"szt"_s},
                                                   {u"m|m.|metr|Metry"_s, u"m"_s},
                                                   {u"m.b.|m.b|MB|mb."_s, u"m.b."_s},
                                                   {u"l|l.|Litr|litry"_s, u"l"_s},
                                                   {u"kompl|kompl.|komp|komp.|komplet|Komplety"_s, u"kpl."_s},
                                                   {u"opak|opak.|op|op.|opakowanie|opakowania"_s, u"opak"_s},
                                                   {u"Sztuka"_s, u"Sztuka"_s},
                                                   {u""_s, u""_s}};
  for (const auto& [pisownie, jednostka] : jednostki)
    for (QString nazwa : pisownie.split(u'|')) {
      NormalizujJednostke(nazwa);
      EXPECT_EQ(nazwa, jednostka);
    }
}

// The first code that is not short, and a code of the shop in each of its two lengths.
TEST(KontrolaKodu, Granice) {
  const OpcjeImportuTowarow opcje;
  const RegulyKodow reguly = RegulyKodowImportu(opcje, {});
  const std::tuple<QString, RodzajKodu, bool, QString> kody[] = {
      {u"9999"_s, RodzajKodu::Inny, false, u"Kod krótki"_s},
      {u"10000"_s, RodzajKodu::Inny, false, {}},
      {u"20010010"_s, RodzajKodu::Ean8, true, u"Kod własny"_s},
      {u"2000000000015"_s, RodzajKodu::Ean13, true, u"Kod własny"_s},
      {u"2000000000015"_s, RodzajKodu::Ean13, false, {}}};
  for (const auto& [kod, rodzaj, znaleziony, odmowa] : kody) {
    KodRekordu rekord;
    rekord.kod = kod;
    rekord.rodzaj = rodzaj;
    rekord.znaleziony = znaleziony;
    EXPECT_EQ(SprawdzKodRekordu(rekord, opcje, reguly).value_or(QString()), odmowa) << kod.toStdString();
  }
}

TEST(NumeracjaNazw, IdzieDalejOdNajwyzszej) {
  ImportTestowy i;
  NumeracjaNazw nazwy(i.b.baza);
  EXPECT_EQ(nazwy.Zaproponuj(), u"Towar bez nazwy 0001"_s);
  EXPECT_EQ(nazwy.Zaproponuj(), u"Towar bez nazwy 0001"_s);
  nazwy.Zapisana(u"Towar bez nazwy 0001"_s);
  EXPECT_EQ(nazwy.Zaproponuj(), u"Towar bez nazwy 0002"_s);
  nazwy.ZatwierdzPaczke();
  nazwy.Zapisana(u"Towar bez nazwy 41");  // a record's own
  EXPECT_EQ(nazwy.Zaproponuj(), u"Towar bez nazwy 0042"_s);
  nazwy.CofnijPaczke();
  EXPECT_EQ(nazwy.Zaproponuj(), u"Towar bez nazwy 0002"_s);
  for (const char* nazwa : {"Towar bez nazwy 10000", "Towar bez nazwy 0007", "Towar bez nazwy i kodu",
                            "towar bez nazwy 20000", "Towar bez nazwy 9223372036854775807"})
    i.b.baza.ExecSQL("insert into Towar (Nazwa, Skrot, Kod) values ('" + std::string(nazwa) + "', '', '')");
  nazwy.Zapomnij();
  EXPECT_EQ(nazwy.Zaproponuj(), u"Towar bez nazwy 10001"_s);
}

}  // namespace
