#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

#include "platform/baza/zapytanie.h"

// Columns of a record's row by their kind. A record lists its columns once, POLE(column, kind), in the order
// in which its select returns them; the list expands into their positions (a struct that the record calls
// Kolumna), their database types and the record's getters and setters: Nazwa(), UstawNazwa(...).
//   Klucz   the key and other identifiers that the record itself keeps: no accessors
//   Id      an identifier, -1 when null; a negative one is stored as null
//   Liczba  an integer             Flaga  true for a non-zero integer, stored as 1 or 0
//   Kwota   a decimal number       Tekst  a text
//   Data    the day of a date-time Czas   a date-time; both invalid when null or unreadable
//   Zegar   a date-time that the server's clock fills: its text, read only
// Kinds of one record alone have their macro and their type beside that record.
// Setters leave a value that already reads the same as it is: nothing then counts as changed.

namespace rodzaje {
inline constexpr TypPola Klucz = TypPola::Calkowite;
inline constexpr TypPola Id = TypPola::Calkowite;
inline constexpr TypPola Liczba = TypPola::Calkowite;
inline constexpr TypPola Flaga = TypPola::Calkowite;
inline constexpr TypPola Kwota = TypPola::Dziesietne;
inline constexpr TypPola Tekst = TypPola::Tekst;
inline constexpr TypPola Data = TypPola::Czas;
inline constexpr TypPola Czas = TypPola::Czas;
inline constexpr TypPola Zegar = TypPola::Czas;
}  // namespace rodzaje

bool RownyTekst(const Wartosc& wartosc, const QString& tekst);
int CzytajId(const TMField& pole);
QDate CzytajDate(const Wartosc& wartosc);
inline QDate CzytajDate(const TMField& pole) {
  return CzytajDate(pole.Value());
}
QDateTime CzytajCzas(const TMField& pole);
void PiszId(TMField& pole, int id);
void PiszLiczbe(TMField& pole, long long liczba);
void PiszFlage(TMField& pole, bool flaga);
void PiszKwote(TMField& pole, double kwota);
void PiszTekst(TMField& pole, const QString& tekst);
// An invalid date or time is stored as null.
void PiszDate(TMField& pole, const QDate& data);
void PiszCzas(TMField& pole, const QDateTime& czas);

// What its column does not hold: a number is refused with 2006, a text that was changed with 2040 (see
// model/szerokosci.h), before anything is written.
void WymagajMiejsca(const char* tabela, const TMCustomDataSet& wiersz);

#define ZORVIK_NUMER(nazwa, rodzaj) nazwa,
#define ZORVIK_OPIS(nazwa, rodzaj) {#nazwa, rodzaje::rodzaj},

#define ZORVIK_CZYTAJ_PISZ(nazwa, typ, odczyt, argument, zapis) \
  typ nazwa() const {                                           \
    const TMField& pole = Query.Field(Kolumna::nazwa);          \
    return odczyt;                                              \
  }                                                             \
  void Ustaw##nazwa(argument wartosc) {                         \
    zapis(Query.Field(Kolumna::nazwa), wartosc);                \
  }
#define ZORVIK_DOSTEP_Klucz(nazwa)
#define ZORVIK_DOSTEP_Id(nazwa) ZORVIK_CZYTAJ_PISZ(nazwa, int, CzytajId(pole), int, PiszId)
#define ZORVIK_DOSTEP_Liczba(nazwa) \
  ZORVIK_CZYTAJ_PISZ(nazwa, int, static_cast<int>(pole.AsInteger()), long long, PiszLiczbe)
#define ZORVIK_DOSTEP_Flaga(nazwa) ZORVIK_CZYTAJ_PISZ(nazwa, bool, pole.AsInteger() != 0, bool, PiszFlage)
#define ZORVIK_DOSTEP_Kwota(nazwa) ZORVIK_CZYTAJ_PISZ(nazwa, double, pole.AsFloat(), double, PiszKwote)
#define ZORVIK_DOSTEP_Tekst(nazwa) \
  ZORVIK_CZYTAJ_PISZ(nazwa, QString, pole.AsString(), const QString&, PiszTekst)
#define ZORVIK_DOSTEP_Data(nazwa) ZORVIK_CZYTAJ_PISZ(nazwa, QDate, CzytajDate(pole), const QDate&, PiszDate)
#define ZORVIK_DOSTEP_Czas(nazwa) \
  ZORVIK_CZYTAJ_PISZ(nazwa, QDateTime, CzytajCzas(pole), const QDateTime&, PiszCzas)
#define ZORVIK_DOSTEP_Zegar(nazwa)                 \
  QString nazwa() const {                          \
    return Query.Field(Kolumna::nazwa).AsString(); \
  }
#define ZORVIK_DOSTEP(nazwa, rodzaj) ZORVIK_DOSTEP_##rodzaj(nazwa)
