#include "model/strumien_szczegolow.h"

#include <string>
#include <vector>

namespace {

Odczyt OtworzTabele(TVLTBazaDanych& baza, std::string_view tabela, std::span<const OpisPola> pola) {
  std::string sql = "select ";
  std::vector<TypPola> typy;
  for (const OpisPola& pole : pola) {
    if (!typy.empty()) sql += ", ";
    sql += pole.nazwa;
    typy.push_back(pole.typ);
  }
  sql.append(" from ").append(tabela).append(" order by ").append(pola.front().nazwa);
  return baza.Otworz(sql, typy, {});
}

}  // namespace

StrumienSzczegolow::StrumienSzczegolow(TVLTBazaDanych& baza, std::string_view tabela,
                                       std::span<const OpisPola> pola)
    : StrumienSzczegolow(OtworzTabele(baza, tabela, pola)) {}
