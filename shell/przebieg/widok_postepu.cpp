#include "shell/przebieg/widok_postepu.h"

#include <algorithm>

#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Kolumna { kZnak, kTekst, kKolumn };

// A bar counts in ints, a file may have more bytes.
constexpr int kPelnyPasek = 1000;
// A whole import shows its lines without scrolling.
constexpr int kWierszy = 18;
constexpr int kZnakow = 64;

}  // namespace

TLProgressView::TLProgressView(QWidget* rodzic)
    : QWidget(rodzic),
      m_lista(new QTreeWidget(this)),
      m_pasek(new QProgressBar(this)),
      m_opis(new QLabel(this)) {
  m_lista->setObjectName(u"linie"_s);
  m_lista->setAccessibleName(u"Przebieg"_s);
  m_lista->setColumnCount(kKolumn);
  m_lista->setHeaderHidden(true);
  m_lista->setRootIsDecorated(false);
  m_lista->setUniformRowHeights(true);
  m_lista->setSelectionMode(QAbstractItemView::NoSelection);
  m_lista->header()->setStretchLastSection(true);
  m_lista->header()->setMinimumSectionSize(0);
  m_lista->header()->setSectionResizeMode(kZnak, QHeaderView::Fixed);
  m_lista->setColumnWidth(kZnak, fontMetrics().horizontalAdvance(u"✓"_s) * 2);
  m_lista->setMinimumSize(fontMetrics().averageCharWidth() * kZnakow, WysokoscWiersza() * kWierszy);
  m_pasek->setObjectName(u"pasek"_s);
  m_pasek->setAccessibleName(u"Postęp"_s);
  m_pasek->setFormat(u"%p %"_s);
  m_pasek->setRange(0, kPelnyPasek);
  m_pasek->setValue(0);
  m_opis->setObjectName(u"tempo"_s);

  auto* const uklad = new QVBoxLayout(this);
  uklad->setContentsMargins(0, 0, 0, 0);
  uklad->addWidget(m_lista);
  uklad->addWidget(m_pasek);
  uklad->addWidget(m_opis);
  setFocusProxy(m_lista);
}

void TLProgressView::AddMessage(int linia, const QString& tekst, StanPostepu stan, long long liczba) {
  if (stan == StanPostepu::Linia) return DodajLinie(tekst, liczba);
  if (stan == StanPostepu::Koniec) {
    m_zakonczenie = tekst;
    return CheckMessages();
  }
  Linia& zmieniana = m_linie.at(static_cast<std::size_t>(linia));
  switch (stan) {
    case StanPostepu::Pozycja:
      zmieniana.pozycja = liczba;
      break;
    case StanPostepu::Liczba:
      zmieniana.liczba = liczba;
      break;
    default:
      zmieniana.gotowa = true;
      PokazLinie(zmieniana);
  }
}

void TLProgressView::CheckMessages() {
  if (!m_linie.empty()) PokazLinie(m_linie.back());
  PokazPasek();
}

void TLProgressView::DodajLinie(const QString& tekst, long long maksimum) {
  if (!m_linie.empty()) PokazLinie(m_linie.back());
  m_linie.push_back({new QTreeWidgetItem(m_lista), tekst, maksimum});
  m_linie.back().pozycjaListy->setSizeHint(kTekst, {0, WysokoscWiersza()});
  PokazLinie(m_linie.back());
  m_lista->setCurrentItem(m_linie.back().pozycjaListy);
  if (maksimum <= 0) return;
  m_zPaskiem = m_linie.size() - 1;
  m_tempo = Tempo();
}

int TLProgressView::WysokoscWiersza() const {
  return fontMetrics().lineSpacing() * 4 / 3;
}

void TLProgressView::PokazLinie(const Linia& linia) {
  linia.pozycjaListy->setText(kTekst,
                              linia.liczba ? linia.tekst + QString::number(*linia.liczba) : linia.tekst);
  if (!linia.gotowa) return;
  linia.pozycjaListy->setText(kZnak, u"✓"_s);
  linia.pozycjaListy->setData(kZnak, Qt::AccessibleTextRole, u"gotowe"_s);
}

void TLProgressView::PokazPasek() {
  // Nobody knows how long a line without an end takes.
  const bool bezKonca =
      !m_zakonczenie && !m_linie.empty() && m_linie.back().maksimum <= 0 && !m_linie.back().gotowa;
  m_pasek->setRange(0, bezKonca ? 0 : kPelnyPasek);
  m_opis->setText(m_zakonczenie.value_or(QString()));
  if (bezKonca || !m_zPaskiem) return;
  const Linia& linia = m_linie[*m_zPaskiem];
  const double czesc = static_cast<double>(linia.pozycja) / static_cast<double>(linia.maksimum);
  m_pasek->setValue(static_cast<int>(std::clamp(czesc, 0.0, 1.0) * kPelnyPasek));
  if (m_zakonczenie || linia.gotowa) return;
  const auto tempo = m_tempo.Odczytaj(linia.pozycja, linia.maksimum);
  if (!tempo) return;
  const QString naSekunde = linia.liczba ? u"Rekordów na sekundę: %1    "_s.arg(tempo->naSekunde) : QString();
  m_opis->setText(naSekunde + u"Zostało: "_s + tempo->zostalo);
}
