#pragma once

#include <functional>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include <QString>

class ListaId;
class TVLTBazaDanych;

// Details of one good beside its additional codes. Each is a value inside the good's record and knows what
// was read; only the record writes them.

// Values of category parameters, by parameter identifier. A list parameter holds the position of the value
// from 0.
class WartosciParametrow {
 public:
  using Pozycja = std::pair<int, double>;  // ParId, Wartosc

  std::optional<double> Wartosc(int parId) const;
  void Ustaw(int parId, double wartosc);
  bool Usun(int parId);
  // Exactly these parameters have a value; one that had none gets 0.
  void Uzupelnij(std::vector<int> parametry);
  const std::vector<Pozycja>& Wszystkie() const { return m_wartosci; }  // by ParId

  // The same parameters, values within 1e-6.
  bool TakieSameJakWBazie() const;

  void Wyczysc();
  void Wczytaj(TVLTBazaDanych& baza, int towId);
  // Those of many goods, every good's by ParId.
  static void Wczytaj(TVLTBazaDanych& baza, const ListaId& towary,
                      const std::function<void(int towId, Pozycja)>& przyjmij);
  // Values that were read already, by ParId.
  void UstawZBazy(std::vector<Pozycja> wartosci) {
    m_wartosci = std::move(wartosci);
    m_zBazy = m_wartosci;
  }
  void Zapisz(TVLTBazaDanych& baza, int towId) const;
  void ZatwierdzZmiany() { m_zBazy = m_wartosci; }

 private:
  std::vector<Pozycja> m_wartosci;
  std::vector<Pozycja> m_zBazy;
};

// Suppliers of a good in their order. Files name suppliers by tax number: those that have none are not
// reached by a file and stay behind the others.
class DostawcyTowaru {
 public:
  struct Dostawca {
    int kontrId;
    bool maNip;
    friend bool operator==(const Dostawca&, const Dostawca&) = default;
  };

  const std::vector<Dostawca>& Wszyscy() const { return m_dostawcy; }
  // Replaces the suppliers with a tax number, in the given order; repeats are dropped.
  void UstawZNipem(std::span<const int> kontrahenci);

  bool TakieSameJakWBazie() const;

  void Wyczysc();
  void Wczytaj(TVLTBazaDanych& baza, int towId);
  // Those of many goods, every good's in their order.
  static void Wczytaj(TVLTBazaDanych& baza, const ListaId& towary,
                      const std::function<void(int towId, Dostawca)>& przyjmij);
  // Suppliers that were read already, in their order.
  void UstawZBazy(std::vector<Dostawca> dostawcy) {
    m_dostawcy = std::move(dostawcy);
    m_zBazy = m_dostawcy;
  }
  void Zapisz(TVLTBazaDanych& baza, int towId) const;
  void ZatwierdzZmiany() { m_zBazy = m_dostawcy; }

 private:
  std::vector<Dostawca> m_dostawcy;
  std::vector<Dostawca> m_zBazy;
};

// Stock of a good, one row per warehouse by the warehouses' names. Stock and blocked quantity belong to the
// warehouse documents and are only read here.
class StanyTowaru {
 public:
  struct Stan {
    int magId = -1;
    QString nazwa = {};
    double stanMag = 0, blokadaMag = 0;
    double cenaMag = 0, stanMin = 0, stanMax = 0;
    bool zmieniony = false;
  };

  int Ilosc() const { return static_cast<int>(m_stany.size()); }
  // 2003 outside the list.
  const Stan& operator[](int indeks) const;
  // False when there is no such warehouse.
  bool UstawCenaMag(int magId, double wartosc) { return Ustaw(magId, &Stan::cenaMag, wartosc); }
  bool UstawStanMin(int magId, double wartosc) { return Ustaw(magId, &Stan::stanMin, wartosc); }
  bool UstawStanMax(int magId, double wartosc) { return Ustaw(magId, &Stan::stanMax, wartosc); }

  // The warehouses with the good's stock; the warehouses alone for -1.
  void Wczytaj(TVLTBazaDanych& baza, int towId);
  // Writes the changed rows.
  void Zapisz(TVLTBazaDanych& baza, int towId) const;
  void ZatwierdzZmiany();

 private:
  bool Ustaw(int magId, double Stan::*pole, double wartosc);

  std::vector<Stan> m_stany;
};
