#pragma once

#include <soci/odbc/soci-odbc.h>
#include <soci/soci.h>

#include "platform/baza/polecenie.h"

class Dialekt;

// A statement of a server. SOCI prepares and runs it; values are bound here, because SOCI's own exchange cuts
// a text that is longer in bytes than its column counts in characters, and at a NUL. Nothing is ever cut: a
// text longer than its buffer is fetched whole.
class PolecenieOdbc final : public Polecenie {
 public:
  PolecenieOdbc(soci::session& sesja, std::string sql, const Dialekt& jezyk, std::span<const TypPola> kolumny,
                std::span<const Parametr> parametry);

  void Wykonaj(std::span<const Parametr> parametry) override;
  bool Nastepny() override;
  long long Dotknietych() override;
  void Zwolnij() noexcept override;

 private:
  // A placeholder of the text and the parameter that it names.
  struct Miejsce {
    std::size_t parametr;
    SQLLEN dlugosc;
    const void* zwiazane;  // where the driver looks for a text
    SQLULEN rozmiar;
  };
  struct Kolumna {
    SQLLEN dlugosc;
    std::vector<char> bufor;
  };

  soci::odbc_statement_backend& Sterownik();
  void Sprawdz(SQLRETURN wynik, const char* co);
  SQLSMALLINT TypTekstu(SQLULEN bajtow) const;
  void ZwiazParametr(std::size_t ktory);
  void ZwiazKolumne(std::size_t ktora);
  void PrzyjmijWiersz();
  void WczytajDlugi(std::size_t ktora);

  soci::statement m_polecenie;
  const bool m_narodowe;
  std::vector<Wartosc> m_parametry;
  std::vector<Miejsce> m_miejsca;
  std::vector<Kolumna> m_wczytane;
};
