#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include <QString>
#include <QStringView>

#include "model/element.h"
#include "model/lista_elementow.h"

// What tells the weighted codes of one format from all others: two leading digits and, behind them, that many
// digits that name the good. The rest of the code (weight or price, check digit) varies from piece to piece.
struct FormatKoduWazonego {
  int prefix = 0;      // 0..99
  int czescStala = 0;  // digits of the constant part

  friend bool operator==(const FormatKoduWazonego&, const FormatKoduWazonego&) = default;
};

// The format that a mask such as "2712345??????" names: the value of its first two characters, and as
// constant part what stands before the first "?". Nothing for a text without "?", with one among the first
// two characters, or whose first two characters are no digits.
std::optional<FormatKoduWazonego> FormatZMaski(QStringView maska);

// The formats of one database in a form that answers for a code without a search. A value; 400 bytes.
class FormatyKodowWazonych {
 public:
  // Full length of a weighted code.
  static constexpr int kDlugosc = 13;

  // Formats that no code can have (prefix beyond 99, constant part beyond 31 digits) are left out.
  void Dodaj(FormatKoduWazonego format);
  bool Zawiera(FormatKoduWazonego format) const;
  // The format a code belongs to: a mask exactly, a code of 13 digits by its prefix (the longest constant
  // part wins), or a code of just the prefix and the constant part. Nothing for an ordinary code.
  std::optional<FormatKoduWazonego> Dopasuj(QStringView kod) const;

 private:
  std::array<std::uint32_t, 100> m_dlugosci{};  // per prefix: one bit per length of the constant part
};

// A weighted-code format of the dictionary KodWazony.
class TDmVLTKodWazony final : public TDmVLTElement {
 public:
  explicit TDmVLTKodWazony(KontekstSesji& context);
  ~TDmVLTKodWazony() override;

  QString Nazwa() const;
  FormatKoduWazonego Format() const;
  int WartoscWKodzie() const;
  int DodKontrola() const;
  void UstawNazwe(const QString& nazwa);
  void UstawFormat(FormatKoduWazonego format);
  void UstawWartoscWKodzie(int wartosc);
  void UstawDodKontrola(int wartosc);

 protected:
  const char* IdFieldName() const override { return "KWId"; }
  void SetLoadParams(int id) override;
  void AfterLoad(bool isNew, int id) override;
  int InsertRecord() override;
  void UpdateRecord(int id) override;
};

// All formats, by identifier.
class TDmVLTListaKodowWazonych final : public TDmVLTListaElementow {
 public:
  explicit TDmVLTListaKodowWazonych(KontekstSesji& context);
  ~TDmVLTListaKodowWazonych() override;

  // The formats of the rows in memory; does not move the cursor for the caller.
  FormatyKodowWazonych Formaty();

 protected:
  void FillRowFromElement(const TDmVLTElement& element) override;
  std::unique_ptr<TDmVLTElement> CreateElement() override;
};
