#include "model/strumien_szczegolow.h"

#include <utility>

namespace {

std::string SelectTabeli(std::string_view tabela, std::span<const OpisPola> pola) {
  const std::string id = pola.front().nazwa;
  std::string sql = "select " + id;
  for (const OpisPola& pole : pola.subspan(1)) sql.append(", ").append(pole.nazwa);
  sql.append(" from ").append(tabela).append(" where ");
  return sql + id + " between :Od and :Do order by " + id;
}

std::vector<TypPola> Typy(std::span<const OpisPola> pola) {
  std::vector<TypPola> typy;
  for (const OpisPola& pole : pola) typy.push_back(pole.typ);
  return typy;
}

}  // namespace

StrumienSzczegolow::StrumienSzczegolow(TVLTBazaDanych& baza, std::string select, std::vector<TypPola> kolumny,
                                       std::vector<Parametr> parametry)
    : m_baza(baza),
      m_select(std::move(select)),
      m_kolumny(std::move(kolumny)),
      m_parametry(std::move(parametry)) {
  m_parametry.insert(m_parametry.begin(), {{"Od", 0}, {"Do", 0}});
}

StrumienSzczegolow::StrumienSzczegolow(TVLTBazaDanych& baza, std::string_view tabela,
                                       std::span<const OpisPola> pola)
    : StrumienSzczegolow(baza, SelectTabeli(tabela, pola), Typy(pola)) {}

void StrumienSzczegolow::Strona(int od, int doId) {
  m_odczyt.reset();
  m_parametry[0].wartosc.SetInteger(od);
  m_parametry[1].wartosc.SetInteger(doId);
  m_odczyt.emplace(m_baza.Otworz(m_select, m_kolumny, m_parametry));
  Dalej();
}

void OtworzStrone(std::initializer_list<StrumienSzczegolow*> strumienie, int od, int doId) {
  for (StrumienSzczegolow* const strumien : strumienie)
    if (strumien) strumien->Oddaj();
  for (StrumienSzczegolow* const strumien : strumienie)
    if (strumien) strumien->Strona(od, doId);
}
