#include "platform/baza/dialekt.h"

std::string Dialekt::Zamien(std::string tekst, std::string_view co, std::string_view na) {
  for (auto gdzie = tekst.find(co); gdzie != std::string::npos; gdzie = tekst.find(co, gdzie + na.size()))
    tekst.replace(gdzie, co.size(), na);
  return tekst;
}
