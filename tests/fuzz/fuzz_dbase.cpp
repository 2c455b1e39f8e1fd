// Input: the table as it is. The structure names the table's own columns, so that every value is fetched.

#include <cstdint>

#include "exchange/czytnik.h"
#include "exchange/plik_dbase.h"
#include "platform/windows1250.h"
#include "tests/fuzz/plik_w_pamieci.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bajty, size_t ile) {
  static const PlikWPamieci dysk;
  dysk.Ustaw(std::string_view(reinterpret_cast<const char*>(bajty), ile));

  PlikDBase plik;
  if (!plik.Open(dysk.Sciezka())) {
    Wymagaj(plik.Blad().has_value());
    return 0;
  }
  Wymagaj(plik.FieldCount() > 0 && plik.FieldCount() <= PlikDBase::kNajwiecejPol && plik.RecordCount() >= 0);
  StrukturaPliku struktura(RodzajRekordu::Towary);
  struktura.CBTypPliku = TypPliku::DBase;
  for (int i = 0; i < plik.FieldCount(); ++i)
    struktura.pola.emplace_back(i % (PoleTowaru::LiczbaWartosci + 1),
                                windows1250::NaUnicode(plik.FieldName(i)));
  for (const qint64 numer : {plik.RecordCount() - 1, plik.RecordCount(), qint64{0}})
    Wymagaj(plik.ReadRecord(numer) == (numer >= 0 && numer < plik.RecordCount()));

  const std::unique_ptr<Czytnik> czytnik = UtworzCzytnik(struktura);
  Wymagaj(!czytnik->Otworz(dysk.Sciezka()));
  qint64 odczytanych = 0;
  WynikCzytania wynik = WynikCzytania::Pominiety;
  while ((wynik = czytnik->Nastepny()) != WynikCzytania::Koniec) {
    Wymagaj(wynik != WynikCzytania::Blad);
    ++odczytanych;
    while (wynik == WynikCzytania::Rekord && !czytnik->Linia().Reszta().empty()) czytnik->Linia().Tekst();
  }
  Wymagaj(odczytanych == czytnik->Policz(nullptr).rekordow);
  return 0;
}
