#pragma once

#include <QObject>

#include "robotnik/robotnik.h"

// The worker of a window: each of its calls reaches the main thread as an event, so windows and questions
// live on while it works.
class WatekRoboczy {
 public:
  WatekRoboczy(StanPrzebiegu& stan, Robotnik::PokazWyjatek pokazWyjatek);

  void Uruchom(Robotnik::Praca praca) { m_robotnik.Uruchom(std::move(praca)); }
  void Dokoncz() { m_robotnik.Dokoncz(); }

 private:
  QObject m_odbiorca;  // of the events; outlives the thread
  Robotnik m_robotnik;
};
