#include "bench/pomiar_dlugich.h"

#include "bench/dane.h"

namespace {

constexpr const char* kKonfiguracja = "dlugie.cfg";
constexpr double kNajdluzejSekund = 2;

struct Dlugie {
  const char* czego;
  void (*zapiszPlik)(const std::string& sciezka, int ile);
  int ile;
  bool jedenRekord;
};
constexpr Dlugie kDlugie[] = {{"kodów dodatkowych w jednej linii", ZapiszPlikKodow, 9000, true},
                              {"parametrów w jednej linii", ZapiszPlikParametrow, 4000, true},
                              {"nowych asortymentów", ZapiszPlikAsortymentow, 20'000, false}};

double Zmierz(const Warsztat& warsztat, const Dlugie& dlugie, int ile) {
  dlugie.zapiszPlik(warsztat.Sciezka("dlugie.txt"), ile);
  std::vector<double> czasy;
  for (int runda = 0; runda < kRund; ++runda) {
    warsztat.KopiujBaze(Warsztat::kPusta, "dlugie.db");
    czasy.push_back(warsztat
                        .Zorvik({"import-towarow", "dlugie.txt", "dlugie.db", kKonfiguracja, '.', "dodanych",
                                 dlugie.jedenRekord ? 1 : ile})
                        .sekund);
  }
  return Mediana(czasy);
}

}  // namespace

void ZmierzDlugie(const Warsztat& warsztat, int /*ile*/, Tabela& tabela) {
  warsztat.ZapiszKonfiguracje(kKonfiguracja, {{"ParTypPlikuTow", "0"}});
  for (const Dlugie& dlugie : kDlugie) {
    const double krotki = Zmierz(warsztat, dlugie, dlugie.ile / kWzrost);
    const double dlugi = Zmierz(warsztat, dlugie, dlugie.ile);
    tabela.Dodaj(std::to_string(dlugie.ile) + ' ' + dlugie.czego + " (część 2 s)", Sekundy(dlugi), "",
                 dlugi / kNajdluzejSekund, 1);
    tabela.Informacja("(piąta część tego)", Sekundy(krotki), "", Liczba("%.2f", dlugi / krotki));
  }
}
