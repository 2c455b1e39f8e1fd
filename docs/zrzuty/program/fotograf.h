#pragma once

#include <deque>
#include <functional>

#include <QDir>

#include "shell/rozmowa.h"

// Sits in front of the windows, takes their pictures and does what a person would. Every dialog and box is
// the real one; what is done in it was laid out beforehand, in the order in which they come. One that nobody
// expected ends the program.
class Fotograf final : public Rozmowa {
 public:
  explicit Fotograf(const QDir& katalog) : m_katalog(katalog) {}

  // Called in the event loop of the next dialog; has to close it, now or later.
  using Czynnosc = std::function<void(QDialog&)>;
  std::deque<Czynnosc> osoba;
  std::deque<QString> pliki;  // chosen one after another

  // Saves a picture under the caption of the window, and looks whether a person could work with it.
  void Zdjecie(QWidget& okno, const QString& nazwa);
  // What is wrong with the windows, each line with the name of the picture.
  const QStringList& Wady() const { return m_wady; }

  int Pokaz(QDialog& dialog) override;
  std::optional<QString> WybierzDoOdczytu(QWidget* rodzic, const WyborPliku& wybor) override;
  std::optional<QString> WybierzDoZapisu(QWidget* rodzic, const WyborPliku& wybor) override;

 private:
  QDir m_katalog;
  QStringList m_wady;
};

// Both leave the event loop running.
void Odczekaj(int milisekund);
void PoczekajAz(const std::function<bool()>& warunek);
