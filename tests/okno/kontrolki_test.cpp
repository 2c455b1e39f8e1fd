#include <QPushButton>

#include <gtest/gtest.h>

#include "shell/kontrolki/pasek_przyciskow.h"

namespace {

TEST(PasekPrzyciskow, PrzyciskMaNazweBezWzgleduNaWielkoscLiter) {
  TMStatusButtonBar pasek;
  pasek.Dodaj("Strukturapliku", "Struktura pliku", "F6");
  pasek.Dodaj("Wyjscie", "Wyjście", "Esc");
  QStringList klikniete;
  pasek.ButtonClick = [&](const TMStatusButton& przycisk) { klikniete << przycisk.Name(); };
  EXPECT_EQ(pasek.Przycisk(u"Import"), nullptr);
  ASSERT_NE(pasek.Przycisk(u"StrukturaPliku"), nullptr);
  EXPECT_TRUE(pasek.Przycisk(u"StrukturaPliku")->IsTheSameName(u"STRUKTURAPLIKU"));
  pasek.findChild<QPushButton*>("Wyjscie")->click();
  EXPECT_EQ(klikniete, QStringList{"Wyjscie"});
}

}  // namespace
