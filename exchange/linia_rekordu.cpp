#include "exchange/linia_rekordu.h"

#include "exchange/bajty.h"
#include "exchange/strony_kodowe.h"
#include "platform/liczby.h"
#include "platform/windows1250.h"

LiniaRekordu::Token LiniaRekordu::Nastepny() {
  ++m_licznik;
  const size_t tabulator = m_reszta.find('\t');
  const Token token{m_reszta.substr(0, tabulator), tabulator != std::string_view::npos};
  m_reszta.remove_prefix(token.zakonczony ? tabulator + 1 : m_reszta.size());
  return token;
}

QString LiniaRekordu::Tekst() {
  const Token token = Nastepny();
  return token.zakonczony ? TekstZeStrony(token.bajty, m_strona) : windows1250::NaUnicode(token.bajty);
}

TokenLiczby<int> LiniaRekordu::Calkowita(int domyslna) {
  const std::string_view bajty = Przytnij(Nastepny().bajty);
  if (bajty.empty()) return {domyslna, true, {}};
  const std::optional<int> wartosc = liczby::Calkowita(bajty);
  if (wartosc) return {*wartosc, true, {}};
  return {domyslna, false, TekstZeStrony(bajty, m_strona)};
}

TokenLiczby<double> LiniaRekordu::Liczba(char separator) {
  const std::string_view bajty = Przytnij(Nastepny().bajty);
  if (bajty.empty()) return {};
  // Only the first mark is replaced, so a second one of either kind stays and makes the text no number.
  const char obcy = separator == ',' ? '.' : ',';
  const size_t miejsce = bajty.find(obcy);
  std::optional<double> wartosc;
  if (miejsce == std::string_view::npos) {
    wartosc = liczby::Liczba(bajty, separator);
  } else if (bajty.find(separator) == std::string_view::npos) {
    wartosc = liczby::Liczba(bajty, obcy);  // the same as replacing it
  }
  if (wartosc) return {*wartosc, true, {}};
  return {0.0, false, TekstZeStrony(bajty, m_strona)};
}

void LiniaRekordu::Pomin() {
  Nastepny();
}
