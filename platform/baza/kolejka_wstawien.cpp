#include "platform/baza/kolejka_wstawien.h"

#include <algorithm>

namespace {

// Few lengths, so that each statement is prepared once; servers take some thousand values at a time.
constexpr std::size_t kDlugosci[] = {40, 10, 1};

// With single blanks.
std::string JednaLinia(std::string_view sql) {
  std::string linia;
  for (const char znak : sql) {
    const bool odstep = znak == ' ' || znak == '\r' || znak == '\n';
    if (!odstep)
      linia += znak;
    else if (!linia.empty() && linia.back() != ' ')
      linia += ' ';
  }
  return linia;
}

}  // namespace

KolejkaWstawien::Wzor::Wzor(std::string_view sql, const char* klucz) {
  const std::string tekst = JednaLinia(sql);
  constexpr std::string_view kValues = ") values (", kSelect = ") select ";
  const bool values = tekst.find(kValues) != std::string::npos;
  const std::size_t koniecKolumn = tekst.find(values ? kValues : kSelect);
  poczatek = tekst.substr(0, koniecKolumn) + ") values ";
  if (klucz) {
    poczatek.insert(poczatek.find('(') + 1, std::string(klucz) + ", ");
    wyrazenia.push_back(':' + std::string(klucz));
  }
  std::string_view reszta =
      std::string_view(tekst).substr(koniecKolumn + (values ? kValues : kSelect).size());
  if (values) reszta.remove_suffix(1);
  while (!reszta.empty()) {
    const std::size_t przecinek = std::min(reszta.find(", "), reszta.size());
    wyrazenia.emplace_back(reszta.substr(0, przecinek));
    reszta.remove_prefix(std::min(przecinek + 2, reszta.size()));
  }
}

const KolejkaWstawien::Wzor::Postac& KolejkaWstawien::Wzor::DlaWierszy(std::size_t ile) {
  Postac& postac = postacie[ile];
  if (!postac.sql.empty()) return postac;
  postac.sql = poczatek;
  for (std::size_t w = 0; w < ile; ++w) {
    postac.sql += w == 0 ? "(" : ", (";
    for (std::size_t i = 0; i < wyrazenia.size(); ++i) {
      if (i > 0) postac.sql += ", ";
      postac.sql += wyrazenia[i];
      if (!wyrazenia[i].starts_with(':')) continue;
      const std::string numer = '_' + std::to_string(w);
      postac.sql += numer;
      postac.nazwy.push_back(wyrazenia[i].substr(1) + numer);
    }
    postac.sql += ')';
  }
  return postac;
}

KolejkaWstawien::Wzor& KolejkaWstawien::ZnajdzWzor(std::string_view sql, const char* klucz) {
  const auto wzor = m_wzory.find(sql);
  return wzor != m_wzory.end() ? wzor->second
                               : m_wzory.emplace(std::string(sql), Wzor(sql, klucz)).first->second;
}

void KolejkaWstawien::Dodaj(std::string_view sql, std::span<const Parametr> parametry) {
  Wzor& wzor = ZnajdzWzor(sql, nullptr);
  Wiersz& wiersz = m_wiersze.emplace_back();
  wiersz.wzor = &wzor;
  for (const Parametr& parametr : parametry) wiersz.wartosci.push_back(parametr.wartosc);
}

void KolejkaWstawien::Dodaj(std::string_view sql, std::span<const Parametr> parametry, const char* klucz,
                            int id) {
  Wzor& wzor = ZnajdzWzor(sql, klucz);
  Wiersz& wiersz = m_wiersze.emplace_back();
  wiersz.wzor = &wzor;
  wiersz.wartosci.emplace_back(id);
  for (const Parametr& parametr : parametry) wiersz.wartosci.push_back(parametr.wartosc);
}

void KolejkaWstawien::Utnij(std::size_t ile) {
  if (ile < m_wiersze.size())
    m_wiersze.erase(m_wiersze.begin() + static_cast<std::ptrdiff_t>(ile), m_wiersze.end());
}

void KolejkaWstawien::Wykonaj(std::size_t ile, const Wykonawca& wykonaj) {
  if (ile == 0) return;
  const auto podzial = m_wiersze.begin() + static_cast<std::ptrdiff_t>(ile);
  std::vector<Wiersz> wiersze(std::make_move_iterator(m_wiersze.begin()), std::make_move_iterator(podzial));
  m_wiersze.erase(m_wiersze.begin(), podzial);
  std::vector<std::pair<Wzor*, std::vector<Wiersz*>>> grupy;
  for (Wiersz& wiersz : wiersze) {
    auto grupa =
        std::find_if(grupy.begin(), grupy.end(), [&](const auto& g) { return g.first == wiersz.wzor; });
    if (grupa == grupy.end()) grupa = grupy.insert(grupy.end(), {wiersz.wzor, {}});
    grupa->second.push_back(&wiersz);
  }
  for (auto& [wzor, nalezace] : grupy) WykonajWzor(*wzor, nalezace, wykonaj);
}

void KolejkaWstawien::WykonajWzor(Wzor& wzor, std::span<Wiersz* const> wiersze, const Wykonawca& wykonaj) {
  std::vector<Parametr> parametry;
  while (!wiersze.empty()) {
    const std::size_t ile = *std::find_if(std::begin(kDlugosci), std::end(kDlugosci),
                                          [&](std::size_t d) { return d <= wiersze.size(); });
    const Wzor::Postac& postac = wzor.DlaWierszy(ile);
    parametry.clear();
    for (Wiersz* const wiersz : wiersze.first(ile))
      for (Wartosc& wartosc : wiersz->wartosci)
        parametry.push_back({postac.nazwy[parametry.size()].c_str(), std::move(wartosc)});
    wykonaj(postac.sql, parametry);
    wiersze = wiersze.subspan(ile);
  }
}
