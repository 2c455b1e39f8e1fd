#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "exchange/czytnik.h"
#include "exchange/rozpoznanie_tresci.h"
#include "platform/plik_tekstowy.h"

// What the three text layouts share: the file, the skipped first line, comments, counting, and refusing what
// is no text. A layout says what its lines make of a record.
class CzytnikTekstowy : public Czytnik {
 public:
  std::optional<Komunikat> Otworz(const QString& sciezka) final;
  WynikLiczenia Policz(const Postep& postep) final;
  WynikCzytania Nastepny() final;
  std::optional<NiezgodnaLiczbaPol> SprawdzLiczbePol() const final;

  qint64 Pozycja() const final { return m_plik.Position(); }
  qint64 Rozmiar() const final { return m_plik.Size(); }

 protected:
  CzytnikTekstowy(const StrukturaPliku& struktura, int deklarowanaLiczbaPol);

  // Makes m_linia of a record's line and returns the number of fields found in it.
  virtual int Rozloz(std::string_view linia) = 0;
  // What is left of a line behind its last field: more than separators and blanks is noticed.
  void SprawdzReszte(std::string_view reszta, std::string_view separator = {});
  // The line of the next record, or why there is none. Empty lines and comments are Pominiety.
  virtual WynikCzytania NastepnaLinia(std::string_view& linia);
  // The first line, when it is not analysed.
  virtual void PierwszaLinia(std::string_view) {}
  virtual void Przewin();

  // The next line of the file as it stands, behind the skipped first one: Rekord, Koniec or Blad.
  WynikCzytania WczytajLinie(std::string_view& linia);
  static bool Komentarz(std::string_view linia) { return linia.starts_with('#') || linia.starts_with("//"); }

 private:
  WynikCzytania WczytajFizyczna(std::string_view& linia);
  WynikCzytania Zglos(const QString& tekst);

  TMFile m_plik;
  std::optional<LicznikUtf8> m_utf8;  // while the file is looked through
  std::string m_bezCr;
  bool m_pomijaPierwsza;
  bool m_przedPierwsza = true;
  qint64 m_numerLinii = 0;
  int m_znaleziono = 0;
  int m_zadeklarowano;
};
