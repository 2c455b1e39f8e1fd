#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "exchange/spostrzezenie.h"
#include "exchange/struktura_pliku.h"

// What becomes of a column's value on its way into the record line: the field rules, the VAT rate of goods,
// the text qualifier. One object serves all records of a run. Per record: Wyczysc, Zapisz for every column,
// Zloz.
//
// Values are kept as views of the bytes handed in (those must live until Zloz) unless a rule composes a new
// text.
class RegulyPol {
 public:
  // What is noticed in a record is added to `spostrzezenia`.
  RegulyPol(const StrukturaPliku& struktura, std::vector<Spostrzezenie>& spostrzezenia);

  void Wyczysc();
  // `pole`: a catalogue number; anything outside the record's values is dropped. `wartosc`: trimmed.
  void Zapisz(int pole, std::string_view wartosc);
  // The record line: every value followed by a tab. Valid until the next call.
  std::string_view Zloz();

 private:
  enum class Regula { Zastap, Dolacz, Slowo, ListaKodow, ListaNipow };
  // A field whose values are words of the structure; compared as bytes of the file's page.
  struct Slownik {
    int pole;
    std::string_view domyslna;
    std::vector<std::pair<std::string, std::string_view>> slowa;
  };

  void UstalReguly(const StrukturaPliku& struktura);
  void UstalOpisyVat(const StrukturaPliku& struktura);
  std::string_view WartoscSlowa(int pole, std::string_view wartosc);
  std::string& Zlozona(size_t pole);
  void DolaczKod(size_t pole, std::string_view wartosc);
  void DolaczNip(size_t pole, std::string_view wartosc);
  void PrzypiszStawke();
  void ZauwazKwalifikator(size_t pole, std::string_view wartosc);

  std::vector<Spostrzezenie>& m_spostrzezenia;
  RodzajRekordu m_rodzaj;
  StronaKodowa m_strona;
  bool m_maStawke;  // the file carries a VAT column
  size_t m_wartosci;
  std::optional<char> m_kwalifikator;
  std::array<Regula, PoleKontrahenta::LiczbaWartosci> m_reguly{};
  std::vector<Slownik> m_slowniki;
  std::vector<std::pair<std::string, std::string>> m_stawki;  // description, rate in hundredths
  std::array<std::string_view, PoleKontrahenta::LiczbaWartosci> m_wartosc{};
  std::array<std::string, PoleKontrahenta::LiczbaWartosci> m_zlozona;  // backs the composed values
  std::string m_linia;
};
