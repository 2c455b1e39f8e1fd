#pragma once

#include <optional>

#include <QString>

class PolaRekordu;
class TDmVLTTowar;
struct KontekstImportu;
struct RekordPliku;

// Carries the values of one record into the good's record. A new good takes every field of the file; a good
// of the database takes the fields whose update flag is set and that the file carries, and one managed by the
// centre keeps its name, type and VAT rate. Dictionary entries are found or added on the way.
class TransferPol {
 public:
  // The rate of a good whose file says none, or one that nobody knows.
  static constexpr int kStawkaDomyslna = 2200;

  // `pola`: the values of `rekord`.
  TransferPol(KontekstImportu& import, const RekordPliku& rekord, const PolaRekordu& pola, TDmVLTTowar& towar,
              bool nowy)
      : m_import(import), m_rekord(rekord), m_pola(pola), m_towar(towar), m_nowy(nowy) {}

  // How the record was refused.
  struct Odmowa {
    QString tekst;  // empty: whoever refused has reported it already
  };
  // `nazwa` is the name decided for the good; empty leaves it without one (or with the one it has).
  std::optional<Odmowa> Przenies(const QString& nazwa);

 private:
  using Wynik = std::optional<Odmowa>;

  bool Bierze(int pole) const;
  Wynik Nazwy(const QString& nazwa);
  Wynik Typ();
  Wynik ProstePola();
  Wynik Stawka();
  void ZglosDomyslnaStawke(bool nieczytelna);
  void PoziomyCen();
  Wynik Asortyment();
  Wynik Jednostka();
  Wynik Kody();
  Wynik Kategoria();
  void Producent();
  Wynik Dostawcy();
  int KontrahentZNipem(const QString& nip);

  KontekstImportu& m_import;
  const RekordPliku& m_rekord;
  const PolaRekordu& m_pola;
  TDmVLTTowar& m_towar;
  const bool m_nowy;
};
