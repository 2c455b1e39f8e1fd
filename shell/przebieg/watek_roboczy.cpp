#include "shell/przebieg/watek_roboczy.h"

WatekRoboczy::WatekRoboczy(StanPrzebiegu& stan, Robotnik::PokazWyjatek pokazWyjatek)
    : m_robotnik(
          stan,
          [this] {
            QMetaObject::invokeMethod(
                &m_odbiorca, [this] { m_robotnik.Obsluz(); }, Qt::QueuedConnection);
          },
          std::move(pokazWyjatek)) {}
