#pragma once

#include <deque>
#include <functional>
#include <vector>

#include <QScopeGuard>

#include <gtest/gtest.h>

#include "shell/rozmowa.h"

// Gives the answers a test has laid out and keeps what was asked. A question nobody expected fails the test.
class RozmowaTestowa final : public Rozmowa {
 public:
  std::deque<Przycisk> odpowiedzi;
  std::deque<std::optional<QString>> teksty;
  std::deque<std::optional<QString>> pliki;
  // What the person does in the next dialog; returns its result.
  std::deque<std::function<int(QDialog&)>> dialogi;

  struct Pytanie {
    Komunikat komunikat;
    Ikona ikona;
    Przyciski przyciski;
    Przycisk domyslny;
  };
  std::vector<Pytanie> pytania;
  std::vector<WyborPliku> wybory;

  Przycisk Zapytaj(QWidget*, const Komunikat& komunikat, Ikona ikona, Przyciski przyciski,
                   Przycisk domyslny) override {
    pytania.push_back({komunikat, ikona, przyciski, domyslny});
    if (przyciski == QMessageBox::Ok) return QMessageBox::Ok;
    return Nastepny(odpowiedzi, QMessageBox::NoButton, komunikat.tekst);
  }
  std::optional<QString> PodajTekst(QWidget*, const Komunikat& pytanie, const QString&) override {
    return Nastepny(teksty, std::optional<QString>(), pytanie.tekst);
  }
  std::optional<QString> WybierzDoOdczytu(QWidget*, const WyborPliku& wybor) override {
    wybory.push_back(wybor);
    return Nastepny(pliki, std::optional<QString>(), wybor.tytul);
  }
  std::optional<QString> WybierzDoZapisu(QWidget* rodzic, const WyborPliku& wybor) override {
    return WybierzDoOdczytu(rodzic, wybor);
  }
  int Pokaz(QDialog& dialog) override {
    const auto osoba = Nastepny(dialogi, std::function<int(QDialog&)>(), dialog.windowTitle());
    return osoba ? osoba(dialog) : QDialog::Rejected;
  }

 private:
  template <typename T>
  T Nastepny(std::deque<T>& kolejka, T brak, const QString& pytanie) {
    if (kolejka.empty()) {
      ADD_FAILURE() << "unexpected: " << pytanie.toStdString();
      return brak;
    }
    const auto zdejmij = qScopeGuard([&] { kolejka.pop_front(); });
    return std::move(kolejka.front());
  }
};
