#include "contractors/eksport_kontrahentow.h"
#include "contractors/import_kontrahentow.h"
#include "database/schemat.h"
#include "goods/eksport_towarow.h"
#include "goods/import_towarow.h"
#include "model/bufor_towarow.h"
#include "model/kontekst.h"
#include "model/parametry_systemu.h"
#include "run/operator.h"
#include "tests/obieg/losowa_baza.h"
#include "tests/wspolne/baza_testowa.h"
#include "tests/wspolne/plik_eksportu.h"
#include "tests/wspolne/przebieg_testowy.h"
#include "tests/wspolne/zrzut_bazy.h"
#include "ustawienia/magazyn_ustawien.h"
#include "ustawienia/ustawienia.h"

namespace {

using namespace Qt::Literals::StringLiterals;

// A shop with its database, empty at first.
struct Sklep {
  Sklep() {
    UtworzBaze(b.baza, {});
    parametry.Wczytaj(b.baza);
  }
  BazaTestowa b;
  ParametrySystemu parametry;
  KontekstSesji sesja{b.baza, parametry};
};

// Seed of the database and decimal mark.
class Obieg : public testing::TestWithParam<std::tuple<unsigned, char>> {
 protected:
  void SetUp() override {
    magazyn_ustawien::Zrodla zrodla;
    zrodla.katalogStartowy = folder.path();
    zrodla.plikKonfiguracji = QStringLiteral(ZORVIK_ZRODLA "/docs/ponowny-import.cfg");
    const auto wynik = magazyn_ustawien::WczytajUstawienia(zrodla, ustawienia);
    ASSERT_FALSE(wynik.brakPliku);
    ASSERT_TRUE(wynik.komunikaty.empty());
    zawartosc = LosowaBaza(sklep.b.baza, std::get<0>(GetParam())).Napelnij();
  }

  WynikPrzebiegu Eksport(Sklep& z, RodzajRekordu rodzaj, const QString& plik) {
    const WynikPrzebiegu wynik =
        rodzaj == RodzajRekordu::Towary
            ? EksportujTowary(Parametry(z, ustawienia.strukturaTow, plik), ustawienia.eksportTow)
            : EksportujKontrahentow(Parametry(z, ustawienia.strukturaKontr, plik), ustawienia.eksportKontr);
    // Nothing is said of records that would not come back.
    EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Zakonczono);
    EXPECT_EQ(wynik.komunikaty.size(), 1u) << wynik.komunikaty.back().tekst.toStdString();
    return wynik;
  }
  WynikPrzebiegu Import(Sklep& do_, RodzajRekordu rodzaj, const QString& plik) {
    TVLTBuforTowarow bufor;
    const WynikPrzebiegu wynik =
        rodzaj == RodzajRekordu::Towary
            ? ImportujTowary(Parametry(do_, ustawienia.strukturaTow, plik), ustawienia.importTow, bufor)
            : ImportujKontrahentow(Parametry(do_, ustawienia.strukturaKontr, plik), ustawienia.importKontr);
    EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Zakonczono);
    return wynik;
  }
  ParametryPrzebiegu Parametry(Sklep& z, const StrukturaPliku& struktura, const QString& plik) {
    postep = {};
    return {z.sesja, struktura, folder.filePath(plik),   postep,
            nikt,    stop,      std::get<1>(GetParam()), folder.path()};
  }

  // An import that did this, and why it skipped records.
  static void Sprawdz(const WynikPrzebiegu& wynik, int dodanych, int pominietych, int bezZmian) {
    const auto opis = [](auto d, auto p, auto s, auto b) {
      return u"dodanych %1, poprawionych %2, pominiętych %3, bez zmian %4"_s.arg(d).arg(p).arg(s).arg(b);
    };
    const auto ile = [&](Licznik l) { return wynik.liczniki[l]; };
    EXPECT_EQ(
        opis(ile(Licznik::Dodane), ile(Licznik::Poprawione), ile(Licznik::Pominiete), ile(Licznik::BezZmian)),
        opis(dodanych, 0, pominietych, bezZmian))
        << Pominiete(wynik);
  }
  static std::string Pominiete(const WynikPrzebiegu& wynik) {
    const QByteArray bajty = Zawartosc(wynik.plikPominietych);
    return windows1250::NaUnicode({bajty.data(), static_cast<std::size_t>(bajty.size())}).toStdString();
  }

  QTemporaryDir folder;
  Ustawienia ustawienia;
  Sklep sklep;
  ZawartoscBazy zawartosc;
  PostepTestowy postep;
  OperatorNieobecny nikt{postep};
  std::atomic<bool> stop{false};
};

