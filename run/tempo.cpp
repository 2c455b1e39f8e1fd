#include "run/tempo.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Czas(double sekund) {
  const long long s = std::llround(sekund);
  return s < 3600 ? u"%1:%2"_s.arg(s / 60).arg(s % 60, 2, 10, QChar(u'0'))
                  : u"%1:%2:%3"_s.arg(s / 3600)
                        .arg(s / 60 % 60, 2, 10, QChar(u'0'))
                        .arg(s % 60, 2, 10, QChar(u'0'));
}

}  // namespace

void Tempo::Wznow(Chwila teraz) {
  if (m_wstrzymano) m_poczatek += teraz - *m_wstrzymano;
  m_wstrzymano.reset();
}

std::optional<Tempo::Odczyt> Tempo::Odczytaj(long long pozycja, long long maksimum, Chwila teraz) const {
  const double sekund = std::chrono::duration<double>(m_wstrzymano.value_or(teraz) - m_poczatek).count();
  if (sekund < 0.5 || pozycja <= 0) return std::nullopt;
  const double tempo = static_cast<double>(pozycja) / sekund;
  const double zostalo = static_cast<double>(std::max(0LL, maksimum - pozycja)) / tempo;
  return Odczyt{std::llround(tempo), Czas(zostalo)};
}
