#include "platform/baza/kolejka_zapisow.h"

#include <algorithm>

namespace {

// Few lengths, the longest first, so that each statement is prepared once; servers take some thousand values
// at a time.
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

// A column of a list of rows has the type of its first row.
const char* TypWiersza(TypPola typ) {
  switch (typ) {
    case TypPola::Calkowite:
      return "bigint";
    case TypPola::Dziesietne:
      return "double precision";
    case TypPola::Czas:
      return "timestamp";
    default:
      return "varchar";
  }
}

std::string Zamien(std::string tekst, std::string_view co, const std::string& na) {
  for (std::size_t i = 0; (i = tekst.find(co, i)) != std::string::npos; i += na.size())
    tekst.replace(i, co.size(), na);
  return tekst;
}

}  // namespace

// insert into T (columns) values (row), (row)
KolejkaZapisow::Wzor KolejkaZapisow::Wstawienie(std::string_view sql, const char* klucz) {
  const std::string tekst = JednaLinia(sql);
  constexpr std::string_view kValues = ") values (", kSelect = ") select ";
  const bool values = tekst.find(kValues) != std::string::npos;
  const std::size_t koniecKolumn = tekst.find(values ? kValues : kSelect);
  Wzor wzor{tekst.substr(0, koniecKolumn) + ") values ", {}};
  if (klucz) {
    wzor.poczatek.insert(wzor.poczatek.find('(') + 1, std::string(klucz) + ", ");
    wzor.wyrazenia.push_back({klucz, true});
  }
  std::string_view reszta =
      std::string_view(tekst).substr(koniecKolumn + (values ? kValues : kSelect).size());
  if (values) reszta.remove_suffix(1);
  while (!reszta.empty()) {
    const std::size_t przecinek = std::min(reszta.find(", "), reszta.size());
    const bool wartosc = reszta.front() == ':';
    wzor.wyrazenia.push_back({std::string(reszta.substr(wartosc, przecinek - wartosc)), wartosc});
    reszta.remove_prefix(std::min(przecinek + 2, reszta.size()));
  }
  return wzor;
}

// update T set column = W.Name, ... from (values (row), (row)) as W (names) where T.K = W.K and ...
KolejkaZapisow::Wzor KolejkaZapisow::Poprawka(std::string_view sql, std::span<const Parametr> parametry) {
  constexpr std::string_view kUpdate = "update ", kSet = " set ", kWhere = " where ";
  const std::string tekst = JednaLinia(sql);
  const std::size_t where = tekst.rfind(kWhere);
  const std::string tabela = tekst.substr(kUpdate.size(), tekst.find(kSet) - kUpdate.size());
  Wzor wzor{{}, {}};
  std::string nazwy;
  for (const Parametr& parametr : parametry) {
    wzor.wyrazenia.push_back({parametr.nazwa, true, TypWiersza(parametr.wartosc.Typ())});
    nazwy += (nazwy.empty() ? "" : ", ") + std::string(parametr.nazwa);
  }
  const std::string zTabeli = tabela + '.';
  const std::string warunek = zTabeli + tekst.substr(where + kWhere.size());
  wzor.poczatek = Zamien(tekst.substr(0, where), ":", "W.") + " from (values ";
  wzor.koniec =
      ") as W (" + nazwy + ") where " + Zamien(Zamien(warunek, " and ", " and " + zTabeli), ":", "W.");
  return wzor;
}

const KolejkaZapisow::Wzor::Postac& KolejkaZapisow::Wzor::DlaWierszy(std::size_t ile) {
  Postac& postac = postacie[ile];
  if (!postac.sql.empty()) return postac;
  postac.sql = poczatek;
  for (std::size_t w = 0; w < ile; ++w) {
    postac.sql += w == 0 ? "(" : ", (";
    for (std::size_t i = 0; i < wyrazenia.size(); ++i) {
      const Wyrazenie& wyrazenie = wyrazenia[i];
      if (i > 0) postac.sql += ", ";
      if (!wyrazenie.wartosc) {
        postac.sql += wyrazenie.tekst;
        continue;
      }
      const std::string nazwa = wyrazenie.tekst + '_' + std::to_string(w);
      postac.nazwy.push_back(nazwa);
      postac.sql += w == 0 && wyrazenie.typ ? "cast(:" + nazwa + " as " + wyrazenie.typ + ')' : ':' + nazwa;
    }
    postac.sql += ')';
  }
  postac.sql += koniec;
  return postac;
}

