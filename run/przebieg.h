#pragma once

#include <atomic>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include <QString>

#include "exchange/komunikat.h"
#include "platform/baza/blad_bazy.h"
#include "run/liczniki.h"
#include "run/paczka_zapisow.h"
#include "run/postep.h"
#include "run/raport_problemow.h"
#include "run/uwagi.h"

class IOperator;
struct KontekstSesji;
struct StrukturaPliku;

// What a run is started with. References must outlive the run.
struct ParametryPrzebiegu {
  KontekstSesji& sesja;
  const StrukturaPliku& struktura;
  QString plik;
  IPostep& postep;
  IOperator& oper;
  const std::atomic<bool>& stop;  // set by another thread or a signal; looked at between records
  char separatorDziesietny = '.';
  QString katalogPominietych{};  // empty: the program's folder
};

enum class KoniecPrzebiegu {
  Zakonczono,
  Przerwano,  // by the operator
  Blad,       // by a fault of the database or the file
  Odmowa      // it did not begin
};

struct WynikPrzebiegu {
  KoniecPrzebiegu koniec = KoniecPrzebiegu::Odmowa;
  Liczniki liczniki;                  // committed counts
  std::vector<Komunikat> komunikaty;  // every message box shown
  QString plikPominietych;            // empty when none was created
  double sekund = 0;
  std::vector<Uwaga> uwagi = {};  // what was noticed and not refused
};

// What one run kind says of itself.
struct OpisPrzebiegu {
  std::u16string_view plikPominietych;  // empty: no such file
  std::u16string_view zamykaniePliku;   // phase line
  std::u16string_view zakonczono;       // text of the last message box
  std::span<const PozycjaPodsumowania> podsumowanie;
};

enum class PoRekordzie { Dalej, Stop };

// The frame every run shares: opening checks, connection, body, closing steps, summary; exceptions are caught
// here and nowhere below. A run kind supplies the steps. One object carries one run.
class Przebieg {
 public:
  Przebieg(const ParametryPrzebiegu& parametry, const OpisPrzebiegu& opis);
  virtual ~Przebieg();
  Przebieg(const Przebieg&) = delete;
  Przebieg& operator=(const Przebieg&) = delete;

  WynikPrzebiegu Wykonaj();

 protected:
  // Opens the file, which is known to be none that a run must leave alone; a message means that the run does
  // not begin.
  virtual std::optional<Komunikat> OtworzPlik() = 0;
  // The phases between the connection and the body; how the run ends when the body is not to begin.
  virtual std::optional<KoniecPrzebiegu> Przygotuj() = 0;
  // The body. The frame commits the batch it leaves open.
  virtual KoniecPrzebiegu Cialo() = 0;
  virtual void ZamknijPlik() = 0;
  // Between the closing message and the summary.
  virtual void PrzedPodsumowaniem() {}
  // An exception ended the run: what outlives it may be ahead of the database.
  virtual void PoBledzie() {}
  // Said below a fault: what of the run is saved, here the records whose result the database holds.
  virtual QString CoZostalo() const;

  bool Stop() const { return m_parametry.stop.load(std::memory_order_relaxed); }
  void Pokaz(const Komunikat& komunikat) { m_postep.Pokaz(komunikat.naglowek, komunikat.tekst); }

  // Says that the operator ended the run; to be returned as its end.
  KoniecPrzebiegu PrzerwanoPrzezOperatora();
  // Shows a fault that ends the run together with what remains saved.
  void OglosBlad(const QString& naglowek, const QString& tekst);

  const ParametryPrzebiegu& Parametry() const { return m_parametry; }
  IPostep& Postep() { return m_postep; }
  IOperator& Operator() { return m_oper; }

  Liczniki m_liczniki;

 private:
  // Passes everything on and keeps the message boxes for the result.
  class PostepZapamietujacy;

  std::optional<Komunikat> Otworz();
  KoniecPrzebiegu Prowadz();
  KoniecPrzebiegu PoWyjatku(const QString& naglowek, const QString& tekst,
                            std::optional<RodzajBleduBazy> rodzaj = {});
  std::optional<RodzajBleduBazy> SprobujUtrwalic();
  void Zakoncz(KoniecPrzebiegu koniec);

  const ParametryPrzebiegu m_parametry;
  const OpisPrzebiegu& m_opis;
  std::vector<Komunikat> m_komunikaty;
  std::optional<RodzajBleduBazy> m_niepewne;  // why what was committed may be lost
  std::unique_ptr<PostepZapamietujacy> m_zapamietujacy;
  IPostep& m_postep;

 protected:
  RaportProblemow m_raport;
  Uwagi m_uwagi;  // shown at the end, before the summary
  PaczkaZapisow m_paczka;

 private:
  OperatorPaczki m_oper;
};
