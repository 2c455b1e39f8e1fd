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
  const char* tabela;                 // where the identifiers are,
  const char* klucz;                  // in which column
};

// A run that writes records of the database to a file, one line each, in the order of their identifiers. The
// identifiers are read first, then everything else as of one moment, page by page. A record that was gone at
// that moment ends the run. Whatever the file does not take ends the run as a fault. Counted are the lines of
// a file that was closed whole.
class PrzebiegEksportu : public Przebieg {
 public:
  PrzebiegEksportu(const ParametryPrzebiegu& parametry, const OpisPrzebiegu& opis,
                   const OpisEksportu& opisEksportu)
      : Przebieg(parametry, opis), m_opisEksportu(opisEksportu) {}

 protected:
  // Identifiers of one page: some 20 MB of a server's rows. Smaller ones cost more time, because the driver
  // keeps every value apart and gets such memory back in pieces.
  static constexpr std::size_t kStrona = 10'000;

  // Before the first page; what is read from here on is of one moment.
  virtual void PrzedRekordami() = 0;
  // The fields of the header line.
  virtual void Naglowek(ZapisRekordow& zapis) = 0;
  // The next records are those from one identifier to another.
  virtual void Strona(int od, int doId) = 0;
  // Reads the next record; false when it is not to be sent.
  virtual bool Wczytaj(int id) = 0;
  // The fields of the record that was read.
  virtual void Rekord(WierszEksportu& pola) = 0;
  // What a person calls it.
  virtual QString NazwaRekordu() const = 0;
  // After the last record, also after a fault: gives back the running selects.
  virtual void PoRekordach() = 0;

  std::optional<Komunikat> OtworzPlik() override;
  std::optional<KoniecPrzebiegu> Przygotuj() final;
  KoniecPrzebiegu Cialo() final;
  void ZamknijPlik() override { m_zapis.Zamknij(); }
  void PrzedPodsumowaniem() override;
  void PoBledzie() override;
  // Nothing in the database has changed, but the file is not whole.
  QString CoZostalo() const override;

 private:
  // Records to be told of: how many, and the first of them.
  struct Wykaz {
    int ile = 0;
    QStringList pierwsze;
    void Dodaj(const QString& rekord);
  };

  void WczytajIdentyfikatory();
  // Counts what it writes; `Blad` when the file took no more.
  KoniecPrzebiegu Wypisz(long long& zapisanych);
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
