#include "platform/listy_liczb.h"

#include <algorithm>

bool TMacSetOfIntegers::Add(int wartosc) {
  if (m_wartosci.empty() || m_wartosci.back() < wartosc) {
    m_wartosci.push_back(wartosc);
    return true;
  }
  const auto miejsce = std::lower_bound(m_wartosci.begin(), m_wartosci.end(), wartosc);
  if (*miejsce == wartosc) return false;
  m_wartosci.insert(miejsce, wartosc);
  return true;
}

bool TMacSetOfIntegers::Remove(int wartosc) {
  const auto miejsce = std::lower_bound(m_wartosci.begin(), m_wartosci.end(), wartosc);
  if (miejsce == m_wartosci.end() || *miejsce != wartosc) return false;
  m_wartosci.erase(miejsce);
  return true;
}

bool TMacSetOfIntegers::Contains(int wartosc) const {
  return std::binary_search(m_wartosci.begin(), m_wartosci.end(), wartosc);
}
