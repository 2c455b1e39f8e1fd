#pragma once

#include <chrono>

#include <QString>

// Where a run tells what it is doing. The window, the command line and the tests each have their own; the run
// waits until a call returns. Lines are shown in the order they were begun and calls without a line number
// mean the last.
class IPostep {
 public:
  virtual ~IPostep() = default;

  // Begins a line. `maksimum` is the end of its bar, 0 for a line without one.
  virtual void Faza(const QString& tekst, long long maksimum = 0) = 0;
  // Moves the bar of the last line.
  virtual void Pozycja(long long pozycja) = 0;
  // Shows a number behind the text of the last line in place of the one shown before.
  virtual void DopiszLiczbe(long long liczba) = 0;
  // Marks the last line as done.
  virtual void Gotowe() = 0;
  // A message box: caption and text. Waits until it was read where somebody can read it.
  virtual void Pokaz(const QString& tytul, const QString& tekst) = 0;
  // One notice, at the end. Where the result's list is shown instead, nothing is done.
  virtual void PokazUwage(const QString& /*linia*/) {}
  // The run is over; nothing more will come.
  virtual void Koniec() = 0;
};

// Lets 25 events a second through, so that showing a number never costs more than the work it tells about.
class DlawikPostepu {
 public:
  bool Przepusc() {
    const auto teraz = std::chrono::steady_clock::now();
    if (teraz < m_nastepny) return false;
    m_nastepny = teraz + std::chrono::milliseconds(40);
    return true;
  }

 private:
  std::chrono::steady_clock::time_point m_nastepny{};
};
