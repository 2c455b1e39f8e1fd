#pragma once

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
