#pragma once

#include <memory>

#include <QDialog>

#include "run/przebieg.h"

class QTimer;
class Rozmowa;
class StanPrzebiegu;
class TLProgressView;
namespace Ui {
class Tfrm_progress;
}

// The progress window of one run. It looks at the state of the worker every 200 ms, offers to stop it, and
// can be closed only once it is finished.
class Tfrm_progress final : public QDialog {
 public:
  Tfrm_progress(StanPrzebiegu& stan, Rozmowa& rozmowa, QWidget* rodzic = nullptr);
  ~Tfrm_progress() override;

  TLProgressView& Widok();
  // How the run ended, shown once the worker is finished; offers the records it skipped and what
  // it noticed.
  void PokazWynik(const WynikPrzebiegu& wynik);

  void reject() override;

 protected:
  void showEvent(QShowEvent* zdarzenie) override;
  void hideEvent(QHideEvent* zdarzenie) override;

 private:
  void timerTimer();
  void buttonClick();
  bool FormCloseQuery() const;

  std::unique_ptr<Ui::Tfrm_progress> m_ui;
  QTimer* m_timer;
  StanPrzebiegu& m_stan;
  Rozmowa& m_rozmowa;
  QString m_zakonczenie;
  QString m_plikPominietych;
  std::vector<Uwaga> m_uwagi;
};
