#include "model/slowniki.h"

#include "model/kategorie.h"
#include "model/magazyny.h"
#include "tests/model/towary_probne.h"

namespace {

class Slowniki : public TowaryProbne {
 protected:
  template <typename Wpis>
  int Dodaj(const QString& nazwa) {
    Wpis wpis(kontekst);
    wpis.Nowy();
    wpis.UstawNazwe(nazwa);
    return wpis.Zapisz();
  }
  template <typename Wpis>
  void SprawdzNazwy(int brak, int zajeta) {
    const int id = Dodaj<Wpis>(u"Żółte"_s);
    EXPECT_EQ(KodBledu([&] { Dodaj<Wpis>(u" "_s); }), brak);
    EXPECT_EQ(KodBledu([&] { Dodaj<Wpis>(u"Żółte"_s); }), zajeta);
    EXPECT_EQ(KodBledu([&] { Dodaj<Wpis>(QString(1001, u'a')); }), 2040);
    Wpis wpis(kontekst);
    wpis.Wczytaj(id);
    wpis.UstawNazwe(u"ŻÓŁTE"_s);
    EXPECT_EQ(wpis.Zapisz(), id);
    Wpis jest(kontekst);
    jest.Wczytaj(id);
    EXPECT_EQ(jest.Nazwa(), u"ŻÓŁTE");
    EXPECT_EQ(b.OstatniWpis(), u"Zmiana pozycji: Żółte na ŻÓŁTE");
  }
};

TEST_F(Slowniki, NazwyPusteIZajete) {
  SprawdzNazwy<TDmVLTAsortyment>(2833, 2834);
  SprawdzNazwy<TDmVLTJednostka>(2837, 2838);
  SprawdzNazwy<TDmVLTMagazyn>(2835, 2836);
  SprawdzNazwy<TDmVLTKategoria>(2877, 2878);
  TDmVLTParametr parametr(kontekst);
  parametr.Nowy();
  for (const auto& [nazwa, kod] : {std::pair{u""_s, 2873}, {u"Gaz"_s, 2874}, {u"Smak"_s, 2875}}) {
    parametr.UstawNazwe(nazwa);
    EXPECT_EQ(KodBledu([&] { parametr.Zapisz(); }), kod);
  }
  parametr.UstawListe({u"słodki"_s, QString(1001, u'a')});
  EXPECT_EQ(KodBledu([&] { parametr.Zapisz(); }), 2040);
  parametr.UstawListe({u"słodki"_s});
  EXPECT_GT(parametr.Zapisz(), 0);
}

TEST_F(Slowniki, ListaZnajdujePierwszyBezWzgleduNaWielkoscLiter) {
  const int pierwszy = Dodaj<TDmVLTAsortyment>(u"ŚWIEŻE źdźbła"_s);
  const int drugi = Dodaj<TDmVLTAsortyment>(u"świeże ŹDŹBŁA"_s);
  TDmVLTListaAsortymentow lista(kontekst);
  lista.Otworz();
  EXPECT_EQ(lista.Ilosc(), 3);
  EXPECT_EQ(lista.ZnajdzNazwe(u"Świeże Źdźbła"_s), pierwszy);
  EXPECT_EQ(lista.Nazwa(drugi), u"świeże ŹDŹBŁA") << "the second one is kept";
  EXPECT_EQ(lista.ZnajdzNazwe(u"Nowe"_s), -1);

  TDmVLTAsortyment nowy(kontekst);
  nowy.Nowy();
  nowy.UstawNazwe(u"Nowe"_s);
  nowy.Zapisz();
  TDmVLTAsortyment zmieniony(kontekst);
  zmieniony.Wczytaj(pierwszy);
  zmieniony.UstawNazwe(u"Suche"_s);
  zmieniony.Zapisz();
  int pytan = 0;
  b.baza.UstawPodsluch([&](std::string_view) { ++pytan; });
  lista.Przyjmij(nowy);
  lista.Przyjmij(zmieniony);
  EXPECT_EQ(pytan, 0) << "nothing is read again";
  EXPECT_EQ(lista.ZnajdzNazwe(u"NOWE"_s), nowy.Id());
  EXPECT_EQ(lista.ZnajdzNazwe(u"świeże źdźbła"_s), drugi);
  EXPECT_EQ(lista.ZnajdzNazwe(u"suche"_s), pierwszy);
  EXPECT_EQ(lista.Ilosc(), 4);
}

TEST_F(Slowniki, PrecyzjaJednostkiWGranicach) {
  TDmVLTListaJednostek lista(kontekst);
  lista.Otworz();
  for (const auto& [podana, zapisana] : {std::pair{-1, 0}, {2, 2}, {4, 3}}) {
    TDmVLTJednostka jednostka(kontekst);
    jednostka.Nowy();
    jednostka.UstawNazwe(u"j"_s + QString::number(podana));
    jednostka.UstawPrecyzje(podana);
    lista.DodajElement(jednostka.Zapisz());
    EXPECT_EQ(lista.Precyzja(jednostka.Id()), zapisana);
  }
}

TEST_F(Slowniki, KategorieIParametryZeSzczegolami) {
  TDmVLTParametr lista(kontekst), zakres(kontekst);
  lista.Nowy();
  lista.UstawNazwe(u"Kolor"_s);
  lista.UstawListe({u"biały"_s, u"żółty"_s});
  const int kolor = lista.Zapisz();
  zakres.Nowy();
  zakres.UstawNazwe(u"Moc"_s);
  zakres.UstawZakres(1, 5.5);
  const int moc = zakres.Zapisz();
  TDmVLTKategoria kategoria(kontekst);
  kategoria.Wczytaj(1);
  for (const int parId : {moc, kolor, moc}) kategoria.DodajParametr(parId);

  TDmVLTListaParametrow parametry_(kontekst);
  parametry_.Otworz();
  TDmVLTListaKategorii kategorie(kontekst);
  kategorie.Otworz();
  EXPECT_TRUE(kategorie.Parametry(1).empty());
  kategoria.Zapisz();
  kategorie.Przyjmij(kategoria);
  for (int i = 0; i < 2; ++i) {  // taken in place, then read
    EXPECT_EQ(kategorie.Parametry(1), (std::vector<int>{moc, kolor}));
    EXPECT_EQ(parametry_.Wartosci(kolor), (std::vector<QString>{u"biały"_s, u"żółty"_s}));
    EXPECT_EQ(parametry_.Rodzaj(moc), TDmVLTParametr::Typ::Zakres);
    EXPECT_EQ(parametry_.Do(moc), 5.5);
    EXPECT_EQ(parametry_.Rodzaj(99), std::nullopt);
    kategorie.Otworz();
    parametry_.Otworz();
  }
  // One more goes behind the others, wherever they stand.
  b.baza.ExecSQL("update KatParam set Kolejnosc = Kolejnosc * 3 + 2");
  zakres.Nowy();
  zakres.UstawNazwe(u"Waga"_s);
  zakres.UstawZakres(1, 2);
  kategoria.Wczytaj(1);
  kategoria.DodajParametr(zakres.Zapisz());
  kategoria.Zapisz();
  EXPECT_EQ(b.Kolumna("select Kolejnosc from KatParam order by ParId", TypPola::Calkowite), u"5,2,6"_s);
  lista.Wczytaj(kolor);
  EXPECT_EQ(lista.Wartosci().size(), 2u);
  lista.UstawZakres(0, 1);
  lista.Zapisz();
  EXPECT_EQ(b.Liczba("select count(*) from ParWartosc"), 0);
}

}  // namespace
