#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <QString>

// Column kinds of the back-office tables. A date-time is kept as the text "YYYY-MM-DD HH:MM:SS".
enum class TypPola { Calkowite, Dziesietne, Tekst, Czas };

// One database value of a fixed kind that may be null. Texts are UTF-8, as at the database border.
class Wartosc {
 public:
  explicit Wartosc(TypPola typ = TypPola::Tekst) : m_typ(typ) {}
  Wartosc(int calkowita) : m_typ(TypPola::Calkowite), m_pusta(false), m_calkowita(calkowita) {}
  Wartosc(long long calkowita) : m_typ(TypPola::Calkowite), m_pusta(false), m_calkowita(calkowita) {}
  Wartosc(double dziesietna) : m_typ(TypPola::Dziesietne), m_pusta(false), m_dziesietna(dziesietna) {}
  Wartosc(std::string tekst) : m_typ(TypPola::Tekst), m_pusta(false), m_tekst(std::move(tekst)) {}
  Wartosc(const QString& tekst) : Wartosc(tekst.toStdString()) {}
  Wartosc(const char*) = delete;

  TypPola Typ() const { return m_typ; }
  bool IsNull() const { return m_pusta; }
  void Clear() { m_pusta = true; }

  // Reads convert by value; a null reads as 0 or empty.
  long long AsInteger() const;
  double AsFloat() const;
  QString AsString() const;
  // The text as stored; only for text and date-time values, empty when null.
  std::string_view AsUtf8() const { return m_pusta ? std::string_view{} : std::string_view{m_tekst}; }

  // Writes keep the kind and convert into it.
  void SetInteger(long long wartosc);
  void SetFloat(double wartosc);
  void SetString(const QString& wartosc);

  // Same kind and same value; two nulls are equal.
  friend bool operator==(const Wartosc& a, const Wartosc& b);

 private:
  friend class PolecenieOdbc;
  friend class PolecenieSqlite;
  TypPola m_typ;
  bool m_pusta = true;
  long long m_calkowita = 0;
  double m_dziesietna = 0;
  std::string m_tekst;
};

// A named value for a statement: {":TowId" without the colon, value}.
struct Parametr {
  const char* nazwa;
  Wartosc wartosc;
};
