#pragma once

#include <string>
#include <string_view>

// Blanks, tabs and the other white space of ASCII.
constexpr bool CzyOdstep(char znak) {
  return znak == ' ' || (znak >= '\t' && znak <= '\r');
}

// The bytes without white space at either end.
constexpr std::string_view Przytnij(std::string_view bajty) {
  while (!bajty.empty() && CzyOdstep(bajty.front())) bajty.remove_prefix(1);
  while (!bajty.empty() && CzyOdstep(bajty.back())) bajty.remove_suffix(1);
  return bajty;
}

// The bytes with a blank for every CR that no LF follows: it would be a line break in the database. `bufor`
// holds them when there is one, until it is used again.
inline std::string_view BezSamotnychCr(std::string_view bajty, std::string& bufor) {
  if (bajty.find('\r') == std::string_view::npos) return bajty;
  bufor.assign(bajty);
  for (size_t i = 0; i < bufor.size(); ++i)
    if (bufor[i] == '\r' && (i + 1 == bufor.size() || bufor[i + 1] != '\n')) bufor[i] = ' ';
  return bufor;
}
