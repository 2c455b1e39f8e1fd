#include "bench/pomiar_eksportu.h"

#include <algorithm>
#include <set>
#include <stdexcept>

#include "bench/dane.h"
#include "bench/porownanie.h"

namespace {

constexpr const char* kKonfiguracja = "eksport.cfg";
// Beyond SQLite's pages an export keeps four bytes of every record, its identifier; a growing list holds up
// to three times what it needs while it moves.
constexpr double kBajtowNaRekord = 3 * 4;
// What two runs of one program differ in.
constexpr double kRozrzutPamieciMb = 1;

// A database of so many records and the times of its exports.
class Seria {
 public:
  Seria(const Warsztat& warsztat, const OpisEksportu& opis, int ile)
      : m_warsztat(warsztat), m_opis(opis), m_baza("eksport-" + std::to_string(ile) + ".db"), m_ile(ile) {
    ImportujDo(warsztat, opis.import, m_baza, ile);
    if (opis.uzupelnijBaze) opis.uzupelnijBaze(warsztat.Sciezka(m_baza));
  }

  void Eksportuj() {
    const bool pierwszy = czasy.zorvik.empty();
    zuzycie =
        m_warsztat.Zorvik({m_opis.operacja, "eksport.txt", m_baza, kKonfiguracja, ',', "rekordow", m_ile});
    czasy.zorvik.push_back(zuzycie.sekund);
    czasy.wzorzec.push_back(m_warsztat.Wzorzec(m_opis.operacja, m_baza, "wzorzec.txt"));
    if (pierwszy && !TeSameBajty(m_warsztat.Sciezka("eksport.txt"), m_warsztat.Sciezka("wzorzec.txt")))
      throw std::runtime_error(std::string(m_opis.operacja) + ": pliki eksport.txt i wzorzec.txt różnią się");
  }

  int Ile() const { return m_ile; }

  Para czasy;
  Zuzycie zuzycie{};  // of the last export

 private:
  const Warsztat& m_warsztat;
  const OpisEksportu& m_opis;
  std::string m_baza;
  int m_ile;
};

void DodajPamiec(const Seria& mala, const Seria& duza, const char* czego, Tabela& tabela) {
  double wlasnaMb[2] = {};
  for (int i = 0; const Seria* seria : {&mala, &duza}) {
    const Zuzycie& z = seria->zuzycie;
    wlasnaMb[i] = z.pamiecMb - z.stronyMb;
    tabela.Informacja(
        "pamięć eksportu " + std::to_string(seria->Ile()) + ' ' + czego + " (w tym strony SQLite)",
        Liczba("%.1f MB", z.pamiecMb), Liczba("%.1f MB", z.stronyMb));
    ++i;
  }
  const double wolnoMb = (duza.Ile() - mala.Ile()) * kBajtowNaRekord / 1024 / 1024 + kRozrzutPamieciMb;
  tabela.Dodaj("przyrost poza stronami (część listy identyfikatorów)",
               Liczba("%.1f MB", wlasnaMb[1] - wlasnaMb[0]), "", (wlasnaMb[1] - wlasnaMb[0]) / wolnoMb, 1);
}

}  // namespace

const OpisEksportu& EksportTowarow() {
  static const OpisEksportu opis{.operacja = "eksport-towarow",
                                 .czego = "towarów",
                                 .ustawienia = {{"ParEksportStanow", "1"}},
                                 .import = ImportTowarow(),
                                 .uzupelnijBaze = DopiszDaneTowarow,
                                 .granica = 3};
  return opis;
}

// Every contractor with everything that belongs to it.
const OpisEksportu& EksportKontrahentow() {
  static const OpisEksportu opis{.operacja = "eksport-kontrahentow",
                                 .czego = "kontrahentów",
                                 .ustawienia = {{"ParGdyOdbiorca", "1"},
                                                {"ParGdyDostawca", "1"},
                                                {"ParGdyProducent", "1"},
                                                {"ParGdySklep", "1"},
                                                {"ParGdyStale", "1"},
                                                {"ParGdyTymczasowe", "1"},
                                                {"ParGdyZnamyNIP", "1"},
                                                {"ParGdyZakladPrChr", "1"},
                                                {"ParWysylajOsobyUpr", "1"}},
                                 .import = ImportKontrahentow(),
                                 .uzupelnijBaze = nullptr,
                                 .granica = 3};
  return opis;
}

void ZmierzEksport(const Warsztat& warsztat, const OpisEksportu& opis, int ile, int mala, Tabela& tabela) {
  warsztat.ZapiszKonfiguracje(kKonfiguracja, opis.ustawienia);
  std::vector<Seria> serie;
  for (const int dlugosc : std::set{mala, ile, mala * kWzrost}) serie.emplace_back(warsztat, opis, dlugosc);
  for (int runda = 0; runda < kRund; ++runda)
    for (Seria& seria : serie) seria.Eksportuj();

  const Seria& glowna =
      *std::find_if(serie.begin(), serie.end(), [&](const Seria& s) { return s.Ile() == ile; });
  const Seria& najmniejsza = serie.front();
  const Seria& najwieksza = serie.back();
  tabela.Dodaj("eksport " + std::to_string(ile) + ' ' + opis.czego, glowna.czasy, opis.granica);
  tabela.DodajWzrost(
      "wzrost kosztu rekordu z " + std::to_string(mala) + " do " + std::to_string(najwieksza.Ile()),
      najmniejsza.czasy, najwieksza.czasy);
  DodajPamiec(najmniejsza, najwieksza, opis.czego, tabela);
}
