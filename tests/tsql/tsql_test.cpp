#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

#include <QRegularExpression>

#include <gmock/gmock.h>

#include "contractors/eksport_kontrahentow.h"
#include "contractors/import_kontrahentow.h"
#include "database/kontrola_bazy.h"
#include "database/schemat.h"
#include "goods/eksport_towarow.h"
#include "goods/import_towarow.h"
#include "model/kategorie.h"
#include "model/kody_wazone.h"
#include "model/kody_wlasne.h"
#include "model/kontekst.h"
#include "model/kontrahent.h"
#include "model/lista_kontrahentow.h"
#include "model/lista_towarow.h"
#include "model/parametry_systemu.h"
#include "model/reguly_kodow.h"
#include "model/slowniki.h"
#include "model/szukanie_kontrahenta.h"
#include "model/szukanie_towaru.h"
#include "run/operator.h"
#include "tests/tsql/udawany_serwer.h"
#include "tests/wspolne/baza_testowa.h"
#include "tests/wspolne/przebieg_testowy.h"
#include "tests/wspolne/zrzut_bazy.h"
#include "ustawienia/magazyn_ustawien.h"
#include "ustawienia/ustawienia.h"

namespace {

using namespace Qt::Literals::StringLiterals;
using Pary = std::vector<std::pair<QString, QString>>;

const QString kZrodla = QStringLiteral(ZORVIK_ZRODLA);

// Everything that the program does with a database, done to a file that stands in for a T-SQL server or is
// but itself.
struct Praca {
  enum class Baza { Serwer, StarySerwer, Plik };
  explicit Praca(Baza baza) : serwer(baza == Baza::Serwer), b(baza == Baza::Plik ? nullptr : &serwer) {
    serwer.Rozdzial(u"Połączenie i transakcje"_s);
    Polaczenie();
    serwer.Rozdzial(u"Nowa baza z danymi pokazowymi"_s);
    EXPECT_TRUE(BazaPusta(b.baza));
    UtworzBaze(b.baza, {});
    DodajDaneDemo(b.baza);
    parametry.Wczytaj(b.baza);
    serwer.Rozdzial(u"Sprawdzenie bazy"_s);
    EXPECT_EQ(SprawdzBaze(b.baza), QStringList());
    serwer.Rozdzial(u"Ustawienia"_s);
    magazyn_ustawien::ZapiszDoBazy(b.baza, {});
    Ustawienia ustawienia;
    magazyn_ustawien::WczytajZBazy(b.baza, ustawienia);
    serwer.Rozdzial(u"Import kontrahentów"_s);
    ImportKontrahentow();
    serwer.Rozdzial(u"Import towarów"_s);
    ImportTowarow();
    serwer.Rozdzial(u"Eksport kontrahentów"_s);
    Wykonaj(EksportujKontrahentow, &Ustawienia::strukturaKontr, &Ustawienia::eksportKontr,
            kDemo + u"kontrahenci"_s, u"k"_s);
    serwer.Rozdzial(u"Eksport towarów"_s);
    for (const char16_t* stany : {u"0", u"1", u"2"})
      Wykonaj(EksportujTowary, &Ustawienia::strukturaTow, &Ustawienia::eksportTow, kDemo + u"towary"_s,
              u"t"_s, {{u"ParEksportStanow"_s, QString::fromUtf16(stany)}});
    serwer.Rozdzial(u"Formularze"_s);
    Formularze();
  }

  // All but the times.
  QStringList Wiersze() {
    const auto bezCzasow = [](const std::string& nazwa) { return nazwa != "Czas" && nazwa != "Zmiana"; };
    QStringList wiersze;
    ZaPlecami([&](TVLTBazaDanych& inna) {
      for (const PrawaTabeli& t : PrawaTabel())
        for (const QString& wiersz : WierszeTabeli(inna, t.tabela, bezCzasow))
          wiersze << QString::fromLatin1(t.tabela) + u' ' + wiersz;
    });
    wiersze.sort();
    return wiersze;
  }

  // What a connection to a server says by itself.
  void Polaczenie() {
    const Dialekt& d = serwer;
    for (const std::string& sql : d.UstawieniaSesji(15)) serwer.Zapisz(sql);
    for (const std::string& sql :
         {std::string(Tsql::ProbaOuterJoin()), d.NazwaBazy(), d.BlokadaImportu(), d.NumerTransakcji(),
          d.UstawPunkt(1), d.WycofDoPunktu(1), d.OdczytJednejChwili(), d.PoOdczycieChwili()})
      serwer.Zapisz(sql);
  }

