#include "model/zapas_towarow.h"

#include <algorithm>

#include "model/towar_select.h"
#include "platform/baza/dialekt.h"
#include "platform/baza/lista_id.h"
#include "platform/baza/sesja.h"

namespace {

Odczyt OtworzWiersze(TVLTBazaDanych& baza, const ListaId& lista) {
  static const std::vector<TypPola> kolumny = [] {
    std::vector<TypPola> typy;
    for (const OpisPola& pole : PolaTowaru()) typy.push_back(pole.typ);
    return typy;
  }();
  const char* const select = baza.Jezyk().ZnaOuterJoin() ? kSelectTowaru : kSelectTowaruBezOuterJoin;
  return baza.Otworz(select + ListaId::Warunek(), kolumny, lista.Parametry());
}

}  // namespace

void ZapasTowarow::Wczytaj(TVLTBazaDanych& baza, std::vector<int> towary) {
  std::sort(towary.begin(), towary.end());
  towary.erase(std::unique(towary.begin(), towary.end()), towary.end());
  if (towary.size() > ListaId::kNajwiecej) towary.resize(ListaId::kNajwiecej);
  m_id = std::move(towary);
  if (m_id.empty()) return;
  if (m_towary.size() < m_id.size()) m_towary.resize(m_id.size());
  for (std::size_t i = 0; i < m_id.size(); ++i) {
    m_towary[i].aktualny = true;
    m_towary[i].kody.clear();
    m_towary[i].wartosci.clear();
    m_towary[i].dostawcy.clear();
  }
  const ListaId lista(m_id);
  std::size_t znalezionych = 0;
  const std::size_t kolumn = PolaTowaru().size();
  for (auto odczyt = OtworzWiersze(baza, lista); odczyt.Nastepny(); ++znalezionych) {
    std::vector<Wartosc>& wiersz = Miejsce(odczyt[0].AsInteger()).wiersz;
    wiersz.resize(kolumn);
    for (std::size_t i = 0; i < kolumn; ++i) wiersz[i] = odczyt[i];
  }
  // A good that is gone is told by loading it alone.
  if (znalezionych != m_id.size()) return Wyczysc();
  KodyDodatkowe::Wczytaj(
      baza, lista, [this](int towId, KodDodatkowy kod) { Miejsce(towId).kody.push_back(std::move(kod)); });
  WartosciParametrow::Wczytaj(baza, lista, [this](int towId, WartosciParametrow::Pozycja wartosc) {
    Miejsce(towId).wartosci.push_back(wartosc);
  });
  DostawcyTowaru::Wczytaj(baza, lista, [this](int towId, DostawcyTowaru::Dostawca dostawca) {
    Miejsce(towId).dostawcy.push_back(dostawca);
  });
}

const OdczytanyTowar* ZapasTowarow::Znajdz(int towId) const {
  const auto id = std::lower_bound(m_id.begin(), m_id.end(), towId);
  if (id == m_id.end() || *id != towId) return nullptr;
  const OdczytanyTowar& towar = m_towary[static_cast<std::size_t>(id - m_id.begin())];
  return towar.aktualny ? &towar : nullptr;
}

void ZapasTowarow::Zapomnij(int towId) {
  if (Znajdz(towId)) Miejsce(towId).aktualny = false;
}

OdczytanyTowar& ZapasTowarow::Miejsce(long long towId) {
  const auto id = std::lower_bound(m_id.begin(), m_id.end(), towId);
  return m_towary[static_cast<std::size_t>(id - m_id.begin())];
}