template <typename Zrob>
void KolejkaZapisow::Dodaj(std::string_view sql, const Wartosc* klucz, std::span<const Parametr> parametry,
                           Zrob zrob) {
  auto wzor = m_wzory.find(sql);
  if (wzor == m_wzory.end()) wzor = m_wzory.emplace(std::string(sql), zrob()).first;
  Wiersz& wiersz = m_wiersze.emplace_back(Wiersz{&wzor->second, m_rekord, {}});
  wiersz.wartosci.reserve(parametry.size() + 1);
  if (klucz) wiersz.wartosci.push_back(*klucz);
  for (const Parametr& parametr : parametry) wiersz.wartosci.push_back(parametr.wartosc);
}

void KolejkaZapisow::Wstaw(std::string_view sql, std::span<const Parametr> parametry) {
  Dodaj(sql, nullptr, parametry, [&] { return Wstawienie(sql, nullptr); });
}

void KolejkaZapisow::Wstaw(std::string_view sql, std::span<const Parametr> parametry, const char* klucz,
                           int id) {
  const Wartosc wartosc(id);
  Dodaj(sql, &wartosc, parametry, [&] { return Wstawienie(sql, klucz); });
}

void KolejkaZapisow::Popraw(std::string_view sql, std::span<const Parametr> parametry) {
  Dodaj(sql, nullptr, parametry, [&] { return Poprawka(sql, parametry); });
}

void KolejkaZapisow::Utnij(std::size_t ile) {
  if (ile < m_wiersze.size())
    m_wiersze.erase(m_wiersze.begin() + static_cast<std::ptrdiff_t>(ile), m_wiersze.end());
}

void KolejkaZapisow::Wykonaj(std::size_t ile, const Wykonawca& wykonaj) {
  if (ile == 0) return;
  const auto podzial = m_wiersze.begin() + static_cast<std::ptrdiff_t>(ile);
  std::vector<Wiersz> wiersze(std::make_move_iterator(m_wiersze.begin()), std::make_move_iterator(podzial));
  m_wiersze.erase(m_wiersze.begin(), podzial);
  for (const Grupa& grupa : Pogrupuj(wiersze)) WykonajGrupe(grupa, wykonaj);
}

std::vector<KolejkaZapisow::Grupa> KolejkaZapisow::Pogrupuj(std::span<Wiersz> wiersze) {
  std::vector<Grupa> grupy;
  std::size_t najwczesniej = 0;  // the group of the row before, of the same record
  int rekord = -1;
  for (Wiersz& wiersz : wiersze) {
    if (wiersz.rekord != rekord) najwczesniej = 0;
    rekord = wiersz.rekord;
    auto grupa = std::find_if(grupy.begin() + static_cast<std::ptrdiff_t>(najwczesniej), grupy.end(),
                              [&](const Grupa& g) { return g.wzor == wiersz.wzor; });
    if (grupa == grupy.end()) grupa = grupy.insert(grupy.end(), {wiersz.wzor, {}});
    grupa->wiersze.push_back(&wiersz);
    najwczesniej = static_cast<std::size_t>(grupa - grupy.begin());
  }
  return grupy;
}

void KolejkaZapisow::WykonajGrupe(const Grupa& grupa, const Wykonawca& wykonaj) {
  std::vector<Parametr> parametry;
  std::span<Wiersz* const> wiersze = grupa.wiersze;
  for (const std::size_t ile : kDlugosci)
    for (; wiersze.size() >= ile; wiersze = wiersze.subspan(ile)) {
      const Wzor::Postac& postac = grupa.wzor->DlaWierszy(ile);
      parametry.clear();
      for (Wiersz* const wiersz : wiersze.first(ile))
        for (Wartosc& wartosc : wiersz->wartosci)
          parametry.push_back({postac.nazwy[parametry.size()].c_str(), std::move(wartosc)});
      wykonaj(postac.sql, parametry);
    }
}
