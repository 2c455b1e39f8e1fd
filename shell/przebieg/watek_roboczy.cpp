#include "shell/przebieg/watek_roboczy.h"

#include "shell/kontrolki/pozniej.h"

WatekRoboczy::WatekRoboczy(StanPrzebiegu& stan, Robotnik::PokazWyjatek pokazWyjatek)
    : m_robotnik(
          stan, [this] { Pozniej(m_odbiorca, [this] { m_robotnik.Obsluz(); }); }, std::move(pokazWyjatek)) {}
