#include "shell/dialogi/widok_podgladu.h"

#include <algorithm>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedLayout>
#include <QStyle>
#include <QTableWidget>
#include <QThreadPool>
#include <QVBoxLayout>

#include "shell/dialogi/podglad_pliku.h"
#include "shell/dialogi/siatka.h"
#include "shell/kontekst_okna.h"
#include "shell/kontrolki/filtry_plikow.h"
#include "shell/kontrolki/pozniej.h"
#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::milliseconds kZwloka{200};
constexpr int kNajszerszaKolumna = 260;
constexpr qsizetype kNajwiecejUwag = 4;  // the table needs room as well

// All reasons against the file, then the records that would make the run stop, then what it would tell.
QString TekstUwag(const PodgladPliku& podglad) {
  QStringList uwagi = podglad.powody;
  const auto zUwaga = [](const PodgladPliku::Wiersz& wiersz) { return !wiersz.uwaga.isEmpty(); };
  const auto pierwszy = std::find_if(podglad.wiersze.begin(), podglad.wiersze.end(), zUwaga);
  if (pierwszy != podglad.wiersze.end()) {
    uwagi << pierwszy->uwaga;
    const auto ile = std::count_if(pierwszy, podglad.wiersze.end(), zUwaga);
    if (ile > 1) uwagi.last() += u" Takich rekordów wśród pokazanych: %1."_s.arg(ile);
  }
  uwagi << podglad.uwagi.mid(0, kNajwiecejUwag);
  if (const qsizetype dalszych = podglad.uwagi.size() - kNajwiecejUwag; dalszych > 0)
    uwagi << u"Dalszych uwag: %1. Wskazują je znaki w tabeli."_s.arg(dalszych);
  return uwagi.join(u'\n');
}

QString Polaczone(const QString& a, const QString& b) {
  return a.isEmpty() || b.isEmpty() ? a + b : a + u'\n' + b;
}

// The name first: a long folder is cut at its end.
QString OpisPliku(const QString& plik) {
  const QFileInfo opis(plik);
  return opis.fileName() + u"  –  "_s + QDir::toNativeSeparators(opis.path());
}

}  // namespace

WidokPodgladu::WidokPodgladu(QWidget* rodzic, KontekstOkna& kontekst)
    : QWidget(rodzic),
      m_kontekst(kontekst),
      m_nazwaPliku(new QLabel(this)),
      m_uklad(new QStackedLayout),
      m_tabela(new QTableWidget(this)),
      m_uwagi(new QLabel(this)) {
  m_nazwaPliku->setTextFormat(Qt::PlainText);
  m_nazwaPliku->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* const wybierz = new QPushButton(u"Wybierz &plik…"_s, this);
  wybierz->setObjectName(u"WybierzPlik"_s);
  wybierz->setAutoDefault(false);
  connect(wybierz, &QPushButton::clicked, this, [this] { WybierzPlik(); });

  m_tabela->setObjectName(u"TabelaPodgladu"_s);
  m_tabela->setAccessibleName(u"Pierwsze rekordy pliku"_s);
  m_tabela->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_tabela->setAlternatingRowColors(true);
  UlozSiatke(*m_tabela);
  m_tabela->horizontalHeader()->setMaximumSectionSize(kNajszerszaKolumna);

  auto* const podpowiedz = new QLabel(
      u"Nie wybrano pliku.\nPo wybraniu widać tu jego pierwsze rekordy tak, jak zostaną odczytane."_s, this);
  podpowiedz->setObjectName(u"PodpowiedzPodgladu"_s);
  podpowiedz->setAlignment(Qt::AlignCenter);
  podpowiedz->setWordWrap(true);

  m_uwagi->setObjectName(u"UwagiPodgladu"_s);
  m_uwagi->setTextFormat(Qt::PlainText);
  m_uwagi->setWordWrap(true);

  auto* const gora = new QHBoxLayout;
  gora->addWidget(m_nazwaPliku, 1);
  gora->addWidget(wybierz);
  m_uklad->addWidget(podpowiedz);
  m_uklad->addWidget(m_tabela);
  auto* const uklad = new QVBoxLayout(this);
  uklad->setContentsMargins(0, 0, 0, 0);
  uklad->addLayout(gora);
  uklad->addLayout(m_uklad, 1);
  uklad->addWidget(m_uwagi);

  setTabOrder(wybierz, m_tabela);
  m_zwloka.setSingleShot(true);
  connect(&m_zwloka, &QTimer::timeout, this, [this] { Odswiez(); });
}

