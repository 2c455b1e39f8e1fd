#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "run/operator.h"

class Liczniki;
class RaportProblemow;
class TVLTBazaDanych;
class Uwagi;

// Groups the saves of up to kNajwiecejRekordow records or one second into one transaction of the database.
// Inside, every unit (a save, a stock write, a new dictionary entry) is a savepoint of its own, so a batch
// never holds half a unit. Counters, report lines and notices of the batch become final with its
// commit.
//
// What memory may rely on:
// 1. the unit of rollback is the savepoint; a refused record keeps the units it completed;
// 2. memory changes only after its unit succeeded;
// 3. when a commit fails, or the database ends the transaction by itself, the counters, lines and notices of
//    the batch are dropped. After a collision with another program what outlives the batch goes back with it
//    and its records come again; any other exception ends the run, whose frame marks the longer-lived buffers
//    as not ready;
// 4. whether a transaction is open is asked of the database, not remembered.
class PaczkaZapisow {
 public:
  // Many records share the pages of the indexes: written once a batch instead of once for every few records.
  static constexpr int kNajwiecejRekordow = 4000;
  static constexpr std::chrono::milliseconds kNajdluzej{1000};
  // A waiting session of SQLite looks for the lock every 100 ms and would hardly ever meet the moment between
  // two batches: so there is a longer one now and then, well within its time-out.
  static constexpr std::chrono::milliseconds kPrzerwaCo{5000};
  static constexpr std::chrono::milliseconds kPrzerwa{110};

  PaczkaZapisow(TVLTBazaDanych& baza, Liczniki& liczniki, RaportProblemow& raport, Uwagi& uwagi)
      : m_baza(baza), m_liczniki(liczniki), m_raport(raport), m_uwagi(uwagi) {}

  // Called inside every transaction just begun; `obceZmiany` is set in the first batch and whenever another
  // connection has committed something since the batch before: what is kept of the database must be read
  // anew.
  std::function<void(bool obceZmiany)> PoOtwarciu;
  // Called when a batch is committed: what its records changed in memory is there for good.
  std::function<void()> PoZatwierdzeniu;

  // Before every record: commits a full batch and makes sure that one is open.
  void PrzedRekordem();
  // Begins a batch when none is open.
  void Otworz();
  bool Otwarta() const { return m_otwarta; }
  // How many batches have come to their end, committed or undone.
  int Zakonczonych() const { return m_zakonczonych; }
  // Commits what is open; nothing when nothing is. Throws EBladBazy when the database could not, the batch is
  // then lost.
  void Zatwierdz();
  // Undoes the open batch as if it had not been begun: its records can be gone through again. What is kept of
  // the database is then read anew.
  void Wycofaj() noexcept;
  // The next batch writes every row alone, so that a refused one is met by its own record.
  void PiszPojedynczo() { m_pojedynczo = true; }
  // After an exception: keeps the whole units done so far when the database still can, drops them otherwise.
  void UratujCoSieDa() noexcept;

 private:
  void Porzuc() noexcept;
  void UstapInnym();

  using Zegar = std::chrono::steady_clock;
  TVLTBazaDanych& m_baza;
  Liczniki& m_liczniki;
  RaportProblemow& m_raport;
  Uwagi& m_uwagi;
  bool m_otwarta = false;
  bool m_pojedynczo = false;
  int m_zakonczonych = 0;
  int m_rekordow = 0;
  Zegar::time_point m_poczatek{};
  Zegar::time_point m_ostatniaPrzerwa = Zegar::now();
  std::optional<long long> m_znacznik;
};

// The operator as records see him: the open batch is committed before the question and a new one is begun
// after it. The record in hand stays unsaved meanwhile; what it looked up before may have changed when others
// write as well.
class OperatorPaczki final : public IOperator {
 public:
  OperatorPaczki(IOperator& oper, PaczkaZapisow& paczka) : m_oper(oper), m_paczka(paczka) {}

  bool JestOsoba() const override { return m_oper.JestOsoba(); }
  OdpowiedzLiczbaPol LiczbaPol(const Komunikat& pytanie) override;
  Poprawka Popraw(TDmVLTElement& rekord, const OdmowaZapisu& odmowa) override;
  bool CzyTak(const Komunikat& pytanie, bool bezpieczna) override;
  std::optional<QString> PodajTekst(const Komunikat& pytanie) override;

 private:
  template <typename Pytanie>
  auto PozaPaczka(Pytanie pytanie);

  IOperator& m_oper;
  PaczkaZapisow& m_paczka;
};
