#include "model/zapas_towarow.h"

#include <algorithm>

#include "model/towar_select.h"
#include "platform/baza/dialekt.h"
#include "platform/baza/lista_id.h"
#include "platform/baza/sesja.h"

namespace {

std::string SelectWielu(TVLTBazaDanych& baza) {
  return (baza.Jezyk().ZnaOuterJoin() ? kSelectTowaru : kSelectTowaruBezOuterJoin) + ListaId::Warunek();
}

}  // namespace

void ZapasTowarow::Wczytaj(TVLTBazaDanych& baza, std::vector<int> towary) {
  std::sort(towary.begin(), towary.end());
  towary.erase(std::unique(towary.begin(), towary.end()), towary.end());
  if (towary.size() > ListaId::kNajwiecej) towary.resize(ListaId::kNajwiecej);
  Wyczysc();
  m_id = std::move(towary);
  if (m_id.empty()) return;
  if (m_towary.size() < m_id.size()) m_towary.resize(m_id.size());
  for (std::size_t i = 0; i < m_id.size(); ++i) {
    m_towary[i].aktualny = true;
    m_towary[i].zablokowany = false;
    m_towary[i].kody.clear();
    m_towary[i].wartosci.clear();
    m_towary[i].dostawcy.clear();
  }
  // A good that is gone is told by loading it alone.
  if (CzytajWiersze(baza, SelectWielu(baza), false) != m_id.size()) return Wyczysc();
  const ListaId lista(m_id);
  KodyDodatkowe::Wczytaj(
      baza, lista, [this](int towId, KodDodatkowy kod) { Miejsce(towId).kody.push_back(std::move(kod)); });
  WartosciParametrow::Wczytaj(baza, lista, [this](int towId, WartosciParametrow::Pozycja wartosc) {
    Miejsce(towId).wartosci.push_back(wartosc);
  });
  DostawcyTowaru::Wczytaj(baza, lista, [this](int towId, DostawcyTowaru::Dostawca dostawca) {
    Miejsce(towId).dostawcy.push_back(dostawca);
  });
}

std::size_t ZapasTowarow::CzytajWiersze(TVLTBazaDanych& baza, const std::string& select, bool zablokowane) {
  static const std::vector<TypPola> kolumny = [] {
    std::vector<TypPola> typy;
    for (const OpisPola& pole : PolaTowaru()) typy.push_back(pole.typ);
    return typy;
  }();
  std::size_t ile = 0;
  const ListaId lista(m_id);
  for (auto odczyt = baza.Otworz(select, kolumny, lista.Parametry()); odczyt.Nastepny(); ++ile) {
    OdczytanyTowar& towar = Miejsce(odczyt[0].AsInteger());
    towar.zablokowany = zablokowane;
    towar.wiersz.resize(kolumny.size());
    for (std::size_t i = 0; i < kolumny.size(); ++i) towar.wiersz[i] = odczyt[i];
  }
  return ile;
}

void ZapasTowarow::Zablokuj(TVLTBazaDanych& baza, int towId) {
  if (m_zablokowane || !Znajdz(towId) || !baza.GetCzyWTransakcji() || baza.WJednostce()) return;
  m_zablokowane = true;
  const std::string select = baza.Jezyk().ZBlokadaWierszy(SelectWielu(baza), "Towar", "T");
  if (!select.empty()) CzytajWiersze(baza, select, true);
}

void ZapasTowarow::Wyczysc() {
  m_id.clear();
  m_zablokowane = false;
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
