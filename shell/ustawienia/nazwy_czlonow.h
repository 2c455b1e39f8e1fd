#pragma once

#include <string_view>

// The name in the source of an enumerator or of the member that a pointer leads to: what lets controls bear
// the names of the members they show without anybody writing the names twice. g++ and clang both put the
// argument of the template into the function's printed name.
template <auto Wartosc>
constexpr std::string_view NazwaWartosci() {
  std::string_view nazwa = __PRETTY_FUNCTION__;
  nazwa = nazwa.substr(0, nazwa.find_first_of(";]"));
  return nazwa.substr(nazwa.rfind(':') + 1);
}
