#include "bench/pomiar_okna.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "bench/pomiar_importu.h"
#include "bench/porownanie.h"
#include "bench/proces.h"

namespace {

constexpr int kRundOkna = 5;
constexpr double kGranica = 1.15;  // of the command line
constexpr double kBlokadaMs = 100;

constexpr const char* kBazaOkna = "okno.db";
constexpr const char* kBazaPolecenia = "import.db";

// What an import finds, and by what the two programs tell that they did it.
struct Przypadek {
  const char* nazwa;
  bool pustaBaza;
  int razy;  // so many times as many records
  const char* konfiguracja;
  const char* licznik;  // of the command line's result
  const char* linia;    // of the progress window, before the number
};
// A record that is skipped takes so little that with fewer of them one would measure how the two programs
// start.
constexpr Przypadek kPrzypadki[] = {
    {"dodanie", true, 1, "okno.cfg", "dodanych", "Ilość dodanych towarów "},
    {"identyczne", false, 1, "okno.cfg", "bezZmian", "Ilość pominiętych towarów "},
    {"pominięcie każdego", true, 10, "okno-pomija.cfg", "pominietych", "Ilość pominiętych towarów "},
};

double Ms(const QJsonObject& wynik, QStringView czego) {
  return wynik.value(czego).toObject().value(u"ms").toDouble();
}

void DodajBlokade(const char* nazwa, double ms, Tabela& tabela) {
  tabela.Dodaj(nazwa, Liczba("%.0f ms", ms), "", ms / kBlokadaMs, 1);
}

// One kind of import by both programs.
class Seria {
 public:
  Seria(const Warsztat& warsztat, const Przypadek& przypadek, int ile)
      : m_warsztat(warsztat),
        m_przypadek(przypadek),
        m_ile(ile),
        m_plik("towary-" + std::to_string(ile) + ".txt") {
    ImportTowarow().zapiszPlik(warsztat.Sciezka(m_plik), ile, false);
  }

  std::string Nazwa() const {
    return std::string("okno: ") + m_przypadek.nazwa + ", " + std::to_string(m_ile) +
           " towarów (wzorzec: zorvik-cli)";
  }

  // The two take turns in going first.
  void Importuj(bool oknoPierwsze) {
    const bool pierwsza = czasy.zorvik.empty();
    if (oknoPierwsze) Okno();
    Polecenie();
    if (!oknoPierwsze) Okno();
    if (pierwsza) Porownaj();
  }

  // After an import that skips: looks at the list of the skipped records, not timed.
  void ObejrzyListe(Tabela& tabela) const {
    const QJsonObject wynik = UruchomOkno({"lista"}).wynik;
    DodajBlokade("blokada przy otwarciu listy pominiętych", Ms(wynik, u"lista"), tabela);
    DodajBlokade("blokada przy jej sortowaniu", Ms(wynik, u"sortowanie"), tabela);
  }

  // The window and, as the plain program, the command line.
  Para czasy;
  Para procesora;  // the same by the clock of the processor
  std::vector<double> polecenia, blokady;

 private:
  std::string Pominiete(const char* folder) const { return m_warsztat.Sciezka(folder) + "/POMINIETE.TXT"; }

  void Polecenie() {
    if (m_przypadek.pustaBaza) m_warsztat.KopiujBaze(ImportTowarow().bazaPoczatkowa, kBazaPolecenia);
    const Zuzycie zuzycie = m_warsztat.Zorvik({"import-towarow", m_plik, kBazaPolecenia,
                                               m_przypadek.konfiguracja, '.', m_przypadek.licznik, m_ile});
    czasy.wzorzec.push_back(zuzycie.sekund);
    procesora.wzorzec.push_back(zuzycie.procesora);
  }

