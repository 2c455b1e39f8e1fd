#include "ustawienia/wspolzaleznosci.h"

#include <gtest/gtest.h>

#include "ustawienia/kontrola_struktury.h"
#include "ustawienia/tabela_ustawien.h"
#include "ustawienia/ustawienia.h"

namespace {

using namespace wspolzaleznosci;

// A structure in a few words: its type, its entries, whether its status field is offered.
StrukturaPliku Struktura(TypPliku typ, std::initializer_list<const char*> pola, bool statusOferowany = true,
                         RodzajRekordu rodzaj = RodzajRekordu::Towary) {
  StrukturaPliku struktura(rodzaj);
  struktura.CBTypPliku = typ;
  for (const char* pole : pola) struktura.pola.emplace_back(QString::fromLatin1(pole));
  struktura.UstawOferowane(PoleStatusu(rodzaj), statusOferowany);
  return struktura;
}

TEST(Wspolzaleznosci, WyborWedlugStatusu) {
  const struct {
    const char* opis;
    TypPliku typ;
    std::initializer_list<const char*> poleStatusu;
    bool oferowane;
    bool poWczytaniu;  // the choice stays after a load
    bool poKliknieciu;
  } przypadki[] = {
      {"own layout, offered", TypPliku::Zorvik, {}, true, true, true},
      {"own layout, not offered", TypPliku::Zorvik, {}, false, false, false},
      {"own layout, not offered but listed", TypPliku::Zorvik, {"31", "35"}, false, false, true},
      {"delimited, listed", TypPliku::Rozdzielany, {"31", "35"}, false, true, true},
      {"dBase, not listed", TypPliku::DBase, {"30X", "34X"}, true, false, false},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.opis);
    Ustawienia u;
    u.strukturaTow = Struktura(p.typ, p.poleStatusu, p.oferowane);
    u.strukturaKontr = Struktura(p.typ, p.poleStatusu, p.oferowane, RodzajRekordu::Kontrahenci);
    const auto wybierz = [&u] {
      u.importTow.jakieTowary = JakieTowary::RBTowaryUsuniete;
      u.importKontr.jacyKontrahenci = JacyKontrahenci::RBKontrahenciAktywni;
    };
    const auto zostaly = [&u] {
      return u.importTow.jakieTowary == JakieTowary::RBTowaryUsuniete &&
             u.importKontr.jacyKontrahenci == JacyKontrahenci::RBKontrahenciAktywni;
    };
    const auto cofniete = [&u] {
      return u.importTow.jakieTowary == JakieTowary::RBTowaryWszystkie &&
             u.importKontr.jacyKontrahenci == JacyKontrahenci::RBKontrahenciWszyscy;
    };
    wybierz();
    ZastosujWspolzaleznosci(u);
    EXPECT_TRUE(p.poWczytaniu ? zostaly() : cofniete());
    wybierz();
    PoZmianieStrukturyTow(u);
    PoZmianieStrukturyKontr(u);
    EXPECT_TRUE(p.poWczytaniu ? zostaly() : cofniete());
    wybierz();
    EXPECT_EQ(RBTowaryClick(u).has_value(), !p.poKliknieciu);
    EXPECT_EQ(RBKontrahenciClick(u).has_value(), !p.poKliknieciu);
    EXPECT_TRUE(p.poKliknieciu ? zostaly() : cofniete());
  }
}

TEST(Wspolzaleznosci, TowarBezNazwy) {
  using enum TowarBezNazwy;
  StrukturaPliku bezNazwy(RodzajRekordu::Towary);  // own layout, the name not offered
  bezNazwy.UstawOferowane(PoleTowaru::Nazwa, false);
  const struct {
    StrukturaPliku struktura;
    TowarBezNazwy przed, po;
  } przypadki[] = {
      {Struktura(TypPliku::Zorvik, {}), RBPominTowarBezNazwy, RBPominTowarBezNazwy},
      {bezNazwy, RBPominTowarBezNazwy, RBDodajTowarZNazwaAuto},
      {Struktura(TypPliku::Rozdzielany, {"00", "01"}), RBPominTowarBezNazwy, RBPominTowarBezNazwy},
      {Struktura(TypPliku::Rozdzielany, {"00", "18"}), RBPominTowarBezNazwy, RBDodajTowarZNazwaAuto},
      {Struktura(TypPliku::StalaSzerokosc, {"0013"}), RBDodajTowarBezNazwy, RBDodajTowarBezNazwy},
  };
  for (const auto& p : przypadki) {
    Ustawienia u;
    u.strukturaTow = p.struktura;
    u.importTow.towarBezNazwy = p.przed;
    ZastosujWspolzaleznosci(u);
    EXPECT_EQ(u.importTow.towarBezNazwy, p.po);
  }
}

