#include <array>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "bench/dane.h"
#include "platform/windows1250.h"

namespace {

namespace P = PoleKontrahenta;

constexpr const char* kRodzaje[] = {"Hurtownia",   "Sklep spożywczy", "Piekarnia", "Zakłady mięsne",
                                    "Mleczarnia",  "Cukiernia",       "Drogeria",  "Delikatesy",
                                    "Przetwórnia", "Gospoda"};
constexpr const char* kNazwy[] = {"Łąka",     "Źródło", "Kłos",   "Spiżarnia", "Zdrój", "Młyn",    "Świt",
                                  "Jaskółka", "Dąb",    "Bocian", "Perła",     "Rynek", "Bartnik", "Flisak"};
constexpr const char* kUlice[] = {"Długa",      "Źródlana", "Świętojańska", "Łąkowa",  "Młyńska",
                                  "Kościuszki", "Polna",    "Żabia",        "Ogrodowa"};
constexpr const char* kMiasta[] = {"Łódź",  "Kraków", "Gdańsk",  "Poznań",      "Wrocław", "Białystok",
                                   "Toruń", "Kielce", "Rzeszów", "Częstochowa", "Świdnica"};
constexpr const char* kBanki[] = {"Bank Spółdzielczy w Łasku", "Bank Ziemi Kujawskiej", "Bank Rzemiosła"};
constexpr const char* kNazwiska[] = {"Kowalski",  "Nowak",     "Wiśniewska", "Wójcik",   "Kamińska",
                                     "Zieliński", "Szymańska", "Woźniak",    "Dąbrowska"};

template <std::size_t N>
std::string Wybierz(const char* const (&slowa)[N], std::uint64_t numer) {
  return slowa[numer % N];
}

// The number's last digits.
std::string Cyfry(std::uint64_t numer, std::size_t ile) {
  const std::string cyfry = std::to_string(numer);
  return cyfry.size() >= ile ? cyfry.substr(cyfry.size() - ile)
                             : std::string(ile - cyfry.size(), '0') + cyfry;
}

using Wartosci = std::array<std::string, P::LiczbaWartosci>;

Wartosci Kontrahent(std::uint64_t i, bool nowyKredyt) {
  const bool dostawca = i % 2 == 0;
  const bool odbiorca = i % 4 != 0;
  const auto flaga = [](bool jest) { return std::string(jest ? "1" : "0"); };
  const std::string nazwa = Wybierz(kNazwy, i), miasto = Wybierz(kMiasta, i / 14),
                    numer = std::to_string(i + 1);

  Wartosci w;
  w[P::Nazwa] = Wybierz(kRodzaje, i / 7) + " \"" + nazwa + "\" " + miasto + ' ' + numer;
  w[P::Nip] = NipKontrahenta(i);
  w[P::NazwaSkrocona] = nazwa + ' ' + numer;
  w[P::Ulica] = "ul. " + Wybierz(kUlice, i / 3) + ' ' + std::to_string(1 + i % 180);
  w[P::KodPocztowy] = Cyfry(10 + i % 90, 2) + '-' + Cyfry(i, 3);
  w[P::Miasto] = miasto;
  w[P::Telefon] = "42 " + Cyfry(6'000'000 + i, 7);
  w[P::Fax] = i % 5 == 0 ? "42 " + Cyfry(7'000'000 + i, 7) : "";
  w[P::Email] = "biuro" + numer + "@kontrahent.example";
  w[P::NazwaBanku] = Wybierz(kBanki, i);
  w[P::Konto] = "11 1020 0000 " + Cyfry(i, 4) + ' ' + Cyfry(i * 3, 4) + ' ' + Cyfry(i * 7, 4) + " 0001";
  w[P::Dostawca] = flaga(dostawca);
  w[P::Odbiorca] = flaga(odbiorca);
  w[P::Producent] = flaga(i % 8 == 0);
  w[P::Sklep] = flaga(i % 100 == 99);
  w[P::Kontakty] = flaga(i % 6 != 0);
  w[P::NumerAnalityki] = "201-" + numer;
  w[P::KodKontrahenta] = 'K' + numer;
  w[P::ZakladPracyChronionej] = flaga(i % 50 == 0);
  w[P::NaPrzelewie1] = Wybierz(kRodzaje, i / 7) + ' ' + nazwa;
  w[P::NaPrzelewie2] = miasto;
  w[P::RabatUDostawcy] = dostawca ? "0.0" + std::to_string(1 + i % 9) : "0";
  w[P::FormaPlatnosciDostawcy] = std::to_string(i % 3);
  w[P::TerminPlatnosciDostawcy] = std::to_string(7 * (i % 5));
  w[P::CzasRealizacjiZamowienia] = std::to_string(1 + i % 4);
  w[P::RabatDlaOdbiorcy] = odbiorca ? "0.1" + std::to_string(i % 10) : "0";
  w[P::FormaPlatnosciOdbiorcy] = std::to_string(i % 2);
  w[P::TerminPlatnosciOdbiorcy] = std::to_string(14 * (i % 3));
  w[P::MaksymalnyKredyt] = std::to_string(500 + i % 300 * 10 + (nowyKredyt ? 5 : 0)) + ".50";
  w[P::MaksymalnePrzekroczenieTerminu] = std::to_string(i % 10);
  const bool karta = odbiorca && i % 4 == 1;
  w[P::KodKarty] = karta ? "KARTA" + Cyfry(i, 7) : "";
  w[P::KartaAktywna] = flaga(karta);
  w[P::TerminWaznosciKarty] = karta ? Cyfry(1 + i % 28, 2) + '.' + Cyfry(1 + i % 12, 2) + ".2031" : "";
  w[P::PoziomRabatu] = std::to_string(i % 4);
  if (odbiorca && i % 3 == 0)
    w[P::OsobyUprawnione] = '(' + Wybierz(kNazwiska, i) + '|' + Wybierz(kNazwiska, i + 4) + ')';
  w[P::Status] = flaga(i % 200 != 0);
  return w;
}

std::string Linia(const Wartosci& wartosci) {
  std::string linia;
  for (const std::string& wartosc : wartosci) {
    linia += wartosc;
    linia += '\t';
  }
  linia.pop_back();
  return windows1250::ZUnicode(QString::fromStdString(linia)) + "\r\n";
}

}  // namespace

std::string NipKontrahenta(std::uint64_t i) {
  std::string c = Cyfry(5'250'000'000 + i * 7, 10);
  switch (i % 3) {
    case 0:
      return c;
    case 1:
      return c.substr(0, 3) + '-' + c.substr(3, 3) + '-' + c.substr(6, 2) + '-' + c.substr(8);
    default:
      return "PL " + c.substr(0, 3) + ' ' + c.substr(3, 3) + ' ' + c.substr(6, 2) + ' ' + c.substr(8);
  }
}

void ZapiszPlikKontrahentow(const std::string& sciezka, int ile, bool nowyKredyt) {
  std::ofstream plik(sciezka, std::ios::binary);
  Wartosci naglowek;
  for (const PoleKatalogu& pole : KatalogPol(RodzajRekordu::Kontrahenci))
    if (pole.numer < P::LiczbaWartosci)
      naglowek[static_cast<std::size_t>(pole.numer)] = QStringView(pole.nazwa).toString().toStdString();
  plik << Linia(naglowek);
  for (int i = 0; i < ile; ++i) plik << Linia(Kontrahent(static_cast<std::uint64_t>(i), nowyKredyt));
  plik.close();
  if (!plik) throw std::runtime_error("Nie można zapisać pliku " + sciezka);
}
