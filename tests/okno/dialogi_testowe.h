#pragma once

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QLineEdit>

#include "database/schemat.h"
#include "shell/dialogi/dialogi.h"
#include "shell/kontekst_okna.h"
#include "tests/okno/rozmowa_testowa.h"
#include "tests/wspolne/baza_testowa.h"

// The dialogs with a person who answers by the book, on a database that knows VAT rates.
struct DialogiTestowe : testing::Test {
  DialogiTestowe() {
    UtworzBaze(b.baza, {});
    b.Polacz(kontekst.baza);
    UstawStawki({2300, 800, 550, -1});
  }

  void UstawStawki(std::initializer_list<int> stawki) {
    kontekst.baza.ExecSQL("delete from Vat");
    for (const int stawka : stawki)
      kontekst.baza.ExecSQL("insert into Vat (Stawka) values (:s)", {{"s", stawka}});
  }

  // What a person does in the next dialog; Accepted or Rejected by a button of the bar, pressed last.
  void Osoba(std::function<void(QDialog&)> czynnosci, const QString& przycisk) {
    rozmowa.dialogi.push_back([=](QDialog& dialog) {
      dialog.show();
      czynnosci(dialog);
      Kliknij(dialog, przycisk);
      return dialog.result();
    });
  }

  template <typename Kontrolka>
  static Kontrolka& Znajdz(QWidget& gdzie, const QString& nazwa) {
    auto* const kontrolka = gdzie.findChild<Kontrolka*>(nazwa);
    if (!kontrolka) throw std::runtime_error("no control " + nazwa.toStdString());
    return *kontrolka;
  }
  static void Kliknij(QWidget& gdzie, const QString& nazwa) { Znajdz<QAbstractButton>(gdzie, nazwa).click(); }
  static void Wpisz(QWidget& gdzie, const QString& nazwa, const QString& tekst) {
    Znajdz<QLineEdit>(gdzie, nazwa).setText(tekst);
  }
  static bool Doczekano(const std::function<bool()>& warunek) {
    for (const QDeadlineTimer koniec(5000); !koniec.hasExpired();) {
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
      if (warunek()) return true;
    }
    return false;
  }

  BazaTestowa b;
  RozmowaTestowa rozmowa;
  KontekstOkna kontekst{.rozmowa = rozmowa};
};
