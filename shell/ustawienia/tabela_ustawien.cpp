#include "ustawienia/tabela_ustawien.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

#include <QDir>

#include "model/reguly_kodow.h"
#include "platform/config.h"
#include "platform/liczby.h"
#include "ustawienia/nazwy_czlonow.h"
#include "ustawienia/ustawienia.h"

namespace {

using U = Ustawienia;

constexpr int kBezGranicy = std::numeric_limits<int>::max();

constexpr QLatin1String kTabulator("tab");
constexpr QLatin1String kSpacja("spac");

QString Napis(std::u16string_view tekst) {
  return QStringView(tekst).toString();
}

// The main window shows the members of the options structs.
template <auto Pierwszy, auto... Dalsze>
constexpr std::string_view Kontrolka() {
  using Struktura = std::remove_reference_t<decltype(std::declval<U&>().*Pierwszy)>;
  if constexpr (sizeof...(Dalsze) == 1 && !std::is_same_v<Struktura, StrukturaPliku>)
    return NazwaWartosci<Dalsze...>();
  else
    return {};
}

template <typename Grupa_>
constexpr std::string_view kPrzyciski[] = {NazwaWartosci<Grupa_{1}>(), NazwaWartosci<Grupa_{2}>(),
                                           NazwaWartosci<Grupa_{3}>()};

// The makers of table lines, one per kind of setting; the steps lead to the member.

template <auto... Kroki>
constexpr Ustawienie Flaga(std::u16string_view klucz, std::u16string_view domyslna) {
  return {klucz,
          RodzajUstawienia::Flaga,
          domyslna,
          [](const U& u) { return QString::number(Czlon<Kroki...>(u) ? 1 : 0); },
          [](U& u, const QString& tekst) {
            const std::optional<bool> wartosc = TMCfgParam({}, tekst).Flaga();
            if (wartosc) Czlon<Kroki...>(u) = *wartosc;
            return wartosc.has_value();
          },
          Kontrolka<Kroki...>()};
}

// Choices stored one by one of which no more than one is made.
using WyborNip = bool OpcjeImportuKontrahentow::*;
constexpr WyborNip kBezNipu[] = {&OpcjeImportuKontrahentow::rb_dodajKontrBezNIPu,
                                 &OpcjeImportuKontrahentow::rb_pominKontrBezNIPu,
                                 &OpcjeImportuKontrahentow::rb_dodajKontrBezNIPuJesliInnyAdres};
constexpr WyborNip kNipJuzJest[] = {&OpcjeImportuKontrahentow::rb_PominBoTakiNIPJuzJest,
                                    &OpcjeImportuKontrahentow::rb_DodajChociazTakiNIPJuzJest,
                                    &OpcjeImportuKontrahentow::rb_DodajJesliMaInnyAdres};

// Making one choice takes back the others, whoever made them.
template <const auto& Grupa, WyborNip Wybor>
constexpr Ustawienie JedenZ(std::u16string_view klucz) {
  Ustawienie ustawienie = Flaga<&U::importKontr, Wybor>(klucz, u"0");
  ustawienie.wpisz = [](U& u, const QString& tekst) {
    const std::optional<bool> wartosc = TMCfgParam({}, tekst).Flaga();
    if (wartosc && *wartosc)
      for (const WyborNip inny : Grupa) u.importKontr.*inny = false;
    if (wartosc) u.importKontr.*Wybor = *wartosc;
    return wartosc.has_value();
  };
  return ustawienie;
}

template <int Min, int Max, auto... Kroki>
constexpr Ustawienie Liczba(std::u16string_view klucz, std::u16string_view domyslna) {
  return {klucz,
          RodzajUstawienia::Liczba,
          domyslna,
          [](const U& u) { return QString::number(static_cast<int>(Czlon<Kroki...>(u))); },
          [](U& u, const QString& tekst) {
            const std::optional<int> wartosc = TMCfgParam({}, tekst).Calkowita();
            if (!wartosc || *wartosc < Min || *wartosc > Max) return false;
            auto& czlon = Czlon<Kroki...>(u);
            czlon = static_cast<std::remove_reference_t<decltype(czlon)>>(*wartosc);
            return true;
          },
          Kontrolka<Kroki...>()};
}

template <auto... Kroki>
constexpr Ustawienie Grupa(std::u16string_view klucz, std::u16string_view domyslna) {
  Ustawienie ustawienie = Liczba<1, 3, Kroki...>(klucz, domyslna);
  ustawienie.kontrolka = {};
  ustawienie.przyciski = kPrzyciski<std::remove_reference_t<decltype(Czlon<Kroki...>(std::declval<U&>()))>>;
  return ustawienie;
}

constexpr Ustawienie NaKontrolce(std::string_view kontrolka, Ustawienie ustawienie) {
  ustawienie.kontrolka = kontrolka;
  return ustawienie;
}

template <auto... Kroki>
constexpr Ustawienie Tekst(std::u16string_view klucz, std::u16string_view domyslna) {
  return {klucz,
          RodzajUstawienia::Tekst,
          domyslna,
          [](const U& u) { return Czlon<Kroki...>(u); },
          [](U& u, const QString& tekst) {
            Czlon<Kroki...>(u) = tekst;
            return true;
          },
          Kontrolka<Kroki...>()};
}

template <int Najwyzej, auto... Kroki>
constexpr Ustawienie Cyfry(std::u16string_view klucz, std::u16string_view domyslna) {
  Ustawienie ustawienie = Tekst<Kroki...>(klucz, domyslna);
  ustawienie.rodzaj = RodzajUstawienia::Cyfry;
  ustawienie.wpisz = [](U& u, const QString& tekst) {
    if (!SameCyfry(tekst) || tekst.size() > Najwyzej) return false;
    Czlon<Kroki...>(u) = tekst;
    return true;
  };
  return ustawienie;
}

template <auto... Kroki>
constexpr Ustawienie Plik(std::u16string_view klucz, std::u16string_view domyslna) {
  Ustawienie ustawienie = Tekst<Kroki...>(klucz, domyslna);
  ustawienie.rodzaj = RodzajUstawienia::PlikWymiany;
  return ustawienie;
}

QString NaTekstSeparatora(const QString& separator) {
  if (separator == QLatin1String("\t")) return kTabulator;
  if (separator == QLatin1String(" ")) return kSpacja;
  return separator;
}

QString ZTekstuSeparatora(const QString& tekst) {
  if (tekst == kTabulator) return QStringLiteral("\t");
  if (tekst == kSpacja) return QStringLiteral(" ");
  return tekst;
}

template <auto... Kroki>
constexpr Ustawienie Separator(std::u16string_view klucz, std::u16string_view domyslna) {
  return {klucz, RodzajUstawienia::Separator, domyslna,
          [](const U& u) { return NaTekstSeparatora(Czlon<Kroki...>(u)); },
          [](U& u, const QString& tekst) {
            Czlon<Kroki...>(u) = ZTekstuSeparatora(tekst);
            return true;
          }};
}

template <StrukturaPliku U::*Struktura, int Pole>
constexpr Ustawienie Oferowane(std::u16string_view klucz) {
  return {klucz, RodzajUstawienia::Flaga, u"1",
          [](const U& u) { return QString::number((u.*Struktura).CzyOferowane(Pole) ? 1 : 0); },
          [](U& u, const QString& tekst) {
            const std::optional<bool> wartosc = TMCfgParam({}, tekst).Flaga();
            if (wartosc) (u.*Struktura).UstawOferowane(Pole, *wartosc);
            return wartosc.has_value();
          }};
}

// A rate code with a blank before it would lose the blank in a configuration file: it is written
// left-aligned.
QString TekstWpisu(const OpisVat& opis) {
  return OpisVat(opis.Kod(), opis.Opis()).Tekst();
}

QString TekstWpisu(const WpisPola& wpis) {
  return wpis.Tekst();
}

template <auto... Kroki>
constexpr Ustawienie Lista(std::u16string_view klucz, std::u16string_view rdzen) {
  return {klucz,
          RodzajUstawienia::Lista,
          u"0",
          [](const U& u) { return QString::number(Czlon<Kroki...>(u).size()); },
          [](U& u, const QString& tekst) {
            const std::optional<int> wartosc = TMCfgParam({}, tekst).Calkowita();
            if (wartosc)
              Czlon<Kroki...>(u).resize(static_cast<size_t>(std::clamp(*wartosc, 0, kNajdluzszaLista)));
            return wartosc.has_value();
          },
          {},
          {},
          rdzen,
          [](const U& u) { return static_cast<int>(Czlon<Kroki...>(u).size()); },
          [](const U& u, int numer) { return TekstWpisu(Czlon<Kroki...>(u)[static_cast<size_t>(numer)]); },
          [](U& u, int numer, const QString& tekst) {
            auto& lista = Czlon<Kroki...>(u);
            using Wpis = typename std::remove_reference_t<decltype(lista)>::value_type;
            lista[static_cast<size_t>(numer)] = Wpis(tekst);
          }};
}

constexpr Ustawienie kTabela[] = {
    Plik<&U::plikImportuTow>(u"ParNazwaPlikuImportuTow", u"TOWARY_I.txt"),
    Plik<&U::plikEksportuTow>(u"ParNazwaPlikuEksportuTow", u"TOWARY_E.txt"),
    Plik<&U::plikImportuKontr>(u"ParNazwaPlikuImportuKontr", u"KONTR_I.txt"),
    Plik<&U::plikEksportuKontr>(u"ParNazwaPlikuEksportuKontr", u"KONTR_E.txt"),
    Plik<&U::plikKonfiguracji>(u"ParNazwaPlikuKonfiguracji", u"Zorvik.cfg"),
    NaKontrolce("PageControl", Liczba<0, 3, &U::aktywnaStrona>(u"ParActivePageIndex", u"0")),

    // goods import
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_akttow>(u"ParAktualTow", u"1"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_nowetowary>(u"ParNoweTowary", u"1"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_noweasortymenty>(u"ParNoweAsortymenty", u"1"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_nowejednostki>(u"ParNoweJednostki", u"1"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_nowestawki>(u"ParNoweStawki", u"1"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_nowekategorie>(u"ParNoweKategorie", u"1"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_noweparametry>(u"ParNoweParametry", u"1"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_nowekodywazone>(u"ParNoweKodyWazone", u"1"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_akceptujKodyWlasneEAN>(u"ParKodyWlasne", u"0"),
    Liczba<0, kBezGranicy, &U::importTow, &OpcjeImportuTowarow::CBImportStanow>(u"ParImportStanow", u"0"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_importStanowUjemnych>(u"ParImportStanowUjemnych", u"0"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_formatujJM>(u"ParFormatujJM", u"0"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_KodyZaczynajaceSieOdZera>(u"ParKodyZaczynajaceSieOdZera",
                                                                            u"0"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_KodyZawierajaceLitery>(u"ParKodyZawierajaceLitery", u"0"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_SprawdzajCyfreKontrolnaWEAN>(u"ParSprawdzCyfreKontrolna",
                                                                               u"0"),
    Cyfry<kCyfrKoduKrotkiego, &U::importTow, &OpcjeImportuTowarow::EdKodyKrotkie>(u"ParKodyKrotkie",
                                                                                  u"10000"),
    Liczba<1, 20, &U::importTow, &OpcjeImportuTowarow::UpDownMinDlugoscKodu>(u"ParMinDlKodu", u"1"),
    Liczba<1, 20, &U::importTow, &OpcjeImportuTowarow::UpDownMaxDlugoscKodu>(u"ParMaxDlKodu", u"13"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_KodyWazone>(u"ParKodyWazone", u"0"),
    Flaga<&U::importTow, &OpcjeImportuTowarow::cb_PrzywrocUsuniety>(u"ParPrzywrocUsuniety", u"0"),
    Liczba<0, 1, &U::importTow, &OpcjeImportuTowarow::cb_poziomCenyZakupuImp>(u"ParPoziomCenyZakImp", u"0"),
    Liczba<0, 1, &U::importTow, &OpcjeImportuTowarow::cb_poziomCenSprzedazyImp>(u"ParPoziomCenSprzImp", u"0"),
    Grupa<&U::importTow, &OpcjeImportuTowarow::towarZTaSamaNazwa>(u"ParTowarZTaSamaNazwa", u"1"),
    Grupa<&U::importTow, &OpcjeImportuTowarow::towarBezNazwy>(u"ParTowarBezNazwy", u"1"),
    Grupa<&U::importTow, &OpcjeImportuTowarow::towarBezKodu>(u"ParTowarBezKodu", u"1"),
    Grupa<&U::importTow, &OpcjeImportuTowarow::jakieTowary>(u"ParJakieTowary", u"1"),

    // goods export
    Liczba<0, 1, &U::eksportTow, &OpcjeEksportuTowarow::cb_poziomCenyZakupuEksp>(u"ParPoziomCenyZakEksp",
                                                                                 u"0"),
    Liczba<0, 1, &U::eksportTow, &OpcjeEksportuTowarow::cb_poziomCenSprzedazyEksp>(u"ParPoziomCenSprzEksp",
                                                                                   u"0"),
    Flaga<&U::eksportTow, &OpcjeEksportuTowarow::cb_eksportBezCen>(u"ParEksportBezCen", u"0"),
    Flaga<&U::eksportTow, &OpcjeEksportuTowarow::cb_eksportBezMarz>(u"ParEksportBezMarz", u"0"),
    Flaga<&U::eksportTow, &OpcjeEksportuTowarow::cb_eksportBezKategorii>(u"ParEksportBezKategorii", u"0"),
    Flaga<&U::eksportTow, &OpcjeEksportuTowarow::cb_eksportBezKodow>(u"ParEksportBezKodow", u"0"),
    Liczba<0, kBezGranicy, &U::eksportTow, &OpcjeEksportuTowarow::CBEksportStanow>(u"ParEksportStanow", u"0"),

    // goods fields that a structure may name; the stock is offered exactly when stock is imported
    Oferowane<&U::strukturaTow, PoleTowaru::Nazwa>(u"ParNazwaTow"),
    Oferowane<&U::strukturaTow, PoleTowaru::NazwaSkrocona>(u"ParNazwaSkrocona"),
    Oferowane<&U::strukturaTow, PoleTowaru::TypTowaru>(u"ParTypTowaru"),
    Oferowane<&U::strukturaTow, PoleTowaru::Indeks1>(u"ParIndeks1"),
    Oferowane<&U::strukturaTow, PoleTowaru::Indeks2>(u"ParIndeks2"),
    Oferowane<&U::strukturaTow, PoleTowaru::Opis1>(u"ParOpis1"),
    Oferowane<&U::strukturaTow, PoleTowaru::Opis2>(u"ParOpis2"),
    Oferowane<&U::strukturaTow, PoleTowaru::Opis3>(u"ParOpis3"),
    Oferowane<&U::strukturaTow, PoleTowaru::Opis4>(u"ParOpis4"),
    Oferowane<&U::strukturaTow, PoleTowaru::IleWZgrzewce>(u"ParIloscWOpakowaniu"),
    Oferowane<&U::strukturaTow, PoleTowaru::IleWCalosci>(u"ParIleKg"),
    Oferowane<&U::strukturaTow, PoleTowaru::TermWazn>(u"ParTerminWazn"),
    Oferowane<&U::strukturaTow, PoleTowaru::PrefPLU>(u"ParPreferowanePLU"),
    Oferowane<&U::strukturaTow, PoleTowaru::Marza>(u"ParMarza"),
    Oferowane<&U::strukturaTow, PoleTowaru::HurtRabat>(u"ParrabatHurtowy"),
    Oferowane<&U::strukturaTow, PoleTowaru::NocNarzut>(u"ParNarzutNocny"),
    Oferowane<&U::strukturaTow, PoleTowaru::CenaEw>(u"ParCenaEwidencyjna"),
    Oferowane<&U::strukturaTow, PoleTowaru::CenaDet>(u"ParCenaSprzedazy"),
    Oferowane<&U::strukturaTow, PoleTowaru::CenaHurt>(u"ParCenaHurtowa"),
    Oferowane<&U::strukturaTow, PoleTowaru::CenaNoc>(u"ParCenaNocna"),
    Oferowane<&U::strukturaTow, PoleTowaru::CenaDod>(u"ParCenaDodatkowa"),
    Oferowane<&U::strukturaTow, PoleTowaru::CenaOtwarta>(u"ParCenaOtwarta"),
    Oferowane<&U::strukturaTow, PoleTowaru::StawkaVat>(u"ParCenaStawkaVAT"),
    Oferowane<&U::strukturaTow, PoleTowaru::Asortyment>(u"ParAsortyment"),
    Oferowane<&U::strukturaTow, PoleTowaru::JednostkaMiary>(u"ParJednostka"),
    Oferowane<&U::strukturaTow, PoleTowaru::KategoriaIParametry>(u"ParKategorie"),
    Oferowane<&U::strukturaTow, PoleTowaru::KodyDodatkowe>(u"ParKodyDodatkowe"),
    Oferowane<&U::strukturaTow, PoleTowaru::NipProducenta>(u"ParImportProducentaTow"),
    Oferowane<&U::strukturaTow, PoleTowaru::NipyDostawcow>(u"ParImportDostawcowTow"),
    Oferowane<&U::strukturaTow, PoleTowaru::Status>(u"ParStatusTowaru"),

    // contractor import
    Flaga<&U::importKontr, &OpcjeImportuKontrahentow::cb_aktkontr>(u"ParAktualKontr", u"0"),
    Flaga<&U::importKontr, &OpcjeImportuKontrahentow::cb_nowykontr>(u"ParNowyKontr", u"0"),
    JedenZ<kBezNipu, &OpcjeImportuKontrahentow::rb_dodajKontrBezNIPu>(u"ParDodajKontrBezNIPu"),
    JedenZ<kBezNipu, &OpcjeImportuKontrahentow::rb_pominKontrBezNIPu>(u"ParPominKontrBezNIPu"),
    JedenZ<kBezNipu, &OpcjeImportuKontrahentow::rb_dodajKontrBezNIPuJesliInnyAdres>(
        u"ParDodajKontrBezNIPuJesliInnyAdres"),
    JedenZ<kNipJuzJest, &OpcjeImportuKontrahentow::rb_PominBoTakiNIPJuzJest>(u"ParPominBoTakiNIPJuzJest"),
    JedenZ<kNipJuzJest, &OpcjeImportuKontrahentow::rb_DodajChociazTakiNIPJuzJest>(
        u"ParDodajChociazTakiNIPJuzJest"),
    JedenZ<kNipJuzJest, &OpcjeImportuKontrahentow::rb_DodajJesliMaInnyAdres>(u"ParDodajJesliMaInnyAdres"),
    Flaga<&U::importKontr, &OpcjeImportuKontrahentow::cb_dostawca>(u"ParUstawDostawce", u"0"),
    Flaga<&U::importKontr, &OpcjeImportuKontrahentow::cb_odbiorca>(u"ParUstawOdbiorce", u"0"),
    Flaga<&U::importKontr, &OpcjeImportuKontrahentow::cb_producent>(u"ParUstawProducenta", u"0"),
    Flaga<&U::importKontr, &OpcjeImportuKontrahentow::cb_sklep>(u"ParUstawSklep", u"0"),
    Grupa<&U::importKontr, &OpcjeImportuKontrahentow::jacyKontrahenci>(u"ParJacyKontrahenci", u"1"),

    // contractor fields that a structure may name
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Nazwa>(u"ParNazwaKontr"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::NaPrzelewie1>(u"ParNaPrzelewie1"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::NaPrzelewie2>(u"ParNaPrzelewie2"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::NazwaSkrocona>(u"ParSkrotNazwyKontr"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Ulica>(u"ParUlica"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::KodPocztowy>(u"ParKodPocztowy"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Miasto>(u"ParMiasto"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Telefon>(u"ParTelefon"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Fax>(u"ParFax"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Email>(u"ParEmail"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::NazwaBanku>(u"ParNazwaBanku"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Konto>(u"ParKonto"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Nip>(u"ParNIP"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Kontakty>(u"ParKontakty"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::NumerAnalityki>(u"ParNrAnalityki"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::KodKontrahenta>(u"ParKodKontr"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::ZakladPracyChronionej>(u"ParZakladPrChron"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Dostawca>(u"ParDostawca"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Odbiorca>(u"ParOdbiorca"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Producent>(u"ParProducent"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Sklep>(u"ParSklep"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::RabatUDostawcy>(u"ParRabatUDostawcy"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::FormaPlatnosciDostawcy>(u"ParFormaPlatDost"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::TerminPlatnosciDostawcy>(u"ParTerminPlatDost"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::CzasRealizacjiZamowienia>(u"ParCzasRealZam"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::RabatDlaOdbiorcy>(u"ParRabatDlaOdb"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::FormaPlatnosciOdbiorcy>(u"ParFormaPlatOdb"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::TerminPlatnosciOdbiorcy>(u"ParTerminPlatOdb"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::MaksymalnyKredyt>(u"ParMaksKredyt"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::MaksymalnePrzekroczenieTerminu>(u"ParMaksPrzekTerm"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::KodKarty>(u"ParKodKarty"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::KartaAktywna>(u"ParKartaAktywna"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::TerminWaznosciKarty>(u"ParTermWaznKarty"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::PoziomRabatu>(u"ParPoziomRabatu"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::OsobyUprawnione>(u"ParOsoby"),
    Oferowane<&U::strukturaKontr, PoleKontrahenta::Status>(u"ParAktywny"),

    // contractor export
    Flaga<&U::eksportKontr, &OpcjeEksportuKontrahentow::cb_gdyOdbiorca>(u"ParGdyOdbiorca", u"0"),
    Flaga<&U::eksportKontr, &OpcjeEksportuKontrahentow::cb_gdyDostawca>(u"ParGdyDostawca", u"0"),
    Flaga<&U::eksportKontr, &OpcjeEksportuKontrahentow::cb_gdyProducent>(u"ParGdyProducent", u"0"),
    Flaga<&U::eksportKontr, &OpcjeEksportuKontrahentow::cb_gdySklep>(u"ParGdySklep", u"0"),
    Flaga<&U::eksportKontr, &OpcjeEksportuKontrahentow::cb_gdyStale>(u"ParGdyStale", u"0"),
    Flaga<&U::eksportKontr, &OpcjeEksportuKontrahentow::cb_gdyTymczasowe>(u"ParGdyTymczasowe", u"0"),
    Flaga<&U::eksportKontr, &OpcjeEksportuKontrahentow::cb_gdyZnamyNIP>(u"ParGdyZnamyNIP", u"0"),
    Flaga<&U::eksportKontr, &OpcjeEksportuKontrahentow::cb_gdyNieZnamyNIPu>(u"ParGdyNieZnamyNIPu", u"0"),
    Flaga<&U::eksportKontr, &OpcjeEksportuKontrahentow::cb_gdyZakladPracyChr>(u"ParGdyZakladPrChr", u"0"),
    Flaga<&U::eksportKontr, &OpcjeEksportuKontrahentow::cb_gdyNieZakladPracyChr>(u"ParGdyNieZakladPrChr",
                                                                                 u"0"),
    Flaga<&U::eksportKontr, &OpcjeEksportuKontrahentow::cb_wysylajOsobyUprawnione>(u"ParWysylajOsobyUpr",
                                                                                   u"0"),

    // structures
    Liczba<0, 3, &U::strukturaTow, &StrukturaPliku::CBPolskieZnaki>(u"ParPlTypeTow", u"0"),
    Liczba<0, 3, &U::strukturaKontr, &StrukturaPliku::CBPolskieZnaki>(u"ParPlTypeKontr", u"0"),
    Liczba<0, 3, &U::strukturaTow, &StrukturaPliku::CBTypPliku>(u"ParTypPlikuTow", u"0"),
    Liczba<0, 3, &U::strukturaKontr, &StrukturaPliku::CBTypPliku>(u"ParTypPlikuKontr", u"0"),
    Separator<&U::strukturaTow, &StrukturaPliku::separator>(u"ParSeparatorTow", u"tab"),
    Separator<&U::strukturaKontr, &StrukturaPliku::separator>(u"ParSeparatorKontr", u"tab"),
    Liczba<0, 2, &U::strukturaTow, &StrukturaPliku::CBKwalifikatorTekstu>(u"ParKwalifikatorTekstuTow", u"0"),
    Liczba<0, 2, &U::strukturaKontr, &StrukturaPliku::CBKwalifikatorTekstu>(u"ParKwalifikatorTekstuKontr",
                                                                            u"0"),
    Lista<&U::strukturaTow, &StrukturaPliku::pola>(u"ParIloscPolTow", u"ParPoleTow"),
    Lista<&U::strukturaTow, &StrukturaPliku::opisyVat>(u"ParIloscOpisowVAT", u"ParOpisVAT"),
    Lista<&U::strukturaKontr, &StrukturaPliku::pola>(u"ParIloscPolKontr", u"ParPoleKontr"),
    Flaga<&U::strukturaTow, &StrukturaPliku::CBNieAnalizujPierwszejLinii>(u"ParNieAnalPierwTow", u"1"),
    Flaga<&U::strukturaKontr, &StrukturaPliku::CBNieAnalizujPierwszejLinii>(u"ParNieAnalPierwKontr", u"1"),
    Tekst<&U::strukturaTow, &StrukturaPliku::EdPoleAktywny>(u"ParPoleAktywnyTow", u"1"),
    Tekst<&U::strukturaTow, &StrukturaPliku::EdPoleUsuniety>(u"ParPoleUsunietyTow", u"0"),
    Tekst<&U::strukturaKontr, &StrukturaPliku::EdPoleAktywny>(u"ParPoleAktywnyKontr", u"1"),
    Tekst<&U::strukturaTow, &StrukturaPliku::EdPoleTypTowar>(u"ParPoleTypTowar", u"0"),
    Tekst<&U::strukturaTow, &StrukturaPliku::EdPoleTypOpakowanie>(u"ParPoleTypOpakowanie", u"1"),
    Tekst<&U::strukturaTow, &StrukturaPliku::EdPoleTypUsluga>(u"ParPoleTypUsluga", u"2"),
    Tekst<&U::strukturaKontr, &StrukturaPliku::EdPoleDostawca>(u"ParPoleDostawca", u"1"),
    Tekst<&U::strukturaKontr, &StrukturaPliku::EdPoleOdbiorca>(u"ParPoleOdbiorca", u"1"),
    Tekst<&U::strukturaKontr, &StrukturaPliku::EdPoleProducent>(u"ParPoleProducent", u"1"),
    Tekst<&U::strukturaKontr, &StrukturaPliku::EdPoleSklep>(u"ParPoleSklep", u"1"),
    Tekst<&U::strukturaKontr, &StrukturaPliku::EdPoleUsuniety>(u"ParPoleUsunietyKontr", u"0"),
};

QString KluczWpisu(const Ustawienie& lista, int numer) {
  return Napis(lista.rdzen) + QString::number(numer);
}

// The number that a key of the form "stem and number" gives; none for any other key. "Stem07" is no such key.
std::optional<int> NumerWpisu(const Ustawienie& lista, const QString& klucz) {
  if (lista.rdzen.empty() || !klucz.startsWith(QStringView(lista.rdzen))) return std::nullopt;
  const std::optional<int> numer =
      liczby::Calkowita(QStringView(klucz).mid(static_cast<qsizetype>(lista.rdzen.size())));
  if (!numer || *numer < 0 || KluczWpisu(lista, *numer) != klucz) return std::nullopt;
  return numer;
}

}  // namespace

std::span<const Ustawienie> TabelaUstawien() {
  return kTabela;
}

void WypelnijDomyslne(Ustawienia& ustawienia, const QString& katalogStartowy) {
  const QDir katalog(katalogStartowy);
  for (const Ustawienie& ustawienie : kTabela) {
    const QString domyslna = Napis(ustawienie.domyslna);
    ustawienie.wpisz(ustawienia, ustawienie.rodzaj == RodzajUstawienia::PlikWymiany
                                     ? QDir::toNativeSeparators(katalog.filePath(domyslna))
                                     : domyslna);
  }
}

void ZapiszUstawienia(const Ustawienia& ustawienia, TMConfig& config) {
  for (const Ustawienie& ustawienie : kTabela) {
    config.Ustaw(Napis(ustawienie.klucz), ustawienie.odczytaj(ustawienia));
    if (ustawienie.rodzaj != RodzajUstawienia::Lista) continue;
    for (int numer = 0; numer < ustawienie.liczbaWpisow(ustawienia); ++numer)
      config.Ustaw(KluczWpisu(ustawienie, numer), ustawienie.odczytajWpis(ustawienia, numer));
  }
}

std::vector<QString> ZastosujUstawienia(const TMConfig& config, Ustawienia& ustawienia) {
  std::vector<QString> odrzucone;
  for (const Ustawienie& ustawienie : kTabela) {
    const TMCfgParam* parametr = config.ParamByName(Napis(ustawienie.klucz));
    if (parametr && !ustawienie.wpisz(ustawienia, parametr->Wartosc()))
      odrzucone.push_back(parametr->Nazwa());
    if (ustawienie.rodzaj != RodzajUstawienia::Lista) continue;
    for (int numer = 0; numer < ustawienie.liczbaWpisow(ustawienia); ++numer)
      if (const TMCfgParam* wpis = config.ParamByName(KluczWpisu(ustawienie, numer)))
        ustawienie.wpiszWpis(ustawienia, numer, wpis->Wartosc());
  }
  return odrzucone;
}

bool JestDlugosciaListy(const QString& klucz) {
  return std::any_of(std::begin(kTabela), std::end(kTabela), [&](const Ustawienie& ustawienie) {
    return ustawienie.rodzaj == RodzajUstawienia::Lista && klucz == QStringView(ustawienie.klucz);
  });
}

WynikUstawienia UstawKlucz(Ustawienia& ustawienia, const QString& klucz, const QString& wartosc) {
  for (const Ustawienie& ustawienie : kTabela) {
    if (klucz == QStringView(ustawienie.klucz))
      return ustawienie.wpisz(ustawienia, wartosc) ? WynikUstawienia::Ustawiono : WynikUstawienia::ZlaWartosc;
    const std::optional<int> numer = NumerWpisu(ustawienie, klucz);
    if (!numer) continue;
    if (*numer >= ustawienie.liczbaWpisow(ustawienia)) return WynikUstawienia::NieznanyKlucz;
    ustawienie.wpiszWpis(ustawienia, *numer, wartosc);
    return WynikUstawienia::Ustawiono;
  }
  return WynikUstawienia::NieznanyKlucz;
}

QString WydrukUstawien(const Ustawienia& ustawienia) {
  TMConfig config;
  ZapiszUstawienia(ustawienia, config);
  return plik_konfiguracji::Tekst(config);
}
