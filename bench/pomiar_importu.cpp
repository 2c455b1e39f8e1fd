#include "bench/pomiar_importu.h"

#include <cstdlib>
#include <stdexcept>

#include "bench/dane.h"
#include "bench/porownanie.h"
#include "bench/proces.h"

namespace {

constexpr const char* kKonfiguracja = "import.cfg";
constexpr double kPamiecMb = 400;
constexpr double kOczekiwanNaRekord = 0.1;
constexpr double kGranicaCzytania = 1.0 / 3;  // of the import that finds every record identical

// Files and times of one length of file.
class Seria {
 public:
  Seria(const Warsztat& warsztat, const OpisImportu& opis, std::string nazwa, int ile)
      : m_warsztat(warsztat), m_opis(opis), m_nazwa(std::move(nazwa)), m_ile(ile) {
    m_opis.zapiszPlik(m_warsztat.Sciezka(Plik()), ile, false);
  }

  std::string Plik() const { return m_nazwa + ".txt"; }
  std::string PlikZmian() const { return m_nazwa + "-zmieniony.txt"; }
  int Ile() const { return m_ile; }

  Warsztat::Zadanie Zadanie(const std::string& plik, const char* licznik) const {
    return {m_opis.operacja, plik, "import.db", kKonfiguracja, '.', licznik, m_ile};
  }

  void Dodaj() {
    const bool pierwsza = dodawanie.zorvik.empty();
    m_warsztat.KopiujBaze(m_opis.bazaPoczatkowa, "import.db");
    zuzycie = m_warsztat.Zorvik(Zadanie(Plik(), "dodanych"));
    dodawanie.zorvik.push_back(zuzycie.sekund);
    const std::string wiersze = m_nazwa + "-dodane.txt";
    if (pierwsza) m_dziennik = Wypisz(wiersze, Wiersze::Dodane);
    m_warsztat.KopiujBaze(m_opis.bazaPoczatkowa, "wzorzec.db");
    dodawanie.wzorzec.push_back(m_warsztat.Wzorzec("dodaj", "wzorzec.db", wiersze));
    if (pierwsza) Porownaj("Dodawanie", "wzorzec.db");
  }

  // After Dodaj: the databases hold the records.
  void Popraw() {
    const bool pierwsza = poprawianie.zorvik.empty();
    if (pierwsza) m_opis.zapiszPlik(m_warsztat.Sciezka(PlikZmian()), m_ile, true);
    identyczne.push_back(m_warsztat.Zorvik(Zadanie(Plik(), "bezZmian")).sekund);
    poprawianie.zorvik.push_back(m_warsztat.Zorvik(Zadanie(PlikZmian(), "poprawionych")).sekund);
    const std::string wiersze = m_nazwa + "-poprawione.txt";
    if (pierwsza) Wypisz(wiersze, Wiersze::Poprawione);
    if (m_opis.rekordy == Rekordy::Towary) m_warsztat.KopiujBaze("wzorzec.db", "ceny.db");
    poprawianie.wzorzec.push_back(m_warsztat.Wzorzec("popraw", "wzorzec.db", wiersze));
    if (pierwsza) Porownaj("Poprawianie", "wzorzec.db");
    if (m_opis.rekordy != Rekordy::Towary) return;
    ceny.push_back(m_warsztat.Wzorzec("popraw-ceny", "ceny.db", wiersze));
    if (pierwsza) Porownaj("Poprawianie cen", "ceny.db");
  }

  Para dodawanie, poprawianie;
  std::vector<double> identyczne;
  Zuzycie zuzycie{};         // of the last adding
  std::vector<double> ceny;  // the plain program writing the prices of goods alone

 private:
  long long Wypisz(const std::string& wiersze, Wiersze ktore) const {
    return WypiszWiersze(m_warsztat.Sciezka("import.db"), m_warsztat.Sciezka(wiersze), m_opis.rekordy, ktore,
                         m_dziennik);
  }

  void Porownaj(const char* po, const char* wzorzec) const {
    const std::string roznica = PierwszaRoznica(m_warsztat.Sciezka("import.db"), m_warsztat.Sciezka(wzorzec));
    if (!roznica.empty())
      throw std::runtime_error(std::string(po) + ' ' + m_opis.czego +
                               ": zorvik i wzorzec różnią się w tabeli " + roznica);
  }

  const Warsztat& m_warsztat;
  const OpisImportu& m_opis;
  std::string m_nazwa;
  int m_ile;
  long long m_dziennik = 0;  // log lines after adding
};

struct UkladPliku {
  TypPliku typ;
  const char* nazwa;
  const char* plik;
};
constexpr UkladPliku kUklady[] = {{TypPliku::Zorvik, "własny", "wlasny.txt"},
                                  {TypPliku::Rozdzielany, "rozdzielany", "rozdzielany.txt"},
                                  {TypPliku::StalaSzerokosc, "stała szerokość", "szerokosc.txt"},
                                  {TypPliku::DBase, "dBase III", "tabela.dbf"}};

void ZapiszRozdzielanyTowarow(const std::string& sciezka, int ile, bool zmieniony) {
  ZapiszPlikTowarow(sciezka, ile, TypPliku::Rozdzielany, zmieniony);
}

}  // namespace

