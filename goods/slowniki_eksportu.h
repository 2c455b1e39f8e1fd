#pragma once

#include <unordered_map>
#include <utility>
#include <vector>

#include <QString>

class TVLTBazaDanych;

// A category as the block of an export shows it, all but the chosen values ready.
class KategoriaEksportu {
 public:
  // "Category: par(n:a|b);par(n:lo..hi)"; a parameter without a value counts as 0.
  QString Blok(const std::vector<std::pair<int, long long>>& wartosci) const;
  // Whether an import reads the block as what it was made of.
  bool Wroci() const { return m_wroci; }

 private:
  friend class SlownikiEksportu;
  struct Parametr {
    int parId;
    QString przed;     // up to the number
    int przesuniecie;  // from the stored value to the written one; -1: no number is written
    QString po;
  };
  QString m_nazwa;
  std::vector<Parametr> m_parametry;
  bool m_wroci = true;
};

// A contractor's tax number, trimmed, and whether an import finds this contractor by it: the number has
// digits, and no contractor before has the same.
struct NipKontrahenta {
  QString nip;
  bool wskazuje = true;
};

// What goods refer to by identifier, read once for a whole export.
class SlownikiEksportu {
 public:
  explicit SlownikiEksportu(TVLTBazaDanych& baza);

  // Empty for an identifier that nobody has.
  const QString& Asortyment(long long asId) const { return Wpis(m_asortymenty, asId); }
  const QString& Jednostka(long long jmId) const { return Wpis(m_jednostki, jmId); }
  const NipKontrahenta& Nip(long long kontrId) const { return Wpis(m_nipy, kontrId); }
  // None for an identifier that nobody has.
  const KategoriaEksportu* Kategoria(long long katId) const;

 private:
  template <typename T>
  using Slownik = std::unordered_map<long long, T>;
  template <typename T>
  static const T& Wpis(const Slownik<T>& slownik, long long id) {
    static const T pusty{};
    const auto wpis = slownik.find(id);
    return wpis == slownik.end() ? pusty : wpis->second;
  }
  void WczytajNipy(TVLTBazaDanych& baza);
  void WczytajKategorie(TVLTBazaDanych& baza);

  Slownik<QString> m_asortymenty;
  Slownik<QString> m_jednostki;
  Slownik<NipKontrahenta> m_nipy;
  Slownik<KategoriaEksportu> m_kategorie;
};
