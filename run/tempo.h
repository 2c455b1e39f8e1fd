#pragma once

#include <chrono>
#include <optional>

#include <QString>

// How fast the bar of a phase moves, from the moment of its making. The clock can be stopped, so that the
// time somebody thinks about a question is not taken for slow work.
class Tempo {
 public:
  using Zegar = std::chrono::steady_clock;
  using Chwila = Zegar::time_point;

  explicit Tempo(Chwila teraz = Zegar::now()) : m_poczatek(teraz) {}

  void Wstrzymaj(Chwila teraz = Zegar::now()) { m_wstrzymano = teraz; }
  void Wznow(Chwila teraz = Zegar::now());

  struct Odczyt {
    long long naSekunde;
    QString zostalo;  // "1:05", "2:03:07"
  };
  // At the pace so far; nothing before that means something.
  std::optional<Odczyt> Odczytaj(long long pozycja, long long maksimum, Chwila teraz = Zegar::now()) const;

 private:
  Chwila m_poczatek;
  std::optional<Chwila> m_wstrzymano;
};
