#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/baza/wartosc.h"

// The identifiers of a select that reads many records at once. The list always has the same length, a shorter
// one is filled up with its last identifier, so that one prepared statement serves all of them.
class ListaId {
 public:
  static constexpr std::size_t kNajwiecej = 100;

  // One to kNajwiecej identifiers.
  explicit ListaId(std::span<const int> identyfikatory);

  // "in (:Id0, ..., :Id99)"
  static const std::string& Warunek();
  std::span<const Parametr> Parametry() const { return m_parametry; }

 private:
  std::vector<Parametr> m_parametry;
};
