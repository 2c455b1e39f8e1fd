#include "platform/wyjatek.h"

#include <utility>

namespace {
EMException::Prezenter& WspolnyPrezenter() {
  static EMException::Prezenter prezenter;
  return prezenter;
}
}  // namespace

void EMException::Assign(const EMException& zrodlo) {
  m_kod = zrodlo.MacCode();
  m_tytul = zrodlo.MacMessage();
  m_opis = zrodlo.MacDescription();
}

QString EMException::Tresc() const {
  const QString tytul = MacMessage();
  const QString opis = MacDescription();
  return tytul.isEmpty() || opis.isEmpty() ? tytul + opis : tytul + u'\n' + opis;
}

void EMException::UstawTeksty(QString tytul, QString opis) {
  m_tytul = std::move(tytul);
  m_opis = std::move(opis);
}

const char* EMException::what() const noexcept {
  try {
    m_what = Tresc().toStdString();
    return m_what.c_str();
  } catch (...) {
    return "EMException";
  }
}

void EMException::UstawPrezenter(Prezenter prezenter) {
  WspolnyPrezenter() = std::move(prezenter);
}

void EMException::ShowExceptionNow(const EMException& blad) {
  if (WspolnyPrezenter()) WspolnyPrezenter()(blad);
}

QString TrescZPrzyczyna(const EMException& blad) {
  const auto* const zPrzyczyna = dynamic_cast<const EVLTExceptionBase*>(&blad);
  if (!zPrzyczyna || !zPrzyczyna->Przyczyna()) return blad.Tresc();
  return blad.Tresc() + QStringLiteral("\n\nPrzyczyna: ") + TrescZPrzyczyna(*zPrzyczyna->Przyczyna());
}
