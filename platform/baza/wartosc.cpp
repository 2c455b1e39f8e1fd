#include "platform/baza/wartosc.h"

#include <charconv>
#include <cmath>

namespace {
template <typename Liczba>
Liczba LiczbaZTekstu(const std::string& tekst) {
  Liczba liczba{};
  std::from_chars(tekst.data(), tekst.data() + tekst.size(), liczba);
  return liczba;
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
      return QString::number(m_dziesietna, 'g', 15);
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
      m_tekst = QString::number(wartosc, 'g', 15).toStdString();
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
