#include <gtest/gtest.h>

#include "platform/baza/kolejka_wstawien.h"

namespace {

using namespace Qt::Literals::StringLiterals;

TEST(KolejkaWstawien, WierszeJednegoTekstuIdaRazem) {
  KolejkaWstawien kolejka;
  const auto dodaj = [&](int id) {
    const Parametr towar[] = {{"Nazwa", u"n%1"_s.arg(id)}, {"Cena", 0.5}};
    const Parametr wpis[] = {{"Id1", id}};
    kolejka.Dodaj("insert into Towar (Nazwa, Cena, Zmiana)\r\nselect :Nazwa,\r\n:Cena, getdate()", towar,
                  "TowId", id);
    kolejka.Dodaj("insert into Dziennik (Czas, Id1) values (getdate(), :Id1)", wpis);
  };
  for (int id = 0; id < 12; ++id) dodaj(id);
  std::vector<std::pair<std::string, std::string>> wykonane;
  const auto wykonaj = [&](std::string_view sql, std::span<const Parametr> parametry) {
    std::string wartosci;
    for (const Parametr& p : parametry) {
      EXPECT_NE(sql.find(':' + std::string(p.nazwa)), std::string_view::npos);
      wartosci += p.wartosc.AsString().toStdString() + ' ';
    }
    wykonane.emplace_back(sql, wartosci);
  };
  kolejka.Utnij(22);  // the last good with its log line
  kolejka.Wykonaj(22, wykonaj);
  EXPECT_EQ(kolejka.Ilosc(), 0u);
  ASSERT_EQ(wykonane.size(), 4u);  // 10 and 1 of each
  EXPECT_EQ(wykonane[1].first,
            "insert into Towar (TowId, Nazwa, Cena, Zmiana) values (:TowId_0, :Nazwa_0, :Cena_0, getdate())");
  EXPECT_EQ(wykonane[1].second, "10 n10 0.5 ");
  EXPECT_TRUE(wykonane[0].second.starts_with("0 n0 0.5 1 n1 0.5 "));
  EXPECT_TRUE(wykonane[2].first.starts_with(
      "insert into Dziennik (Czas, Id1) values (getdate(), :Id1_0), (getdate(), :Id1_1), "));
  EXPECT_EQ(wykonane[3].second, "10 ");
}

}  // namespace
