#include "shell/przebieg/okno_postepu.h"

#include <algorithm>

#include <QShowEvent>
#include <QTimer>

#include <ui_okno_postepu.h>

#include "platform/tozsamosc_pliku.h"
#include "robotnik/stan_przebiegu.h"
#include "shell/przebieg/okno_pominietych.h"
#include "shell/przebieg/okno_uwag.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kOkresMs = 200;
constexpr int kOkresPrzedKoncemMs = 5;  // the worker is about to finish: nobody should wait to see it

// In the order of KoniecPrzebiegu.
constexpr std::u16string_view kKonce[] = {u"Zakończono", u"Przerwano", u"Zakończono z powodu błędu",
                                          u"Nie rozpoczęto"};

}  // namespace

Tfrm_progress::Tfrm_progress(StanPrzebiegu& stan, Rozmowa& rozmowa, QWidget* rodzic)
    : QDialog(rodzic),
      m_ui(std::make_unique<Ui::Tfrm_progress>()),
      m_timer(new QTimer(this)),
      m_stan(stan),
      m_rozmowa(rozmowa) {
  m_ui->setupUi(this);
  // A key left over from choosing the file must not stop the run: the button waits to be chosen.
  m_ui->tlp->setFocus();
  m_timer->setObjectName(u"timer"_s);
  m_timer->setInterval(kOkresMs);
  connect(m_timer, &QTimer::timeout, this, [this] { timerTimer(); });
  connect(m_ui->button, &QPushButton::clicked, this, [this] { buttonClick(); });
  connect(m_ui->pominiete, &QPushButton::clicked, this,
          [this] { PokazPominiete(this, m_rozmowa, m_plikPominietych); });
  connect(m_ui->uwagi, &QPushButton::clicked, this, [this] { PokazUwagi(this, m_rozmowa, m_uwagi); });
}

Tfrm_progress::~Tfrm_progress() = default;

TLProgressView& Tfrm_progress::Widok() {
  return *m_ui->tlp;
}

void Tfrm_progress::PokazWynik(const WynikPrzebiegu& wynik) {
  const QString koniec = QStringView(kKonce[static_cast<std::size_t>(wynik.koniec)]).toString();
  const bool zCzasem = wynik.koniec != KoniecPrzebiegu::Odmowa && wynik.sekund > 0;
  const double sekund = std::max(0.0, wynik.sekund - Widok().Czekano());
  m_zakonczenie =
      zCzasem ? u"%1 po %2 s"_s.arg(koniec, QString::number(sekund, 'f', 1).replace(u'.', u',')) : koniec;
  m_plikPominietych = wynik.plikPominietych;
  if (m_timer->isActive()) m_timer->start(kOkresPrzedKoncemMs);
  m_uwagi = wynik.uwagi;
  m_ui->uwagi->setText(u"&Uwagi (%1)..."_s.arg(m_uwagi.size()));
  m_ui->uwagi->setVisible(!m_uwagi.empty());
  m_ui->pominiete->setVisible(RozmiarPliku(m_plikPominietych) > 0);
}

// A window that is only minimised goes on.
void Tfrm_progress::showEvent(QShowEvent* zdarzenie) {
  if (!zdarzenie->spontaneous()) {
    m_ui->button->setText(u"Przerwij"_s);
    m_timer->start();
  }
  QDialog::showEvent(zdarzenie);
}

void Tfrm_progress::hideEvent(QHideEvent* zdarzenie) {
  if (!zdarzenie->spontaneous()) m_timer->stop();
  QDialog::hideEvent(zdarzenie);
}

void Tfrm_progress::timerTimer() {
  switch (m_stan.Get()) {
    case Stan::Zakonczony:
      m_timer->stop();
      m_ui->tlp->AddMessage(TLProgressView::kBezLinii, m_zakonczenie, StanPostepu::Koniec, 0);
      m_ui->button->setText(u"Zamknij"_s);
      m_ui->button->setEnabled(true);
      m_ui->button->setDefault(true);
      m_ui->button->setFocus();
      break;
    case Stan::Trwa:
      if (m_ui->button->isEnabled()) break;
      m_ui->button->setText(u"Przerwij"_s);
      m_ui->button->setEnabled(true);
      break;
    case Stan::Zatrzymywany:
      break;
  }
  m_ui->tlp->CheckMessages();
}

void Tfrm_progress::buttonClick() {
  if (m_stan.ZazadajStopu()) {
    m_ui->button->setText(u"Czekaj"_s);
    m_ui->button->setEnabled(false);
  } else if (m_stan.Get() == Stan::Zakonczony) {
    close();
  }
}

bool Tfrm_progress::FormCloseQuery() const {
  return m_stan.Get() == Stan::Zakonczony;
}

// Esc and the system's close box lead here too.
void Tfrm_progress::reject() {
  if (FormCloseQuery()) QDialog::reject();
}
