#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>

#include <gtest/gtest.h>

#include "platform/liczby.h"

// What a person does with the controls of a form, by their names.

template <typename Kontrolka = QWidget>
Kontrolka& Znajdz(QDialog& okno, const QString& nazwa) {
  auto* const kontrolka = okno.findChild<Kontrolka*>(nazwa);
  EXPECT_NE(kontrolka, nullptr) << nazwa.toStdString();
  return *kontrolka;
}
inline void Wpisz(QDialog& okno, const QString& nazwa, const QString& tekst) {
  Znajdz<QLineEdit>(okno, nazwa).setText(tekst);
}
// Returns the dialog's result so far.
inline int Kliknij(QDialog& okno, const QString& nazwa) {
  Znajdz<QAbstractButton>(okno, nazwa).click();
  return okno.result();
}
// What is shown as wrong beside a control.
inline QString BladPrzy(QDialog& okno, const QString& nazwa) {
  return Znajdz(okno, nazwa).accessibleDescription();
}
// Numbers are shown with the system's decimal mark.
inline QString Liczba(QString zKropka) {
  return zKropka.replace(u'.', QLatin1Char(liczby::SeparatorSystemu()));
}
