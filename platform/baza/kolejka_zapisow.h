#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/baza/wartosc.h"

// Rows that wait to be written many at a time: on a server every statement costs a journey there and back.
// The rows that belong to one record are written in their order; between records, rows of one statement text
// go together, as early as their own record lets them. Nobody queues two updates of one row, or rows of
// different records that refer to each other.
class KolejkaZapisow {
 public:
  // Runs one statement.
  using Wykonawca = std::function<void(std::string_view sql, std::span<const Parametr>)>;

  // The rows that come belong to another record than those before.
  void NowyRekord() { ++m_rekord; }
  // `sql`: "insert into T (columns) values (...)" or "... select ..." with one expression a column and no
  // comma inside of one; the parameters in the order of their placeholders. The same text always comes with
  // the same key column or without one.
  void Wstaw(std::string_view sql, std::span<const Parametr> parametry);
  // The same with the value of a key column that the text does not name.
  void Wstaw(std::string_view sql, std::span<const Parametr> parametry, const char* klucz, int id);
  // `sql`: "update T set column = expression, ... where K = :K and ...".
  void Popraw(std::string_view sql, std::span<const Parametr> parametry);
  std::size_t Ilosc() const { return m_wiersze.size(); }
  // Forgets the rows from that one on.
  void Utnij(std::size_t ile);
  // Writes the first rows. They are gone from the queue, also when a statement fails.
  void Wykonaj(std::size_t ile, const Wykonawca& wykonaj);

 private:
  // A statement text taken apart, and its forms for several rows, made once.
  struct Wzor {
    // An expression of a row: a value or, where it has none, a text.
    struct Wyrazenie {
      std::string tekst;  // the name of a value
      bool wartosc;
      const char* typ = nullptr;  // where the server cannot tell it
    };
    struct Postac {
      std::string sql;
      std::vector<std::string> nazwy;
    };
    const Postac& DlaWierszy(std::size_t ile);

    std::string poczatek;  // up to the rows
    std::vector<Wyrazenie> wyrazenia;
    std::string koniec = {};
    std::map<std::size_t, Postac> postacie = {};
  };
  struct Wiersz {
    Wzor* wzor;
    int rekord;
    std::vector<Wartosc> wartosci;
  };
  struct Grupa {
    Wzor* wzor;
    std::vector<Wiersz*> wiersze;
  };

  static Wzor Wstawienie(std::string_view sql, const char* klucz);
  static Wzor Poprawka(std::string_view sql, std::span<const Parametr> parametry);
  template <typename Zrob>
  void Dodaj(std::string_view sql, const Wartosc* klucz, std::span<const Parametr> parametry, Zrob zrob);
  static std::vector<Grupa> Pogrupuj(std::span<Wiersz> wiersze);
  static void WykonajGrupe(const Grupa& grupa, const Wykonawca& wykonaj);

  std::map<std::string, Wzor, std::less<>> m_wzory;  // by text
  std::vector<Wiersz> m_wiersze;
  int m_rekord = 0;
};
