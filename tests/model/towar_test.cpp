#include "model/towar.h"

#include "model/lista_towarow.h"
#include "model/zapas_towarow.h"
#include "tests/model/towary_probne.h"

namespace {

class Towary : public TowaryProbne {};

TEST_F(Towary, WlasneKodyISkrotyNieStojaNaDrodzeNiezaleznieOdBufora) {
  for (const bool zBuforem : {false, true}) {
    const QString kod = zBuforem ? u"20"_s : u"10"_s;
    if (zBuforem) {
      ASSERT_TRUE(bufor.Napelnij(b.baza));
    }
    auto towar = Nowy(kod + u'1', u"Nazwa "_s + kod);
    towar->Kody().Dodaj(Dodatkowy(kod + u'2', u"dod "_s + kod));
    const int id = towar->Zapisz();
    if (zBuforem) bufor.Dodaj(id, towar->Teksty());
    towar->UstawOpis1(u"opis"_s);
    EXPECT_EQ(towar->Zapisz(), id);
    EXPECT_EQ(Nowy(kod + u'2', u"Inna "_s + kod)->Sprawdz().kod, 2822);
  }
}

// Every column gets a value of its own, so that a column read or written in another's place shows.
TEST_F(Towary, KazdaKolumnaIKazdySzczegolWracajaZBazy) {
  const int opakowanie = Zapisany(u"800"_s, u"Skrzynka"_s);
  b.baza.ExecSQL("insert into KatParam (KatId, ParId) values (1, 2)");
  auto towar = Nowy(u"900"_s, u"x"_s);
  for (std::size_t i = 1; i < KolumnaTowaru::kIlosc; ++i) {
    TMField& pole = towar->Query.Field(i);
    switch (pole.Value().Typ()) {
      case TypPola::Calkowite:
        pole.SetInteger(static_cast<int>(i) + 100);
        break;
      case TypPola::Dziesietne:
        pole.SetFloat(static_cast<double>(i) + 0.25);
        break;
      case TypPola::Tekst:
        pole.SetString(u"zażółć "_s + QString::number(i));
        break;
      case TypPola::Czas:
        break;
    }
  }
  towar->UstawKod(u"900"_s);
  towar->UstawAsId(1);
  towar->UstawJMId(1);
  towar->UstawKatId(1);
  towar->UstawProducent(1);
  towar->UstawOpakId(opakowanie);
  towar->UstawTypTowaru(TypTowaru::Towar);
  towar->Kody().Dodaj({0, u"901"_s, u"dod"_s, 2, 3, 1.5});
  towar->Wartosci().Ustaw(1, 4);
  towar->Dostawcy().UstawZNipem(std::vector<int>{2, 1, 2});
  towar->UstawNotatka(u"uwaga"_s);
  ASSERT_EQ(towar->Stany()[0].nazwa, u"A");
  EXPECT_TRUE(towar->Stany().UstawCenaMag(2, 7.5));
  EXPECT_FALSE(towar->Stany().UstawStanMin(99, 1));
  const int id = towar->Zapisz();

  auto jest = Wczytany(id);
  for (std::size_t i = 1; i < KolumnaTowaru::kIlosc; ++i)
    if (i != KolumnaTowaru::Zmiana) {
      EXPECT_EQ(jest->Query.Field(i).AsString(), towar->Query.Field(i).AsString())
          << jest->Query.Field(i).FieldName();
    }
  EXPECT_FALSE(jest->Zmiana().isEmpty());
  EXPECT_EQ(jest->Kody().Wszystkie(), (std::vector<KodDodatkowy>{{1, u"901"_s, u"dod"_s, 2, 3, 1.5}}));
  EXPECT_EQ(jest->Wartosci().Wszystkie(), (std::vector<WartosciParametrow::Pozycja>{{1, 4}, {2, 0}}))
      << "a parameter of the category has a value";
  EXPECT_EQ(jest->Dostawcy().Wszyscy(), (std::vector<DostawcyTowaru::Dostawca>{{2, true}, {1, true}}));
  EXPECT_EQ(jest->Notatka(), u"uwaga");
  EXPECT_EQ(jest->Stany()[0].cenaMag, 7.5);
  EXPECT_EQ(jest->Stany()[1].cenaMag, 0);
  EXPECT_TRUE(towar->TakiSamJakWBazie() && jest->TakiSamJakWBazie());
  EXPECT_EQ(Wiersze("DziennikZmian"), u"1|Nowy towar|1|-1 1|Nowy towar|2|-1");

  TDmVLTListaTowarow lista(kontekst, Otoczenie());
  lista.Otworz();
  lista.DodajElement(id);
  EXPECT_EQ(lista.Ilosc(), 3);
  EXPECT_EQ(lista.Kod(), u"900");
}

TEST_F(Towary, CzytanieJednegoToCzteryPytania) {
  const int id = Zapisany(u"1"_s, u"a"_s);
  b.baza.ExecSQL("update Towar set TypTowaru = 7, Opis1 = null, TermWazn = null, KatId = null");
  int pytan = 0;
  b.baza.UstawPodsluch([&](std::string_view) { ++pytan; });
  const auto towar = Wczytany(id);
  EXPECT_EQ(pytan, 4);
  EXPECT_EQ(towar->TypTowaru(), TypTowaru::Towar);
  towar->UstawTypTowaru(TypTowaru::Towar);
  towar->UstawOpis1({});
  towar->UstawTermWazn(0);
  towar->UstawKatId(-1);
  EXPECT_FALSE(towar->CzyZmieniony()) << "what reads the same is no change";
}

TEST_F(Towary, PorownanieZBaza) {
  auto wzor = Nowy(u"900"_s, u"Nazwa"_s);
  wzor->UstawCenaDet(10);
  wzor->Kody().Dodaj(Dodatkowy(u"901"_s, u"a"_s));
  wzor->Kody().Dodaj(Dodatkowy(u"902"_s, u"b"_s));
  wzor->Wartosci().Ustaw(1, 2);
  const int id = wzor->Zapisz();
  for (const char* sql :
       {"insert into TowDostawca values (1, 3, 0)", "insert into TowDostawca values (1, 1, 1)",
        "insert into TowDostawca values (1, 2, 2)"})
    b.baza.ExecSQL(sql);

  using T = TDmVLTTowar;
  const auto kody = [](T& t) { return t.Kody().Wszystkie(); };
  const auto dostawcy = [](std::vector<int> d) { return [d](T& t) { t.Dostawcy().UstawZNipem(d); }; };
  const std::tuple<const char*, bool, std::function<void(T&)>> przypadki[] = {
      {"nothing", true, [](T&) {}},
      {"price within 1e-6", true, [](T& t) { t.UstawCenaDet(10 + 5e-7); }},
      {"price", false, [](T& t) { t.UstawCenaDet(10.00001); }},
      {"there and back", true, [](T& t) { t.UstawOpis1(u"x"_s), t.UstawOpis1({}); }},
      {"case of a text", false, [](T& t) { t.UstawNazwa(u"NAZWA"_s); }},
      {"blank behind a text", false, [](T& t) { t.UstawNazwa(u"Nazwa "_s); }},
      {"producer", false, [](T& t) { t.UstawProducent(1); }},
      {"status", true, [](T& t) { t.UstawAktywny(0); }},
      {"quantity of a code", true,
       [&](T& t) {
         auto k = kody(t);
         k[0].ileWKodzie = 6;
         t.Kody().Ustaw(k);
       }},
      {"PLU of a code", false,
       [&](T& t) {
         auto k = kody(t);
         k[0].prefPLU = 6;
         t.Kody().Ustaw(k);
       }},
      {"order of codes", false,
       [&](T& t) {
         auto k = kody(t);
         std::swap(k[0], k[1]);
         t.Kody().Ustaw(k);
       }},
      {"code less", false, [](T& t) { t.Kody().Usun(2); }},
      {"parameter within 1e-6", true, [](T& t) { t.Wartosci().Ustaw(1, 2 + 5e-7); }},
      {"parameter", false, [](T& t) { t.Wartosci().Ustaw(1, 3); }},
      {"parameter more", false, [](T& t) { t.Wartosci().Ustaw(2, 0); }},
      {"suppliers with a number", true, dostawcy({1, 2})},
      {"order of suppliers", false, dostawcy({2, 1})},
      {"supplier less", false, dostawcy({1})}};
  for (const auto& [opis, takiSam, zmien] : przypadki) {
    auto towar = Wczytany(id);
    zmien(*towar);
    EXPECT_EQ(towar->TakiSamJakWBazie(), takiSam) << opis;
  }
  b.baza.ExecSQL("update TowDostawca set Kolejnosc = 0");
  b.baza.ExecSQL("update TowDostawca set KontrId = 1 where KontrId = 1");
  auto towar = Wczytany(id);
  EXPECT_EQ(towar->Dostawcy().Wszyscy()[0].kontrId, 1) << "in one place: by identifier";
  towar->Dostawcy().UstawZNipem(std::vector<int>{2});
  towar->Zapisz();
  EXPECT_EQ(Wiersze("TowDostawca"), u"1|2|0 1|3|1") << "a supplier without a tax number is kept";
}

TEST_F(Towary, ZmianyKodowDodatkowych) {
  auto towar = Nowy(u"900"_s, u"Nazwa"_s);
  for (const char16_t* kod : {u"1", u"2", u"3"})
    towar->Kody().Dodaj(Dodatkowy(QString::fromUtf16(kod), u"s"_s + QString::fromUtf16(kod)));
  const int id = towar->Zapisz();
  auto kody = towar->Kody().Wszystkie();
  kody[2].prefPLU = 9;
  towar->Kody().Ustaw({kody[0], Dodatkowy(u"4"_s, u"s4"_s), kody[2]});
  towar->Kody().Dodaj(Dodatkowy(u"5"_s, u"s5"_s));
  EXPECT_EQ(KodBledu([&] { towar->Kody()[4]; }), 2003);
  QStringList instrukcje;
  b.baza.UstawPodsluch([&](std::string_view sql) {
    const QString tekst = QString::fromUtf8(sql.data(), static_cast<qsizetype>(sql.size()));
    if (tekst.contains(u"KodDod ") && !tekst.startsWith(u"select")) instrukcje << tekst.section(u' ', 0, 0);
  });
  towar->Zapisz();
  EXPECT_EQ(instrukcje, (QStringList{u"delete"_s, u"insert"_s, u"update"_s, u"insert"_s}));
  EXPECT_EQ(Wiersze("KodDod"), u"1|1|s1|1|0|0|1 1|2|s4|4|0|0|1 1|3|s3|3|0|9|1 1|4|s5|5|0|0|1");
  EXPECT_TRUE(towar->MaKod(u"5"_s) && towar->MaKod(u"900"_s) && !towar->MaKod(u"2"_s));
  EXPECT_EQ(Wczytany(id)->Kody().Wszystkie(), towar->Kody().Wszystkie());
  towar->Kody().Usun(2);
  EXPECT_EQ(towar->Kody().Dodaj({}), 5) << "a number that is free in the middle is not taken again";
}

TEST_F(Towary, ZmianyTrafiajaDoDziennikaKasISklepow) {
  const int id = Zapisany(u"900"_s, u"Nazwa"_s);
  b.baza.ExecSQL("insert into JM (Nazwa) values ('kg')");
  b.baza.ExecSQL("insert into KasTow (KasaId, TowId, KodWyslany) values (1, 1, '901')");
  b.baza.ExecSQL("insert into Sklep (SklepId) values (1)");
  b.baza.ExecSQL("insert into SklepFlagi (SklepId, TowId) values (1, 1)");
  using T = TDmVLTTowar;
  const std::tuple<QString, QString, std::function<void(T&)>> przypadki[] = {
      {u": cena detaliczna 0 na 12.5 netto"_s, u"1|0"_s, [](T& t) { t.UstawCenaDet(12.5); }},
      {{}, u"0|1"_s, [](T& t) { t.UstawOpis2(u"x"_s); }},
      {u": jednostka miary 1 na 2, stawka VAT 23 % na ZW, cena hurtowa 0 na 1 netto"_s, u"1|1"_s,
       [](T& t) { t.UstawJMId(2), t.UstawStawka(-1), t.UstawCenaHurt(1); }},
      {u": kod z '900' na '902', typ towar na usługa"_s, u"0|1"_s,
       [](T& t) { t.UstawKod(u"902"_s), t.UstawTypTowaru(TypTowaru::Usluga); }},
      {{}, u"0|0"_s, [](T& t) { t.UstawCenaDet(12.5 + 5e-7); }},
      {{}, u"0|1"_s, [](T& t) { t.UstawCenaDet(12.5 + 5e-7), t.UstawOpis2(u"y"_s); }},
      {{}, u"0|0"_s, [](T&) {}}};
  for (const auto& [opis, flagi, zmien] : przypadki) {
    b.baza.ExecSQL("update KasTow set ZmianyCen = 0, ZmianyInne = 0");
    b.baza.ExecSQL("update SklepFlagi set Zmiana = null");
    auto towar = Wczytany(id);
    zmien(*towar);
    towar->Zapisz();
    EXPECT_EQ(b.OstatniWpis(), QString(u"Zmiana towaru"_s + opis));
    EXPECT_EQ(b.Tekst("select ZmianyCen || '|' || ZmianyInne from KasTow"), flagi);
    EXPECT_EQ(b.Liczba("select count(*) from SklepFlagi where Zmiana is not null"), 1);
  }
  EXPECT_EQ(b.Liczba("select count(*) from Towar where CenaDet = 12.5"), 1) << "the same price stays";
}

// What counts is what is written: a main code completed by the system and an automatic code are changes,
// blanks around a code are none.
TEST_F(Towary, KasyPatrzaNaToCoBedzieZapisane) {
  const std::tuple<bool, bool, int, QString> przypadki[] = {
      {false, false, 0, {}},
      {true, false, 2820, u": kod z '2700012' na '2700012?????\?'"_s},
      {false, true, 2820, {}}};
  for (const auto& [maska, krotki, kod, opis] : przypadki) {
    const int id = Zapisany(u"2700012"_s, u"Ser"_s);
    for (const int wyslany : {1, 0}) {
      b.baza.ExecSQL("delete from KasTow");
      b.baza.ExecSQL("insert into KasTow (KasaId, TowId, Wyslany) values (1, :TowId, :Wyslany)",
                     {{"TowId", id}, {"Wyslany", wyslany}});
      reguly.uzupelniacWazone = maska;
      reguly.kodyKrotkie =
          krotki ? RegulyKodow::KodyKrotkie::ObcinajZera : RegulyKodow::KodyKrotkie::NieTworzyc;
      auto towar = Wczytany(id);
      towar->UstawKod(u" 2700012 "_s);
      towar->UstawCenaDet(2 - wyslany);
      EXPECT_EQ(KodBledu([&] { towar->Zapisz(); }), wyslany == 1 ? kod : 0);
      skroty->Zwolnij();
      if (wyslany == 1) continue;
      EXPECT_EQ(b.Liczba("select ZmianyInne from KasTow"), kod != 0 ? 1 : 0);
      EXPECT_TRUE(b.OstatniWpis().startsWith(u"Zmiana towaru"_s + opis)) << b.OstatniWpis().toStdString();
    }
    for (const char* tabela : {"KasTow", "KodDod", "Istw", "Towar"})
      b.baza.ExecSQL(std::string("delete from ") + tabela);
    reguly.uzupelniacWazone = false;
    reguly.kodyKrotkie = RegulyKodow::KodyKrotkie::NieTworzyc;
  }
}

TEST_F(Towary, TowarNaKasieZachowujeToPoCzymKasaGoZna) {
  const int id = Zapisany(u"900"_s, u"Nazwa"_s);
  b.baza.ExecSQL("insert into KasTow (KasaId, TowId, KodWyslany, Wyslany) values (1, 1, '901', 1)");
  using T = TDmVLTTowar;
  const std::pair<int, std::function<void(T&)>> przypadki[] = {
      {2820, [](T& t) { t.UstawTypTowaru(TypTowaru::Usluga); }},
      {2820, [](T& t) { t.UstawKod(u"902"_s); }},
      {2820, [](T& t) { t.UstawStawka(800); }},
      {2820, [](T& t) { t.UstawSkrot(u"inny"_s); }},
      {2820, [](T& t) { t.Kody().Dodaj(Dodatkowy(u"901"_s, u"d"_s)); }},
      {0, [](T& t) { t.UstawCenaDet(3); }}};
  for (const auto& [kod, zmien] : przypadki) {
    auto towar = Wczytany(id);
    zmien(*towar);
    EXPECT_EQ(KodBledu([&] { towar->Zapisz(); }), kod);
  }
  auto towar = Wczytany(id);
  towar->Kody().Dodaj(Dodatkowy(u"901"_s, u"d"_s));
  EXPECT_EQ(towar->Kody().Wyslany(b.baza, 0), 1);
}

// Each statement of a save fails in turn: nothing of it stays in the database or in memory, the caller's
// transaction goes on, and the same record can be saved afterwards.
TEST_F(Towary, PozaImportemRzadzaParametrySystemu) {
  b.baza.ExecSQL("insert into KodWazony (Nazwa, Prefix, CzescStala) values ('w', 28, 4)");
  parametry.Ustaw(IdParametru::MaxKodKreskowy, u"7"_s);
  const OtoczenieZParametrow otoczenie(kontekst);
  TDmVLTTowar towar(kontekst, otoczenie.Widok());
  towar.Nowy();
  towar.UstawNazwa(u"Nazwa"_s);
  towar.UstawAsId(1);
  towar.UstawJMId(1);
  towar.UstawStawka(0);
  towar.UstawTypTowaru(TypTowaru::Usluga);
  for (const auto& [kod, blad] : {std::pair{u"12345678"_s, 2894}, {u"281234"_s, 2821}, {u"271234"_s, 0}}) {
    towar.UstawKod(kod);
    EXPECT_EQ(towar.Sprawdz().kod, blad) << kod.toStdString();
  }
}

TEST_F(Towary, CudzeZmianyPrzezywajaZapis) {
  const int id = Zapisany(u"900"_s, u"Nazwa"_s);
  TVLTBazaDanych inny;
  b.Polacz(inny);
  for (const bool wPaczce : {false, true}) {
    auto towar = Wczytany(id);
    inny.ExecSQL("update Towar set CenaDet = CenaDet + 5, Opis1 = 'cudzy', Opis2 = 'cudzy'");
    towar->UstawOpis1(wPaczce ? u"inny"_s : u"swój"_s);
    if (wPaczce) {
      b.baza.StartTransakcji();
      b.baza.UstawPodsluch([&](std::string_view sql) {
        if (!sql.starts_with("update Towar")) return;
        EXPECT_THROW(inny.ExecSQL("update Towar set Opis2 = 'za późno'"), EBladBazy);
      });
    }
    towar->Zapisz();
    b.baza.UstawPodsluch({});
    if (wPaczce) b.baza.KoniecTransakcji();
    EXPECT_EQ(b.Tekst("select Opis1 || ' ' || Opis2 || ' ' || cast(CenaDet as integer) from Towar"),
              wPaczce ? u"inny cudzy 10" : u"swój cudzy 5");
  }
}

// Goods read ahead are locked together, once a block.
TEST_F(Towary, KazdyBlokJestBlokowanyRaz) {
  const int towary[] = {Zapisany(u"900"_s, u"Jeden"_s), Zapisany(u"901"_s, u"Dwa"_s)};
  int blokad = 0;
  ZapasTowarow zapas;
  b.baza.StartTransakcji();
  b.baza.UstawPodsluch([&](std::string_view sql) { blokad += sql.ends_with("for update of T") ? 1 : 0; });
  for (const int id : towary) {
    zapas.Wczytaj(b.baza, {id});
    for (int razy = 0; razy < 2; ++razy) zapas.Zablokuj(b.baza, id);
  }
  b.baza.UstawPodsluch({});
  EXPECT_EQ(blokad, NaSerwerze() ? 2 : 0);
}

TEST_F(Towary, SkrotPowstajeZNazwyTylkoGdyJestPusty) {
  Zapisany(u"1"_s, u"Mleko"_s);
  auto towar = Nowy(u"2"_s, u"Mleko"_s);
  EXPECT_FALSE(towar->Skrot().isEmpty());
  EXPECT_NE(towar->Skrot(), u"Mleko") << "taken";
  const QString pierwszy = towar->Skrot();
  towar->UstawNazwa(u"Ser"_s);
  EXPECT_EQ(towar->Skrot(), pierwszy);
  towar->UstawSkrot(u" "_s);
  towar->UstawNazwa(u"Ser"_s);
  EXPECT_EQ(towar->Skrot(), u" ") << "the name did not change";
  towar->Kody().Dodaj(Dodatkowy(u"3"_s, {}));
  EXPECT_TRUE(towar->UtworzSkrot() && towar->UtworzSkrot(0));
  EXPECT_EQ(towar->Skrot(), u"Ser");
  EXPECT_NE(towar->Kody()[0].skrot, u"Ser");
  EXPECT_GT(towar->Zapisz(), 0);
  // Many codes of one good, with names of their own in between.
  towar->Kody().Ustaw({Dodatkowy(u"4"_s, {}), Dodatkowy(u"5"_s, u"Ser 2"_s), Dodatkowy(u"6"_s, u" "_s),
                       Dodatkowy(u"7"_s, {}), Dodatkowy(u"8"_s, u"Ser 4"_s)});
  EXPECT_TRUE(towar->UtworzBrakujaceSkroty());
  QStringList nazwy;
  for (const KodDodatkowy& kod : towar->Kody().Wszystkie()) nazwy << kod.skrot;
  EXPECT_EQ(nazwy.join(u','), u"Ser 3,Ser 2,Ser 5,Ser 6,Ser 4"_s);
}

TEST_F(Towary, UsuwanieIPrzywracanie) {
  struct Przypadek {
    const char* sql;
    PrzeszkodaUsuniecia przeszkoda;
    int kod;
  };
  const Przypadek przypadki[] = {
      {"update Towar set CKU = 'C'", PrzeszkodaUsuniecia::Centralny, 2868},
      {"update Towar set CKU = ' ', TypTowaru = 0", PrzeszkodaUsuniecia::Brak, 0},
      {"update Istw set BlokadaMag = 0.5 where MagId = 2", PrzeszkodaUsuniecia::Stan, 2867},
      {"update Istw set BlokadaMag = 0, StanMag = -1 where MagId = 1", PrzeszkodaUsuniecia::Stan, 2867},
      {"update Towar set TypTowaru = 1", PrzeszkodaUsuniecia::Stan, 2867},
      {"update Towar set TypTowaru = 2", PrzeszkodaUsuniecia::Brak, 0}};
  const int id = Zapisany(u"900"_s, u"Nazwa"_s);
  for (const Przypadek& p : przypadki) {
    b.baza.ExecSQL(p.sql);
    EXPECT_EQ(SprawdzUsuwanie(b.baza, id), p.przeszkoda) << p.sql;
    EXPECT_FALSE(b.baza.GetCzyWTransakcji());
    auto towar = Wczytany(id);
    EXPECT_EQ(towar->Centralny(), p.kod == 2868);
    towar->UstawOpis1(u"czeka"_s);
    EXPECT_EQ(KodBledu([&] { towar->Usun(); }), p.kod) << p.sql;
    EXPECT_EQ(b.Liczba("select Aktywny from Towar"), p.kod == 0 ? 0 : 1);
    EXPECT_EQ(towar->Aktywny(), p.kod == 0 ? 0 : 1);
    if (p.kod != 0) continue;
    EXPECT_EQ(KodBledu([&] { towar->Usun(); }), 2802);
    towar->Przywroc();
    EXPECT_EQ(KodBledu([&] { towar->Przywroc(); }), 2803);
    EXPECT_EQ(Wczytany(id)->Aktywny(), 1);
    EXPECT_EQ(b.Tekst("select Opis1 from Towar"), u"");
    EXPECT_FALSE(towar->TakiSamJakWBazie()) << "other changes stay pending";
  }
}

}  // namespace
