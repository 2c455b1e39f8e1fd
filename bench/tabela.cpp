#include "bench/tabela.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

constexpr std::array<std::size_t, 6> kSzerokosci = {58, 12, 12, 10, 9, 5};
constexpr double kGranicaWzrostu = 1.3;

void Wypisz(const std::array<std::string, 6>& komorki) {
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

}  // namespace

double Mediana(std::vector<double> czasy) {
  std::sort(czasy.begin(), czasy.end());
  return czasy.at(czasy.size() / 2);
}

std::string Liczba(const char* format, double liczba) {
  std::array<char, 40> bufor{};
  std::snprintf(bufor.data(), bufor.size(), format, liczba);
  return bufor.data();
}

std::string Sekundy(double sekund) {
  return Liczba("%.2f s", sekund);
}

Tabela::Tabela() {
  Wypisz({"pomiar", "zorvik", "wzorzec", "stosunek", "granica", ""});
  std::puts(std::string(106, '-').c_str());
}

void Tabela::Dodaj(const std::string& nazwa, const std::string& zorvik, const std::string& wzorzec,
                   double stosunek, double granica) {
  const bool dobrze = stosunek <= granica;
  m_dobrze = m_dobrze && dobrze;
  Wypisz({nazwa, zorvik, wzorzec, Liczba("%.2f", stosunek), Liczba("%.2f", granica), dobrze ? "tak" : "NIE"});
}

void Tabela::Dodaj(const std::string& nazwa, const Para& para, double granica) {
  Dodaj(nazwa, Sekundy(para.Zorvik()), Sekundy(para.Wzorzec()), para.Stosunek(), granica);
}

void Tabela::DodajWzrost(const std::string& nazwa, const Para& mala, const Para& duza) {
  const double zorvik = duza.Zorvik() / kWzrost / mala.Zorvik();
  const double wzorzec = duza.Wzorzec() / kWzrost / mala.Wzorzec();
  Dodaj(nazwa, Liczba("x %.2f", zorvik), Liczba("x %.2f", wzorzec), zorvik / wzorzec, kGranicaWzrostu);
}

void Tabela::Informacja(const std::string& nazwa, const std::string& zorvik, const std::string& wzorzec,
                        const std::string& stosunek) {
  Wypisz({"  " + nazwa, zorvik, wzorzec, stosunek, "", ""});
}
