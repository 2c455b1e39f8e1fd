#include "platform/baza/wartosc.h"

#include <array>
#include <charconv>
#include <cmath>

namespace {
template <typename Liczba>
Liczba LiczbaZTekstu(const std::string& tekst) {
  Liczba liczba{};
  std::from_chars(tekst.data(), tekst.data() + tekst.size(), liczba);
  return liczba;
}

constexpr int kCyfr = 15;  // the most that every double has

// "%.15g". Adding 0 takes the sign off a negative zero.
std::string TekstZLiczby(double liczba) {
  std::array<char, 32> bufor;
  const auto koniec = bufor.data() + bufor.size();
  liczba += 0.0;
  // Prices and quantities: the shortest digits are the same text and cost a fraction.
  if (const double wielkosc = std::abs(liczba); wielkosc == 0 || (wielkosc >= 1 && wielkosc < 1e9)) {
    const auto [za, blad] = std::to_chars(bufor.data(), koniec, liczba, std::chars_format::fixed);
    if (blad == std::errc() && za - bufor.data() <= kCyfr) return {bufor.data(), za};
  }
  const auto dluga = std::to_chars(bufor.data(), koniec, liczba, std::chars_format::general, kCyfr);
  return {bufor.data(), dluga.ptr};
}
}  // namespace

long long Wartosc::AsInteger() const {
  if (m_pusta) return 0;
  switch (m_typ) {
    case TypPola::Calkowite:
      return m_calkowita;
    case TypPola::Dziesietne:
      return std::llround(m_dziesietna);
    default:
      return LiczbaZTekstu<long long>(m_tekst);
  }
}

double Wartosc::AsFloat() const {
  if (m_pusta) return 0;
  switch (m_typ) {
    case TypPola::Calkowite:
      return static_cast<double>(m_calkowita);
    case TypPola::Dziesietne:
      return m_dziesietna;
    default:
      return LiczbaZTekstu<double>(m_tekst);
  }
}

QString Wartosc::AsString() const {
  if (m_pusta) return {};
  switch (m_typ) {
    case TypPola::Calkowite:
      return QString::number(m_calkowita);
    case TypPola::Dziesietne:
      return QString::fromStdString(TekstZLiczby(m_dziesietna));
    default:
      return QString::fromStdString(m_tekst);
  }
}

void Wartosc::SetInteger(long long wartosc) {
  m_pusta = false;
  switch (m_typ) {
    case TypPola::Calkowite:
      m_calkowita = wartosc;
      break;
    case TypPola::Dziesietne:
      m_dziesietna = static_cast<double>(wartosc);
      break;
    default:
      m_tekst = std::to_string(wartosc);
  }
}

void Wartosc::SetFloat(double wartosc) {
  m_pusta = false;
  switch (m_typ) {
    case TypPola::Calkowite:
      m_calkowita = std::llround(wartosc);
      break;
    case TypPola::Dziesietne:
      m_dziesietna = wartosc;
      break;
    default:
      m_tekst = TekstZLiczby(wartosc);
  }
}

void Wartosc::SetString(const QString& wartosc) {
  m_pusta = false;
  switch (m_typ) {
    case TypPola::Calkowite:
      m_calkowita = wartosc.toLongLong();
      break;
    case TypPola::Dziesietne:
      m_dziesietna = wartosc.toDouble();
      break;
    default:
      m_tekst = wartosc.toStdString();
  }
}

bool operator==(const Wartosc& a, const Wartosc& b) {
  if (a.m_typ != b.m_typ || a.m_pusta != b.m_pusta) return false;
  if (a.m_pusta) return true;
  switch (a.m_typ) {
    case TypPola::Calkowite:
      return a.m_calkowita == b.m_calkowita;
    case TypPola::Dziesietne:
      return a.m_dziesietna == b.m_dziesietna;
    default:
      return a.m_tekst == b.m_tekst;
  }
}
