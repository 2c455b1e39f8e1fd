#include <QPushButton>

#include <gtest/gtest.h>

#include "shell/kontrolki/pasek_przyciskow.h"
#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

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

// Which buttons of a real box Enter and Esc press.
class RozmowaBezOsoby final : public Rozmowa {
 public:
  Przycisk enter{}, esc{};
  int Pokaz(QDialog& dialog) override {
    const auto& okno = static_cast<const QMessageBox&>(dialog);
    enter = okno.standardButton(okno.defaultButton());
    esc = okno.standardButton(okno.escapeButton());
    return QMessageBox::NoButton;
  }
};

TEST(PytanieOkna, EnterIEsc) {
  RozmowaBezOsoby rozmowa;
  EXPECT_FALSE(rozmowa.CzyTak(nullptr, {u"Uwaga"_s, u"Czy?"_s}));
  EXPECT_EQ(std::pair(rozmowa.enter, rozmowa.esc), std::pair(QMessageBox::No, QMessageBox::No));
  rozmowa.Zapytaj(nullptr, {u"Uwaga"_s, u"Co?"_s}, QMessageBox::Question,
                  QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore, QMessageBox::Retry);
  EXPECT_EQ(std::pair(rozmowa.enter, rozmowa.esc), std::pair(QMessageBox::Retry, QMessageBox::Abort));
}

}  // namespace
