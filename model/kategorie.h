#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "model/slowniki.h"

// A parameter of categories: a list of values, or a range of numbers. 2873 no name, 2874 name used, 2875 a
// list without values.
class TDmVLTParametr final : public TDmVLTWpisSlownika {
 public:
  enum class Typ { Lista = 0, Zakres = 1 };

  explicit TDmVLTParametr(KontekstSesji& context);

  Typ Rodzaj() const;
  double Od() const;
  double Do() const;
  // Values of a list; a good stores the position, counted from 0.
  const std::vector<QString>& Wartosci() const { return m_wartosci; }
  void UstawListe(std::vector<QString> wartosci);
  void UstawZakres(double od, double doo);

 protected:
  void ClearDetails() override { m_wartosci.clear(); }
  void AfterLoad(bool isNew, int id) override;
  void Sprawdz() const override;
  void ZapiszSzczegoly(int id) override;

 private:
  std::vector<QString> m_wartosci;
};

// All parameters, with their values in memory.
class TDmVLTListaParametrow final : public TDmVLTListaSlownika {
 public:
  explicit TDmVLTListaParametrow(KontekstSesji& context);

  // Nothing for an identifier outside the list.
  std::optional<TDmVLTParametr::Typ> Rodzaj(int parId);
  // Bounds of a range.
  double Od(int parId);
  double Do(int parId);
  const std::vector<QString>& Wartosci(int parId) const;

 protected:
  void ClearDetails() override;
  void AfterOpen(bool flag) override;
  void FillRowFromElement(const TDmVLTElement& element) override;
  std::unique_ptr<TDmVLTElement> CreateElement() override;

 private:
  std::unordered_map<int, std::vector<QString>> m_wartosci;
};

// The parameters of a category as they are stored: identifiers in their order, and the order number behind
// them.
struct ZapisaneParametry {
  std::vector<int> id;
  int nastepnaKolejnosc = 0;
};
ZapisaneParametry CzytajParametryKategorii(TVLTBazaDanych& baza, int katId);

// A category with its parameters in order; they are only ever added behind the others, so a save writes the
// new ones alone. 2877 no name, 2878 name used.
class TDmVLTKategoria final : public TDmVLTWpisSlownika {
 public:
  explicit TDmVLTKategoria(KontekstSesji& context);

  const std::vector<int>& Parametry() const { return m_parametry; }
  // Appends; one that the category has already stays where it is.
  void DodajParametr(int parId);

 protected:
  void ClearDetails() override;
  void AfterLoad(bool isNew, int id) override;
  void ZapiszSzczegoly(int id) override;
  void AfterSave() override;

 private:
  std::vector<int> m_parametry;
  std::size_t m_zapisane = 0;   // of the parameters, the first ones
  int m_nastepnaKolejnosc = 0;  // behind them
};

// All categories, with their parameters in memory.
class TDmVLTListaKategorii final : public TDmVLTListaSlownika {
 public:
  explicit TDmVLTListaKategorii(KontekstSesji& context);

  const std::vector<int>& Parametry(int katId) const;

 protected:
  void ClearDetails() override;
  void AfterOpen(bool flag) override;
  void FillRowFromElement(const TDmVLTElement& element) override;
  std::unique_ptr<TDmVLTElement> CreateElement() override;

 private:
  std::unordered_map<int, std::vector<int>> m_parametry;
};