  // Behind the program's back.
  template <typename Rob>
  void ZaPlecami(Rob rob) {
    TVLTBazaDanych inna(*ParametryPolaczenia::ZTekstu(b.Sciezka()));
    inna.Polacz();
    rob(inna);
  }
  void Zmien(std::initializer_list<const char*> polecenia) {
    ZaPlecami([&](TVLTBazaDanych& inna) {
      for (const char* sql : polecenia) inna.ExecSQL(sql);
    });
  }

  template <typename Przebieg, typename Opcje, typename... Reszta>
  WynikPrzebiegu Wykonaj(Przebieg przebieg, StrukturaPliku Ustawienia::*struktura, Opcje Ustawienia::*opcje,
                         const QString& konfiguracja, const QString& plik, Pary pojedyncze = {},
                         Reszta&... reszta) {
    magazyn_ustawien::Zrodla zrodla;
    zrodla.katalogStartowy = folder.path();
    zrodla.plikKonfiguracji = konfiguracja + u".cfg"_s;
    zrodla.pojedyncze = std::move(pojedyncze);
    Ustawienia ustawienia;
    EXPECT_FALSE(magazyn_ustawien::WczytajUstawienia(zrodla, ustawienia).brakPliku);
    const WynikPrzebiegu wynik = przebieg({sesja, ustawienia.*struktura, QDir(folder.path()).filePath(plik),
                                           postep, nikt, stop, '.', folder.path()},
                                          ustawienia.*opcje, reszta...);
    EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Zakonczono) << postep.linie.join(u'\n').toStdString();
    return wynik;
  }

  void ImportKontrahentow() {
    const auto importuj = [&] {
      return Wykonaj(ImportujKontrahentow, &Ustawienia::strukturaKontr, &Ustawienia::importKontr,
                     kDemo + u"kontrahenci"_s, kDemo + u"kontrahenci.txt"_s)
          .liczniki;
    };
    EXPECT_GT(importuj()[Licznik::Dodane], 5);
    Zmien({"update Kontrahent set Nazwa = Nazwa || '!' where KontrId > 3"});
    EXPECT_GT(importuj()[Licznik::Poprawione], 5);
  }

  void ImportTowarow() {
    TVLTBuforTowarow bufor;
    const auto importuj = [&](const QString& konfiguracja, const QString& plik, const Pary& pojedyncze) {
      return Wykonaj(ImportujTowary, &Ustawienia::strukturaTow, &Ustawienia::importTow, konfiguracja, plik,
                     pojedyncze, bufor)
          .liczniki;
    };
    const auto demo = [&] { return importuj(kDemo + u"towary"_s, kDemo + u"towary.txt"_s, {}); };
    EXPECT_GT(demo()[Licznik::Dodane], 100);
    EXPECT_GT(demo()[Licznik::BezZmian], 100);
    Zmien({"update Towar set CenaDet = CenaDet + 1", "update KodDod set PrefPLU = 99",
           "update TowWartosc set Wartosc = 7", "delete from TowDostawca where TowId < 20"});
    EXPECT_GT(demo()[Licznik::Poprawione], 100);
    // Neither code nor name; the name of a good that is there; a new rate.
    QString plik(u"Kod\n"_s);
    const auto rekord = [&](const QString& kod, const QString& nazwa) {
      QStringList pola(PoleTowaru::LiczbaWartosci);
      pola[PoleTowaru::Kod] = kod;
      pola[PoleTowaru::Nazwa] = nazwa;
      pola[PoleTowaru::StawkaVat] = u"1234"_s;
      pola[PoleTowaru::Status] = u"1"_s;
      plik += pola.join(u'\t') + u'\n';
    };
    rekord({}, {});
    rekord(u"5900000000039"_s, u"Mleko UHT 1 l 2%"_s);
    std::ofstream(folder.filePath(u"inne.txt"_s).toStdString()) << plik.toStdString();
    importuj(kZrodla + u"/docs/ponowny-import"_s, u"inne.txt"_s,
             {{u"ParTowarBezKodu"_s, u"2"_s},
              {u"ParTowarBezNazwy"_s, u"2"_s},
              {u"ParTowarZTaSamaNazwa"_s, u"3"_s}});
  }

