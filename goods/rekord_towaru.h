#pragma once

#include <memory>
#include <optional>
#include <span>
#include <vector>

#include <QString>

#include "exchange/pola_rekordu.h"
#include "goods/kontrola_kodu.h"
#include "goods/zapis_towaru.h"
#include "model/towar.h"
#include "run/kolejka_rekordow.h"
#include "run/przebieg.h"

class EVLTWDError;
struct KontekstImportu;

// Decides what one record of a goods file does: it is skipped, adds a good, adds its code to a good, or
// changes, removes or restores a good. Every refusal becomes a line of the report and the run goes on; only
// faults of the database that every record would meet leave as exceptions.
class RekordTowaru {
 public:
  explicit RekordTowaru(KontekstImportu& import);

  // Stop when the operator ends the run while correcting the record.
  PoRekordzie Przetworz(const RekordPliku& rekord);
  // Reads the goods that the records will look for in one go, inside the open batch.
  void CzytajZWyprzedzeniem(std::span<const RekordPliku> rekordy);

 private:
  // What a step says: go on with the next step, or the record is done with.
  enum class Krok { Dalej, Koniec, Stop };

  Krok Przeprowadz(const RekordPliku& rekord, const PolaRekordu& pola);
  Krok FiltrujStatus(const RekordPliku& rekord, const PolaRekordu& pola);
  Krok UstalKod();
  Krok ZnajdzTowar(const QString& kod);
  Krok UstalNazwe();
  Krok SprawdzKod();
  Krok SprawdzTaSamaNazwe();
  Krok DodajJakoKodDodatkowy(int towId);
  Krok DodajTowar();
  Krok PoprawTowar();

  std::optional<int> TowarZNazwa() const;
  // The stock the record carries; nothing when it carries none that is to be written.
  Krok CzytajStan(const PolaRekordu& pola);
  bool ZapiszStan(int towId);
  bool ZmienStatus();
  bool SlownikiDoUzupelnienia() const;
  // Of a record without one, when nothing else gives it a code.
  void ZapytajOKod();

  // Dalej when the good was saved; otherwise the record is done with, `rezygnacja` in the report.
  Krok Zapisz(const QString& rezygnacja);
  Krok Pomin(const QString& komunikat);

  KontekstImportu& m_import;
  TDmVLTTowar m_towar;
  ZapisTowaru m_zapis;

  // Of the record in hand.
  KodRekordu m_kod;
  QString m_nazwa;
  bool m_aktywny = true;
  int m_numer = 0;  // in the file
  std::optional<double> m_stan;
};
