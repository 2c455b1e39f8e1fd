#include "shell/formularze/pole_formularza.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>

#include "model/kontekst.h"
#include "model/szerokosci.h"
#include "platform/baza/zapytanie.h"
#include "shell/formularze/etykieta_bledu.h"
#include "shell/formularze/listy_wyboru.h"
#include "shell/formularze/pole_kontrahenta.h"
#include "shell/formularze/postac_pola.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kZnakowTekstu = 40;
constexpr int kZnakowLiczby = 12;
constexpr int kZnakowListy = 16;
constexpr int kWierszyListy = 20;

class PoleTekstowe final : public PoleFormularza {
 public:
  PoleTekstowe(const OpisPolaFormularza& opis, const QString& podpis, const TMField& kolumna)
      : PoleFormularza(opis, podpis, kolumna, new QLineEdit),
        m_rodzaj(opis.rodzaj),
        m_edycja(static_cast<QLineEdit&>(Kontrolka())),
        m_poprzedni(PokazKolumne(m_rodzaj, kolumna)),
        m_wBazie(kolumna.OldValue().AsString()) {
    m_edycja.setText(m_poprzedni);
    m_edycja.setCursorPosition(0);
    const bool tekst = m_rodzaj == RodzajPola::Tekst;
    m_edycja.setMinimumWidth(m_edycja.fontMetrics().averageCharWidth() *
                             (tekst ? kZnakowTekstu : kZnakowLiczby));
    if (!tekst && m_rodzaj != RodzajPola::Data) m_edycja.setAlignment(Qt::AlignRight);
    connect(&m_edycja, &QLineEdit::editingFinished, this, [this] {
      if (m_edycja.isModified()) Sprawdz();
    });
    connect(&m_edycja, &QLineEdit::textChanged, this, [this] { PokazBlad({}); });
  }

  void Wpisz(TMField& kolumna) override {
    if (m_edycja.text() != m_poprzedni) WpiszTekst(m_rodzaj, m_edycja.text(), kolumna);
  }

 protected:
  QString Wada() override {
    const QString tekst = m_edycja.text();
    if (m_rodzaj == RodzajPola::Tekst && tekst != m_wBazie)
      if (const QString wada = WadaDlugosci(tekst.toStdString()); !wada.isEmpty()) return u"Tekst "_s + wada;
    return WadaTekstu(m_rodzaj, tekst);
  }

 private:
  RodzajPola m_rodzaj;
  QLineEdit& m_edycja;
  QString m_poprzedni;
  QString m_wBazie;
};

class PoleFlagi final : public PoleFormularza {
 public:
  PoleFlagi(const OpisPolaFormularza& opis, const QString& podpis, const TMField& kolumna)
      : PoleFormularza(opis, podpis, kolumna, new QCheckBox(podpis)),
        m_znacznik(static_cast<QCheckBox&>(Kontrolka())),
        m_poprzednia(kolumna.AsInteger() != 0) {
    m_znacznik.setChecked(m_poprzednia);
  }

  void Wpisz(TMField& kolumna) override {
    if (m_znacznik.isChecked() != m_poprzednia) kolumna.SetInteger(m_znacznik.isChecked() ? 1 : 0);
  }

 private:
  QCheckBox& m_znacznik;
  bool m_poprzednia;
};

