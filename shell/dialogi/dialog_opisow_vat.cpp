#include "shell/dialogi/dialog_opisow_vat.h"

#include <algorithm>

#include <ui_dialog_opisow_vat.h>

#include "model/stawki_vat.h"
#include "platform/wyjatek.h"
#include "shell/dialogi/edytor_komorki.h"
#include "shell/dialogi/pasek_dialogu.h"
#include "shell/dialogi/siatka.h"
#include "shell/dialogi/stawki_vat.h"
#include "shell/kontekst_okna.h"
#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kZnakowOpisu = 15;
constexpr int kSetnych = 100;  // hundredths of a percent in a percent
// A code has two characters.
constexpr int kNajwyzszyKod = 99;

// Empty for a rate that no code stands for.
QString KodStawki(int stawka) {
  if (stawka == kStawkaZwolniona) return QString::number(stawka);
  const bool maKod = stawka % kSetnych == 0 && stawka / kSetnych <= kNajwyzszyKod;
  return maKod ? QString::number(stawka / kSetnych) : QString();
}

QString Etykieta(int stawka) {
  return stawka == kStawkaZwolniona ? StawkaNaTekst(stawka, true) : EtykietaStawki(stawka / kSetnych);
}

QString OpisKodu(const std::vector<OpisVat>& opisy, const QString& kod) {
  const auto opis =
      std::find_if(opisy.begin(), opisy.end(), [&kod](const OpisVat& o) { return o.Kod() == kod; });
  return opis == opisy.end() ? QString() : opis->Opis();
}

}  // namespace

DialogOpisowVat::DialogOpisowVat(QWidget* rodzic, KontekstOkna& kontekst, const std::vector<OpisVat>& opisy)
    : DialogEdycji(rodzic, kontekst.rozmowa), m_kontekst(kontekst) {
  TVLTStawkiVat stawki;
  stawki.Wczytaj(kontekst.baza);
  Ui::DialogOpisowVat ui;
  ui.setupUi(this);
  m_tabela = ui.Opisy;
  m_bezOpisu = ui.lbBezOpisu;
  UlozSiatke(*m_tabela);
  m_edytor = new EdytorKomorki(this, kZnakowOpisu);
  m_tabela->setItemDelegate(m_edytor);
  m_tabela->horizontalHeader()->setStretchLastSection(true);
  m_tabela->verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
  UlozPasek(*this, *ui.MStatusButtonBar,
            {{u"Zapisz"_s, u"Akceptuj"_s, u"F2"_s, [this] { Akceptuj(); }},
             {u"Stawki"_s, u"Stawki"_s, u"F3"_s, [this] { Stawki(); }}});
  PokazStawki(stawki, opisy);
  m_poczatkowe = Opisy();
}

std::vector<OpisVat> DialogOpisowVat::Opisy() const {
  std::vector<OpisVat> opisy;
  for (int w = 0; w < m_tabela->rowCount(); ++w) {
    const QTableWidgetItem& komorka = *m_tabela->item(w, 0);
    opisy.emplace_back(komorka.data(Qt::UserRole).toString(), komorka.text().trimmed());
  }
  return opisy;
}

bool DialogOpisowVat::MaZmiany() {
  m_edytor->ZakonczEdycje();
  return Opisy() != m_poczatkowe;
}

void DialogOpisowVat::PokazStawki(const TVLTStawkiVat& stawki, const std::vector<OpisVat>& opisy) {
  QStringList bezOpisu;
  m_tabela->setRowCount(0);
  for (int i = 0; i < stawki.Ilosc(); ++i) {
    const QString kod = KodStawki(stawki.Stawka(i));
    if (kod.isEmpty()) {
      bezOpisu << StawkaNaTekst(stawki.Stawka(i), true);
      continue;
    }
    const int wiersz = m_tabela->rowCount();
    m_tabela->insertRow(wiersz);
    m_tabela->setVerticalHeaderItem(wiersz, new QTableWidgetItem(Etykieta(stawki.Stawka(i))));
    auto* const komorka = new QTableWidgetItem(OpisKodu(opisy, kod));
    komorka->setData(Qt::UserRole, kod);
    m_tabela->setItem(wiersz, 0, komorka);
  }
  m_tabela->setCurrentCell(0, 0);
  m_bezOpisu->setVisible(!bezOpisu.isEmpty());
  m_bezOpisu->setText(u"Bez opisu pozostają stawki: "_s + bezOpisu.join(u"; "));
}

void DialogOpisowVat::Akceptuj() {
  m_edytor->ZakonczEdycje();
  accept();
}

void DialogOpisowVat::Stawki() {
  m_edytor->ZakonczEdycje();
  try {
    TFmVLTStawkiVat edytor(this, m_kontekst);
    if (m_kontekst.rozmowa.Pokaz(edytor) == Accepted) PokazStawki(edytor.Stawki(), Opisy());
  } catch (const EMException& blad) {
    m_kontekst.rozmowa.PokazBlad(this, blad);
  }
}
