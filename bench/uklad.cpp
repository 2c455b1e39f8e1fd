#include "bench/uklad.h"

#include <iterator>

namespace {

constexpr const char* kOpisyVat[] = {"2323%", "8 8%", "5 5%", "0 0%", "-1ZW"};

// Two digits of the catalogue number, then what the layout wants to know about the column.
std::string Wpis(const Kolumna& kolumna, TypPliku typ) {
  std::string wpis = kolumna.pole < 10 ? "0" : "";
  wpis += std::to_string(kolumna.pole);
  if (typ == TypPliku::StalaSzerokosc) wpis += std::to_string(kolumna.szerokosc);
  if (typ == TypPliku::DBase) wpis += kolumna.nazwaDBase;
  return wpis;
}

}  // namespace

const std::vector<Kolumna>& Kolumny() {
  // The last column is never empty: an empty one would not count as a field of its record.
  static const std::vector<Kolumna> kolumny = {{PoleTowaru::Kod, "KOD", 13},
                                               {PoleTowaru::KodyDodatkowe, "KOD_DOD", 13},
                                               {PoleTowaru::Nazwa, "NAZWA", 60},
                                               {PoleTowaru::Indeks2, "PKWIU", 12},
                                               {PoleTowaru::IleWZgrzewce, "ZGRZEWKA", 6},
                                               {PoleTowaru::CenaEw, "CENA_ZAK", 10},
                                               {PoleTowaru::CenaDet, "CENA_SPRZ", 10},
                                               {PoleTowaru::StawkaVat, "VAT", 4},
                                               {PoleTowaru::Asortyment, "ASORT", 40},
                                               {PoleTowaru::KategoriaIParametry, "KATEGORIA", 110},
                                               {PoleTowaru::Stan, "STAN", 8},
                                               {PoleTowaru::NipyDostawcow, "DOSTAWCY", 54},
                                               {PoleTowaru::JednostkaMiary, "JM", 6}};
  return kolumny;
}

StrukturaPliku Struktura(TypPliku typ) {
  StrukturaPliku struktura(RodzajRekordu::Towary);
  struktura.CBTypPliku = typ;
  struktura.PrzyjmijTypPliku(typ);
  struktura.CBNieAnalizujPierwszejLinii = typ == TypPliku::Zorvik;
  struktura.separator = QStringLiteral("\t");
  for (const Kolumna& kolumna : Kolumny()) {
    struktura.pola.emplace_back(QString::fromStdString(Wpis(kolumna, typ)));
  }
  for (const char* opis : kOpisyVat) struktura.opisyVat.emplace_back(QString::fromLatin1(opis));
  return struktura;
}

Ustawienia UstawieniaImportuTowarow(TypPliku typ) {
  Ustawienia ustawienia = {{"ParTypPlikuTow", std::to_string(static_cast<int>(typ))},
                           {"ParPlTypeTow", "0"},
                           {"ParSeparatorTow", "tab"},
                           {"ParKwalifikatorTekstuTow", "0"},
                           {"ParImportStanow", "1"},
                           {"ParNieAnalPierwTow", typ == TypPliku::Zorvik ? "1" : "0"},
                           {"ParSprawdzCyfreKontrolna", "1"},
                           {"ParIloscPolTow", std::to_string(Kolumny().size())}};
  int numer = 0;
  for (const Kolumna& k : Kolumny())
    ustawienia.emplace_back("ParPoleTow" + std::to_string(numer++), Wpis(k, typ));
  ustawienia.emplace_back("ParIloscOpisowVAT", std::to_string(std::size(kOpisyVat)));
  numer = 0;
  for (const char* opis : kOpisyVat) ustawienia.emplace_back("ParOpisVAT" + std::to_string(numer++), opis);
  return ustawienia;
}

Ustawienia UstawieniaImportuKontrahentow() {
  return {{"ParTypPlikuKontr", "0"},        {"ParSeparatorKontr", "tab"}, {"ParNieAnalPierwKontr", "1"},
          {"ParAktualKontr", "1"},          {"ParNowyKontr", "1"},        {"ParPominKontrBezNIPu", "1"},
          {"ParPominBoTakiNIPJuzJest", "1"}};
}

std::string PlikKonfiguracji(const Ustawienia& ustawienia) {
  std::string plik;
  for (auto [nazwa, wartosc] : ustawienia) {
    nazwa.resize(35, ' ');
    plik += nazwa + wartosc + "\r\n";
  }
  return plik;
}
