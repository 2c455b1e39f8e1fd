#include "shell/formularze/pole_kontrahenta.h"

#include <QLabel>
#include <QLineEdit>

#include "model/kolumny.h"
#include "platform/wyjatek.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int kZnakowNipu = 20;
constexpr int kOdstep = 6;
}  // namespace

WynikSzukania SzukajKontrahenta(TVLTBazaDanych& baza, const QString& nip) {
  try {
    if (auto kontrahent = KontrahentZNipem(baza, nip)) return {std::move(kontrahent), {}};
    return {std::nullopt, u"Brak kontrahenta z NIPem "_s + nip.trimmed()};
  } catch (const EMException& blad) {
    return {std::nullopt, blad.Tresc()};
  }
}

PoleKontrahenta::PoleKontrahenta(const OpisPolaFormularza& opis, const QString& podpis,
                                 const TMField& kolumna, TVLTBazaDanych& baza)
    : PoleFormularza(opis, podpis, kolumna, new QLineEdit),
      m_baza(baza),
      m_edycja(static_cast<QLineEdit&>(Kontrolka())),
      m_nazwa(*new QLabel) {
  if (const int id = CzytajId(kolumna); id >= 0) {
    const auto kontrahent = KontrahentZId(baza, id);
    m_poprzedni = kontrahent ? kontrahent->nip : QString();
    m_poprzedniaNazwa = kontrahent ? kontrahent->nazwa : u'[' + QString::number(id) + u']';
  }
  m_edycja.setText(m_poprzedni);
  m_edycja.setFixedWidth(m_edycja.fontMetrics().averageCharWidth() * kZnakowNipu);
  m_nazwa.setText(m_poprzedniaNazwa);
  m_nazwa.setTextFormat(Qt::PlainText);
  m_nazwa.setWordWrap(true);
  m_nazwa.setContentsMargins(kOdstep, 0, 0, 0);
  m_nazwa.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  Dolacz(m_nazwa);
  connect(&m_edycja, &QLineEdit::editingFinished, this, [this] {
    if (m_edycja.isModified()) Sprawdz();
  });
  connect(&m_edycja, &QLineEdit::textChanged, this, [this] {
    m_nazwa.clear();
    PokazBlad({});
  });
}

QString PoleKontrahenta::Wada() {
  const QString nip = m_edycja.text();
  m_kontrId = -1;
  m_nazwa.setText(nip == m_poprzedni ? m_poprzedniaNazwa : QString());
  if (nip == m_poprzedni || nip.trimmed().isEmpty()) return {};
  const auto [kontrahent, wada] = SzukajKontrahenta(m_baza, nip);
  if (!kontrahent) return wada;
  m_kontrId = kontrahent->kontrId;
  m_nazwa.setText(kontrahent->nazwa);
  return {};
}

void PoleKontrahenta::Wpisz(TMField& kolumna) {
  if (m_edycja.text() != m_poprzedni) PiszId(kolumna, m_kontrId);
}
