#include "shell/przebieg/widok_postepu.h"

#include <QProgressBar>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace {

struct Widok {
  TLProgressView tlp;
  QTreeWidget& linie = *tlp.findChild<QTreeWidget*>("linie");
  QProgressBar& pasek = *tlp.findChild<QProgressBar*>("pasek");

  void Wyslij(int linia, StanPostepu stan, long long liczba = 0, const QString& tekst = {}) {
    tlp.AddMessage(linia, tekst, stan, liczba);
  }
  // Mark and text of a line.
  QString Linia(int numer) const {
    const QTreeWidgetItem& pozycja = *linie.topLevelItem(numer);
    return pozycja.text(0) + pozycja.text(1);
  }
  // -1: busy.
  int Procent() const { return pasek.maximum() == 0 ? -1 : 100 * pasek.value() / pasek.maximum(); }
};

TEST(WidokPostepu, LiczbaStoiTuzZaTekstemTakimJakiByl) {
  Widok widok;
  widok.Wyslij(0, StanPostepu::Linia, 0, "Ilość dodanych towarów ");
  widok.Wyslij(0, StanPostepu::Liczba, 12);
  widok.Wyslij(0, StanPostepu::Gotowe);
  widok.Wyslij(1, StanPostepu::Linia, 0, "Ilość dodanych asortymentów");
  EXPECT_EQ(widok.Linia(1), "Ilość dodanych asortymentów");
  widok.Wyslij(1, StanPostepu::Liczba, 3);
  widok.Wyslij(1, StanPostepu::Liczba, 4);
  widok.tlp.CheckMessages();
  EXPECT_EQ(widok.Linia(0), "✓Ilość dodanych towarów 12");
  EXPECT_EQ(widok.Linia(1), "Ilość dodanych asortymentów4");
  EXPECT_EQ(widok.linie.topLevelItemCount(), 2);
}

TEST(WidokPostepu, PasekIdzieZaOstatniaLiniaKtoraGoMa) {
  Widok widok;
  const auto procent = [&] {
    widok.tlp.CheckMessages();
    return widok.Procent();
  };
  EXPECT_EQ(procent(), 0);
  widok.Wyslij(0, StanPostepu::Linia, 0, "łączenie z bazą VLT Win");
  EXPECT_EQ(procent(), -1);
  widok.Wyslij(0, StanPostepu::Gotowe);
  EXPECT_EQ(procent(), 0);
  // More bytes than an int can count.
  widok.Wyslij(1, StanPostepu::Linia, 8'000'000'000, "Wstępne przeglądanie pliku");
  widok.Wyslij(1, StanPostepu::Pozycja, 6'000'000'000);
  EXPECT_EQ(procent(), 75);
  widok.Wyslij(1, StanPostepu::Pozycja, 9'000'000'000);
  EXPECT_EQ(procent(), 100);
  widok.Wyslij(1, StanPostepu::Gotowe);
  widok.Wyslij(2, StanPostepu::Linia, 10, "Numer aktualnego rekordu ");
  EXPECT_EQ(procent(), 0);
  widok.Wyslij(2, StanPostepu::Pozycja, 4);
  widok.Wyslij(3, StanPostepu::Linia, 0, "zamykanie pliku importu");
  EXPECT_EQ(procent(), -1);
  widok.Wyslij(TLProgressView::kBezLinii, StanPostepu::Koniec);
  EXPECT_EQ(widok.Procent(), 40);
}

}  // namespace
