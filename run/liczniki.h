#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

// What a run counts. The numbers are shown in the summary of the run kind, in the order of its own table.
enum class Licznik {
  Rekordy,  // records dealt with, whatever became of them
  Dodane,
  Poprawione,
  Pominiete,
  BezZmian,  // identical with the database; goods: part of the skipped ones
  Asortymenty,
  Jednostki,
  Stawki,
  Kategorie,
  Parametry,
  FormatyKodowWazonych,
  Stany,  // goods whose stock was written
  Ilosc
};

// One line of a summary: the text stands before the number exactly as given here, blank included or not.
struct PozycjaPodsumowania {
  Licznik licznik;
  std::u16string_view tekst;
};

// Counters of one run. What is counted belongs to the open batch and is lost with it; only what was committed
// is read, so that a summary never promises more than the database holds.
class Liczniki {
 public:
  void Zwieksz(Licznik licznik, long long o = 1) { m_otwarte[Indeks(licznik)] += o; }
  void Zatwierdz();
  void Porzuc() { m_otwarte = {}; }
  // What was committed is gone as well.
  void Wyzeruj() { m_otwarte = m_zatwierdzone = {}; }

  // Committed only.
  long long operator[](Licznik licznik) const { return m_zatwierdzone[Indeks(licznik)]; }

 private:
  using Tablica = std::array<long long, static_cast<std::size_t>(Licznik::Ilosc)>;
  static std::size_t Indeks(Licznik licznik) { return static_cast<std::size_t>(licznik); }

  Tablica m_zatwierdzone{};
  Tablica m_otwarte{};
};
