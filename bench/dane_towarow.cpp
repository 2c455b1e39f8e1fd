#include <array>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

#include "bench/dane.h"
#include "bench/uklad.h"
#include "platform/windows1250.h"

namespace {

constexpr const char* kRzeczowniki[] = {
    "Jogurt",  "Kefir",    "Serek",   "Twaróg",  "Deser",    "Napój",      "Sok",     "Nektar",
    "Syrop",   "Dżem",     "Baton",   "Wafelek", "Cukierek", "Lizak",      "Keks",    "Chleb",
    "Rogal",   "Paluszki", "Chrupki", "Budyń",   "Kisiel",   "Ketchup",    "Majonez", "Sos",
    "Pasztet", "Gulasz",   "Bigos",   "Makaron", "Groszek",  "Koncentrat", "Szampon", "Żel",
    "Krem",    "Balsam",   "Płyn",    "Proszek", "Mydło",    "Olejek",     "Świeca",  "Długopis"};
constexpr const char* kPrzymiotniki[] = {
    "truskawkowy", "malinowy",  "wiśniowy",  "jagodowy",    "cytrynowy", "miętowy",    "waniliowy",
    "kakaowy",     "orzechowy", "śliwkowy",  "gruszkowy",   "jabłkowy",  "żurawinowy", "łagodny",
    "pikantny",    "domowy",    "wiejski",   "staropolski", "góralski",  "śląski",     "mazurski",
    "kaszubski",   "leśny",     "ogrodowy",  "świąteczny",  "codzienny", "podwójny",   "rodzinny",
    "ziołowy",     "czosnkowy", "miodowy",   "kokosowy",    "różany",    "rumiankowy", "lawendowy",
    "pomidorowy",  "grzybowy",  "koperkowy", "imbirowy",    "lekki"};
constexpr const char* kMarki[] = {
    "Łąka",   "Zdrój",    "Kłos",     "Źródło", "Pralinka",   "Spiżarnia", "Młyn",     "Świt",
    "Błysk",  "Rumianek", "Jurata",   "Tatra",  "Bieszczady", "Wisła",     "Odra",     "Narew",
    "Żubr",   "Bocian",   "Jaskółka", "Sowa",   "Dąb",        "Klon",      "Lipa",     "Wrzos",
    "Jantar", "Perła",    "Korona",   "Zamek",  "Rynek",      "Ratusz",    "Babcia",   "Dziadek",
    "Ciotka", "Sąsiad",   "Gazda",    "Flisak", "Kowal",      "Bartnik",   "Ogrodnik", "Rybak"};
constexpr const char* kWielkosci[] = {"50 g",  "80 g",   "100 g", "125 g", "150 g", "180 g",  "200 g",
                                      "250 g", "300 g",  "400 g", "500 g", "1 kg",  "0,2 l",  "0,3 l",
                                      "0,5 l", "0,75 l", "1 l",   "1,5 l", "2 l",   "3 szt.", "6 szt."};
constexpr const char* kDzialy[] = {"Nabiał",    "Napoje",    "Słodycze", "Pieczywo", "Przetwory",
                                   "Przyprawy", "Kosmetyki", "Chemia",   "Mrożonki", "Zdrowa żywność"};
constexpr const char* kPolki[] = {"regał A",  "regał B", "regał C",    "regał D",     "chłodnia",
                                  "lada",     "wyspa",   "przykasowe", "sezonowe",    "promocja",
                                  "hurt",     "import",  "regionalne", "ekologiczne", "bez cukru",
                                  "rodzinne", "premium", "tanie",      "nowości",     "wyprzedaż"};
constexpr std::string_view kJednostki[] = {"szt.", "kg", "l", "opak", "kpl.", "m", "para", "g"};

constexpr const char* kWybory[] = {"mały", "średni", "duży", "rodzinny"};
constexpr int kKategorii = 20;

struct Stawka {
  std::string_view opis;
  std::string_view setne;  // the own layout writes the rate itself
};
constexpr Stawka kStawki[] = {{"23%", "2300"}, {"8%", "800"}, {"5%", "500"}, {"ZW", "-1"}};

constexpr std::uint64_t kNazw =
    std::size(kRzeczowniki) * std::size(kPrzymiotniki) * std::size(kMarki) * std::size(kWielkosci);
// Has no divisor in common with kNazw: steps through all names before one repeats.
constexpr std::uint64_t kKrok = 617'411;
static_assert(std::size(kDzialy) * std::size(kPolki) == 200 && std::size(kJednostki) == 8);

std::string Ean13(std::uint64_t dwanascieCyfr) {
  std::string kod = std::to_string(dwanascieCyfr);
  int suma = 0;
  for (std::size_t i = 0; i < kod.size(); ++i) suma += (kod[i] - '0') * (i % 2 == 0 ? 1 : 3);
  kod += static_cast<char>('0' + (10 - suma % 10) % 10);
  return kod;
}

std::string Nazwa(std::uint64_t i) {
  std::uint64_t numer = i * kKrok % kNazw;
  const auto wybierz = [&numer](const auto& slowa) {
    const char* slowo = slowa[numer % std::size(slowa)];
    numer /= std::size(slowa);
    return std::string(slowo);
  };
  const std::string rzeczownik = wybierz(kRzeczowniki), przymiotnik = wybierz(kPrzymiotniki),
                    marka = wybierz(kMarki);
  return rzeczownik + ' ' + przymiotnik + ' ' + marka + ' ' + wybierz(kWielkosci);
}

std::string Cena(std::uint64_t grosze) {
  std::array<char, 24> bufor;
  std::snprintf(bufor.data(), bufor.size(), "%llu.%02llu", static_cast<unsigned long long>(grosze / 100),
                static_cast<unsigned long long>(grosze % 100));
  return bufor.data();
}

// Three parameters, which other categories share: a list between two ranges.
std::string KategoriaIParametry(std::uint64_t i) {
  const std::uint64_t kategoria = i % kKategorii;
  const std::string a = std::to_string(kategoria % 3), b = std::to_string(kategoria % 4),
                    c = std::to_string(kategoria % 7), zakres = std::to_string(i / 3 % 40);
  std::string blok = "Półka działu " + std::to_string(kategoria) + ": Głębokość " + a + '(' + zakres +
                     ":-5..40);Wielkość " + b + '(' + std::to_string(1 + i / 7 % std::size(kWybory)) + ':';
  for (const char* wybor : kWybory) blok += std::string(wybor) + (wybor == *std::rbegin(kWybory) ? ")" : "|");
  return blok + ";Waga " + c + '(' + zakres + ":0..50)";
}

// One to three.
std::string Dostawcy(std::uint64_t i) {
  std::string blok = '(' + NipKontrahenta(i % kDostawcow);
  if (i % 3 == 0) blok += '|' + NipKontrahenta((i + 71) % kDostawcow);
  if (i % 9 == 0) blok += '|' + NipKontrahenta((i + 31) % kDostawcow);
  return blok + ')';
}

using Wartosci = std::array<std::string, PoleTowaru::LiczbaWartosci>;

std::string Bajty(const std::string& utf8) {
  return windows1250::ZUnicode(QString::fromStdString(utf8));
}

void Wypelnij(Wartosci& w, std::uint64_t i, TypPliku typ, bool noweCeny) {
  const bool wlasny = typ == TypPliku::Zorvik;
  const std::uint64_t zakup = 100 + i * 37 % 9'000 + (noweCeny ? 15 : 0);
  const Stawka& stawka = kStawki[i % std::size(kStawki)];
  w[PoleTowaru::Kod] = Ean13(590'100'000'000 + i);
  w[PoleTowaru::Nazwa] = Bajty(Nazwa(i));
  w[PoleTowaru::Indeks2] = "10." + std::to_string(10 + i % 80) + '.' + std::to_string(10 + i % 7);
  w[PoleTowaru::IleWZgrzewce] = std::to_string(1 + i % 24);
  w[PoleTowaru::CenaEw] = Cena(zakup);
  w[PoleTowaru::CenaDet] = Cena(zakup * 13 / 10);
  w[PoleTowaru::StawkaVat] = wlasny ? stawka.setne : stawka.opis;
  w[PoleTowaru::Asortyment] =
      Bajty(std::string(kDzialy[i % std::size(kDzialy)]) + ' ' + kPolki[i / 10 % std::size(kPolki)]);
  w[PoleTowaru::JednostkaMiary] = kJednostki[i / 3 % std::size(kJednostki)];
  w[PoleTowaru::KodyDodatkowe].clear();
  if (i % 5 == 0) {
    const std::string kod = Ean13(591'100'000'000 + i);
    w[PoleTowaru::KodyDodatkowe] = wlasny ? '(' + kod + "||)" : kod;
  }
  w[PoleTowaru::KategoriaIParametry] = Bajty(KategoriaIParametry(i));
  w[PoleTowaru::Stan] = Cena(i * 7 % 500 * 25);
  w[PoleTowaru::NipyDostawcow] = Dostawcy(i);
  if (wlasny) w[PoleTowaru::TypTowaru] = '0';
  w[PoleTowaru::Status] = '1';
}

void Dopelnij(std::string& linia, const std::string& wartosc, int szerokosc) {
  linia += wartosc;
  linia.append(static_cast<std::size_t>(szerokosc) - wartosc.size(), ' ');
}

void DopiszRekord(std::string& linia, const Wartosci& w, TypPliku typ) {
  if (typ == TypPliku::Zorvik) {
    for (const std::string& wartosc : w) {
      linia += wartosc;
      linia += '\t';
    }
    linia.back() = '\r';
    linia += '\n';
    return;
  }
  if (typ == TypPliku::DBase) linia += ' ';
  bool pierwsza = true;
  for (const Kolumna& k : Kolumny()) {
    const std::string& wartosc = w[static_cast<std::size_t>(k.pole)];
    if (typ == TypPliku::Rozdzielany) {
      if (!pierwsza) linia += '\t';
      linia += wartosc;
    } else {
      Dopelnij(linia, wartosc, k.szerokosc);
    }
    pierwsza = false;
  }
  if (typ != TypPliku::DBase) linia += "\r\n";
}

void DopiszLiczbe(std::string& bajty, std::uint32_t liczba, int ileBajtow) {
  for (int i = 0; i < ileBajtow; ++i) bajty += static_cast<char>(liczba >> (8 * i) & 0xff);
}

std::string NaglowekDBase(int ile) {
  std::uint32_t rekord = 1;
  for (const Kolumna& k : Kolumny()) rekord += static_cast<std::uint32_t>(k.szerokosc);
  std::string bajty("\x03\x7d\x01\x01", 4);
  DopiszLiczbe(bajty, static_cast<std::uint32_t>(ile), 4);
  DopiszLiczbe(bajty, static_cast<std::uint32_t>(32 * (Kolumny().size() + 1) + 1), 2);
  DopiszLiczbe(bajty, rekord, 2);
  bajty.resize(32, '\0');
  for (const Kolumna& k : Kolumny()) {
    std::string opis(k.nazwaDBase);
    opis.resize(11, '\0');
    opis += 'C';
    opis.resize(16, '\0');
    opis += static_cast<char>(k.szerokosc);
    opis.resize(32, '\0');
    bajty += opis;
  }
  return bajty + '\r';
}

// The own layout tells its columns by their captions; only "Status towaru" matters to a reader.
std::string NaglowekWlasny() {
  std::string naglowek = "Kod towaru";
  for (int i = 1; i < PoleTowaru::Status; ++i) naglowek += "\tPole " + std::to_string(i + 1);
  return naglowek + "\tStatus towaru\r\n";
}

}  // namespace

void ZapiszPlikTowarow(const std::string& sciezka, int ile, TypPliku typ, bool noweCeny) {
  std::ofstream plik(sciezka, std::ios::binary);
  if (typ == TypPliku::DBase) plik << NaglowekDBase(ile);
  if (typ == TypPliku::Zorvik) plik << NaglowekWlasny();
  Wartosci wartosci;
  std::string linia;
  for (int i = 0; i < ile; ++i) {
    linia.clear();
    Wypelnij(wartosci, static_cast<std::uint64_t>(i), typ, noweCeny);
    DopiszRekord(linia, wartosci, typ);
    plik << linia;
  }
  if (typ == TypPliku::DBase) plik << '\x1a';
  plik.close();
  if (!plik) throw std::runtime_error("Nie można zapisać pliku " + sciezka);
}
