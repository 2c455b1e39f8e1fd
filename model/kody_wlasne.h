#pragma once

#include <optional>

#include <QString>
#include <QStringView>

class ParametrySystemu;
class TVLTBazaDanych;
class TVLTBuforTowarow;
struct RegulyKodow;

// How own codes are made.
struct UstawieniaKodowWlasnych {
  enum class Forma { Kolejny = 0, Ean8 = 1, Ean13 = 2 };

  Forma forma = Forma::Kolejny;
  bool zwolnione = true;  // numbers freed by deleted codes are used again
  int prefiks = 200;      // 200..209, EAN forms only
  long long pierwszy = 1001;

  static UstawieniaKodowWlasnych ZParametrow(const ParametrySystemu& parametry);
};

// Hands out codes for goods that have none. A sequential number stands as it is; an EAN-8 is prefix, 4 digits
// and check digit, an EAN-13 prefix, 9 digits and check digit. A number is free when no good has its code as
// main or additional code and this run has not given it out. With reuse the lowest free number from the first
// one is taken, otherwise one more than the highest ever seen. Call order: Zaproponuj, save the good,
// Potwierdz. A proposal that was not confirmed is proposed again. One pass over the codes at the first use
// (only without reuse), then each number is looked at once in a run.
class KodyWlasne {
 public:
  // The database, the buffer and the rules must outlive the object. A buffer that is not ready is not asked.
  KodyWlasne(TVLTBazaDanych& baza, const TVLTBuforTowarow& bufor, const RegulyKodow& reguly,
             UstawieniaKodowWlasnych ustawienia);

  // The next free code; nothing when the numbers of the form are used up.
  std::optional<QString> Zaproponuj();
  // The good with that code is stored. Also for codes that came from elsewhere during the run: a higher
  // number moves the sequence on.
  void Potwierdz(QStringView kod);
  // Saves were undone: the first number is looked for again.
  void Zapomnij() { m_nastepny = -1; }

 private:
  QString Kod(long long numer) const;
  std::optional<long long> Numer(QStringView kod) const;
  bool Wolny(const QString& kod) const;
  void UstawPoczatek();

  TVLTBazaDanych& m_baza;
  const TVLTBuforTowarow& m_bufor;
  const RegulyKodow& m_reguly;
  UstawieniaKodowWlasnych m_ustawienia;
  long long m_najwyzszyNumer;  // of the form
  long long m_nastepny = -1;   // every number below is known to be used; -1: nothing known yet
};
