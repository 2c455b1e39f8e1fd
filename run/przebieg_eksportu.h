#pragma once

#include <string_view>
#include <vector>

#include <QStringList>

#include "exchange/wiersz_eksportu.h"
#include "exchange/zapis_rekordow.h"
#include "run/przebieg.h"

// What one kind of export says of itself.
struct OpisEksportu {
  std::u16string_view przygotowanie;  // phase in which the identifiers are read; empty: none is shown
  std::u16string_view eksport;        // phase of the body
  std::string_view identyfikatory;    // the select that gives them, rising
};

// The fault's companion in every export: nothing in the database has changed, but the file is not whole.
inline constexpr std::u16string_view kPlikNiepelny = u"Plik eksportu jest niepełny.";

// A run that writes records of the database to a file, one line each, in the order of their identifiers. The
// identifiers are read first; a record that is gone when its turn comes ends the run. Whatever the file does
// not take ends the run as a fault. Counted are the lines of a file that was closed whole.
class PrzebiegEksportu : public Przebieg {
 public:
  PrzebiegEksportu(const ParametryPrzebiegu& parametry, const OpisPrzebiegu& opis,
                   const OpisEksportu& opisEksportu)
      : Przebieg(parametry, opis), m_opisEksportu(opisEksportu) {}

 protected:
  // Just before the first record.
  virtual void PrzedRekordami() = 0;
  // The fields of the header line.
  virtual void Naglowek(ZapisRekordow& zapis) = 0;
  // Reads the next record; false when it is not to be sent.
  virtual bool Wczytaj(int id) = 0;
  // The fields of the record that was read.
  virtual void Rekord(WierszEksportu& pola) = 0;
  // What a person calls it.
  virtual QString NazwaRekordu() const = 0;
  // Just after the last record: gives back the running selects.
  virtual void PoRekordach() = 0;

  std::optional<Komunikat> OtworzPlik() override;
  std::optional<KoniecPrzebiegu> Przygotuj() final;
  KoniecPrzebiegu Cialo() final;
  void ZamknijPlik() override { m_zapis.Zamknij(); }
  void PrzedPodsumowaniem() override;
  void PoBledzie() override;

 private:
  // Records to be told of: how many, and the first of them.
  struct Wykaz {
    int ile = 0;
    QStringList pierwsze;
    void Dodaj(const QString& rekord);
  };

  // False when the file took no more.
  bool ZapiszRekord();
  KoniecPrzebiegu BladZapisu();
  Komunikat KomunikatBleduZapisu() const;

  const OpisEksportu& m_opisEksportu;
  ZapisRekordow m_zapis;
  std::vector<int> m_identyfikatory;
  Wykaz m_brakujaceZnaki;
  Wykaz m_niezwrotne;
};
