#include "exchange/format_liczb.h"

#include "platform/liczby.h"

std::string FormatLiczby(double wartosc, char separator) {
  std::string tekst = liczby::Lf(wartosc);
  const char obcy = separator == '.' ? ',' : '.';
  const size_t miejsce = tekst.find(obcy);
  // The text comes with a point, so a system with a decimal point finds nothing to replace and nothing to
  // cut.
  if (miejsce == std::string::npos) return tekst;
  tekst[miejsce] = separator;
  while (tekst.size() > miejsce + 2 && tekst.back() == '0') tekst.pop_back();
  return tekst;
}
