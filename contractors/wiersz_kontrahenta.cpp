#include "contractors/wiersz_kontrahenta.h"

#include <array>
#include <cstdio>

#include "contractors/odczyt_kontrahentow.h"
#include "contractors/opcje_kontrahentow.h"

namespace {

using P = KolumnaKontrahenta;

template <P::Numer Kolumna>
void Tekst(const WierszKontrahenta& w) {
  w.pola.Tekst(w.kontrahent[Kolumna].AsString());
}

template <P::Numer Kolumna>
void Flaga(const WierszKontrahenta& w) {
  w.pola.Calkowita(w.kontrahent.Flaga(Kolumna) ? 1 : 0);
}

template <P::Numer Kolumna>
void Calkowita(const WierszKontrahenta& w) {
  w.pola.Calkowita(w.kontrahent[Kolumna].AsInteger());
}

template <P::Numer Kolumna>
void Liczba(const WierszKontrahenta& w) {
  w.pola.Liczba(w.kontrahent[Kolumna].AsFloat());
}

void Nazwa(const WierszKontrahenta& w) {
  const QString nazwa = w.kontrahent[P::Nazwa].AsString();
  w.pola.Tekst(nazwa);
  if (nazwa.trimmed().isEmpty()) w.pola.DodajPowod(u"brak nazwy");
  if (ZaczynaKomentarz(nazwa)) w.pola.DodajPowod(u"nazwa czytana jako komentarz");
}

// The one text that an import takes without the blanks around it.
void Nip(const WierszKontrahenta& w) {
  w.pola.Nazwa(w.kontrahent[P::NIP].AsString());
}

void Sklep(const WierszKontrahenta& w) {
  w.pola.Calkowita(w.kontrahent.sklep ? 1 : 0);
}

// Only customers' cards expire.
void TerminKarty(const WierszKontrahenta& w) {
  std::array<char, 40> tekst{};
  if (w.kontrahent.Flaga(P::Odbiorca) && !w.kontrahent[P::KodKarty].AsUtf8().empty())
    if (const QDate data = CzytajDate(w.kontrahent[P::TermWaznKarty]); data.isValid())
      std::snprintf(tekst.data(), tekst.size(), "%02d.%02d.%4d", data.day(), data.month(), data.year());
  w.pola.Ascii(tekst.data());
}

// Every contractor's persons, whatever its type.
void Osoby(const WierszKontrahenta& w) {
  QString blok;
  std::u16string_view powod;
  if (w.opcje.cb_wysylajOsobyUprawnione)
    for (const QString& osoba : w.kontrahent.osoby) {
      blok += blok.isEmpty() ? u'(' : u'|';
      blok += osoba;
      if (GinieWBloku(osoba, u"|")) powod = kZnakiBloku;
    }
  if (!blok.isEmpty()) blok += u')';
  w.pola.Blok(blok, powod);
}

constexpr KolumnaEksportu<WierszKontrahenta> kKolumny[] = {
    {u"Nazwa", Nazwa},
    {u"NIP", Nip},
    {u"Skrót", Tekst<P::Skrot>},
    {u"Ulica", Tekst<P::Ulica>},
    {u"Kod pocztowy", Tekst<P::Kod>},
    {u"Miasto", Tekst<P::Miasto>},
    {u"Telefon", Tekst<P::Telefon>},
    {u"Fax", Tekst<P::Fax>},
    {u"Email", Tekst<P::EMail>},
    {u"Nazwa banku", Tekst<P::Bank>},
    {u"Konto", Tekst<P::Konto>},
    {u"Dostawca", Flaga<P::Dostawca>},
    {u"Odbiorca", Flaga<P::Odbiorca>},
    {u"Producent", Flaga<P::Producent>},
    {u"Sklep", Sklep},
    {u"Kontakty", Flaga<P::Staly>},
    {u"Numer analityki", Tekst<P::NrAnalityki>},
    {u"Kod kontrahenta", Tekst<P::KodKontr>},
    {u"Zakład pracy chronionej", Flaga<P::ZakPracChron>},
    {u"Na przelewie 1", Tekst<P::NaPrzelewie1>},
    {u"Na przelewie 2", Tekst<P::NaPrzelewie2>},
    {u"Rabat u dostawcy", Liczba<P::RabatDost>},
    {u"Forma płatności dost.", Calkowita<P::FormaPlatDost>},
    {u"Termin płatności dost", Calkowita<P::TermPlatDost>},
    {u"Czas realizacji zamówienia", Calkowita<P::CzasRealZam>},
    {u"Rabat dla odbiorcy", Liczba<P::RabatOdb>},
    {u"Forma płatności odbiorcy", Calkowita<P::FormaPlatOdb>},
    {u"Termin płatności odbiorcy", Calkowita<P::TermPlatOdb>},
    {u"Maksymalny kredyt", Liczba<P::MaxKredyt>},
    {u"Maksymalne przekroczenie terminu płatn.", Calkowita<P::MaxPoTermPlat>},
    {u"Kod karty", Tekst<P::KodKarty>},
    {u"Karta aktywna", Flaga<P::KartaAktywna>},
    {u"Termin ważności karty", TerminKarty},
    {u"Poziom rabatu", Calkowita<P::PoziomRabatu>},
    {u"Osoby uprawnione", Osoby},
    {u"Aktywny", Flaga<P::Aktywny>},
};
static_assert(std::size(kKolumny) == 36);

}  // namespace

std::span<const KolumnaEksportu<WierszKontrahenta>> KolumnyKontrahenta() {
  return kKolumny;
}