const OpisImportu& ImportTowarow() {
  static const OpisImportu opis{.rekordy = Rekordy::Towary,
                                .operacja = "import-towarow",
                                .czego = "towarów",
                                .zapiszPlik = ZapiszRozdzielanyTowarow,
                                .bazaPoczatkowa = Warsztat::kZDostawcami,
                                .ustawienia = UstawieniaImportuTowarow(TypPliku::Rozdzielany),
                                .granicaDodawania = 3,
                                .granicaIdentycznych = 1.5,
                                .granicaPoprawiania = 2.5};
  return opis;
}

// A plain program adds a contractor at half the cost of a good (one index, no stock); the limit for those
// found identical, a multiple of it, allows for that.
const OpisImportu& ImportKontrahentow() {
  static const OpisImportu opis{.rekordy = Rekordy::Kontrahenci,
                                .operacja = "import-kontrahentow",
                                .czego = "kontrahentów",
                                .zapiszPlik = ZapiszPlikKontrahentow,
                                .bazaPoczatkowa = Warsztat::kPusta,
                                .ustawienia = UstawieniaImportuKontrahentow(),
                                .granicaDodawania = 4,
                                .granicaIdentycznych = 2,
                                .granicaPoprawiania = 4};
  return opis;
}

double ZmierzImport(const Warsztat& warsztat, const OpisImportu& opis, int ile, Tabela& tabela) {
  warsztat.ZapiszKonfiguracje(kKonfiguracja, opis.ustawienia);
  Seria mala(warsztat, opis, "mala", ile);
  Seria duza(warsztat, opis, "duza", ile * kWzrost);
  for (int runda = 0; runda < kRund; ++runda) {
    duza.Dodaj();
    mala.Dodaj();
    mala.Popraw();
  }

  const std::string n = std::to_string(ile) + ' ' + opis.czego;
  const double identyczne = Mediana(mala.identyczne);
  tabela.Dodaj("dodanie " + n, mala.dodawanie, opis.granicaDodawania);
  tabela.Dodaj(n + " identycznych (wzorzec: dodanie)", Sekundy(identyczne), Sekundy(mala.dodawanie.Wzorzec()),
               identyczne / mala.dodawanie.Wzorzec(), opis.granicaIdentycznych);
  tabela.Dodaj("poprawienie " + n, mala.poprawianie, opis.granicaPoprawiania);
  if (!mala.ceny.empty()) {
    const double poprawianie = mala.poprawianie.Zorvik(), ceny = Mediana(mala.ceny);
    tabela.Informacja("(wzorzec zapisuje tylko ceny)", Sekundy(poprawianie), Sekundy(ceny),
                      Liczba("%.2f", poprawianie / ceny));
  }
  tabela.DodajWzrost("wzrost kosztu rekordu do " + std::to_string(duza.Ile()), mala.dodawanie,
                     duza.dodawanie);

  const Zuzycie& zuzycie = duza.zuzycie;
  tabela.Dodaj("pamięć przy " + std::to_string(duza.Ile()) + " (część 400 MB)",
               Liczba("%.0f MB", zuzycie.pamiecMb), "", zuzycie.pamiecMb / kPamiecMb, 1);
  tabela.Dodaj("oczekiwania na dysk (fsync) na rekord", std::to_string(zuzycie.oczekiwan), "",
               static_cast<double>(zuzycie.oczekiwan) / duza.Ile(), kOczekiwanNaRekord);
  return identyczne;
}

void ZmierzCzytanie(const Warsztat& warsztat, int ile, double identyczne, Tabela& tabela) {
  for (const UkladPliku& uklad : kUklady) {
    ZapiszPlikTowarow(warsztat.Sciezka(uklad.plik), ile, uklad.typ, false);
    std::vector<double> czasy;
    for (int i = 0; i < kRund; ++i) {
      const Przebieg przebieg = Uruchom({warsztat.Program("czytanie"), warsztat.Sciezka(uklad.plik),
                                         std::to_string(static_cast<int>(uklad.typ))});
      if (std::atoi(przebieg.wyjscie.c_str()) != ile)
        throw std::runtime_error(std::string("Czytanie ") + uklad.plik + ": " + przebieg.wyjscie);
      czasy.push_back(przebieg.sekund);
    }
    const double czas = Mediana(czasy);
    tabela.Dodaj(std::string("samo czytanie, układ ") + uklad.nazwa + " (do identycznych)", Sekundy(czas), "",
                 czas / identyczne, kGranicaCzytania);
  }
}

void ImportujDo(const Warsztat& warsztat, const OpisImportu& opis, const std::string& baza, int ile) {
  warsztat.ZapiszKonfiguracje(kKonfiguracja, opis.ustawienia);
  opis.zapiszPlik(warsztat.Sciezka("import.txt"), ile, false);
  warsztat.KopiujBaze(opis.bazaPoczatkowa, baza);
  warsztat.Zorvik({opis.operacja, "import.txt", baza, kKonfiguracja, '.', "dodanych", ile});
}
