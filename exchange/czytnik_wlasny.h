#pragma once

#include "exchange/czytnik_tekstowy.h"

// The program's own layout, the one its exports write: a header line, then lines that are record lines
// already. An empty line is a record of one field, except at the very end of the file.
class CzytnikWlasny final : public CzytnikTekstowy {
 public:
  explicit CzytnikWlasny(const StrukturaPliku& struktura);

  // Goods: the header names the column and the record has it. Older files end with the suppliers.
  bool MaStatus() const override;

 private:
  int Rozloz(std::string_view linia) override;
  WynikCzytania NastepnaLinia(std::string_view& linia) override;
  void PierwszaLinia(std::string_view linia) override;
  void Przewin() override;

  bool m_naglowekMaStatus = false;
  int m_polWLinii = 0;
  // Empty lines wait here until it is known what follows them.
  qint64 m_puste = 0;
  bool m_wczytanaDalsza = false;
  std::string_view m_dalsza;
  WynikCzytania m_wynikDalszej = WynikCzytania::Koniec;
};
