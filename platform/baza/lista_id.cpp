#include "platform/baza/lista_id.h"

#include <algorithm>
#include <array>

namespace {

const std::array<std::string, ListaId::kNajwiecej>& Nazwy() {
  static const auto nazwy = [] {
    std::array<std::string, ListaId::kNajwiecej> wynik;
    for (std::size_t i = 0; i < wynik.size(); ++i) wynik[i] = "Id" + std::to_string(i);
    return wynik;
  }();
  return nazwy;
}

}  // namespace

ListaId::ListaId(std::span<const int> identyfikatory) {
  m_parametry.reserve(kNajwiecej);
  for (std::size_t i = 0; i < kNajwiecej; ++i)
    m_parametry.push_back({Nazwy()[i].c_str(), identyfikatory[std::min(i, identyfikatory.size() - 1)]});
}

const std::string& ListaId::Warunek() {
  static const std::string warunek = [] {
    std::string lista;
    for (const std::string& nazwa : Nazwy()) lista += (lista.empty() ? "in (:" : ", :") + nazwa;
    return lista + ')';
  }();
  return warunek;
}
