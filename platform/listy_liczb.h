#pragma once

#include <cstddef>
#include <utility>
#include <vector>

// A list of integers in the order given; the position has a meaning of its own (flags per field, for
// example).
class TMacListOfIntegers {
 public:
  TMacListOfIntegers() = default;
  explicit TMacListOfIntegers(std::vector<int> wartosci) : m_wartosci(std::move(wartosci)) {}

  const std::vector<int>& GetValues() const { return m_wartosci; }
  void SetValues(std::vector<int> wartosci) { m_wartosci = std::move(wartosci); }

  std::size_t Count() const { return m_wartosci.size(); }
  int operator[](std::size_t pozycja) const { return m_wartosci[pozycja]; }
  void Add(int wartosc) { m_wartosci.push_back(wartosc); }
  void Clear() { m_wartosci.clear(); }

 private:
  std::vector<int> m_wartosci;
};

// A set of integers kept sorted in one block. Appending in ascending order costs nothing extra; a value in
// the middle moves what follows it.
class TMacSetOfIntegers {
 public:
  TMacSetOfIntegers() = default;
  // `pojemnosc`: how many values are expected.
  explicit TMacSetOfIntegers(std::size_t pojemnosc) { m_wartosci.reserve(pojemnosc); }

  // False when the value was there already.
  bool Add(int wartosc);
  // False when the value was not there.
  bool Remove(int wartosc);
  bool Contains(int wartosc) const;
  void Clear() { m_wartosci.clear(); }

  std::size_t Count() const { return m_wartosci.size(); }
  // Ascending.
  const std::vector<int>& GetValues() const { return m_wartosci; }

 private:
  std::vector<int> m_wartosci;
};
