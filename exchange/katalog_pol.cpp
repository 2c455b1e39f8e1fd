#include "exchange/katalog_pol.h"

#include <array>

namespace {

constexpr std::array<PoleKatalogu, PoleTowaru::LiczbaWartosci + 1> kTowary = {{
    {PoleTowaru::Kod, u"Kod kreskowy", u""},
    {PoleTowaru::Nazwa, u"Nazwa towaru", u"Nazwa towaru"},
    {PoleTowaru::NazwaSkrocona, u"Skrót (nazwa na kasach)", u"Nazwa skrócona"},
    {PoleTowaru::TypTowaru, u"Typ towaru (towar/opakowanie/usługa)", u"Typ towaru"},
    {PoleTowaru::Indeks1, u"Indeks1 (SWW)", u"Indeks 1 (SWW)"},
    {PoleTowaru::Indeks2, u"Indeks2 (PKWiU)", u"Indeks 2 (PKWiU)"},
    {PoleTowaru::Opis1, u"Opis 1", u"Opis1"},
    {PoleTowaru::Opis2, u"Opis 2", u"Opis2"},
    {PoleTowaru::Opis3, u"Opis 3", u"Opis3"},
    {PoleTowaru::Opis4, u"Opis 4", u"Opis4"},
    {PoleTowaru::IleWZgrzewce, u"Ilość w opakowaniu zbiorczym", u"Ilość w opakowaniu"},
    {PoleTowaru::IleWCalosci, u"Ile kilogramów/litrów", u"Ile kilogramów/litrów"},
    {PoleTowaru::TermWazn, u"Termin ważności", u"Termin ważności"},
    {PoleTowaru::PrefPLU, u"Preferowany numer na kasie", u"Preferowany nr. na kasie"},
    {PoleTowaru::Marza, u"Marża", u"Marża"},
    {PoleTowaru::HurtRabat, u"Rabat hurtowy", u"Rabat hurtowy"},
    {PoleTowaru::NocNarzut, u"Narzut nocny", u"Narzut nocny"},
    {PoleTowaru::CenaEw, u"Cena zakupu", u"Cena ewidencyjna"},
    {PoleTowaru::CenaDet, u"Cena sprzedaży", u"Cena sprzedaży"},
    {PoleTowaru::CenaHurt, u"Cena hurtowa", u"Cena hurtowa"},
    {PoleTowaru::CenaNoc, u"Cena nocna", u"Cena nocna"},
    {PoleTowaru::CenaDod, u"Cena dodatkowa", u"Cena dodatkowa"},
    {PoleTowaru::CenaOtwarta, u"Cena otwarta", u"Cena otwarta"},
    {PoleTowaru::StawkaVat, u"Stawka VAT", u"Stawka VAT"},
    {PoleTowaru::Asortyment, u"Nazwa asortymentu", u"Asortyment"},
    {PoleTowaru::JednostkaMiary, u"Jednostka miary", u"Jednostka miary"},
    {PoleTowaru::KodyDodatkowe, u"Kod dodatkowy lub Blok: 'Kody dodatkowe'", u"Kody dodatkowe"},
    {PoleTowaru::KategoriaIParametry, u"Blok: 'Kategoria i parametry'", u"Kategorie"},
    {PoleTowaru::Stan, u"Stan", u"Stan"},
    {PoleTowaru::NipProducenta, u"NIP producenta", u"Producent towaru"},
    {PoleTowaru::NipyDostawcow, u"NIP dostawcy lub Blok: 'NIPy dostawców'", u"Dostawcy towaru"},
    {PoleTowaru::Status, u"Status towaru (aktywny/usunięty)", u"Status towaru"},
    {PoleTowaru::Nieinterpretowane, u"Pole nie interpretowane podczas importu", u""},
}};

constexpr std::array<PoleKatalogu, PoleKontrahenta::LiczbaWartosci + 1> kKontrahenci = {{
    {PoleKontrahenta::Nazwa, u"Nazwa kontrahenta", u"Nazwa kontrahenta"},
    {PoleKontrahenta::Nip, u"NIP", u"NIP"},
    {PoleKontrahenta::NazwaSkrocona, u"Skrót", u"Skrót nazwy"},
    {PoleKontrahenta::Ulica, u"Ulica", u"Ulica"},
    {PoleKontrahenta::KodPocztowy, u"Kod pocztowy", u"Kod pocztowy"},
    {PoleKontrahenta::Miasto, u"Miasto", u"Miasto"},
    {PoleKontrahenta::Telefon, u"Telefon", u"Telefon"},
    {PoleKontrahenta::Fax, u"Fax", u"Fax"},
    {PoleKontrahenta::Email, u"Email", u"Email"},
    {PoleKontrahenta::NazwaBanku, u"Nazwa banku", u"Nazwa Banku"},
    {PoleKontrahenta::Konto, u"Konto", u"Konto"},
    {PoleKontrahenta::Dostawca, u"Dostawca", u"Dostawca"},
    {PoleKontrahenta::Odbiorca, u"Odbiorca", u"Odbiorca"},
    {PoleKontrahenta::Producent, u"Producent", u"Producent"},
    {PoleKontrahenta::Sklep, u"Sklep", u"Sklep"},
    {PoleKontrahenta::Kontakty, u"Kontakty", u"Kontakty"},
    {PoleKontrahenta::NumerAnalityki, u"Numer analityki", u"Numer anlityki"},
    {PoleKontrahenta::KodKontrahenta, u"Kod kontrahenta", u"Kod kontrahenta"},
    {PoleKontrahenta::ZakladPracyChronionej, u"Zakład pracy chronionej", u"Zakład pracy chronionej"},
    {PoleKontrahenta::NaPrzelewie1, u"Na przelewie 1", u"Na przelewie 1"},
    {PoleKontrahenta::NaPrzelewie2, u"Na przelewie 2", u"Na przelewie 2"},
    {PoleKontrahenta::RabatUDostawcy, u"Rabat u dostawcy", u"Rabat u dostawcy"},
    {PoleKontrahenta::FormaPlatnosciDostawcy, u"Forma płatności dost.", u"Forma płatności dostawcy"},
    {PoleKontrahenta::TerminPlatnosciDostawcy, u"Termin płatności dost", u"Termin płatności dostawcy"},
    {PoleKontrahenta::CzasRealizacjiZamowienia, u"Czas realizacji zamówienia", u"Czas realizacji zamówienia"},
    {PoleKontrahenta::RabatDlaOdbiorcy, u"Rabat dla odbiorcy", u"Rabat dla odbiorcy"},
    {PoleKontrahenta::FormaPlatnosciOdbiorcy, u"Forma płatności odbiorcy", u"Forma płatności odbiorcy"},
    {PoleKontrahenta::TerminPlatnosciOdbiorcy, u"Termin płatności odbiorcy", u"Termin płatności odbiorcy"},
    {PoleKontrahenta::MaksymalnyKredyt, u"Maksymalny kredyt", u"Maksymalny kredyt kupiecki"},
    {PoleKontrahenta::MaksymalnePrzekroczenieTerminu, u"Maksymalne przekroczenie terminu płatn.",
     u"Maksymalne przekroczenie terminu płatności"},
    {PoleKontrahenta::KodKarty, u"Kod karty", u"Kod karty"},
    {PoleKontrahenta::KartaAktywna, u"Karta aktywna", u"Karta aktywna"},
    {PoleKontrahenta::TerminWaznosciKarty, u"Termin ważności karty", u"Termin ważności karty"},
    {PoleKontrahenta::PoziomRabatu, u"Poziom rabatu", u"Poziom rabatu"},
    {PoleKontrahenta::OsobyUprawnione, u"Osoby uprawnione", u"Osoby uprawnione do odbioru faktur"},
    {PoleKontrahenta::Status, u"Status Kontrahenta (aktywny/usunięty)", u"Kontrahent aktywny"},
    {PoleKontrahenta::Nieinterpretowane, u"Pole nie interpretowane podczas importu", u""},
}};

}  // namespace

std::span<const PoleKatalogu> KatalogPol(RodzajRekordu rodzaj) {
  if (rodzaj == RodzajRekordu::Towary) return kTowary;
  return kKontrahenci;
}

QString NazwaPozycjiOferowanej(RodzajRekordu rodzaj, int pozycja) {
  if (pozycja < 0 || pozycja >= LiczbaPolOferowanych(rodzaj)) return {};
  const size_t pole = static_cast<size_t>(pozycja) + static_cast<size_t>(PierwszePoleOferowane(rodzaj));
  return QStringView(KatalogPol(rodzaj)[pole].oferowanaNazwa).toString();
}
