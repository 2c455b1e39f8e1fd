#pragma once

#include <string>
#include <vector>

#include "exchange/czytnik.h"
#include "exchange/plik_dbase.h"
#include "exchange/reguly_pol.h"

// Records of a dBase III table; the field list says which column feeds which field.
class CzytnikDBase final : public Czytnik {
 public:
  explicit CzytnikDBase(const StrukturaPliku& struktura);

  std::optional<Komunikat> Otworz(const QString& sciezka) override;
  std::optional<Komunikat> SprawdzPola() const override;
  WynikLiczenia Policz(const Postep& postep) override;
  WynikCzytania Nastepny() override;
  std::vector<Spostrzezenie> SpostrzezeniaPliku() const override;

  qint64 Pozycja() const override { return m_nastepny; }
  qint64 Rozmiar() const override { return m_plik.RecordCount(); }

 private:
  struct Kolumna {
    int pole;  // -1 for an unreadable number
    QString nazwa;
    int indeks = -1;      // in the opened file
    std::string bezCr{};  // holds the value when it had to be changed
  };
  // Whether the column feeds a field; others are passed over.
  bool Czytana(const Kolumna& kolumna) const;
  void Przewin();

  const StrukturaPliku m_struktura;
  PlikDBase m_plik;
  RegulyPol m_reguly;
  std::vector<Kolumna> m_kolumny;
  qint64 m_nastepny = 0;
};
