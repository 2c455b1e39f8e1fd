#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/baza/wartosc.h"

// Rows that wait to be inserted many at a time: on a server every statement costs a journey there and back.
// Rows of one statement text go together, the texts in the order in which each came first: whoever queues
// rows that refer to each other queues the one referred to first, always.
class KolejkaWstawien {
 public:
  // Runs one statement.
  using Wykonawca = std::function<void(std::string_view sql, std::span<const Parametr>)>;

  // `sql`: "insert into T (columns) values (...)" or "... select ..." with one expression a column and no
  // comma inside of one; the parameters in the order of their placeholders. The same text always comes with
  // the same key column or without one.
  void Dodaj(std::string_view sql, std::span<const Parametr> parametry);
  // The same with the value of a key column that the text does not name.
  void Dodaj(std::string_view sql, std::span<const Parametr> parametry, const char* klucz, int id);
  std::size_t Ilosc() const { return m_wiersze.size(); }
  // Forgets the rows from that one on.
  void Utnij(std::size_t ile);
  // Inserts the first rows. They are gone from the queue, also when a statement fails.
  void Wykonaj(std::size_t ile, const Wykonawca& wykonaj);

 private:
  // A statement text taken apart, and its forms for several rows, made once.
  struct Wzor {
    Wzor(std::string_view sql, const char* klucz);

    struct Postac {
      std::string sql;
      std::vector<std::string> nazwy;
    };
    const Postac& DlaWierszy(std::size_t ile);

    std::string poczatek;                // "insert into T (columns) values "
    std::vector<std::string> wyrazenia;  // of one row; placeholders with their colon
    std::map<std::size_t, Postac> postacie;
  };
  struct Wiersz {
    Wzor* wzor;
    std::vector<Wartosc> wartosci;
  };

  Wzor& ZnajdzWzor(std::string_view sql, const char* klucz);
  static void WykonajWzor(Wzor& wzor, std::span<Wiersz* const> wiersze, const Wykonawca& wykonaj);

  std::map<std::string, Wzor, std::less<>> m_wzory;  // by text
  std::vector<Wiersz> m_wiersze;
};
