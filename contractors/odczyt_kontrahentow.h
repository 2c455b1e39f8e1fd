#pragma once

#include <vector>

#include <QString>

#include "model/kolumny.h"
#include "model/strumien_szczegolow.h"

// Columns of table Kontrahent that an export needs, in the order of the select. Kinds: model/kolumny.h.
#define ZORVIK_DANE_KONTRAHENTA(POLE) \
  POLE(KontrId, Klucz)                \
  POLE(Nazwa, Tekst)                  \
  POLE(NIP, Tekst)                    \
  POLE(Skrot, Tekst)                  \
  POLE(Ulica, Tekst)                  \
  POLE(Kod, Tekst)                    \
  POLE(Miasto, Tekst)                 \
  POLE(Telefon, Tekst)                \
  POLE(Fax, Tekst)                    \
  POLE(EMail, Tekst)                  \
  POLE(Bank, Tekst)                   \
  POLE(Konto, Tekst)                  \
  POLE(Dostawca, Flaga)               \
  POLE(Odbiorca, Flaga)               \
  POLE(Producent, Flaga)              \
  POLE(Staly, Flaga)                  \
  POLE(NrAnalityki, Tekst)            \
  POLE(KodKontr, Tekst)               \
  POLE(ZakPracChron, Flaga)           \
  POLE(NaPrzelewie1, Tekst)           \
  POLE(NaPrzelewie2, Tekst)           \
  POLE(RabatDost, Kwota)              \
  POLE(FormaPlatDost, Liczba)         \
  POLE(TermPlatDost, Liczba)          \
  POLE(CzasRealZam, Liczba)           \
  POLE(RabatOdb, Kwota)               \
  POLE(FormaPlatOdb, Liczba)          \
  POLE(TermPlatOdb, Liczba)           \
  POLE(MaxKredyt, Kwota)              \
  POLE(MaxPoTermPlat, Liczba)         \
  POLE(KodKarty, Tekst)               \
  POLE(KartaAktywna, Flaga)           \
  POLE(TermWaznKarty, Data)           \
  POLE(PoziomRabatu, Liczba)          \
  POLE(Aktywny, Flaga)

// One contractor as it stands in the database, with what belongs to it in other tables.
struct DaneKontrahenta {
  enum Kolumna : std::size_t { ZORVIK_DANE_KONTRAHENTA(ZORVIK_NUMER) };

  const Odczyt* wiersz = nullptr;
  bool sklep = false;
  std::vector<QString> osoby;  // in the order in which they were stored, each once

  const Wartosc& operator[](Kolumna kolumna) const { return (*wiersz)[kolumna]; }
  bool Flaga(Kolumna kolumna) const { return (*this)[kolumna].AsInteger() != 0; }
};

// Reads contractors by rising identifier: each table once, side by side, so that neither the number of
// statements nor the memory depends on the number of contractors.
class OdczytKontrahentow {
 public:
  explicit OdczytKontrahentow(TVLTBazaDanych& baza);

  // Identifiers only rise from call to call. 2001 when the contractor is gone.
  const DaneKontrahenta& Wczytaj(int kontrId);
  const DaneKontrahenta& Biezacy() const { return m_kontrahent; }

 private:
  StrumienSzczegolow m_kontrahenci;
  StrumienSzczegolow m_sklepy;
  StrumienSzczegolow m_osoby;
  DaneKontrahenta m_kontrahent;
};
