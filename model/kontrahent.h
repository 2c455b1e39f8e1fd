#pragma once

#include <span>
#include <string>
#include <vector>

#include <QString>

#include "model/element.h"
#include "model/kolumny.h"

class NumerySklepow;

// Columns of the contractor's row in the order in which the select returns them: those of table Kontrahent,
// then those of its row in table Sklep, all null for a contractor that is no shop. Kinds: model/kolumny.h.
#define ZORVIK_POLA_KONTRAHENTA(POLE) \
  POLE(KontrId, Klucz)                \
  POLE(AkwId, Liczba)                 \
  POLE(Nazwa, Tekst)                  \
  POLE(NaPrzelewie1, Tekst)           \
  POLE(NaPrzelewie2, Tekst)           \
  POLE(Skrot, Tekst)                  \
  POLE(Ulica, Tekst)                  \
  POLE(Kod, Tekst)                    \
  POLE(Miasto, Tekst)                 \
  POLE(Telefon, Tekst)                \
  POLE(Fax, Tekst)                    \
  POLE(EMail, Tekst)                  \
  POLE(Bank, Tekst)                   \
  POLE(Konto, Tekst)                  \
  POLE(NIP, Tekst)                    \
  POLE(Staly, Flaga)                  \
  POLE(Dostawca, Flaga)               \
  POLE(RabatDost, Kwota)              \
  POLE(FormaPlatDost, Liczba)         \
  POLE(TermPlatDost, Liczba)          \
  POLE(CzasRealZam, Liczba)           \
  POLE(Producent, Flaga)              \
  POLE(Odbiorca, Flaga)               \
  POLE(RabatOdb, Kwota)               \
  POLE(FormaPlatOdb, Liczba)          \
  POLE(TermPlatOdb, Liczba)           \
  POLE(MaxKredyt, Kwota)              \
  POLE(MaxPoTermPlat, Liczba)         \
  POLE(KodKarty, Tekst)               \
  POLE(KartaAktywna, Flaga)           \
  POLE(TermWaznKarty, Data)           \
  POLE(PoziomRabatu, Liczba)          \
  POLE(NrAnalityki, Tekst)            \
  POLE(KodKontr, Tekst)               \
  POLE(ZakPracChron, Flaga)           \
  POLE(Aktywny, Flaga)                \
  POLE(Rezerwa1, Tekst)               \
  POLE(Rezerwa2, Tekst)               \
  POLE(Zmiana, Zegar)                 \
  POLE(SklepId, Klucz)                \
  POLE(NrSklepu, Liczba)              \
  POLE(NrSeryjny, Tekst)              \
  POLE(MagId, Id)                     \
  POLE(OstImport, Czas)               \
  POLE(WymImport, Czas)               \
  POLE(DataBO, Czas)                  \
  POLE(KolejnyWDniuBO, Liczba)        \
  POLE(PelnyImport, Flaga)            \
  POLE(OstEksport, Czas)              \
  POLE(PotwEksport, Czas)

// Positions of the columns: Query.Field(KolumnaKontrahenta::NIP).
struct KolumnaKontrahenta {
  enum Numer : std::size_t { ZORVIK_POLA_KONTRAHENTA(ZORVIK_NUMER) kIlosc };
};

// One contractor with its shop row and the persons authorised to receive invoices.
// - Reading one takes two selects: the row with the shop's columns, and the persons.
// - Zapisz refuses before its first write: EVLTWDError 2839 without a name, 2860 when another shop has the
//   number of this one (the detail names that shop), 2006 for a number outside its column, 2040 for a text
//   longer than its own; 2001 when the row is gone. EBladBazy always passes unchanged: no value of a file can
//   cause one. After a failure the record is as it was and can be saved again.
class TDmVLTKontrahent final : public TDmVLTElement {
 public:
  explicit TDmVLTKontrahent(KontekstSesji& context);
  ~TDmVLTKontrahent() override;

  // Getters and setters by the columns' names: kontrahent.NIP(), kontrahent.UstawNIP(...). Of the shop's
  // columns a save writes NrSklepu, NrSeryjny, MagId (a warehouse can be replaced, not taken away), WymImport
  // and PelnyImport; the other dates and the counter belong to the exchange with the shop.
  using Kolumna = KolumnaKontrahenta;
  ZORVIK_POLA_KONTRAHENTA(ZORVIK_DOSTEP)

  // A shop without a number gets the highest number of all shops + 1 when it is saved: asked of the database
  // or, of the saves of one batch, of what they share, which outlives the record.
  void WspolneNumerySklepow(NumerySklepow& numery) { m_numery = &numery; }
  bool Sklep() const;
  void UstawSklep(bool sklep);

  // Surnames in the order in which they were stored or set. A save writes them only when they are not those
  // that the database holds by then.
  int IloscOsob() const { return static_cast<int>(m_osoby.size()); }
  // 2003 for an index outside the list.
  const QString& Osoba(int indeks) const;
  const std::vector<QString>& Osoby() const { return m_osoby; }
  // Replaces the list; empty ones and later duplicates are left out.
  void UstawOsoby(std::span<const QString> osoby);

  // Nothing differs from what was read: texts exactly, numbers within 1e-6, persons in order.
  bool TakiSamJakWBazie() const;

  // Deactivates or restores the stored contractor at once, a unit of its own; other changes of the record
  // stay pending. 2802 and 2803 when there is nothing to do.
  void Usun();
  void Przywroc();

 protected:
  const char* IdFieldName() const override { return "KontrId"; }
  void SetLoadParams(int id) override;
  std::optional<ZrodloWiersza> BlokowanyWiersz() const override {
    return ZrodloWiersza{"Kontrahent", "K", Kolumna::SklepId};
  }
  void ClearDetails() override;
  void AfterLoad(bool isNew, int id) override;
  void PrzyjmijCudzeSzczegoly(int id) override;
  int InsertRecord() override;
  void UpdateRecord(int id) override;
  void AfterSave() override;

 private:
  void UstawStatus(bool aktywny);

  bool BylSklepem() const;
  bool ZmienionySklep() const;
  std::vector<QString> WczytajOsoby(int id);
  void Sprawdz();
  long long NajwyzszyNumerSklepu();
  std::vector<Parametr>& ParametryZapisu();
  void WstawOsoby(int id) const;
  void PoprawOsoby(int id) const;
  void ZapiszSklep(int id);
  void WstawSklep(int id);
  QString OpisNowego() const;
  QString OpisZmian() const;

  std::vector<QString> m_osoby;
  std::vector<QString> m_osobyZBazy;
  std::vector<Parametr> m_parametry;  // kept for the next save
  NumerySklepow* m_numery = nullptr;
  std::string m_selectOsob;
  // Of the save in hand: the number under which it stores the shop, and whether it made the shop's row.
  long long m_nrSklepu = 0;
  bool m_nowySklep = false;
  // Whether table Sklep holds a row of the contractor, as it was read last.
  bool m_wierszSklepu = false;
};
