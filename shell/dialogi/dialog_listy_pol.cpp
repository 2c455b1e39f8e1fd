#include "shell/dialogi/dialog_listy_pol.h"

#include <algorithm>

#include <QPushButton>
#include <QShortcut>

#include <ui_dialog_listy_pol.h>

#include "shell/dialogi/dialogi.h"
#include "shell/dialogi/edytor_komorki.h"
#include "shell/dialogi/model_listy_pol.h"
#include "shell/dialogi/pasek_dialogu.h"
#include "shell/dialogi/siatka.h"
#include "shell/dialogi/widok_podgladu.h"
#include "shell/kontekst_okna.h"
#include "shell/rozmowa.h"
#include "ustawienia/tabela_ustawien.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Characters of an entry behind the field's number.
constexpr int kZnakowSzerokosci = 5;
constexpr int kZnakowNazwy = 20;

constexpr int kNumerPola = Qt::UserRole;

// Fields that cannot be switched off are always there.
bool MoznaWybrac(const StrukturaPliku& struktura, const PoleKatalogu& pole) {
  return pole.oferowanaNazwa.empty() || struktura.CzyOferowane(pole.numer);
}

}  // namespace

DialogListyPol::DialogListyPol(QWidget* rodzic, KontekstOkna& kontekst, const StrukturaPliku& struktura,
                               const QString& plik)
    : DialogEdycji(rodzic, kontekst.rozmowa),
      m_ui(std::make_unique<Ui::DialogListyPol>()),
      m_kontekst(kontekst),
      m_struktura(struktura),
      m_poczatkowa(struktura),
      m_model(new ModelListyPol(struktura, this)) {
  m_ui->setupUi(this);
  const bool towary = struktura.rodzaj == RodzajRekordu::Towary;
  setWindowTitle(towary ? u"Lista pól pliku towarów"_s : u"Lista pól pliku kontrahentów"_s);
  m_ui->lbKatalog->setText(windowTitle());
  m_podglad = new WidokPodgladu(m_ui->gbPodglad, kontekst);
  m_ui->ukladPodgladu->addWidget(m_podglad);
  UlozKatalog();
  UlozWybrane();
  UlozPrzyciski();
  Odswiez();
  m_podglad->UstawPlik(plik);
}

DialogListyPol::~DialogListyPol() = default;

StrukturaPliku DialogListyPol::Wynik() const {
  StrukturaPliku wynik = m_struktura;
  wynik.pola = m_model->Pola();
  return wynik;
}

const QString& DialogListyPol::Plik() const {
  return m_podglad->Plik();
}

bool DialogListyPol::MaZmiany() {
  m_edytor->ZakonczEdycje();
  return Wynik() != m_poczatkowa;
}

void DialogListyPol::UlozKatalog() {
  const int biezacy = m_ui->Katalog->currentRow();
  m_ui->Katalog->clear();
  for (const PoleKatalogu& pole : KatalogPol(m_struktura.rodzaj)) {
    auto* const pozycja = new QListWidgetItem(QStringView(pole.nazwa).toString(), m_ui->Katalog);
    pozycja->setData(kNumerPola, pole.numer);
    if (MoznaWybrac(m_struktura, pole)) continue;
    pozycja->setFlags(Qt::NoItemFlags);
    pozycja->setToolTip(u"Pole wyłączone w polach standardowych"_s);
  }
  m_ui->Katalog->setCurrentRow(std::max(0, biezacy));
}

void DialogListyPol::UlozWybrane() {
  QTableView& wybrane = *m_ui->Wybrane;
  wybrane.setModel(m_model);
  m_edytor = m_struktura.CBTypPliku == TypPliku::DBase
                 ? new EdytorKomorki(this, kZnakowNazwy)
                 : new EdytorKomorki(this, kZnakowSzerokosci, EdytorKomorki::Tresc::Liczba);
  wybrane.setItemDelegateForColumn(ModelListyPol::kDopisek, m_edytor);
  wybrane.horizontalHeader()->setSectionResizeMode(ModelListyPol::kPole, QHeaderView::Stretch);
  UlozSiatke(wybrane);
  if (m_model->rowCount() > 0) ZaznaczWiersz(0);
  const auto zmieniono = [this] { Odswiez(); };
  connect(m_model, &QAbstractItemModel::dataChanged, this, zmieniono);
  connect(m_model, &QAbstractItemModel::rowsInserted, this, zmieniono);
  connect(m_model, &QAbstractItemModel::rowsRemoved, this, zmieniono);
  connect(m_model, &QAbstractItemModel::rowsMoved, this, zmieniono);
  connect(wybrane.selectionModel(), &QItemSelectionModel::currentRowChanged, this, zmieniono);
}

