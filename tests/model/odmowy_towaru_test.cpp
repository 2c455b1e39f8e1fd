#include "model/towar.h"
#include "tests/model/towary_probne.h"

namespace {

class OdmowyTowaru : public TowaryProbne {};

TEST_F(OdmowyTowaru, KazdaOdmowaZapisu) {
  auto inny = Nowy(u"111"_s, u"Inny"_s);
  inny->Kody().Dodaj(Dodatkowy(u"112"_s, u"Inny dod"_s));
  inny->UstawCKU(u"C1"_s);
  const int innyId = inny->Zapisz();
  const int usuniety = Zapisany(u"113"_s, u"Usunięty"_s);
  Wczytany(usuniety)->Usun();
  // Others with the same texts, before the first one in the order of the rows of a server: it is the one
  // named.
  b.baza.ExecSQL("update Towar set CKU = 'C1', Skrot = 'Inny' where TowId = 2");
  b.baza.ExecSQL("update KodDod set TowId = 1 where TowId = 1");
  b.baza.ExecSQL("update Towar set CKU = 'C1' where TowId = 1");
  const QString zajety = u"jest już używany przez towar [%1]: Inny"_s.arg(innyId);

  using T = TDmVLTTowar;
  const auto dodaj = [](const QString& kod, const QString& skrot) {
    return [=](T& t) { t.Kody().Dodaj(Dodatkowy(kod, skrot)); };
  };
  struct Przypadek {
    int kod;
    std::function<void(T&)> zmien;
    QString szczegol = {};
  };
  const Przypadek przypadki[] = {
      {2840, [](T& t) { t.UstawNazwa(u"  "_s), t.UstawStawka({}); }},
      {2815, [](T& t) { t.UstawStawka({}), t.UstawKod({}); }},
      {2816, [](T& t) { t.UstawKod(u" "_s), t.UstawAsId(-1); }},
      {2857, [](T& t) { t.UstawCKU(u"C1"_s), t.UstawAsId(-1); }, u"CKU 'C1' "_s + zajety},
      {2813, [](T& t) { t.UstawAsId(-1), t.UstawJMId(77); }},
      {2814, [](T& t) { t.UstawJMId(77), t.UstawSkrot({}); }},
      {2823, [](T& t) { t.UstawSkrot(u"zbyt długa nazwa na kasie"_s), t.UstawOpakId(77); }, u"Skrót zbyt"_s},
      {2819, [](T& t) { t.UstawSkrot(u"Inny"_s); }, u"przez towar [Inny]"_s},
      {2819, [](T& t) { t.UstawSkrot(u"Inny dod"_s); }, u"kodów dodatkowych"_s},
      {2818, [](T& t) { t.UstawOpakId(77), t.UstawKod(u"ab"_s); }},
      {2818, [=](T& t) { t.UstawOpakId(usuniety); }},
      {2894, [](T& t) { t.UstawKod(u"ab"_s); }, u"ab"_s},
      {2826, [](T& t) { t.UstawKod(u"5901234123458"_s); }, u"5901234123458"_s},
      {2821, [](T& t) { t.UstawKod(u"2712345"_s), t.UstawTypTowaru(TypTowaru::Usluga); }},
      {2822, [](T& t) { t.UstawKod(u" 111"_s); }, u"Kod '111' "_s + zajety},
      {2822, [](T& t) { t.UstawKod(u"112"_s); }, u"Kod '112' "_s + zajety},
      {2895, dodaj(u"a b"_s, u"x"_s), u"a b"_s},
      {2827, dodaj(u"2712345"_s, u"x"_s), u"2712345"_s},
      {2828, dodaj(u"900"_s, u"x"_s), u"900"_s},
      {2830, dodaj(u"111"_s, u"x"_s), zajety},
      {2823, dodaj(u"901"_s, {}), u"kodu dodatkowego"_s},
      {2824, dodaj(u"901"_s, u"Nowy"_s), u"Nowy"_s},
      {2819, dodaj(u"901"_s, u"Inny"_s), u"Inny"_s},
      {2896, [](T& t) { t.UstawKod(u"2700017"_s); }, u"17"_s},
      {2897, [](T& t) { t.UstawKod(u"2700111"_s); }, u"Kod '111' "_s + zajety},
      {0, [&](T& t) { dodaj(u"900"_s, {})(t), t.UstawTypTowaru(TypTowaru::Opakowanie); }},
      {0, [](T& t) { t.UstawStawka(-1); }}};
  unikalneCKU = true;
  reguly.kodyKrotkie = RegulyKodow::KodyKrotkie::ObcinajZera;
  for (const Przypadek& p : przypadki) {
    SCOPED_TRACE(p.kod);
    reguly.minDlugosc = p.kod == 2896 ? 3 : 1;
    auto towar = Nowy(u"900"_s, u"Nowy"_s);
    p.zmien(*towar);
    const WynikWalidacji wynik = towar->Sprawdz();
    EXPECT_EQ(wynik.kod, p.kod);
    EXPECT_TRUE(wynik.szczegol.contains(p.szczegol)) << wynik.szczegol.toStdString();
    if (p.kod == 0) continue;
    EXPECT_EQ(KodBledu([&] { towar->Zapisz(); }), p.kod);
    EXPECT_TRUE(towar->CzyNowy());
    skroty->Zwolnij();
  }
  EXPECT_EQ(b.Liczba("select count(*) from Towar"), 2);
}

TEST_F(OdmowyTowaru, NieudanyZapisNieZostawiaSladu) {
  reguly.kodyKrotkie = RegulyKodow::KodyKrotkie::ObcinajZera;
  reguly.uzupelniacWazone = true;
  const char* tabele[] = {"Towar",   "KodDod",      "Istw",   "Powiazanie",   "TowWartosc",
                          "Notatki", "TowDostawca", "KasTow", "DziennikZmian"};
  const auto wszystko = [&] {
    QString tekst;
    for (const char* tabela : tabele) tekst += Wiersze(tabela) + u'\n';
    return tekst;
  };
  const int opakowanie = Zapisany(u"800"_s, u"Skrzynka"_s);
  auto towar = Nowy(u"2700012"_s, u"Ser żółty"_s);
  auto zmien = [&, numer = 0]() mutable {
    ++numer;
    towar->UstawNotatka(u"n"_s + QString::number(numer));
    towar->UstawOpakId(opakowanie);
    towar->UstawIleWOpak(numer);
    towar->UstawCenaDet(numer);
    towar->Kody().Dodaj(Dodatkowy(u"90"_s + QString::number(numer), u"d"_s + QString::number(numer)));
    towar->Stany().UstawStanMin(1, numer);
    towar->Wartosci().Ustaw(1, numer);
    towar->Dostawcy().UstawZNipem(std::vector<int>{numer});
  };
  for (const bool nowy : {true, false}) {
    zmien();
    const auto przed = wszystko();
    const auto teksty = towar->Teksty();
    int ktora = 0;
    for (bool udany = false; !udany;) {
      const auto rodzaj = ktora % 2 == 0 ? RodzajBleduBazy::Ograniczenie : RodzajBleduBazy::PelnyDysk;
      int numer = -1;  // the first statement opens the unit itself
      bool zapis = false;
      b.baza.StartTransakcji();
      b.baza.UstawPodsluch([&](std::string_view sql) {
        if (sql.starts_with("rollback") || numer++ != ktora || sql.starts_with("release")) return;
        zapis = !sql.starts_with("select") || sql.find("KasTow") != sql.npos;
        throw EBladBazy(rodzaj, u"próba"_s, {});
      });
      try {
        towar->Zapisz();
        udany = true;
      } catch (const EVLTWDError& blad) {
        EXPECT_EQ(blad.MacCode(), 2007);
        EXPECT_TRUE(dynamic_cast<const EBladBazy*>(blad.Przyczyna()));
        EXPECT_EQ(rodzaj, RodzajBleduBazy::Ograniczenie);
      } catch (const EBladBazy& blad) {
        EXPECT_EQ(blad.Rodzaj(), rodzaj) << blad.MacDescription().toStdString();
        EXPECT_TRUE(!zapis || rodzaj == RodzajBleduBazy::PelnyDysk) << ktora;
      }
      b.baza.UstawPodsluch({});
      ASSERT_TRUE(b.baza.GetCzyWTransakcji());
      if (!udany) {
        EXPECT_EQ(wszystko(), przed) << ktora;
        EXPECT_EQ(towar->CzyNowy(), nowy);
        EXPECT_EQ(towar->Teksty().kod, teksty.kod);
        EXPECT_EQ(towar->Teksty().dodatkowe, teksty.dodatkowe);
        b.baza.WycofTransakcji();
        skroty->Zwolnij();
      } else {
        b.baza.KoniecTransakcji();
      }
      ++ktora;
    }
    EXPECT_GT(ktora, 15);
    EXPECT_EQ(towar->Kod(), u"2700012??????") << "the stored form of the code comes back after a success";
    EXPECT_TRUE(towar->MaKod(u"12"_s)) << "and so does the automatic code";
    EXPECT_TRUE(towar->TakiSamJakWBazie());
    EXPECT_EQ(Wczytany(towar->Id())->Teksty().dodatkowe, towar->Teksty().dodatkowe);
  }
}

TEST_F(OdmowyTowaru, LiczbyPozaZakresemKolumny) {
  using T = TDmVLTTowar;
  const std::function<void(T&)> przypadki[] = {
      [](T& t) { t.UstawTermWazn(1LL << 31); },
      [](T& t) { t.UstawCenaDet(1e15); },
      [](T& t) { t.UstawMarza(std::numeric_limits<double>::quiet_NaN()); },
      [](T& t) { t.Wartosci().Ustaw(1, -1e15); },
      [](T& t) {
        t.Kody().Dodaj({0, u"901"_s, u"d"_s, 0, 0, 1e16});
      },
      [](T& t) { t.Stany().UstawStanMax(1, 1e15); }};
  for (const auto& zmien : przypadki) {
    auto towar = Nowy(u"900"_s, u"Nazwa"_s);
    zmien(*towar);
    EXPECT_EQ(KodBledu([&] { towar->Zapisz(); }), 2006);
    skroty->Zwolnij();
  }
  EXPECT_EQ(b.Liczba("select count(*) from Towar"), 0);
}

TEST_F(OdmowyTowaru, TekstyDluzszeNizKolumna) {
  using T = TDmVLTTowar;
  const std::tuple<QString, std::function<void(T&)>> przypadki[] = {
      {u"'Nazwa towaru' ma 1001 znaków, a mieści się ich 1000"_s,
       [](T& t) { t.UstawNazwa(QString(1001, u'ż')); }},
      {u"'Opis 4' ma 1002 znaków, a mieści się ich 1000"_s, [](T& t) { t.UstawOpis4(QString(1002, u'x')); }},
      {u"'CKU' ma 1001 znaków, a mieści się ich 1000"_s, [](T& t) { t.UstawCKU(QString(1001, u'x')); }},
      {u"'Notatka' ma 100001 znaków, a mieści się ich 100000"_s,
       [](T& t) { t.UstawNotatka(QString(100'001, u'x')); }}};
  for (const auto& [opis, zmien] : przypadki) {
    auto towar = Nowy(u"900"_s, u"Nazwa"_s);
    zmien(*towar);
    try {
      towar->Zapisz();
      ADD_FAILURE() << opis.toStdString();
    } catch (const EVLTWDError& blad) {
      EXPECT_EQ(blad.MacDescription(), u"Tekst w polu "_s + opis);
    }
    skroty->Zwolnij();
  }
  auto pelny = Nowy(u"900"_s, QString(1000, u'ż'));
  pelny->UstawNotatka(QString(100'000, u'ó'));
  EXPECT_EQ(Wczytany(pelny->Zapisz())->Notatka().size(), 100'000);
}

// Others may write while the good is being corrected in its form, a transaction of its own or not.

}  // namespace
