#pragma once

#include <QString>
#include <QStringView>

#include "model/kody_wazone.h"

class ParametrySystemu;

enum class RodzajKodu {
  Inny = 0,
  Ean13 = 1,  // 13 digits
  Ean8 = 2,   // 8 digits
  Upc12 = 3,  // 12 digits
  Wazony = 4  // a mask, or a code of one of the weighted formats
};

// Why a code is refused.
enum class OdmowaKodu {
  Brak,           // accepted
  Dlugosc,        // shorter or longer than allowed
  Format,         // blanks or control characters, or "?" outside a mask of a known weighted format
  Litery,         // something else than digits while only digits are allowed
  Zero,           // a leading zero while none is allowed
  SumaKontrolna,  // the check digit of 8 or 13 digits
  Wazony          // a weighted code where none may be
};

// A verdict as a value: `kod` is a code of EVLTWDError, 0 when accepted; `szczegol` its detail (the refused
// code).
struct WynikKodu {
  OdmowaKodu odmowa = OdmowaKodu::Brak;
  int kod = 0;
  QString szczegol = {};

  bool Dobry() const { return odmowa == OdmowaKodu::Brak; }
};

// Check digit of the digits before it (GS1: weights 3 and 1 from the right); the text holds digits only.
QChar CyfraKontrolna(QStringView cyfry);
// Whether a text of digits ends with its own check digit.
bool SumaKontrolnaPoprawna(QStringView kod);
bool SameCyfry(QStringView tekst);

// What counts as a valid goods code. One value: filled from the system parameters, or by an import from its
// own options, and given to everybody who judges codes in that run. Codes are expected trimmed. Nothing here
// allocates for a code that is accepted.
struct RegulyKodow {
  enum class KodyKrotkie {
    NieTworzyc = 0,
    WedlugZera = 1,  // leading zeros stay where codes may begin with zero
    ObcinajZera = 2
  };

  int minDlugosc = 1;
  int maxDlugosc = 13;
  bool litery = false;            // characters other than digits are allowed
  bool zeroNaPoczatku = false;    // codes may begin with zero
  bool sprawdzacSume = true;      // check digits of 8 and 13 digits are verified
  bool uzupelniacWazone = false;  // a weighted main code is completed with its variable part
  KodyKrotkie kodyKrotkie = KodyKrotkie::NieTworzyc;
  int minKodKrotki = 1;
  int maxKodKrotki = 999;
  FormatyKodowWazonych formaty = {};

  static RegulyKodow ZParametrow(const ParametrySystemu& parametry, const FormatyKodowWazonych& formaty);
  // Takes only what governs weighted codes; for rules whose other members come from an import's options.
  void UstawWazone(const ParametrySystemu& parametry);

  RodzajKodu Rodzaj(QStringView kod) const;
  bool Wazony(QStringView kod) const { return Rodzaj(kod) == RodzajKodu::Wazony; }

  // Length and format alone; 2404 on refusal. For callers with words of their own for the other refusals.
  WynikKodu SprawdzDlugoscIFormat(const QString& kod) const;
  // Every rule: 2404, or 2826 for a wrong check digit.
  WynikKodu Sprawdz(const QString& kod) const;
  // The same with the codes of a good's record. Main code: 2894, 2826, 2821 (weighted on anything but a
  // "towar").
  WynikKodu SprawdzGlowny(const QString& kod, bool towar) const;
  // Additional code: 2895, 2826, 2827 (weighted).
  WynikKodu SprawdzDodatkowy(const QString& kod) const;
  // The code that KodKrotki proposed: 2896.
  WynikKodu SprawdzAutomatyczny(const QString& kod) const;

  // The form in which an accepted main code is stored.
  QString Normalizuj(const QString& kod) const;
  // Canonical form of a weighted code: its constant part as a short code, the candidate for an automatic
  // additional code. Empty when none is to be made: not weighted, switched off, or outside the allowed
  // numbers.
  QString KodKrotki(QStringView kod) const;
};
