#include <QLabel>
#include <QTableWidget>

#include "model/towar.h"
#include "shell/formularze/formularze.h"
#include "tests/goods/import_testowy.h"
#include "tests/okno/osoba_przy_formularzu.h"
#include "tests/okno/rozmowa_testowa.h"

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

// A goods import whose refused records are shown in the form.
struct ImportZFormularzem : ImportTestowy {
  ImportZFormularzem() {
    oper = &osoba;
    opcje.towarBezNazwy = TowarBezNazwy::RBDodajTowarBezNazwy;
    opcje.towarBezKodu = TowarBezKodu::RBPytajOKodTowaru;
    UstawPola({0, 1, 2});
    osoba.popraw = [this](TDmVLTElement& rekord, const OdmowaZapisu& odmowa) {
      EXPECT_FALSE(b.baza.GetCzyWTransakcji());
      const Poprawka poprawka = PoprawWFormularzu(nullptr, rozmowa, rekord, odmowa);
      nazwaPo = static_cast<TDmVLTTowar&>(rekord).Nazwa();
      return poprawka;
    };
  }

  RozmowaTestowa rozmowa;
  QString nazwaPo;  // of the record, after the form
};

struct Odmowiony {
  QString rekord;
  QString odmowa;
  QString pole;  // where the reason is shown
  QString powod;
  QString poprawna;
};

void PrintTo(const Odmowiony& przypadek, std::ostream* wyjscie) {
  *wyjscie << przypadek.odmowa.toStdString();
}

class Poprawianie : public testing::TestWithParam<Odmowiony> {};

TEST_P(Poprawianie, PowodStoiPrzyPoluAPoprawionyTowarZapisujePrzebieg) {
  const Odmowiony& p = GetParam();
  ImportZFormularzem i;
  ASSERT_EQ(i.Importuj("5900000000008;Inna;Zajety\n").liczniki[Licznik::Dodane], 1);
  i.rozmowa.dialogi.push_back([&](QDialog& okno) {
    EXPECT_EQ(Znajdz<QLabel>(okno, u"lbOdmowa"_s).text(), p.odmowa);
    EXPECT_THAT(BladPrzy(okno, p.pole).toStdString(), HasSubstr(p.powod.toStdString()));
    EXPECT_EQ(okno.focusWidget()->objectName(), p.pole);
    Wpisz(okno, p.pole, p.poprawna);
    EXPECT_EQ(BladPrzy(okno, p.pole), QString());
    return Kliknij(okno, u"Zapisz"_s);
  });
  EXPECT_EQ(i.Importuj(p.rekord).liczniki[Licznik::Dodane], 1);
  EXPECT_EQ(i.b.Tekst("select " + p.pole.toStdString() + " from Towar where TowId = 2"), p.poprawna);
}

INSTANTIATE_TEST_SUITE_P(
    Odmowy, Poprawianie,
    testing::Values(Odmowiony{u"5900000000015;;Skrot"_s, u"Brak nazwy towaru"_s, u"Nazwa"_s, u"pustą nazwą"_s,
                              u"Woda"_s},
                    Odmowiony{u";Woda;Skrot"_s, u"Brak kodu towaru"_s, u"Kod"_s,
                              u"musi mieć podany główny kod"_s, u"5900000000022"_s},
                    Odmowiony{u"5900000000015;Woda;Zajety"_s, u"Błąd nadania unikalnej nazwy skróconej"_s,
                              u"Skrot"_s, u"jest już używany przez towar [Inna]"_s, u"Wolny"_s},
                    Odmowiony{u"5900000000015;Woda;a?b"_s, u"Błąd nadania unikalnej nazwy skróconej"_s,
                              u"Skrot"_s, u"niedozwolone znaki"_s, u"ab"_s}));

TEST(Poprawianie, OdmowaKoduDodatkowegoStoiPrzyJegoWierszu) {
  ImportZFormularzem i;
  ASSERT_EQ(i.Importuj("5900000000008;Inna;Zajety\n").liczniki[Licznik::Dodane], 1);
  const auto odmowiony = [&](int wiersz, const char* powod, const QString& przycisk) {
    i.rozmowa.dialogi.push_back([=](QDialog& okno) {
      auto& kody = Znajdz<QTableWidget>(okno, u"tabelaKodow"_s);
      EXPECT_EQ(kody.currentRow(), wiersz);
      EXPECT_EQ(okno.focusWidget(), &kody);
      EXPECT_THAT(BladPrzy(okno, u"tabelaKodow"_s).toStdString(), HasSubstr(powod));
      Kliknij(okno, przycisk);
      return Kliknij(okno, u"Zapisz"_s);
    });
  };
  odmowiony(0, "Zajety' jest już używany", u"ZaproponujSkrotKodu"_s);
  odmowiony(1, "'5900000000008' jest już używany", u"UsunKod"_s);
  i.UstawPola({0, 1, 26});
  i.struktura.separator = u"#"_s;
  const WynikPrzebiegu wynik = i.Importuj("5900000000015#Woda#(777|Zajety|4);(5900000000008|D2|)\n");
  EXPECT_EQ(wynik.liczniki[Licznik::Dodane], 1);
  EXPECT_EQ(i.b.Tekst("select group_concat(Kod || ' ' || Skrot || ' ' || PrefPLU) from KodDod"),
            u"777 Woda 1 4"_s);
}

TEST(Poprawianie, RezygnacjaPytaDwaRazyINiczegoNieZmienia) {
  ImportZFormularzem i;
  i.rozmowa.dialogi.push_back([](QDialog& okno) {
    Wpisz(okno, u"Nazwa"_s, u"Wpisana"_s);
    return Kliknij(okno, u"Rezygnuj"_s);
  });
  i.rozmowa.odpowiedzi = {QMessageBox::Yes};  // to what is thrown away
  const WynikPrzebiegu wynik = i.Importuj("5900000000015;;S\n5900000000022;Po;P2\n");
  EXPECT_THAT(i.osoba.pytania,
              ElementsAre(u"Podaj nazwę towaru o kodzie 5900000000015"_s, u"Brak nazwy towaru"_s,
                          u"Nie poprawiasz?"_s, u"Zignorować ten towar? Jesteś pewny?"_s));
  EXPECT_EQ(i.nazwaPo, QString());
  EXPECT_THAT(i.Pominiete(),
              ElementsAre(u"5900000000015 |  | Błąd dodania do bazy (użytkownik zrezygnował)"_s));
  EXPECT_EQ(wynik.liczniki[Licznik::Dodane], 1);
}

TEST(Poprawianie, PrzerwanieKonczyPrzebieg) {
  ImportZFormularzem i;
  i.rozmowa.dialogi.push_back([](QDialog& okno) { return Kliknij(okno, u"PrzerwijImport"_s); });
  const WynikPrzebiegu wynik = i.Importuj("5900000000008;Przed;;\n5900000000015;;S\n5900000000022;Po;P2\n");
  EXPECT_EQ(i.osoba.pytania.back(), u"Brak nazwy towaru"_s);
  EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Przerwano);
  EXPECT_EQ(i.b.Tekst("select group_concat(Nazwa) from Towar"), u"Przed"_s);
}

}  // namespace
