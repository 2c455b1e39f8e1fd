#include "shell/formularze/tabela_kodow.h"

#include <QSignalBlocker>

#include "platform/liczby.h"
#include "shell/formularze/pole_formularza.h"
#include "shell/formularze/postac_pola.h"

using namespace Qt::Literals::StringLiterals;

TabelaKodow::TabelaKodow(QWidget* rodzic)
    : TabelaSzczegolow(
          rodzic, {u"Kod dodatkowy"_s, u"Skrót (nazwa na kasach)"_s, u"Preferowany nr. na kasie"_s}, PLU) {}

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

QString TabelaKodow::Wada(int wiersz) const {
  return WadaTekstu(RodzajPola::Liczba, Tekst(wiersz, PLU));
}