class PoleListy final : public PoleFormularza {
 public:
  PoleListy(const OpisPolaFormularza& opis, const QString& podpis, const TMField& kolumna,
            std::vector<PozycjaListy> pozycje)
      : PoleFormularza(opis, podpis, kolumna, new QComboBox), m_lista(static_cast<QComboBox&>(Kontrolka())) {
    const auto biezaca = Biezaca(opis.rodzaj, kolumna);
    DopiszBiezaca(pozycje, opis.rodzaj, biezaca);
    for (const PozycjaListy& pozycja : pozycje)
      m_lista.addItem(pozycja.nazwa, pozycja.wartosc ? QVariant(*pozycja.wartosc) : QVariant());
    m_lista.setPlaceholderText(u"(nie wybrano)"_s);
    m_lista.setCurrentIndex(m_lista.findData(biezaca ? QVariant(*biezaca) : QVariant()));
    m_poprzednia = m_lista.currentIndex();
    // Long names of dictionaries must not widen the form.
    m_lista.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_lista.setMinimumContentsLength(kZnakowListy);
    m_lista.setMaxVisibleItems(kWierszyListy);
    connect(&m_lista, &QComboBox::currentIndexChanged, this, [this] { PokazBlad({}); });
  }

  void Wpisz(TMField& kolumna) override {
    if (m_lista.currentIndex() == m_poprzednia) return;
    if (const QVariant wartosc = m_lista.currentData(); wartosc.isValid())
      kolumna.SetInteger(wartosc.toInt());
    else
      kolumna.Clear();
  }

 private:
  // Negative identifiers stand for none; a negative rate is the exempt one. An unknown type reads as the
  // first.
  static std::optional<int> Biezaca(RodzajPola rodzaj, const TMField& kolumna) {
    const int wartosc = static_cast<int>(kolumna.AsInteger());
    if (rodzaj == RodzajPola::TypTowaru) return wartosc == 1 || wartosc == 2 ? wartosc : 0;
    if (kolumna.IsNull() || (wartosc < 0 && rodzaj != RodzajPola::StawkaVat)) return std::nullopt;
    return wartosc;
  }

  QComboBox& m_lista;
  int m_poprzednia;
};

}  // namespace

PoleFormularza::PoleFormularza(const OpisPolaFormularza& opis, const QString& podpis, const TMField& kolumna,
                               QWidget* kontrolka)
    : m_kolumna(opis.kolumna),
      m_kontrolka(kontrolka),
      m_wiersz(new QHBoxLayout),
      m_blad(new EtykietaBledu(this)) {
  auto* const uklad = new QVBoxLayout(this);
  uklad->setContentsMargins(0, 0, 0, 0);
  uklad->setSpacing(0);
  uklad->addLayout(m_wiersz);
  uklad->addWidget(m_blad);
  m_wiersz->setSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
  m_wiersz->addWidget(kontrolka);
  kontrolka->setObjectName(QString::fromLatin1(kolumna.FieldName()));
  kontrolka->setAccessibleName(podpis);
}

std::unique_ptr<PoleFormularza> PoleFormularza::Utworz(const OpisPolaFormularza& opis, const QString& podpis,
                                                       const TMField& kolumna, KontekstSesji& sesja) {
  if (opis.rodzaj == RodzajPola::Flaga) return std::make_unique<PoleFlagi>(opis, podpis, kolumna);
  if (opis.rodzaj == RodzajPola::Kontrahent)
    return std::make_unique<PoleKontrahenta>(opis, podpis, kolumna, sesja.baza);
  if (opis.rodzaj > RodzajPola::Flaga)
    return UtworzListe(opis, podpis, kolumna, PozycjeListy(opis.rodzaj, sesja));
  return std::make_unique<PoleTekstowe>(opis, podpis, kolumna);
}

std::unique_ptr<PoleFormularza> PoleFormularza::UtworzListe(const OpisPolaFormularza& opis,
                                                            const QString& podpis, const TMField& kolumna,
                                                            std::vector<PozycjaListy> pozycje) {
  return std::make_unique<PoleListy>(opis, podpis, kolumna, std::move(pozycje));
}

void PoleFormularza::Dolacz(QWidget& obok) {
  m_wiersz->addWidget(&obok);
}

bool PoleFormularza::Sprawdz() {
  const QString wada = Wada();
  PokazBlad(wada);
  return wada.isEmpty();
}

void PoleFormularza::PokazBlad(const QString& blad) {
  m_blad->Pokaz(*m_kontrolka, blad);
}
