#include "shell/formularze/tabela_kodow.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include "platform/liczby.h"
#include "shell/dialogi/siatka.h"
#include "shell/formularze/pole_formularza.h"
#include "shell/formularze/postac_pola.h"

using namespace Qt::Literals::StringLiterals;

TabelaKodow::TabelaKodow(QWidget* rodzic) : QTableWidget(rodzic) {
  setColumnCount(PLU + 1);
  setHorizontalHeaderLabels(
      {u"Kod dodatkowy"_s, u"Skrót (nazwa na kasach)"_s, u"Preferowany nr. na kasie"_s});
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  setSelectionMode(SingleSelection);
  setEditTriggers(DoubleClicked | SelectedClicked | AnyKeyPressed);
  UlozSiatke(*this);
}

void TabelaKodow::Pokaz(const std::vector<KodDodatkowy>& kody) {
  setRowCount(0);
  for (const KodDodatkowy& kod : kody) Dopisz(kod);
}

void TabelaKodow::Dopisz(const KodDodatkowy& kod) {
  // Nobody is told of a row before it is whole.
  const QSignalBlocker cisza(this);
  const int wiersz = rowCount();
  insertRow(wiersz);
  auto* const pierwsza = new QTableWidgetItem(kod.kod);
  pierwsza->setData(Qt::UserRole, QVariant::fromValue(kod));
  setItem(wiersz, Kod, pierwsza);
  setItem(wiersz, Skrot, new QTableWidgetItem(kod.skrot));
  setItem(wiersz, PLU, new QTableWidgetItem(QString::number(kod.prefPLU)));
}

std::vector<KodDodatkowy> TabelaKodow::Kody() const {
  std::vector<KodDodatkowy> kody;
  for (int i = 0; i < rowCount(); ++i) {
    auto kod = item(i, Kod)->data(Qt::UserRole).value<KodDodatkowy>();
    kod.kod = Tekst(i, Kod).trimmed();
    kod.skrot = Tekst(i, Skrot);
    kod.prefPLU = liczby::Calkowita(Tekst(i, PLU).trimmed()).value_or(0);
    if (!kod.kod.isEmpty() || !kod.skrot.isEmpty() || kod.prefPLU != 0) kody.push_back(kod);
  }
  return kody;
}

int TabelaKodow::WierszZlegoNumeru() const {
  for (int i = 0; i < rowCount(); ++i)
    if (!WadaTekstu(RodzajPola::Liczba, Tekst(i, PLU)).isEmpty()) return i;
  return -1;
}

QString TabelaKodow::Tekst(int wiersz, Kolumna kolumna) const {
  return item(wiersz, kolumna)->text();
}

void TabelaKodow::UstawTekst(int wiersz, Kolumna kolumna, const QString& tekst) {
  item(wiersz, kolumna)->setText(tekst);
}

void TabelaKodow::DodajWiersz() {
  Dopisz({});
  setFocus();
  setCurrentCell(rowCount() - 1, Kod);
  editItem(currentItem());
}

void TabelaKodow::UsunBiezacy() {
  if (currentRow() >= 0) removeRow(currentRow());
}
