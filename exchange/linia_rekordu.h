#pragma once

#include <QString>
#include <string_view>

#include "exchange/struktura_pliku.h"

// A number taken off a record line. A token that is no number keeps its trimmed text in `bledny`; the caller
// refuses the record with it.
template <typename T>
struct TokenLiczby {
  T wartosc{};
  bool poprawny = true;
  QString bledny;
};

// The values of one import record in catalogue order, each followed by a tab, as bytes of the file's code
// page. The readers below take them off in order. The line is only looked at: the reader that produced it
// owns the bytes, which stay valid until its next record.
class LiniaRekordu {
 public:
  LiniaRekordu() = default;
  // `pobrane`: fields already taken from the file for this record; the counter goes on from there.
  LiniaRekordu(std::string_view linia, StronaKodowa strona, int pobrane = 0)
      : m_reszta(linia), m_strona(strona), m_licznik(pobrane) {}

  // The text up to the next tab, as it stands. What no tab follows is taken to be in Windows-1250 already.
  QString Tekst();
  // The next token trimmed: `domyslna` for an empty one.
  TokenLiczby<int> Calkowita(int domyslna = 0);
  // The next token trimmed: 0 for an empty one. `separator` is the system's decimal mark; the first mark of
  // the other kind is read as it.
  TokenLiczby<double> Liczba(char separator);
  void Pomin();

  // Fields taken so far for this record.
  int Licznik() const { return m_licznik; }
  std::string_view Reszta() const { return m_reszta; }
  StronaKodowa Strona() const { return m_strona; }

 private:
  struct Token {
    std::string_view bajty;
    bool zakonczony;  // a tab stood behind it
  };
  Token Nastepny();

  std::string_view m_reszta;
  StronaKodowa m_strona = StronaKodowa::Windows;
  int m_licznik = 0;
};