  struct PrzebiegOkna {
    Przebieg program;
    QJsonObject wynik;
  };
  PrzebiegOkna UruchomOkno(const std::vector<std::string>& opcje = {}) const {
    if (m_przypadek.pustaBaza) m_warsztat.KopiujBaze(ImportTowarow().bazaPoczatkowa, kBazaOkna);
    const std::string folder = m_warsztat.Sciezka("okno");
    std::vector<std::string> polecenie = {m_warsztat.Program("import-w-oknie"), m_warsztat.Sciezka(m_plik),
                                          m_warsztat.Sciezka(kBazaOkna),
                                          m_warsztat.Sciezka(m_przypadek.konfiguracja), folder};
    polecenie.insert(polecenie.end(), opcje.begin(), opcje.end());
    const Przebieg przebieg =
        Uruchom(polecenie, {"QT_QPA_PLATFORM=offscreen", "LC_ALL=C.UTF-8", "XDG_CONFIG_HOME=" + folder});
    const auto wynik = QJsonDocument::fromJson(QByteArray::fromStdString(przebieg.wyjscie)).object();
    const QString linia = QString::fromUtf8(m_przypadek.linia) + QString::number(m_ile);
    if (!wynik.value(u"linie").toArray().contains(linia))
      throw std::runtime_error("Okno nie doszło do: " + linia.toStdString() + '\n' + przebieg.wyjscie);
    return {przebieg, wynik};
  }

  void Okno() {
    const auto [program, wynik] = UruchomOkno();
    czasy.zorvik.push_back(program.sekund);
    procesora.zorvik.push_back(program.procesora);
    polecenia.push_back(wynik.value(u"polecenieS").toDouble());
    blokady.push_back(Ms(wynik, u"przebieg"));
  }

  void Porownaj() const {
    const std::string roznica =
        PierwszaRoznica(m_warsztat.Sciezka(kBazaOkna), m_warsztat.Sciezka(kBazaPolecenia));
    if (!roznica.empty())
      throw std::runtime_error(std::string(m_przypadek.nazwa) + ": okno i polecenie różnią się w tabeli " +
                               roznica);
    if (!TeSameBajty(Pominiete("okno"), Pominiete(".")))
      throw std::runtime_error(std::string(m_przypadek.nazwa) + ": pliki pominiętych różnią się");
  }

  const Warsztat& m_warsztat;
  const Przypadek& m_przypadek;
  int m_ile;
  std::string m_plik;
};

double Najwiecej(const std::vector<double>& liczby) {
  return *std::max_element(liczby.begin(), liczby.end());
}

}  // namespace

void ZmierzOkno(const Warsztat& warsztat, int ile, Tabela& tabela) {
  Ustawienia ustawienia = ImportTowarow().ustawienia;
  warsztat.ZapiszKonfiguracje("okno.cfg", ustawienia);
  // No code of the file is as long as this.
  ustawienia.insert(ustawienia.end(), {{"ParMinDlKodu", "14"}, {"ParMaxDlKodu", "20"}});
  warsztat.ZapiszKonfiguracje("okno-pomija.cfg", ustawienia);
  std::filesystem::create_directories(warsztat.Sciezka("okno"));

  std::vector<Seria> serie;
  for (const Przypadek& przypadek : kPrzypadki) serie.emplace_back(warsztat, przypadek, ile * przypadek.razy);
  for (int runda = 0; runda < kRundOkna; ++runda)
    for (Seria& seria : serie) seria.Importuj(runda % 2 == 0);

  for (const Seria& seria : serie) {
    // The run, without the start of the window; the command line's start is so short that it is left in.
    const double przebieg = Mediana(seria.polecenia);
    tabela.Dodaj(seria.Nazwa(), Sekundy(przebieg), Sekundy(seria.czasy.Wzorzec()),
                 przebieg / seria.czasy.Wzorzec(), kGranica);
    tabela.Informacja("(całe programy)", Sekundy(seria.czasy.Zorvik()), Sekundy(seria.czasy.Wzorzec()),
                      Liczba("%.2f", seria.czasy.Stosunek()));
    tabela.Informacja("(czas procesora)", Sekundy(seria.procesora.Zorvik()),
                      Sekundy(seria.procesora.Wzorzec()), Liczba("%.2f", seria.procesora.Stosunek()));
    DodajBlokade("najdłuższa blokada okna (część 100 ms)", Najwiecej(seria.blokady), tabela);
  }
  Seria(warsztat, kPrzypadki[2], ile).ObejrzyListe(tabela);
}
