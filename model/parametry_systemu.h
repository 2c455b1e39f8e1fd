#pragma once

#include <array>
#include <span>
#include <utility>
#include <vector>

#include <QString>
#include <QStringView>

class TMConfig;
class TVLTBazaDanych;

// The fixed numbers of the parameters that govern codes and prices. The register knows more of them (0 to
// 175).
enum class IdParametru : int {
  CenySprzedazyBrutto = 0,
  RachunekMarzy = 1,
  RachunekRabatuHurtowego = 2,
  RachunekNarzutuNocnego = 3,
  DomyslnieCenaOtwarta = 4,
  MinKodKreskowy = 5,
  MaxKodKreskowy = 6,
  LiteryWKodzieKreskowym = 7,
  KodyZaczynajaceSieOdZera = 8,
  JakTworzycKodWlasny = 9,
  WykorzystanieZwolnionychKodow = 10,
  PrefixKoduWlasnego = 11,
  PierwszyKodWlasny = 12,
  SprawdzacSumeKoduEAN = 13,
  AutomatyczneWazone = 14,
  TworzycWlasneWazone = 15,
  KodyWazoneBezPrefiksu = 16,
  KodyKrotkieDoWazonych = 17,
  MinKodKrotkiDoWazonego = 18,
  MaxKodKrotkiDoWazonego = 19,
  WymuszanieCenyZak = 20,
  WymuszanieMarzy = 21,
  DomyslnaStawka = 23,
  DomyslnyMagazyn = 24,
  DomyslnyAsortyment = 25,
  DomyslnaJM = 26,
  JMWazone = 27,
  BlokadaSkrotu = 28,
  BlokadaStawki = 29,
  AutomatycznePLU = 30,
  OffsetPLU = 31,
  SprawdzacUnikalnoscNIP = 34,
  Indeks1Centralny = 35,
  WysNaKasyNowyTowar = 36
};

// One line of the register. Title, default and choices are empty where this program has no use for the
// parameter.
struct OpisParametru {
  int id;
  QString nazwa;
  QStringView domyslna;
  QStringView tytul;
  std::span<const QStringView> wybory;  // in index order; a choice parameter stores the index
};

// A parameter as configured: what it is and what is stored.
class ParametrKonfiguracji {
 public:
  ParametrKonfiguracji(const OpisParametru& opis, const QString& wartosc)
      : m_opis(&opis), m_wartosc(&wartosc) {}

  const OpisParametru& Opis() const { return *m_opis; }
  const QString& AsString() const { return *m_wartosc; }
  // A number or the index of a choice; a text that is no number reads as the default, or 0 where there is
  // none.
  int AsInteger() const;
  bool AsFlag() const { return AsInteger() != 0; }

 private:
  const OpisParametru* m_opis;
  const QString* m_wartosc;
};

// The system parameters of the retail database: a register of 176 parameters with the values of one database.
// Each holds its default until Wczytaj. They are kept in the database's configurations named like the
// sections of the product; a name occurs in one section only, so that all of them are read into one set.
class ParametrySystemu {
 public:
  static constexpr int kIlosc = 176;
  // The configuration that holds the parameters of codes and prices.
  static const QString& KonfiguracjaKodow();
  // Those parameters with their defaults: what a new database starts with.
  static std::vector<std::pair<QString, QString>> DomyslneKodowICen();

  // 2008 for an identifier outside 0..175.
  static const OpisParametru& Opis(int id);

  ParametrySystemu();
  // Takes the values of the database; a parameter it does not name goes back to its default.
  void Wczytaj(TVLTBazaDanych& baza);
  void Zastosuj(const TMConfig& config);
  // Changes the value in memory only.
  void Ustaw(IdParametru id, const QString& wartosc);

  // 2008 for an identifier outside 0..175.
  ParametrKonfiguracji Parametr(int id) const;
  ParametrKonfiguracji operator[](IdParametru id) const { return Parametr(static_cast<int>(id)); }

 private:
  std::array<QString, kIlosc> m_wartosci;
};
