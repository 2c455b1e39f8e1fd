#include "shell/przebieg/model_pominietych.h"

using namespace Qt::Literals::StringLiterals;

int ModelPominietych::rowCount(const QModelIndex& rodzic) const {
  return rodzic.isValid() ? 0 : static_cast<int>(m_lista.rekordy.size());
}

int ModelPominietych::columnCount(const QModelIndex& rodzic) const {
  return rodzic.isValid() ? 0 : kKolumn;
}

QVariant ModelPominietych::data(const QModelIndex& indeks, int rola) const {
  if (!indeks.isValid() || (rola != Qt::DisplayRole && rola != Qt::ToolTipRole)) return {};
  const PominietyRekord& rekord = m_lista.rekordy[static_cast<std::size_t>(indeks.row())];
  const QString* const pola[] = {&rekord.kod, &rekord.nazwa, &rekord.powod};
  return *pola[indeks.column()];
}

QVariant ModelPominietych::headerData(int sekcja, Qt::Orientation kierunek, int rola) const {
  if (kierunek != Qt::Horizontal || rola != Qt::DisplayRole) return {};
  const QString naglowki[] = {m_naglowekKodu, u"Nazwa"_s, u"Powód"_s};
  return naglowki[sekcja];
}

FiltrPominietych::FiltrPominietych(ModelPominietych& model) : m_lista(model.Lista()) {
  setSourceModel(&model);
  setSortLocaleAware(true);
}

void FiltrPominietych::UstawGrupe(int grupa) {
  m_grupa = grupa;
  invalidateFilter();
}

bool FiltrPominietych::filterAcceptsRow(int wiersz, const QModelIndex& /*rodzic*/) const {
  return m_grupa < 0 || m_lista.rekordy[static_cast<std::size_t>(wiersz)].grupa == m_grupa;
}