  // What only the forms do.
  void Formularze() {
    TDmVLTKontrahent kontrahent(sesja);
    for (const int magId : {-1, 2})
      for (const char16_t* numer : {u"1", u"2", u""}) {
        kontrahent.Wczytaj(1);
        kontrahent.UstawSklep(*numer != 0);
        kontrahent.UstawMagId(magId);
        kontrahent.UstawNrSeryjny(QString::fromUtf16(numer));
        kontrahent.Zapisz();
      }
    kontrahent.Usun();
    kontrahent.Przywroc();
    KontrahentZId(b.baza, 1);
    KontrahentZNipem(b.baza, u"9990000126");
    TDmVLTListaKontrahentow(sesja).Otworz();

    OtoczenieZParametrow reguly(sesja);
    OtoczenieTowarow otoczenie = reguly.Widok();
    otoczenie.unikalneCKU = true;
    TDmVLTTowar towar(sesja, otoczenie);
    towar.Wczytaj(1);
    towar.UstawTypTowaru(TypTowaru::Opakowanie);
    towar.Kody().Ustaw({});
    towar.Zapisz();
    for (const char* kod : {"5900000000046", "5900000000053"}) {
      towar.Wczytaj(2);
      towar.UstawOpakId(1);
      towar.UstawCKU(QString::fromLatin1(kod));
      towar.UstawNotatka(towar.Notatka() + u"!"_s);
      towar.Stany().UstawStanMin(1, 5);
      towar.Dostawcy().UstawZNipem(std::vector{2, 3});
      towar.Kody().Ustaw({});
      towar.Kody().Dodaj({.kod = QString::fromLatin1(kod), .skrot = QString::fromLatin1(kod)});
      towar.Zapisz();
      towar.Kody().Wyslany(b.baza, 0);
    }
    Zmien({"update Istw set StanMag = 0 where TowId = 3"});
    towar.Wczytaj(3);
    towar.Usun();
    towar.Przywroc();
    AktywneOpakowania(b.baza);
    TDmVLTListaTowarow(sesja, otoczenie).Otworz();
    TVLTBuforTowarow bufor;
    const RegulyKodow kody;
    KodyWlasne(b.baza, bufor, kody, {.zwolnione = false}).Zaproponuj();

    TDmVLTParametr(sesja).Wczytaj(1);
    TDmVLTKodWazony format(sesja);
    format.Wczytaj(1);
    format.Zapisz();
  }

  static inline const QString kDemo = kZrodla + u"/database/demo/"_s;
  UdawanySerwer serwer;
  BazaTestowa b;
  QTemporaryDir folder;
  ParametrySystemu parametry;
  KontekstSesji sesja{b.baza, parametry};
  PostepTestowy postep;
  OperatorNieobecny nikt{postep};
  std::atomic<bool> stop{false};
};

std::string Tresc(const std::vector<UdawanySerwer::Polecenie>& polecenia, const char* naglowek) {
  std::string tresc = naglowek;
  QString rozdzial;
  for (const auto& p : polecenia) {
    if (p.rozdzial != rozdzial) tresc += "\n-- ==== " + p.rozdzial.toStdString() + " ====\n";
    rozdzial = p.rozdzial;
    tresc += '\n' + p.tresc.toStdString() + '\n';
  }
  return tresc;
}

// Compares with the checked-in file or, when asked to, writes it anew.
void Porownaj(const char* nazwa, const std::string& tresc) {
  const std::string sciezka = ZORVIK_ZRODLA "/tests/tsql/" + std::string(nazwa);
  if (qEnvironmentVariableIsSet("ZORVIK_ZAPISZ_TSQL")) std::ofstream(sciezka) << tresc;
  std::ifstream plik(sciezka);
  std::istringstream nowa(tresc);
  std::string byla, jest, poprzednia;
  for (int linia = 1; !plik.eof() || !nowa.eof(); ++linia, poprzednia = jest) {
    byla.clear(), jest.clear();
    std::getline(plik, byla);
    std::getline(nowa, jest);
    ASSERT_EQ(byla, jest) << sciezka << ':' << linia << ": the first difference, behind\n"
                          << poprzednia
                          << "\nWhen the text changed on purpose: ZORVIK_ZAPISZ_TSQL=1 test_tsql";
  }
}

