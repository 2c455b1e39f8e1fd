#pragma once

#include <functional>
#include <vector>

#include <QString>

class ListaId;
class TVLTBazaDanych;

// One additional code of a good.
struct KodDodatkowy {
  int kolejnosc = 0;  // order number within the good, from 1; 0 while the code has no place yet
  QString kod = {};
  QString skrot = {};
  int poziomCen = 0;
  int prefPLU = 0;
  double ileWKodzie = 1;  // quantity that one scan stands for

  friend bool operator==(const KodDodatkowy&, const KodDodatkowy&) = default;
};

// The additional codes of one good in their order, as they are now and as they were read. A value inside the
// good's record; only the record writes it.
class KodyDodatkowe {
 public:
  int Ilosc() const { return static_cast<int>(m_kody.size()); }
  // 2003 outside the list.
  const KodDodatkowy& operator[](int indeks) const;
  const std::vector<KodDodatkowy>& Wszystkie() const { return m_kody; }
  const std::vector<KodDodatkowy>& ZBazy() const { return m_zBazy; }
  // Index of the code, -1 when the good does not have it.
  int Indeks(const QString& kod) const;

  // Appends behind the last one and returns the order number it got.
  int Dodaj(KodDodatkowy kod);
  // 2003 outside the list.
  void UstawSkrot(int indeks, const QString& skrot);
  bool Usun(int kolejnosc);
  // Takes a whole new list in its order. Codes that came from this good keep their order number as long as
  // the numbers still rise; the others (0) get the next free one.
  void Ustaw(std::vector<KodDodatkowy> kody);

  // Whether code, short name and PLU prefix are the same in order; what a file can carry.
  bool TakieSameJakWBazie() const;
  bool Zmienione() const { return !(m_kody == m_zBazy); }

  // How many cash registers hold the code; asked of the database.
  int Wyslany(TVLTBazaDanych& baza, int indeks) const;

  void Wyczysc();
  void Wczytaj(TVLTBazaDanych& baza, int towId);
  // Those of many goods, every good's in their order.
  static void Wczytaj(TVLTBazaDanych& baza, const ListaId& towary,
                      const std::function<void(int towId, KodDodatkowy)>& przyjmij);
  // Codes that were read already.
  void UstawZBazy(std::vector<KodDodatkowy> kody) {
    m_kody = std::move(kody);
    m_zBazy = m_kody;
  }
  // 2040 when a code or a short name is longer than its column.
  void WymagajMiejsca() const;
  // Writes the differences to what was read: changed, new and removed ones. 2006 for a number that its column
  // cannot hold.
  void Zapisz(TVLTBazaDanych& baza, int towId) const;
  // What is in memory is what is stored now.
  void ZatwierdzZmiany() { m_zBazy = m_kody; }

 private:
  std::vector<KodDodatkowy> m_kody;
  std::vector<KodDodatkowy> m_zBazy;
};
