#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "bench/dane.h"
#include "bench/porownanie.h"
#include "bench/proces.h"
#include "bench/uklad.h"

// pomiar N: how fast the import is beside a plain program that leaves the same rows (wzorzec), how the cost
// of a record grows, how much memory and how many waits for the disk it takes, and what reading alone costs.
// Every time is the median of interleaved runs of whole programs in one session. Exit status 1 when a limit
// does not hold.

namespace fs = std::filesystem;

namespace {

constexpr int kRund = 3;
constexpr int kWzrost = 5;  // the growth is measured on a file so many times as long
constexpr long kPamiecKb = 400L * 1024;

constexpr double kGranicaDodawania = 3;
constexpr double kGranicaIdentycznych = 1.5;  // of the plain program's adding
constexpr double kGranicaPoprawiania = 3;
constexpr double kGranicaWzrostu = 1.3;
constexpr double kGranicaCzytania = 1.0 / 3;  // of the import that finds every record identical

struct UkladPliku {
  TypPliku typ;
  const char* nazwa;
  const char* plik;
};
constexpr UkladPliku kUklady[] = {{TypPliku::Zorvik, "własny", "wlasny.txt"},
                                  {TypPliku::Rozdzielany, "rozdzielany", "rozdzielany.txt"},
                                  {TypPliku::StalaSzerokosc, "stała szerokość", "szerokosc.txt"},
                                  {TypPliku::DBase, "dBase III", "tabela.dbf"}};

double Mediana(std::vector<double> czasy) {
  std::sort(czasy.begin(), czasy.end());
  return czasy.at(czasy.size() / 2);
}

// Times of the two programs for one kind of work.
struct Para {
  std::vector<double> import, wzorzec;
  double Import() const { return Mediana(import); }
  double Wzorzec() const { return Mediana(wzorzec); }
  double Stosunek() const { return Import() / Wzorzec(); }
};

class Tabela {
 public:
  Tabela() {
    Wiersz({"pomiar", "import", "wzorzec", "stosunek", "granica", ""});
    std::puts(std::string(104, '-').c_str());
  }
  void Dodaj(const std::string& nazwa, const std::string& import, const std::string& wzorzec, double stosunek,
             double granica) {
    const bool dobrze = stosunek <= granica;
    m_dobrze = m_dobrze && dobrze;
    Wiersz(
        {nazwa, import, wzorzec, Liczba("%.2f", stosunek), Liczba("%.2f", granica), dobrze ? "tak" : "NIE"});
  }
  // Shown beside the measurements that have a limit.
  void Informacja(const std::string& nazwa, const std::string& import, const std::string& wzorzec,
                  double stosunek) {
    Wiersz({nazwa, import, wzorzec, Liczba("%.2f", stosunek), "", ""});
  }
  bool Dobrze() const { return m_dobrze; }

  static std::string Liczba(const char* format, double liczba) {
    std::array<char, 40> bufor{};
    std::snprintf(bufor.data(), bufor.size(), format, liczba);
    return bufor.data();
  }

 private:
  static void Wiersz(const std::array<std::string, 6>& komorki) {
    constexpr std::array<std::size_t, 6> kSzerokosci = {56, 12, 12, 10, 9, 5};
    std::string wiersz;
    for (std::size_t i = 0; i < komorki.size(); ++i) {
      const std::string& k = komorki[i];
      const auto znakow = static_cast<std::size_t>(std::count_if(
          k.begin(), k.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xc0) != 0x80; }));
      const std::string odstep(kSzerokosci[i] > znakow ? kSzerokosci[i] - znakow : 1, ' ');
      wiersz += i == 0 ? k + odstep : odstep + k;
    }
    std::puts(wiersz.c_str());
    std::fflush(stdout);
  }

  bool m_dobrze = true;
};

std::string Sekundy(double sekund) {
  return Tabela::Liczba("%.2f s", sekund);
}

class Pomiar {
 public:
  Pomiar(fs::path programy, int ile)
      : m_programy(std::move(programy)), m_folder(m_programy.parent_path() / "dane"), m_ile(ile) {}

  bool Wykonaj();

 private:
  // Files and times of one length of file.
  struct Seria {
    int ile;
    std::string nazwa;
    Para dodawanie = {};
    long pamiecKb = 0;
  };

  std::string Sciezka(const std::string& nazwa) const { return (m_folder / nazwa).string(); }
  std::string Program(const char* nazwa) const { return (m_programy / nazwa).string(); }
  void PrzygotujDane(const Seria& seria) const;
  void NowaBaza(const std::string& nazwa) const;
  Przebieg Import(const std::string& plik, const std::string& baza, const char* licznik, int ile,
                  const std::vector<std::string>& srodowisko = {}) const;
  double Wzorzec(const std::string& baza, const std::string& wiersze, const char* tryb) const;
  void Porownaj(const char* po, const char* wzorzec) const;
  void Runda(Seria& seria, bool pierwsza);
  void RundaPoprawiania(const Seria& seria, bool pierwsza);
  long LiczFsync(const Seria& seria) const;
  double Czytanie(const UkladPliku& uklad) const;

