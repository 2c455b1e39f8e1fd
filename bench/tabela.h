#pragma once

#include <string>
#include <vector>

// A time is the median of so many interleaved runs of whole programs.
inline constexpr int kRund = 3;
// The growth of the cost of a record is measured on so many times as many records.
inline constexpr int kWzrost = 5;

double Mediana(std::vector<double> czasy);

// Times of the product and of the plain program for the same work, run by run.
struct Para {
  std::vector<double> zorvik, wzorzec;
  double Zorvik() const { return Mediana(zorvik); }
  double Wzorzec() const { return Mediana(wzorzec); }
  double Stosunek() const { return Zorvik() / Wzorzec(); }
};

std::string Sekundy(double sekund);
std::string Liczba(const char* format, double liczba);

// The printed result: one line a measurement, as soon as it is known.
class Tabela {
 public:
  Tabela();
  // `zorvik`, `wzorzec`: what was measured, as text; the ratio is judged by the limit.
  void Dodaj(const std::string& nazwa, const std::string& zorvik, const std::string& wzorzec, double stosunek,
             double granica);
  void Dodaj(const std::string& nazwa, const Para& para, double granica);
  // How the cost of a record grows from `mala` to a series kWzrost times as long, beside the same growth of
  // the plain program.
  void DodajWzrost(const std::string& nazwa, const Para& mala, const Para& duza);
  // Shown beside the measurements that have a limit.
  void Informacja(const std::string& nazwa, const std::string& zorvik, const std::string& wzorzec = {},
                  const std::string& stosunek = {});
  bool Dobrze() const { return m_dobrze; }

 private:
  bool m_dobrze = true;
};
