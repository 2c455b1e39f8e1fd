#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include <QHash>
#include <QString>

#include "exchange/katalog_pol.h"

struct Spostrzezenie;

// What a run tells without refusing anything. One kind of the result may have several texts.
enum class RodzajUwagi {
  WiecejPol,
  NieznanyVat,
  StawkaBezOpisu,
  VatDomyslny,
  Cudzyslow,
  StronaKodowa,
  DbaseLiczba,
  DbaseLogiczna,
  DbaseData,
  Data,
  ZapisWMiejscu,
  Ilosc
};

// One thing to be told: a kind and what fills its text.
struct TrescUwagi {
  RodzajUwagi rodzaj;
  QString pierwszy = {};
  QString drugi = {};

  QString Tekst() const;
  friend bool operator==(const TrescUwagi&, const TrescUwagi&) = default;
};
size_t qHash(const TrescUwagi& tresc, size_t ziarno = 0);

// What a reader noticed, in the words of a notice. A VAT text is said to mean the rate such texts are read
// as.
TrescUwagi UwagaZeSpostrzezenia(const Spostrzezenie& spostrzezenie, RodzajRekordu rodzaj);

// A notice as it is shown.
struct Uwaga {
  RodzajUwagi rodzaj;
  QString tekst;
  long long ile;             // records; 0: it speaks of the whole file
  std::vector<int> rekordy;  // numbers of the first ones

  // The name of the kind in the result, such as "wiecej-pol".
  QString NazwaRodzaju() const;
  // "2, 5, 9", with "…" behind when there are more.
  QString NumeryRekordow() const;
  // The text with the count and the numbers.
  QString Linia() const;
};

// The notices of one run. What is told of a record belongs to the open batch and is lost with it, like its
// counters; what is told of the file or of the run stays. A kind that has too many texts keeps the first ones
// and counts the others together.
class Uwagi {
 public:
  static constexpr std::size_t kNajwiecejRekordow = 10;
  static constexpr int kNajwiecejTekstow = 50;  // of one kind

  // Of a record of the open batch; a record counts once, however often the same is told of it.
  void Zglos(const TrescUwagi& tresc, int rekord);
  // Of the file or of the run; `ile`: the records it is about, where their number is known.
  void ZglosOCalosci(const TrescUwagi& tresc, long long ile = 0);

  void Zatwierdz();
  void Porzuc();

  // What is committed, by kinds, texts in the order in which they came.
  std::vector<Uwaga> Lista() const;

 private:
  struct Wpis {
    TrescUwagi tresc;
    bool oCalosci = false;
    long long ile = 0;
    long long wPaczce = 0;
    int ostatni = 0;             // record told of
    std::vector<int> rekordy{};  // those of the open batch behind the committed ones
    std::size_t zatwierdzonych = 0;
  };
  Wpis& Znajdz(const TrescUwagi& tresc);

  std::vector<Wpis> m_wpisy;
  QHash<TrescUwagi, std::size_t> m_miejsca;
  int m_tekstow[static_cast<std::size_t>(RodzajUwagi::Ilosc)] = {};
};
