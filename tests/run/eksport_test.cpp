#include "exchange/struktura_pliku.h"
#include "model/kontekst.h"
#include "model/parametry_systemu.h"
#include "run/operator.h"
#include "run/przebieg_eksportu.h"
#include "tests/wspolne/plik_eksportu.h"

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr OpisPrzebiegu kOpis{{}, u"zamykanie", u"Zakończono", {}};
constexpr OpisEksportu kOpisEksportu{{}, u"eksport", "Proba", "Id"};

// Every record is its identifier; the operator stops behind zero.
class EksportProbny final : public PrzebiegEksportu {
 public:
  EksportProbny(const ParametryPrzebiegu& parametry, std::atomic<bool>* stop)
      : PrzebiegEksportu(parametry, kOpis, kOpisEksportu), m_stop(stop) {}
  std::pair<int, int> ostatniaStrona;

 protected:
  void PrzedRekordami() override {}
  void Naglowek(ZapisRekordow& zapis) override { zapis.Pole(u"Id"); }
  void Strona(int od, int doId) override { ostatniaStrona = {od, doId}; }
  bool Wczytaj(int id) override {
    if (m_stop && id == 0) *m_stop = true;
    m_id = id;
    return true;
  }
  void Rekord(WierszEksportu& pola) override { pola.Calkowita(m_id); }
  QString NazwaRekordu() const override { return {}; }
  void PoRekordach() override {}

 private:
  std::atomic<bool>* const m_stop;
  int m_id = 0;
};

// Identifiers are read by 50 000, records by pages of 10 000: each record once, in their order.
TEST(PrzebiegEksportuTest, WieleBlokowIdentyfikatorow) {
  BazaTestowa b;
  QTemporaryDir folder;
  ParametrySystemu parametry;
  KontekstSesji sesja{b.baza, parametry};
  const StrukturaPliku struktura(RodzajRekordu::Towary);
  PostepTestowy postep;
  OperatorNieobecny nikt(postep);
  std::atomic<bool> stop = false;
  b.baza.ExecSQL("create table Proba (Id integer primary key)");
  b.baza.ExecSQL(
      "with recursive c(n) as (select -3 union all select n + 1 from c where n < 99999)"
      " insert into Proba select n * 2 from c");
  const struct {
    bool przerwany;
    const char* sql;
    std::size_t rekordow;
    std::pair<int, int> ostatniaStrona;
  } przypadki[] = {{false, "select 1", 100'003, {199'994, 199'998}},
                   {true, "select 1", 4, {-6, 19'992}},
                   {false, "delete from Proba where Id >= 99994", 50'000, {79'994, 99'992}}};
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.rekordow);
    b.baza.ExecSQL(p.sql);
    EksportProbny eksport({sesja, struktura, folder.filePath(u"plik"_s), postep, nikt, stop},
                          p.przerwany ? &stop : nullptr);
    EXPECT_EQ(eksport.Wykonaj().koniec,
              p.przerwany ? KoniecPrzebiegu::Przerwano : KoniecPrzebiegu::Zakonczono);
    EXPECT_EQ(postep.linie.contains(u"Aktualizacja przerwana przez operatora"_s), p.przerwany);
    EXPECT_EQ(eksport.ostatniaStrona, p.ostatniaStrona);
    const auto linie = LinieEksportu(folder.filePath(u"plik"_s));
    ASSERT_EQ(linie.size(), p.rekordow + 1);
    for (std::size_t i = 1; i <= p.rekordow; ++i) ASSERT_EQ(linie[i][0].toInt(), static_cast<int>(2 * i) - 8);
    postep = {};
    stop = false;
  }
}

}  // namespace
