#include "shell/przebieg/model_pominietych.h"

#include <algorithm>
#include <numeric>

#include <QCollator>

#include "shell/przebieg/obok.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString& Pole(const PominietyRekord& rekord, int kolumna) {
  const QString* const pola[] = {&rekord.kod, &rekord.nazwa, &rekord.powod};
  return *pola[kolumna];
}

// The place of each record in the order of a column, as the language has it.
std::vector<int> Miejsca(const ListaPominietych& lista, int kolumna) {
  const QCollator porzadek;
  std::vector<QCollatorSortKey> klucze;
  for (const PominietyRekord& rekord : lista.rekordy)
    klucze.push_back(porzadek.sortKey(Pole(rekord, kolumna)));
  std::vector<std::size_t> kolejnosc(klucze.size());
  std::iota(kolejnosc.begin(), kolejnosc.end(), 0);
  std::stable_sort(kolejnosc.begin(), kolejnosc.end(),
                   [&](std::size_t a, std::size_t b) { return klucze[a] < klucze[b]; });
  std::vector<int> miejsca(klucze.size());
  for (int miejsce = 0; const std::size_t rekord : kolejnosc) miejsca[rekord] = miejsce++;
  return miejsca;
}

}  // namespace

int ModelPominietych::rowCount(const QModelIndex& rodzic) const {
  return rodzic.isValid() ? 0 : static_cast<int>(m_lista.rekordy.size());
}

int ModelPominietych::columnCount(const QModelIndex& rodzic) const {
  return rodzic.isValid() ? 0 : kKolumn;
}

QVariant ModelPominietych::data(const QModelIndex& indeks, int rola) const {
  if (!indeks.isValid() || (rola != Qt::DisplayRole && rola != Qt::ToolTipRole)) return {};
  return Pole(m_lista.rekordy[static_cast<std::size_t>(indeks.row())], indeks.column());
}

QVariant ModelPominietych::headerData(int sekcja, Qt::Orientation kierunek, int rola) const {
  if (kierunek != Qt::Horizontal || rola != Qt::DisplayRole) return {};
  const QString naglowki[] = {m_naglowekKodu, u"Nazwa"_s, u"Powód"_s};
  return naglowki[sekcja];
}

FiltrPominietych::FiltrPominietych(ModelPominietych& model) : m_lista(model.Lista()) {
  setSourceModel(&model);
}

void FiltrPominietych::UstawGrupe(int grupa) {
  m_grupa = grupa;
  invalidateFilter();
}

void FiltrPominietych::sort(int kolumna, Qt::SortOrder kierunek) {
  if (kolumna >= 0) {
    std::vector<int>& miejsca = m_miejsca[static_cast<std::size_t>(kolumna)];
    if (miejsca.empty()) miejsca = Obok([&] { return Miejsca(m_lista, kolumna); });
  }
  QSortFilterProxyModel::sort(kolumna, kierunek);
}

bool FiltrPominietych::lessThan(const QModelIndex& lewy, const QModelIndex& prawy) const {
  const std::vector<int>& miejsca = m_miejsca[static_cast<std::size_t>(lewy.column())];
  return miejsca[static_cast<std::size_t>(lewy.row())] < miejsca[static_cast<std::size_t>(prawy.row())];
}

bool FiltrPominietych::filterAcceptsRow(int wiersz, const QModelIndex& /*rodzic*/) const {
  return m_grupa < 0 || m_lista.rekordy[static_cast<std::size_t>(wiersz)].grupa == m_grupa;
}