TEST_P(Obieg, ImportDoTejSamejBazyNicNieZmienia) {
  const QStringList przed = ZrzutBazy(sklep.b.baza);
  EXPECT_EQ(Eksport(sklep, RodzajRekordu::Kontrahenci, u"k"_s).liczniki[Licznik::Rekordy],
            zawartosc.kontrahentow);
  EXPECT_EQ(Eksport(sklep, RodzajRekordu::Towary, u"t"_s).liczniki[Licznik::Rekordy], zawartosc.towarow);

  // A run that may update skips contractors without a tax number: it could not tell them apart. Goods count
  // what is identical among the skipped.
  Sprawdz(Import(sklep, RodzajRekordu::Kontrahenci, u"k"_s), 0, zawartosc.bezNipu,
          zawartosc.kontrahentow - zawartosc.bezNipu);
  Sprawdz(Import(sklep, RodzajRekordu::Towary, u"t"_s), 0, zawartosc.towarow, zawartosc.towarow);
  EXPECT_EQ(RozniceZrzutow(przed, ZrzutBazy(sklep.b.baza)).join(u'\n'), QString());
}

TEST_P(Obieg, ImportDoPustejBazyIEksportDajaTenSamPlik) {
  Eksport(sklep, RodzajRekordu::Kontrahenci, u"k"_s);
  Eksport(sklep, RodzajRekordu::Towary, u"t"_s);
  // Contractors without a tax number come in where nothing may be updated.
  OpcjeImportuKontrahentow& opcje = ustawienia.importKontr;
  opcje.cb_aktkontr = opcje.rb_pominKontrBezNIPu = false;
  opcje.rb_dodajKontrBezNIPu = true;
  Sklep nowy;
  Sprawdz(Import(nowy, RodzajRekordu::Kontrahenci, u"k"_s), zawartosc.kontrahentow, 0, 0);
  const WynikPrzebiegu towary = Import(nowy, RodzajRekordu::Towary, u"t"_s);
  Sprawdz(towary, zawartosc.towarow, 0, 0);
  EXPECT_EQ(Pominiete(towary), "");  // nor any problem that is not counted
  Eksport(nowy, RodzajRekordu::Kontrahenci, u"k2"_s);
  Eksport(nowy, RodzajRekordu::Towary, u"t2"_s);
  for (const QString& plik : {u"k"_s, u"t"_s}) {
    const auto stary = LinieEksportu(folder.filePath(plik));
    const auto nowszy = LinieEksportu(folder.filePath(plik + u'2'));
    ASSERT_EQ(stary.size(), nowszy.size());
    for (std::size_t i = 0; i < stary.size(); ++i) EXPECT_EQ(stary[i].join(u'^'), nowszy[i].join(u'^'));
    EXPECT_EQ(Zawartosc(folder.filePath(plik)), Zawartosc(folder.filePath(plik + u'2')));
    // The random texts have every Polish letter.
    for (const QChar litera : u"ĄĆĘŁŃÓŚŹŻąćęłńóśźż"_s)
      EXPECT_TRUE(Zawartosc(folder.filePath(plik)).contains(windows1250::ZUnicode(QString(litera)).c_str()));
  }
}

INSTANTIATE_TEST_SUITE_P(Ziarna, Obieg,
                         testing::Combine(testing::Values(1u, 2u, 3u, 4u, 5u), testing::Values('.', ',')),
                         [](const auto& p) {
                           return "ziarno" + std::to_string(std::get<0>(p.param)) +
                                  (std::get<1>(p.param) == '.' ? "kropka" : "przecinek");
                         });

}  // namespace