  fs::path m_programy, m_folder;
  int m_ile;
  long long m_dziennik = 0;  // log lines after adding
  std::vector<double> m_identyczne, m_poprawianieCen;
  Para m_poprawianie;
};

void Pomiar::PrzygotujDane(const Seria& seria) const {
  ZapiszPlikTowarow(Sciezka(seria.nazwa + ".txt"), seria.ile, TypPliku::Rozdzielany, false);
  ZapiszPlikTowarow(Sciezka(seria.nazwa + "-ceny.txt"), seria.ile, TypPliku::Rozdzielany, true);
}

void Pomiar::NowaBaza(const std::string& nazwa) const {
  for (const char* koncowka : {"", "-wal", "-shm"}) fs::remove(Sciezka(nazwa + koncowka));
  fs::copy_file(Sciezka("pusta.db"), Sciezka(nazwa));
}

// An import that did not do what is measured would measure nothing: `licznik` must have counted every record.
Przebieg Pomiar::Import(const std::string& plik, const std::string& baza, const char* licznik, int ile,
                        const std::vector<std::string>& srodowisko) const {
  Przebieg przebieg =
      Uruchom({Program("zorvik-cli"), "import-towarow", Sciezka(plik), "--baza", Sciezka(baza),
               "--konfiguracja", Sciezka("import.cfg"), "--pominiete", m_folder.string(), "--json"},
              srodowisko);
  const auto wynik = QJsonDocument::fromJson(QByteArray::fromStdString(przebieg.wyjscie)).object();
  const int policzono = wynik.value(QLatin1String(licznik)).toInt();
  if (policzono != ile)
    throw std::runtime_error("Import " + plik + ": " + licznik + " = " + std::to_string(policzono) +
                             ", powinno być " + std::to_string(ile));
  return przebieg;
}

double Pomiar::Wzorzec(const std::string& baza, const std::string& wiersze, const char* tryb) const {
  return Uruchom({Program("wzorzec"), Sciezka(baza), Sciezka(wiersze), tryb}).sekund;
}

void Pomiar::Porownaj(const char* po, const char* wzorzec) const {
  const std::string roznica = PierwszaRoznica(Sciezka("import.db"), Sciezka(wzorzec));
  if (!roznica.empty())
    throw std::runtime_error(std::string(po) + ": import i wzorzec różnią się w tabeli " + roznica);
}

void Pomiar::Runda(Seria& seria, bool pierwsza) {
  const std::string wiersze = seria.nazwa + "-dodane.txt";
  NowaBaza("import.db");
  const Przebieg przebieg = Import(seria.nazwa + ".txt", "import.db", "dodanych", seria.ile);
  seria.dodawanie.import.push_back(przebieg.sekund);
  seria.pamiecKb = std::max(seria.pamiecKb, przebieg.pamiecKb);
  if (pierwsza) m_dziennik = WypiszWiersze(Sciezka("import.db"), Sciezka(wiersze), Wiersze::Dodane, 0);
  NowaBaza("wzorzec.db");
  seria.dodawanie.wzorzec.push_back(Wzorzec("wzorzec.db", wiersze, "dodaj"));
  if (pierwsza) Porownaj("Dodawanie", "wzorzec.db");
}

void Pomiar::RundaPoprawiania(const Seria& seria, bool pierwsza) {
  const std::string wiersze = seria.nazwa + "-poprawione.txt";
  m_identyczne.push_back(Import(seria.nazwa + ".txt", "import.db", "bezZmian", seria.ile).sekund);
  m_poprawianie.import.push_back(
      Import(seria.nazwa + "-ceny.txt", "import.db", "poprawionych", seria.ile).sekund);
  if (pierwsza) WypiszWiersze(Sciezka("import.db"), Sciezka(wiersze), Wiersze::Poprawione, m_dziennik);
  fs::copy_file(Sciezka("wzorzec.db"), Sciezka("ceny.db"), fs::copy_options::overwrite_existing);
  m_poprawianie.wzorzec.push_back(Wzorzec("wzorzec.db", wiersze, "popraw"));
  m_poprawianieCen.push_back(Wzorzec("ceny.db", wiersze, "popraw-ceny"));
  if (pierwsza) {
    Porownaj("Poprawianie", "wzorzec.db");
    Porownaj("Poprawianie cen", "ceny.db");
  }
}

