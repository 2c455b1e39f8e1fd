#pragma once

#include <memory>

#include "run/przebieg.h"

class Czytnik;

// A run that reads a file record by record: looks it through, counts, then hands every record on.
class PrzebiegImportu : public Przebieg {
 public:
  PrzebiegImportu(const ParametryPrzebiegu& parametry, const OpisPrzebiegu& opis);
  ~PrzebiegImportu() override;

 protected:
  // Buffers of the run kind, shown as phases of their own. False: stopped.
  virtual bool PrzygotujBufory() = 0;
  // Just before the first record; the file has been accepted.
  virtual void PrzedRekordami() = 0;
  // Deals with one record inside the open batch. Stop ends the run at the operator's wish.
  virtual PoRekordzie Rekord(Czytnik& czytnik) = 0;

  std::optional<Komunikat> OtworzPlik() override;
  std::optional<KoniecPrzebiegu> Przygotuj() final;
  KoniecPrzebiegu Cialo() final;
  void ZamknijPlik() override;

  Czytnik& Plik() { return *m_czytnik; }

 private:
  std::optional<KoniecPrzebiegu> PrzejrzyjPlik();
  void PominRekord();

  std::unique_ptr<Czytnik> m_czytnik;
  long long m_rekordow = 0;
};
