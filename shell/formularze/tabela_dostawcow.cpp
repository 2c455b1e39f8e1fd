#include "shell/formularze/tabela_dostawcow.h"

#include <QSignalBlocker>

#include "model/szczegoly_towaru.h"
#include "shell/formularze/pole_kontrahenta.h"

using namespace Qt::Literals::StringLiterals;

namespace {
// Kept with the number.
constexpr int kKontrId = Qt::UserRole;
constexpr int kWada = Qt::UserRole + 1;
constexpr int kNikt = -1;
}  // namespace

TabelaDostawcow::TabelaDostawcow(QWidget* rodzic)
    : TabelaSzczegolow(rodzic, {u"NIP dostawcy"_s, u"Nazwa dostawcy"_s}, Nip) {
  connect(this, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* komorka) {
    if (komorka->column() == Nip) Szukaj(komorka->row());
  });
}

void TabelaDostawcow::Pokaz(TVLTBazaDanych& baza, const DostawcyTowaru& dostawcy) {
  m_baza = &baza;
  setRowCount(0);
  for (const auto& [kontrId, maNip] : dostawcy.Wszyscy()) {
    const auto kontrahent = KontrahentZId(baza, kontrId);
    Dopisz(kontrId, kontrahent ? kontrahent->nip : QString(), kontrahent ? kontrahent->nazwa : QString(),
           maNip);
  }
  m_poprzedni = ZNipem();
}

void TabelaDostawcow::Dopisz(int kontrId, const QString& nip, const QString& nazwa, bool zNipem) {
  // Nobody is told of a row before it is whole.
  const QSignalBlocker cisza(this);
  const int wiersz = rowCount();
  insertRow(wiersz);
  auto* const numer = new QTableWidgetItem(zNipem ? nip : u"(bez NIP-u)"_s);
  numer->setData(kKontrId, kontrId);
  if (!zNipem) numer->setFlags(numer->flags() & ~Qt::ItemIsEditable);
  setItem(wiersz, Nip, numer);
  auto* const opis = new QTableWidgetItem(nazwa);
  opis->setFlags(opis->flags() & ~Qt::ItemIsEditable);
  setItem(wiersz, Nazwa, opis);
}

void TabelaDostawcow::Szukaj(int wiersz) {
  // What is found is part of the same change.
  const QSignalBlocker cisza(this);
  const QString nip = Tekst(wiersz, Nip);
  const auto [kontrahent, wada] = nip.trimmed().isEmpty() ? WynikSzukania{} : SzukajKontrahenta(*m_baza, nip);
  QTableWidgetItem& numer = *item(wiersz, Nip);
  numer.setData(kKontrId, kontrahent ? kontrahent->kontrId : kNikt);
  numer.setData(kWada, wada);
  UstawTekst(wiersz, Nazwa, kontrahent ? kontrahent->nazwa : QString());
}

QString TabelaDostawcow::Wada(int wiersz) const {
  return item(wiersz, Nip)->data(kWada).toString();
}

std::vector<int> TabelaDostawcow::ZNipem() const {
  std::vector<int> kontrahenci;
  for (int i = 0; i < rowCount(); ++i)
    if (const int id = item(i, Nip)->data(kKontrId).toInt();
        id != kNikt && item(i, Nip)->flags().testFlag(Qt::ItemIsEditable))
      kontrahenci.push_back(id);
  return kontrahenci;
}

void TabelaDostawcow::Wpisz(DostawcyTowaru& dostawcy) const {
  if (const auto kontrahenci = ZNipem(); kontrahenci != m_poprzedni) dostawcy.UstawZNipem(kontrahenci);
}