TEST(Wspolzaleznosci, WyborNip) {
  const OpcjeImportuKontrahentow inne = [] {
    OpcjeImportuKontrahentow opcje;
    opcje.rb_dodajKontrBezNIPu = opcje.rb_DodajJesliMaInnyAdres = true;
    return opcje;
  }();
  const auto pomijane = [](const OpcjeImportuKontrahentow& o) {
    return o.rb_pominKontrBezNIPu && o.rb_PominBoTakiNIPJuzJest && !o.rb_dodajKontrBezNIPu &&
           !o.rb_dodajKontrBezNIPuJesliInnyAdres && !o.rb_DodajChociazTakiNIPJuzJest &&
           !o.rb_DodajJesliMaInnyAdres;
  };
  const struct {
    bool akt, nowy;
    bool dostepne, poAkt, poNowy, poWczytaniu;  // the last three: forced to skip
  } przypadki[] = {
      {false, false, false, false, true, false},
      {false, true, true, false, false, false},
      {true, false, false, true, true, true},
      {true, true, false, true, true, true},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(testing::Message() << p.akt << p.nowy);
    OpcjeImportuKontrahentow opcje = inne;
    opcje.cb_aktkontr = p.akt;
    opcje.cb_nowykontr = p.nowy;
    EXPECT_EQ(WyborNipDostepny(opcje), p.dostepne);
    OpcjeImportuKontrahentow kliknieteAkt = opcje, kliknietyNowy = opcje;
    cb_aktkontrClick(kliknieteAkt);
    EXPECT_EQ(pomijane(kliknieteAkt), p.poAkt);
    cb_nowykontrClick(kliknietyNowy);
    EXPECT_EQ(pomijane(kliknietyNowy), p.poNowy);
    Ustawienia u;
    u.importKontr = opcje;
    ZastosujWspolzaleznosci(u);
    EXPECT_EQ(pomijane(u.importKontr), p.poWczytaniu);
    EXPECT_EQ(u.importKontr.rb_dodajKontrBezNIPu, !p.poWczytaniu);
  }
}

// The last box of a group that is cleared gives its mark to another one, and only to that.
TEST(Wspolzaleznosci, ConajmniejJednoPole) {
  const std::pair<QString, QString> pary[] = {{"cb_dostawca", "cb_odbiorca"},
                                              {"cb_odbiorca", "cb_dostawca"},
                                              {"cb_producent", "cb_odbiorca"},
                                              {"cb_sklep", "cb_odbiorca"},
                                              {"cb_gdyOdbiorca", "cb_gdyDostawca"},
                                              {"cb_gdyDostawca", "cb_gdyOdbiorca"},
                                              {"cb_gdyProducent", "cb_gdyOdbiorca"},
                                              {"cb_gdySklep", "cb_gdyOdbiorca"},
                                              {"cb_gdyStale", "cb_gdyTymczasowe"},
                                              {"cb_gdyTymczasowe", "cb_gdyStale"},
                                              {"cb_gdyZnamyNIP", "cb_gdyNieZnamyNIPu"},
                                              {"cb_gdyNieZnamyNIPu", "cb_gdyZnamyNIP"},
                                              {"cb_gdyZakladPracyChr", "cb_gdyNieZakladPracyChr"},
                                              {"cb_gdyNieZakladPracyChr", "cb_gdyZakladPracyChr"}};
  EXPECT_EQ(TabelaConajmniejJednego().size(), std::size(pary));
  for (const auto& [klikniete, zamiast] : pary) {
    SCOPED_TRACE(klikniete.toStdString());
    Ustawienia u;
    const PoleWyboru* zaznaczone = PoKliknieciu(u, klikniete);
    ASSERT_NE(zaznaczone, nullptr);
    EXPECT_EQ(QStringView(zaznaczone->nazwa), zamiast);
    int ile = 0;
    for (const PoleWyboru& pole : TabelaConajmniejJednego()) ile += pole.wartosc(u) ? 1 : 0;
    EXPECT_EQ(ile, 1);
    EXPECT_EQ(PoKliknieciu(u, klikniete), nullptr) << "another box of the group is checked";
  }
  Ustawienia u;
  PoKliknieciu(u, u"cb_gdySklep");
  EXPECT_TRUE(u.eksportKontr.cb_gdyOdbiorca);
  PoKliknieciu(u, u"cb_odbiorca");
  EXPECT_TRUE(u.importKontr.cb_dostawca);
  EXPECT_EQ(PoKliknieciu(u, u"cb_wysylajOsobyUprawnione"), nullptr);
}

TEST(Wspolzaleznosci, DlugoscKodu) {
  OpcjeImportuTowarow opcje;
  opcje.UpDownMinDlugoscKodu = 14;
  UpDownMinDlugoscKoduClick(opcje);
  EXPECT_EQ(opcje.UpDownMinDlugoscKodu, 13);
  opcje.UpDownMaxDlugoscKodu = 5;
  UpDownMaxDlugoscKoduClick(opcje);
  EXPECT_EQ(opcje.UpDownMaxDlugoscKodu, 13);
  const char16_t* const opisy[] = {u"1 znak", u"2 znaki", u"3 znaki", u"4 znaków", u"5 znaków"};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(OpisDlugosciKodu(i + 1), QStringView(opisy[i]));
  EXPECT_EQ(OpisDlugosciKodu(12), QStringLiteral("12 znaków"));
}

