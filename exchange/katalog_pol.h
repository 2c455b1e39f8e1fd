#pragma once

#include <QString>
#include <span>
#include <string_view>

// Kind of the records a file holds.
enum class RodzajRekordu { Towary = 0, Kontrahenci = 2 };

// Numbers of the goods fields: in field lists of structures, in record lines and in the own layout's columns.
namespace PoleTowaru {
inline constexpr int Kod = 0;
inline constexpr int Nazwa = 1;
inline constexpr int NazwaSkrocona = 2;
inline constexpr int TypTowaru = 3;
inline constexpr int Indeks1 = 4;
inline constexpr int Indeks2 = 5;
inline constexpr int Opis1 = 6;
inline constexpr int Opis2 = 7;
inline constexpr int Opis3 = 8;
inline constexpr int Opis4 = 9;
inline constexpr int IleWZgrzewce = 10;
inline constexpr int IleWCalosci = 11;
inline constexpr int TermWazn = 12;
inline constexpr int PrefPLU = 13;
inline constexpr int Marza = 14;
inline constexpr int HurtRabat = 15;
inline constexpr int NocNarzut = 16;
inline constexpr int CenaEw = 17;
inline constexpr int CenaDet = 18;
inline constexpr int CenaHurt = 19;
inline constexpr int CenaNoc = 20;
inline constexpr int CenaDod = 21;
inline constexpr int CenaOtwarta = 22;
inline constexpr int StawkaVat = 23;
inline constexpr int Asortyment = 24;
inline constexpr int JednostkaMiary = 25;
inline constexpr int KodyDodatkowe = 26;
inline constexpr int KategoriaIParametry = 27;
inline constexpr int Stan = 28;
inline constexpr int NipProducenta = 29;
inline constexpr int NipyDostawcow = 30;
inline constexpr int Status = 31;
inline constexpr int Nieinterpretowane = 32;

inline constexpr int LiczbaWartosci = 32;  // 0 to Status
}  // namespace PoleTowaru

namespace PoleKontrahenta {
inline constexpr int Nazwa = 0;
inline constexpr int Nip = 1;
inline constexpr int NazwaSkrocona = 2;
inline constexpr int Ulica = 3;
inline constexpr int KodPocztowy = 4;
inline constexpr int Miasto = 5;
inline constexpr int Telefon = 6;
inline constexpr int Fax = 7;
inline constexpr int Email = 8;
inline constexpr int NazwaBanku = 9;
inline constexpr int Konto = 10;
inline constexpr int Dostawca = 11;
inline constexpr int Odbiorca = 12;
inline constexpr int Producent = 13;
inline constexpr int Sklep = 14;
inline constexpr int Kontakty = 15;
inline constexpr int NumerAnalityki = 16;
inline constexpr int KodKontrahenta = 17;
inline constexpr int ZakladPracyChronionej = 18;
inline constexpr int NaPrzelewie1 = 19;
inline constexpr int NaPrzelewie2 = 20;
inline constexpr int RabatUDostawcy = 21;
inline constexpr int FormaPlatnosciDostawcy = 22;
inline constexpr int TerminPlatnosciDostawcy = 23;
inline constexpr int CzasRealizacjiZamowienia = 24;
inline constexpr int RabatDlaOdbiorcy = 25;
inline constexpr int FormaPlatnosciOdbiorcy = 26;
inline constexpr int TerminPlatnosciOdbiorcy = 27;
inline constexpr int MaksymalnyKredyt = 28;
inline constexpr int MaksymalnePrzekroczenieTerminu = 29;
inline constexpr int KodKarty = 30;
inline constexpr int KartaAktywna = 31;
inline constexpr int TerminWaznosciKarty = 32;
inline constexpr int PoziomRabatu = 33;
inline constexpr int OsobyUprawnione = 34;
inline constexpr int Status = 35;
inline constexpr int Nieinterpretowane = 36;

inline constexpr int LiczbaWartosci = 36;  // 0 to Status
}  // namespace PoleKontrahenta

// One catalogue line. `oferowanaNazwa` is the caption in the standard-fields dialog; it is empty for a field
// whose availability cannot be switched.
struct PoleKatalogu {
  int numer;
  std::u16string_view nazwa;
  std::u16string_view oferowanaNazwa;
};

// The whole catalogue in number order, the not interpreted field last.
std::span<const PoleKatalogu> KatalogPol(RodzajRekordu rodzaj);

// Values of one record, numbered from 0: 32 for goods, 36 for contractors.
constexpr int LiczbaWartosci(RodzajRekordu rodzaj) {
  return rodzaj == RodzajRekordu::Towary ? PoleTowaru::LiczbaWartosci : PoleKontrahenta::LiczbaWartosci;
}

constexpr int PoleStatusu(RodzajRekordu rodzaj) {
  return rodzaj == RodzajRekordu::Towary ? PoleTowaru::Status : PoleKontrahenta::Status;
}

// The barcode of a good is always available, so the goods list of offered fields starts at field 1.
constexpr int PierwszePoleOferowane(RodzajRekordu rodzaj) {
  return rodzaj == RodzajRekordu::Towary ? PoleTowaru::Nazwa : PoleKontrahenta::Nazwa;
}

constexpr int LiczbaPolOferowanych(RodzajRekordu rodzaj) {
  return LiczbaWartosci(rodzaj) - PierwszePoleOferowane(rodzaj);
}

// Position of a field in the list of offered fields; negative for the goods barcode.
constexpr int PozycjaOferowana(RodzajRekordu rodzaj, int pole) {
  return pole - PierwszePoleOferowane(rodzaj);
}

// Caption of a position of the list of offered fields; empty outside the list.
QString NazwaPozycjiOferowanej(RodzajRekordu rodzaj, int pozycja);