long Pomiar::LiczFsync(const Seria& seria) const {
  NowaBaza("import.db");
  Import(seria.nazwa + ".txt", "import.db", "dodanych", seria.ile,
         {"LD_PRELOAD=" + Program("libliczfsync.so"), "LICZFSYNC_PLIK=" + Sciezka("fsync.txt")});
  long ile = -1;
  std::ifstream(Sciezka("fsync.txt")) >> ile;
  if (ile < 1) throw std::runtime_error("Licznik fsync nie zadziałał");
  return ile;
}

double Pomiar::Czytanie(const UkladPliku& uklad) const {
  std::vector<double> czasy;
  for (int i = 0; i < kRund; ++i) {
    const Przebieg przebieg =
        Uruchom({Program("czytanie"), Sciezka(uklad.plik), std::to_string(static_cast<int>(uklad.typ))});
    if (std::atoi(przebieg.wyjscie.c_str()) != m_ile)
      throw std::runtime_error(std::string("Czytanie ") + uklad.plik + ": " + przebieg.wyjscie);
    czasy.push_back(przebieg.sekund);
  }
  return Mediana(czasy);
}

bool Pomiar::Wykonaj() {
  Seria mala{m_ile, "mala"};
  Seria duza{m_ile * kWzrost, "duza"};
  fs::remove_all(m_folder);
  fs::create_directories(m_folder);
  for (const Seria& seria : {mala, duza}) PrzygotujDane(seria);
  for (const UkladPliku& uklad : kUklady) ZapiszPlikTowarow(Sciezka(uklad.plik), m_ile, uklad.typ, false);
  std::ofstream(Sciezka("import.cfg"), std::ios::binary) << PlikKonfiguracji(TypPliku::Rozdzielany);
  Uruchom({Program("zorvik-cli"), "nowa-baza", Sciezka("pusta.db")});

  for (int runda = 0; runda < kRund; ++runda) {
    Runda(duza, runda == 0);
    Runda(mala, runda == 0);
    RundaPoprawiania(mala, runda == 0);
  }

  Tabela tabela;
  const std::string n = std::to_string(m_ile);
  const Para& dodawanie = mala.dodawanie;
  const double identyczne = Mediana(m_identyczne);
  tabela.Dodaj("dodanie " + n, Sekundy(dodawanie.Import()), Sekundy(dodawanie.Wzorzec()),
               dodawanie.Stosunek(), kGranicaDodawania);
  tabela.Dodaj(n + " identycznych (wzorzec: dodanie)", Sekundy(identyczne), Sekundy(dodawanie.Wzorzec()),
               identyczne / dodawanie.Wzorzec(), kGranicaIdentycznych);
  tabela.Dodaj("poprawienie " + n, Sekundy(m_poprawianie.Import()), Sekundy(m_poprawianie.Wzorzec()),
               m_poprawianie.Stosunek(), kGranicaPoprawiania);
  const double ceny = Mediana(m_poprawianieCen);
  tabela.Informacja("  (wzorzec zapisuje tylko ceny)", Sekundy(m_poprawianie.Import()), Sekundy(ceny),
                    m_poprawianie.Import() / ceny);

  const auto wzrost = [](double duzej, double malej) { return duzej / kWzrost / malej; };
  const double wzrostImportu = wzrost(duza.dodawanie.Import(), dodawanie.Import());
  const double wzrostWzorca = wzrost(duza.dodawanie.Wzorzec(), dodawanie.Wzorzec());
  tabela.Dodaj("wzrost kosztu rekordu do " + std::to_string(duza.ile),
               Tabela::Liczba("x %.2f", wzrostImportu), Tabela::Liczba("x %.2f", wzrostWzorca),
               wzrostImportu / wzrostWzorca, kGranicaWzrostu);
  for (const UkladPliku& uklad : kUklady) {
    const double czas = Czytanie(uklad);
    tabela.Dodaj(std::string("samo czytanie, układ ") + uklad.nazwa + " (do identycznych)", Sekundy(czas), "",
                 czas / identyczne, kGranicaCzytania);
  }
  tabela.Dodaj("pamięć przy " + std::to_string(duza.ile) + " (część 400 MB)",
               Tabela::Liczba("%.0f MB", static_cast<double>(duza.pamiecKb) / 1024), "",
               static_cast<double>(duza.pamiecKb) / kPamiecKb, 1);
  const long fsync = LiczFsync(mala);
  tabela.Dodaj("oczekiwania na dysk (fsync) na rekord", std::to_string(fsync), "",
               static_cast<double>(fsync) / m_ile, 0.1);
  return tabela.Dobrze();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const int ile = argc > 1 ? std::atoi(argv[1]) : 100'000;
    if (ile < 1) throw std::runtime_error("Użycie: pomiar N");
    return Pomiar(fs::canonical(argv[0]).parent_path(), ile).Wykonaj() ? 0 : 1;
  } catch (const std::exception& blad) {
    std::fprintf(stderr, "pomiar: %s\n", blad.what());
    return 2;
  }
}
