#include "platform/baza/polecenie.h"

#include <soci/error.h>

Polecenie::Polecenie(std::string sql, std::span<const TypPola> kolumny, std::span<const Parametr> parametry)
    : m_sql(std::move(sql)) {
  m_nazwy.reserve(parametry.size());
  for (const Parametr& p : parametry) {
    m_nazwy.emplace_back(p.nazwa);
    m_wskazniki.push_back(p.nazwa);
  }
  m_kolumny.reserve(kolumny.size());
  for (const TypPola typ : kolumny) m_kolumny.emplace_back(typ);
}

void Polecenie::WymagajNazw(std::span<const Parametr> parametry) const {
  if (parametry.size() != m_nazwy.size()) throw soci::soci_error("wrong number of statement parameters");
  for (std::size_t i = 0; i < parametry.size(); ++i)
    if (m_wskazniki[i] != parametry[i].nazwa && m_nazwy[i] != parametry[i].nazwa)
      throw soci::soci_error("unexpected statement parameter");
}
