#pragma once

#include <optional>
#include <set>

#include <QString>

#include "exchange/komunikat.h"

class EVLTWDError;
class IPostep;
class TDmVLTElement;

// Answers to the question about a record with too few fields.
enum class OdpowiedzLiczbaPol {
  Przerwij,  // Abort: no further record is read
  Pomin,     // Retry: this record is skipped
  Ignoruj    // Ignore: this record is used, and so is every further one without a question
};

// What became of a record that could not be saved.
enum class Poprawka {
  Poprawiono,    // corrected: save it again
  Zrezygnowano,  // to be skipped
  Stop           // end the run
};

// Why a record could not be saved: in the words of the run's report, and what the record itself said, whose
// code tells the field. Lives as long as the question.
struct OdmowaZapisu {
  QString tekst;
  const EVLTWDError& blad;
};

// Questions a run puts to a person. Every question has an answer that does no harm ("safe"), taken when
// nobody is there. A run asks through OperatorPaczki, which commits first: no lock is held while somebody
// thinks.
class IOperator {
 public:
  virtual ~IOperator() = default;

  // Set while a run lasts (null afterwards): what is said in place of a person is then said by the run.
  virtual void UstawPostepPrzebiegu(IPostep* /*postep*/) {}
  // False when nobody can answer: no question is then worth preparing for.
  virtual bool JestOsoba() const = 0;
  virtual OdpowiedzLiczbaPol LiczbaPol(const Komunikat& pytanie) = 0;
  // Shows why the record was refused and lets the person change it in its form.
  virtual Poprawka Popraw(TDmVLTElement& rekord, const OdmowaZapisu& odmowa) = 0;
  virtual bool CzyTak(const Komunikat& pytanie, bool bezpieczna) = 0;
  // A text typed by the person; nothing when the person gives up.
  virtual std::optional<QString> PodajTekst(const Komunikat& pytanie) = 0;
};

// Asks until the person has either corrected the record or confirmed twice that it is to be left: "Nie
// poprawiasz?", then `pytanieOPominiecie`.
Poprawka PoprawLubPomin(IOperator& oper, TDmVLTElement& rekord, const OdmowaZapisu& odmowa,
                        const QString& pytanieOPominiecie);

// Nobody is there: takes the safe answer and says so, once for every text, through the progress.
class OperatorNieobecny final : public IOperator {
 public:
  OperatorNieobecny(IPostep& postep, OdpowiedzLiczbaPol liczbaPol = OdpowiedzLiczbaPol::Przerwij)
      : m_wlasnyPostep(postep), m_postep(&postep), m_liczbaPol(liczbaPol) {}

  void UstawPostepPrzebiegu(IPostep* postep) override { m_postep = postep ? postep : &m_wlasnyPostep; }
  bool JestOsoba() const override { return false; }
  OdpowiedzLiczbaPol LiczbaPol(const Komunikat& pytanie) override;
  Poprawka Popraw(TDmVLTElement& rekord, const OdmowaZapisu& odmowa) override;
  bool CzyTak(const Komunikat& pytanie, bool bezpieczna) override;
  std::optional<QString> PodajTekst(const Komunikat& pytanie) override;

 private:
  void Powiedz(const Komunikat& pytanie, const QString& odpowiedz);

  IPostep& m_wlasnyPostep;
  IPostep* m_postep;
  OdpowiedzLiczbaPol m_liczbaPol;
  std::set<QString> m_powiedziane;
};
