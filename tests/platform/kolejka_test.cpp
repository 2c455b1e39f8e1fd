#include <gtest/gtest.h>

#include "platform/baza/kolejka_zapisow.h"

namespace {

using namespace Qt::Literals::StringLiterals;

using Wykonane = std::vector<std::pair<std::string, std::string>>;  // the statement and its values

Wykonane Wykonaj(KolejkaZapisow& kolejka) {
  Wykonane wykonane;
  kolejka.Wykonaj(kolejka.Ilosc(), [&](std::string_view sql, std::span<const Parametr> parametry) {
    std::string wartosci;
    for (const Parametr& p : parametry) {
      EXPECT_NE(sql.find(':' + std::string(p.nazwa)), std::string_view::npos);
      wartosci += p.wartosc.AsString().toStdString() + ' ';
    }
    wykonane.emplace_back(sql, wartosci);
  });
  EXPECT_EQ(kolejka.Ilosc(), 0u);
  return wykonane;
}

TEST(KolejkaZapisow, WierszeJednegoTekstuIdaRazem) {
  KolejkaZapisow kolejka;
  for (int id = 0; id < 12; ++id) {
    const Parametr towar[] = {{"Nazwa", u"n%1"_s.arg(id)}, {"Cena", 0.5}};
    const Parametr wpis[] = {{"Id1", id}};
    kolejka.NowyRekord();
    kolejka.Wstaw("insert into Towar (Nazwa, Cena, Zmiana)\r\nselect :Nazwa,\r\n:Cena, getdate()", towar,
                  "TowId", id);
    kolejka.Wstaw("insert into Dziennik (Czas, Id1) values (getdate(), :Id1)", wpis);
  }
  kolejka.Utnij(22);  // the last good with its log line
  const Wykonane wykonane = Wykonaj(kolejka);
  ASSERT_EQ(wykonane.size(), 4u);  // 10 and 1 of each
  EXPECT_EQ(wykonane[1].first,
            "insert into Towar (TowId, Nazwa, Cena, Zmiana) values (:TowId_0, :Nazwa_0, :Cena_0, getdate())");
  EXPECT_EQ(wykonane[1].second, "10 n10 0.5 ");
  EXPECT_TRUE(wykonane[0].second.starts_with("0 n0 0.5 1 n1 0.5 "));
  EXPECT_TRUE(wykonane[2].first.starts_with(
      "insert into Dziennik (Czas, Id1) values (getdate(), :Id1_0), (getdate(), :Id1_1), "));
  EXPECT_EQ(wykonane[3].second, "10 ");
}

// What a changed good gets must not draw the codes and stocks of new goods before the goods themselves.
TEST(KolejkaZapisow, WierszeRekorduIdaWSwojejKolejnosci) {
  KolejkaZapisow kolejka;
  const auto zapisz = [&](int id, bool nowy) {
    const Parametr parametry[] = {{"Cena", 0.5}, {"TowId", id}};
    const Parametr kod[] = {{"TowId", id}};
    kolejka.NowyRekord();
    if (nowy)
      kolejka.Wstaw("insert into Towar (Cena) values (:Cena)", std::span(parametry).first(1), "TowId", id);
    else
      kolejka.Popraw("update Towar set Cena = :Cena, Zmiana = getdate() where TowId = :TowId", parametry);
    kolejka.Wstaw("insert into KodDod (TowId) values (:TowId)", kod);
    kolejka.Popraw("update Istw set Stan = :Cena where TowId = :TowId and MagId = 1", parametry);
  };
  for (const int id : {1, 2, 3, 4}) zapisz(id, id % 2 == 0);
  std::string razem;
  for (const auto& [sql, wartosci] : Wykonaj(kolejka)) razem += sql.substr(0, 14) + ' ' + wartosci;
  EXPECT_EQ(razem,
            "update Towar s 0.5 1 update Towar s 0.5 3 insert into Ko 1 insert into Ko 3 "
            "update Istw se 0.5 1 update Istw se 0.5 3 insert into To 2 0.5 insert into To 4 0.5 "
            "insert into Ko 2 insert into Ko 4 update Istw se 0.5 2 update Istw se 0.5 4 ");

  for (int id = 0; id < 10; ++id) zapisz(id, false);
  const Wykonane poprawki = Wykonaj(kolejka);
  EXPECT_TRUE(poprawki.back().first.ends_with("where Istw.TowId = W.TowId and Istw.MagId = 1"));
  EXPECT_TRUE(poprawki.front().first.starts_with(
      "update Towar set Cena = W.Cena, Zmiana = getdate() from (values (cast(:Cena_0 as double precision), "
      "cast(:TowId_0 as bigint)), (:Cena_1, :TowId_1), "));
}

}  // namespace
