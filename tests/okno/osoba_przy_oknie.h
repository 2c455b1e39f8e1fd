#pragma once

#include <functional>
#include <vector>

#include <QDialog>
#include <QTimer>

#include <gtest/gtest.h>

// One thing a person does, as soon as it becomes possible.
struct Krok {
  std::function<bool()> mozna;
  std::function<void()> zrob;
};

// Shows a dialog to a person who takes the steps in their order; returns the dialog's result.
inline int Przejdz(QDialog& okno, const std::vector<Krok>& kroki) {
  std::size_t zrobionych = 0;
  QTimer zegar;
  QObject::connect(&zegar, &QTimer::timeout, [&] {
    if (zrobionych < kroki.size() && kroki[zrobionych].mozna()) kroki[zrobionych++].zrob();
  });
  zegar.start(1);
  const int wynik = okno.exec();
  EXPECT_EQ(zrobionych, kroki.size());
  return wynik;
}
