#include "platform/liczby.h"

#include <QLocale>
#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace liczby {
namespace {

bool Cyfra(char znak) {
  return znak >= '0' && znak <= '9';
}

// Length of the number's digits from `od` on.
size_t IleCyfr(std::string_view tekst, size_t od) {
  size_t i = od;
  while (i < tekst.size() && Cyfra(tekst[i])) ++i;
  return i - od;
}

// Anything outside ASCII cannot be part of a number.
std::optional<std::string> NaAscii(QStringView tekst) {
  std::string ascii(static_cast<size_t>(tekst.size()), '\0');
  for (qsizetype i = 0; i < tekst.size(); ++i) {
    if (tekst[i].unicode() >= 0x80) return std::nullopt;
    ascii[static_cast<size_t>(i)] = static_cast<char>(tekst[i].unicode());
  }
  return ascii;
}

// from_chars knows "-" but not "+".
std::string_view BezPlusa(std::string_view tekst) {
  if (tekst.size() > 1 && tekst.front() == '+' && Cyfra(tekst[1])) tekst.remove_prefix(1);
  return tekst;
}

}  // namespace

std::optional<double> Liczba(std::string_view tekst, char separator) {
  const std::string_view bezPlusa = BezPlusa(tekst);
  const size_t znak = !bezPlusa.empty() && bezPlusa.front() == '-' ? 1 : 0;
  const size_t calkowite = IleCyfr(bezPlusa, znak);
  if (calkowite == 0) return std::nullopt;
  size_t koniec = znak + calkowite;

  std::array<char, 64> bufor;
  std::string dlugi;
  const char* cyfry = bezPlusa.data();
  if (koniec < bezPlusa.size()) {
    const size_t ulamkowe = bezPlusa[koniec] == separator ? IleCyfr(bezPlusa, koniec + 1) : 0;
    if (ulamkowe == 0 || koniec + 1 + ulamkowe != bezPlusa.size()) return std::nullopt;
    if (separator != '.') {
      char* kopia = bufor.data();
      if (bezPlusa.size() > bufor.size()) {
        dlugi.resize(bezPlusa.size());
        kopia = dlugi.data();
      }
      std::copy(bezPlusa.begin(), bezPlusa.end(), kopia);
      kopia[koniec] = '.';
      cyfry = kopia;
    }
    koniec = bezPlusa.size();
  }
  double wartosc = 0;
  const auto wynik = std::from_chars(cyfry, cyfry + koniec, wartosc, std::chars_format::fixed);
  if (wynik.ec != std::errc{}) return std::nullopt;
  return wartosc;
}

std::optional<double> Liczba(QStringView tekst, char separator) {
  const std::optional<std::string> ascii = NaAscii(tekst);
  return ascii ? Liczba(std::string_view(*ascii), separator) : std::nullopt;
}

std::optional<int> Calkowita(std::string_view tekst) {
  const std::string_view bezPlusa = BezPlusa(tekst);
  int wartosc = 0;
  const char* koniec = bezPlusa.data() + bezPlusa.size();
  const auto wynik = std::from_chars(bezPlusa.data(), koniec, wartosc);
  if (wynik.ec != std::errc{} || wynik.ptr != koniec) return std::nullopt;
  return wartosc;
}

std::optional<int> Calkowita(QStringView tekst) {
  const std::optional<std::string> ascii = NaAscii(tekst);
  return ascii ? Calkowita(std::string_view(*ascii)) : std::nullopt;
}

std::string Lf(double wartosc) {
  // The longest double has 309 digits before the point.
  std::array<char, std::numeric_limits<double>::max_exponent10 + 16> bufor;
  const auto wynik =
      std::to_chars(bufor.data(), bufor.data() + bufor.size(), wartosc, std::chars_format::fixed, 6);
  return std::string(bufor.data(), wynik.ptr);
}

char SeparatorSystemu() {
  return QLocale::system().decimalPoint() == QLatin1String(",") ? ',' : '.';
}

}  // namespace liczby