// Beginnings of the statements in the sources, as far as they are literals. Those of the dialects and engines
// are of their own families.
QStringList PoleceniaZrodel() {
  static const std::regex uwaga("//[^\n]*"), rozdzielone("\"\\s*\\\\?\\s*\""), koniecLinii(R"(\\r\\n)");
  static const std::regex polecenie("\"((select|insert into|update|delete from) [^\"]*)\"");
  QStringList polecenia;
  for (const char* folder : {"app", "contractors", "database", "goods", "model", "platform", "run", "shell"})
    for (const auto& plik :
         std::filesystem::recursive_directory_iterator(ZORVIK_ZRODLA "/" + std::string(folder))) {
      const std::string sciezka = plik.path();
      if (!std::regex_search(sciezka, std::regex("\\.(cpp|h)$")) ||
          std::regex_search(sciezka, std::regex("/(dialekt|silnik)")))
        continue;
      std::stringstream tresc;
      tresc << std::ifstream(sciezka).rdbuf();
      std::string zrodlo = std::regex_replace(tresc.str(), uwaga, "");
      zrodlo = std::regex_replace(std::regex_replace(zrodlo, rozdzielone, ""), koniecLinii, " ");
      for (std::sregex_iterator p(zrodlo.begin(), zrodlo.end(), polecenie), koniec; p != koniec; ++p)
        polecenia << QString::fromStdString((*p)[1]).simplified();
    }
  return polecenia;
}

constexpr char kNaglowek[] =
    R"(-- Polecenia programu w słowach T-SQL, w kolejności, w jakiej wysyła je po raz pierwszy.
-- :Nazwa stoi w miejscu wartości: serwer dostaje ją osobno. Transakcje zaczyna i kończy sterownik.
-- Żaden serwer tej rodziny ich jeszcze nie wykonał: zobacz docs/serwer.md.
-- Pilnuje ich test tests/tsql. Gdy tekst zmienia się celowo, ZORVIK_ZAPISZ_TSQL=1 test_tsql zapisuje plik na nowo.
)";
constexpr char kTylkoInne[] =
    R"(-- Polecenia, które serwer bez złączenia "left outer join" dostaje w innej postaci niż w polecenia.sql.
)";
// Nobody of this family can tell what others have written.
const QStringList kNieWysylane{u"select TowId, Nazwa, Kod, Skrot from Towar where"_s,
                               u"select TowId, Kod, Skrot from KodDod where"_s};

TEST(TSql, TekstyPolecen) {
  Praca nowy(Praca::Baza::Serwer), stary(Praca::Baza::StarySerwer), plik(Praca::Baza::Plik);
  EXPECT_EQ(RozniceZrzutow(plik.Wiersze(), nowy.Wiersze()), QStringList());
  EXPECT_EQ(RozniceZrzutow(plik.Wiersze(), stary.Wiersze()), QStringList());
  Porownaj("polecenia.sql", Tresc(nowy.serwer.Polecenia(), kNaglowek));
  std::vector<UdawanySerwer::Polecenie> inne;
  for (const auto& p : stary.serwer.Polecenia())
    if (std::none_of(nowy.serwer.Polecenia().begin(), nowy.serwer.Polecenia().end(),
                     [&](const auto& n) { return n.tresc == p.tresc; }))
      inne.push_back(p);
  Porownaj("polecenia_bez_outer_join.sql", Tresc(inne, kTylkoInne));

  QString wyslane;
  for (const Praca* praca : {&nowy, &stary})
    for (const auto& p : praca->serwer.Polecenia())
      wyslane += p.tresc.simplified().replace(u" N'"_s, u" '"_s).replace(u"(N'"_s, u"('"_s) + u'\n';
  static const QRegularExpression kObceSlowa(uR"(\b(limit|rowid|returning|ctid|xmin)\b|\|\|)"_s);
  EXPECT_EQ(kObceSlowa.match(wyslane).captured(), QString());
  const QStringList polecenia = PoleceniaZrodel();
  EXPECT_GT(polecenia.size(), 100);
  for (QString p : polecenia) {
    p.replace(u"{nowe}"_s, u"inserted"_s).replace(u"rowid"_s, u"substring(%%physloc%%, 4, 1)"_s);
    EXPECT_TRUE(wyslane.contains(p) || kNieWysylane.contains(p))
        << "no operation above sends: " << p.toStdString();
  }
}

}  // namespace