void DialogListyPol::UlozPrzyciski() {
  const auto przycisk = [this](QPushButton& p, QWidget& gdzie, const QKeySequence& klawisz, auto czynnosc) {
    connect(&p, &QPushButton::clicked, this, czynnosc);
    auto* const skrot = new QShortcut(klawisz, &gdzie);
    skrot->setContext(Qt::WidgetWithChildrenShortcut);
    connect(skrot, &QShortcut::activated, &p, [&p] { p.click(); });
    p.setToolTip(p.toolTip() + u" (%1)"_s.arg(klawisz.toString(QKeySequence::NativeText)));
  };
  przycisk(*m_ui->Dodaj, *m_ui->Katalog, Qt::Key_Insert, [this] { Dodaj(); });
  przycisk(*m_ui->Usun, *m_ui->Wybrane, Qt::Key_Delete, [this] { Usun(); });
  przycisk(*m_ui->WGore, *m_ui->Wybrane, Qt::CTRL | Qt::Key_Up, [this] { Przesun(-1); });
  przycisk(*m_ui->WDol, *m_ui->Wybrane, Qt::CTRL | Qt::Key_Down, [this] { Przesun(1); });
  connect(m_ui->PolaStandardowe, &QPushButton::clicked, this, [this] { PolaStandardowe(); });
  connect(m_ui->Katalog, &QListWidget::itemDoubleClicked, this, [this] { Dodaj(); });
  connect(m_ui->Wybrane, &QTableView::doubleClicked, this, [this](const QModelIndex& indeks) {
    if (indeks.column() == ModelListyPol::kPole) Usun();
  });
  UlozPasek(*this, *m_ui->MStatusButtonBar, {{u"Zapisz"_s, u"Akceptuj"_s, u"F2"_s, [this] { Zapisz(); }}});
}

void DialogListyPol::Odswiez() {
  const int wiersz = BiezacyWiersz();
  m_ui->Usun->setEnabled(wiersz >= 0);
  m_ui->WGore->setEnabled(wiersz > 0);
  m_ui->WDol->setEnabled(wiersz >= 0 && wiersz + 1 < m_model->rowCount());
  m_podglad->UstawStrukture(Wynik());
}

int DialogListyPol::BiezacyWiersz() const {
  return m_ui->Wybrane->currentIndex().row();
}

void DialogListyPol::ZaznaczWiersz(int wiersz) {
  m_ui->Wybrane->setCurrentIndex(m_model->index(wiersz, std::max(0, m_ui->Wybrane->currentIndex().column())));
}

// Behind the current column of the file, so that fields added one after another keep their order.
void DialogListyPol::Dodaj() {
  int wiersz = m_model->rowCount() == 0 ? 0 : BiezacyWiersz() + 1;
  for (int i = 0; i < m_ui->Katalog->count(); ++i) {
    const QListWidgetItem& pozycja = *m_ui->Katalog->item(i);
    if (!pozycja.isSelected() || !(pozycja.flags() & Qt::ItemIsEnabled)) continue;
    m_model->Wstaw(wiersz, pozycja.data(kNumerPola).toInt());
    ZaznaczWiersz(wiersz++);
  }
}

void DialogListyPol::Usun() {
  if (const int wiersz = BiezacyWiersz(); wiersz >= 0) m_model->Usun(wiersz);
}

void DialogListyPol::Przesun(int kierunek) {
  if (m_model->Przesun(BiezacyWiersz(), kierunek)) Odswiez();
}

void DialogListyPol::Zapisz() {
  m_edytor->ZakonczEdycje();
  auto odmowa = SprawdzListePol(m_struktura.rodzaj, m_model->Pola());
  if (m_model->rowCount() > kNajdluzszaLista)
    odmowa = {u"UWAGA"_s, u"Lista ma %1 pól, a zapisać można najwyżej %2. Usuń z niej zbędne pola."_s
                              .arg(m_model->rowCount())
                              .arg(kNajdluzszaLista)};
  if (odmowa) return m_kontekst.rozmowa.Powiedz(this, *odmowa);
  accept();
}

void DialogListyPol::PolaStandardowe() {
  if (EdytujPolaStandardowe(this, m_kontekst, m_struktura)) UlozKatalog();
}
