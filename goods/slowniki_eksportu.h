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
  // A name holds a character that ends it when the block is read.
  bool ZnakiBloku() const { return m_znakiBloku; }

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
  bool m_znakiBloku = false;
};

// What goods refer to by identifier, read once for a whole export.
class SlownikiEksportu {
 public:
  explicit SlownikiEksportu(TVLTBazaDanych& baza);

  // Empty for an identifier that nobody has.
  const QString& Asortyment(long long asId) const { return Nazwa(m_asortymenty, asId); }
  const QString& Jednostka(long long jmId) const { return Nazwa(m_jednostki, jmId); }
  // Tax number of a contractor, trimmed.
  const QString& Nip(long long kontrId) const { return Nazwa(m_nipy, kontrId); }
  // None for an identifier that nobody has.
  const KategoriaEksportu* Kategoria(long long katId) const;

 private:
  using Nazwy = std::unordered_map<long long, QString>;
  static const QString& Nazwa(const Nazwy& nazwy, long long id);
  void WczytajKategorie(TVLTBazaDanych& baza);

  Nazwy m_asortymenty;
  Nazwy m_jednostki;
  Nazwy m_nipy;
  std::unordered_map<long long, KategoriaEksportu> m_kategorie;
};