TEST(Wspolzaleznosci, StanyITypPlikuPoWczytaniuIPoEdycji) {
  Ustawienia u;
  u.strukturaTow.EdPoleAktywny = QStringLiteral("A");
  u.strukturaTow.CBNieAnalizujPierwszejLinii = false;
  u.strukturaKontr = Struktura(TypPliku::DBase, {"00N"}, true, RodzajRekordu::Kontrahenci);
  u.strukturaKontr.EdPoleAktywny = QStringLiteral("A");
  u.importTow.UpDownMinDlugoscKodu = 15;
  ZastosujWspolzaleznosci(u);
  EXPECT_FALSE(u.strukturaTow.CzyOferowane(PoleTowaru::Stan));
  EXPECT_FALSE(StanyUjemneDostepne(u.importTow));
  // Loaded settings come back as they were saved; an edit accepts what the file type fixes.
  EXPECT_EQ(u.strukturaTow.EdPoleAktywny, QStringLiteral("A"));
  EXPECT_FALSE(u.strukturaTow.CBNieAnalizujPierwszejLinii);
  EXPECT_TRUE(u.strukturaKontr.CBNieAnalizujPierwszejLinii);
  PoZmianieStrukturyTow(u);
  PoZmianieStrukturyKontr(u);
  EXPECT_EQ(u.strukturaTow.EdPoleAktywny, QStringLiteral("1"));
  EXPECT_TRUE(u.strukturaTow.CBNieAnalizujPierwszejLinii);
  EXPECT_EQ(u.strukturaKontr.EdPoleAktywny, QStringLiteral("A"));
  EXPECT_FALSE(u.strukturaKontr.CBNieAnalizujPierwszejLinii);
  EXPECT_EQ(u.importTow.UpDownMaxDlugoscKodu, 15);
  u.importTow.CBImportStanow = 2;
  ZastosujWspolzaleznosci(u);
  EXPECT_TRUE(u.strukturaTow.CzyOferowane(PoleTowaru::Stan));
  EXPECT_TRUE(StanyUjemneDostepne(u.importTow));
}

TEST(KontrolaStruktury, PierwszyPowodWKolejnosci) {
  const auto struktura = [](TypPliku typ, std::initializer_list<const char*> pola, const char* separator,
                            std::initializer_list<const char*> vat,
                            RodzajRekordu rodzaj = RodzajRekordu::Towary) {
    StrukturaPliku s = Struktura(typ, pola, true, rodzaj);
    s.separator = QString::fromLatin1(separator);
    for (const char* opis : vat) s.opisyVat.emplace_back(QString::fromLatin1(opis));
    return s;
  };
  const struct {
    const char* opis;
    StrukturaPliku struktura;
    const char16_t* odmowa;
  } przypadki[] = {
      {"own layout needs nothing", struktura(TypPliku::Zorvik, {}, "", {}), nullptr},
      {"list before separator", struktura(TypPliku::Rozdzielany, {}, "", {}), u"Nie zdefiniowano listy pól"},
      {"separator before VAT", struktura(TypPliku::Rozdzielany, {"00", "23"}, "", {}),
       u"Nie zdefiniowano separatora"},
      {"fixed width needs no separator", struktura(TypPliku::StalaSzerokosc, {"0013", "0140"}, "", {}),
       nullptr},
      {"width before VAT", struktura(TypPliku::StalaSzerokosc, {"0013", "2302", "01 "}, "", {}),
       u"Nie zdefiniowano szerokości pola"},
      {"column name", struktura(TypPliku::DBase, {"00KOD", "01"}, "", {}), u"Nie zdefiniowano nazwy pola"},
      {"no widths in a delimited file", struktura(TypPliku::Rozdzielany, {"00", "01"}, ";", {"23", "8 "}),
       nullptr},
      {"all rates described", struktura(TypPliku::Rozdzielany, {"00", "23"}, ";", {"23A", "8 B", "-1ZW"}),
       nullptr},
      {"a rate without description", struktura(TypPliku::Rozdzielany, {"00", "23"}, ";", {"23A", "8  "}),
       u"Nie zdefiniowano opisu stawki VAT"},
      {"no descriptions at all", struktura(TypPliku::DBase, {"00KOD", "23VAT"}, "", {}),
       u"Nie zdefiniowano opisu stawki VAT"},
      {"contractors have no rates",
       struktura(TypPliku::Rozdzielany, {"00", "23"}, ";", {}, RodzajRekordu::Kontrahenci), nullptr},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.opis);
    const std::optional<Komunikat> odmowa = SprawdzStrukture(p.struktura);
    ASSERT_EQ(odmowa.has_value(), p.odmowa != nullptr);
    if (!odmowa) continue;
    EXPECT_EQ(odmowa->naglowek, QStringLiteral("BŁĄD"));
    EXPECT_EQ(odmowa->tekst, QStringView(p.odmowa));
  }
}

}  // namespace
