#include "shell/dialogi/model_listy_pol.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

ModelListyPol::ModelListyPol(const StrukturaPliku& struktura, QObject* rodzic)
    : QAbstractTableModel(rodzic),
      m_rodzaj(struktura.rodzaj),
      m_typ(struktura.CBTypPliku),
      m_pola(struktura.pola) {}

void ModelListyPol::Wstaw(int wiersz, int pole) {
  beginInsertRows({}, wiersz, wiersz);
  m_pola.insert(m_pola.begin() + wiersz, WpisPola(pole, {}));
  endInsertRows();
}

void ModelListyPol::Usun(int wiersz) {
  beginRemoveRows({}, wiersz, wiersz);
  m_pola.erase(m_pola.begin() + wiersz);
  endRemoveRows();
}

bool ModelListyPol::Przesun(int wiersz, int kierunek) {
  const int cel = wiersz + kierunek;
  if (cel < 0 || cel >= rowCount()) return false;
  // Qt names the row before which the moved one comes to stand.
  beginMoveRows({}, wiersz, wiersz, {}, kierunek > 0 ? cel + 1 : cel);
  std::swap(m_pola[static_cast<size_t>(wiersz)], m_pola[static_cast<size_t>(cel)]);
  endMoveRows();
  return true;
}

int ModelListyPol::rowCount(const QModelIndex& rodzic) const {
  return rodzic.isValid() ? 0 : static_cast<int>(m_pola.size());
}

int ModelListyPol::columnCount(const QModelIndex& rodzic) const {
  if (rodzic.isValid()) return 0;
  return m_typ == TypPliku::StalaSzerokosc || m_typ == TypPliku::DBase ? 2 : 1;
}

QString ModelListyPol::Nazwa(const WpisPola& wpis) const {
  const auto katalog = KatalogPol(m_rodzaj);
  const int numer = wpis.Numer().value_or(-1);
  if (numer < 0 || numer >= static_cast<int>(katalog.size())) return u"? "_s + wpis.Tekst();
  return QStringView(katalog[static_cast<size_t>(numer)].nazwa).toString();
}

QVariant ModelListyPol::data(const QModelIndex& indeks, int rola) const {
  if (rola != Qt::DisplayRole && rola != Qt::EditRole) return {};
  const WpisPola& wpis = m_pola[static_cast<size_t>(indeks.row())];
  return indeks.column() == kPole ? Nazwa(wpis) : wpis.Dopisek();
}

bool ModelListyPol::setData(const QModelIndex& indeks, const QVariant& wartosc, int rola) {
  if (rola != Qt::EditRole || indeks.column() != kDopisek) return false;
  WpisPola& wpis = m_pola[static_cast<size_t>(indeks.row())];
  const QString dopisek = wartosc.toString().trimmed();
  if (dopisek == wpis.Dopisek()) return false;
  wpis = WpisPola(wpis.Tekst().left(2) + dopisek);
  Q_EMIT dataChanged(indeks, indeks);
  return true;
}

QVariant ModelListyPol::headerData(int numer, Qt::Orientation kierunek, int rola) const {
  if (rola != Qt::DisplayRole) return {};
  if (kierunek == Qt::Vertical) return numer + 1;
  if (numer == kPole) return u"Pole"_s;
  return m_typ == TypPliku::DBase ? u"Nazwa"_s : u"Szerokosc"_s;
}

Qt::ItemFlags ModelListyPol::flags(const QModelIndex& indeks) const {
  const Qt::ItemFlags zwykle = QAbstractTableModel::flags(indeks) | Qt::ItemNeverHasChildren;
  return indeks.column() == kDopisek ? zwykle | Qt::ItemIsEditable : zwykle;
}
