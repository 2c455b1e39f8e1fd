#pragma once

#include <functional>
#include <memory>

#include "run/kolejka_rekordow.h"
#include "run/przebieg.h"

class Czytnik;
class EBladBazy;
class PytanieOLiczbePol;

// The two fields, by catalogue number, that name a record in the report.
struct PolaNazwy {
  int pierwsze;
  int drugie;
};

// A run that reads a file record by record: looks it through, counts, then hands every record on.
class PrzebiegImportu : public Przebieg {
 public:
  PrzebiegImportu(const ParametryPrzebiegu& parametry, const OpisPrzebiegu& opis, PolaNazwy polaNazwy);
  ~PrzebiegImportu() override;

 protected:
  // Buffers of the run kind, shown as phases of their own. False: stopped.
  virtual bool PrzygotujBufory() = 0;
  // Just before the first record; the file has been accepted.
  virtual void PrzedRekordami() = 0;
  // Deals with one record inside the open batch. Stop ends the run at the operator's wish.
  virtual PoRekordzie Rekord(const RekordPliku& rekord) = 0;
  // Records that come next, inside the batch that is open now: what they need of the database can be read
  // together.
  virtual void CzytajZWyprzedzeniem(std::span<const RekordPliku> /*rekordy*/) {}
  // The open batch was undone and its records come again: what outlives a batch goes back as well.
  virtual void PoWycofaniuPaczki() {}

  // Fills a buffer as a phase of its own, with `maksimum` as the end of its bar. False: stopped.
  using PostepBufora = std::function<bool(int przeczytanych)>;
  bool FazaBufora(const QString& tekst, long long maksimum,
                  const std::function<bool(const PostepBufora&)>& napelnij);

  std::optional<Komunikat> OtworzPlik() override;
  std::optional<KoniecPrzebiegu> Przygotuj() final;
  KoniecPrzebiegu Cialo() final;
  void ZamknijPlik() override;

  Czytnik& Plik() { return *m_czytnik; }

 private:
  std::optional<KoniecPrzebiegu> PrzejrzyjPlik();
  enum class Krok {
    Dalej,
    Koniec,      // of the file
    Porzucony,   // by the answer to the question for the number of fields
    Zatrzymany,  // by the operator
  };
  void OtworzPaczke(KolejkaRekordow& kolejka);
  void ZapomnijZatwierdzone(KolejkaRekordow& kolejka);
  Krok Rozpatrz(const RekordPliku& rekord, PytanieOLiczbePol& pytanie);
  bool PowtorzPaczke(const EBladBazy& blad, KolejkaRekordow& kolejka);
  KoniecPrzebiegu PoOstatnimRekordzie(WynikCzytania wynik);
  void PominRekord(const RekordPliku& rekord);
  void ZglosSpostrzezenia(const RekordPliku& rekord);

  const PolaNazwy m_polaNazwy;
  std::unique_ptr<Czytnik> m_czytnik;
  long long m_rekordow = 0;
  int m_zakonczonychPaczek = 0;  // before the record in hand
  int m_powtorzen = 0;           // of the open batch
};