void WidokPodgladu::UstawStrukture(const StrukturaPliku& struktura) {
  m_struktura = struktura;
  m_zwloka.start(kZwloka);
}

void WidokPodgladu::UstawPlik(const QString& plik) {
  m_plik = QDir::fromNativeSeparators(plik);
  Odswiez();
}

void WidokPodgladu::WybierzPlik() {
  const auto plik = m_kontekst.rozmowa.WybierzDoOdczytu(
      this, {.tytul = u"Plik do podglądu"_s,
             .sciezka = m_plik.isEmpty() ? QDir::homePath() : m_plik,
             .filtr = FiltrImportu(m_struktura.CBTypPliku),
             .rozszerzenie = RozszerzenieImportu(m_struktura.CBTypPliku)});
  if (plik) UstawPlik(*plik);
}

void WidokPodgladu::Odswiez() {
  m_zwloka.stop();
  m_nazwaPliku->setText(m_plik.isEmpty() ? QString() : OpisPliku(m_plik));
  m_nazwaPliku->setToolTip(QDir::toNativeSeparators(m_plik));
  m_uklad->setCurrentIndex(m_plik.isEmpty() ? 0 : 1);
  m_ponow = m_czyta;
  if (m_czyta) return;
  if (m_plik.isEmpty()) return PokazPodglad({});
  m_czyta = true;
  // The program object outlives the reading, which the pool finishes before it goes.
  QThreadPool::globalInstance()->start([struktura = m_struktura, plik = m_plik,
                                        baza = m_kontekst.baza.Parametry(), program = qApp,
                                        widok = std::weak_ptr(m_jestem)] {
    Pozniej(*program, [podglad = CzytajPodglad(struktura, plik, baza), widok] {
      if (const auto jest = widok.lock()) (*jest)->Przyjmij(podglad);
    });
  });
}

void WidokPodgladu::Przyjmij(const PodgladPliku& podglad) {
  m_czyta = false;
  if (m_ponow)
    Odswiez();
  else
    PokazPodglad(podglad);
}

void WidokPodgladu::PokazPodglad(const PodgladPliku& podglad) {
  const int przewiniecie = m_tabela->horizontalScrollBar()->value();
  PokazWiersze(podglad);
  m_tabela->horizontalScrollBar()->setValue(przewiniecie);
  const QString uwagi = TekstUwag(podglad);
  m_uwagi->setText(uwagi.isEmpty() ? QString() : u"⚠ "_s + uwagi);
  m_uwagi->setVisible(!uwagi.isEmpty());
}

void WidokPodgladu::PokazWiersze(const PodgladPliku& podglad) {
  m_tabela->clear();
  m_tabela->setColumnCount(static_cast<int>(podglad.naglowki.size()));
  m_tabela->setRowCount(static_cast<int>(podglad.wiersze.size()));
  m_tabela->setHorizontalHeaderLabels(podglad.naglowki);
  const QIcon ostrzezenie = style()->standardIcon(QStyle::SP_MessageBoxWarning);
  const QIcon informacja = style()->standardIcon(QStyle::SP_MessageBoxInformation);
  for (int w = 0; w < m_tabela->rowCount(); ++w) {
    const PodgladPliku::Wiersz& wiersz = podglad.wiersze[static_cast<size_t>(w)];
    auto* const naglowek = new QTableWidgetItem(QString::number(w + 1));
    const QString oLinii = Polaczone(wiersz.uwaga, wiersz.wLinii);
    if (!oLinii.isEmpty()) {
      naglowek->setIcon(wiersz.uwaga.isEmpty() ? informacja : ostrzezenie);
      naglowek->setToolTip(oLinii);
    }
    m_tabela->setVerticalHeaderItem(w, naglowek);
    for (int k = 0; k < m_tabela->columnCount(); ++k) {
      auto* const komorka = new QTableWidgetItem(wiersz.wartosci[k]);
      komorka->setToolTip(Polaczone(wiersz.zauwazone[k], oLinii));
      if (!wiersz.zauwazone[k].isEmpty()) komorka->setIcon(informacja);
      m_tabela->setItem(w, k, komorka);
    }
  }
  m_tabela->resizeColumnsToContents();
}
