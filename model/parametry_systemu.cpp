#include "model/parametry_systemu.h"

#include "model/bledy.h"
#include "platform/baza/sesja.h"
#include "platform/config.h"
#include "platform/liczby.h"

namespace {

constexpr QStringView kNettoBrutto[] = {u"netto", u"brutto"};
constexpr QStringView kRachunek[] = {u"rachunek \"w 100\"", u"rachunek \"od 100\""};
constexpr QStringView kCenaOtwarta[] = {u"zamknięta", u"otwarta"};
constexpr QStringView kNieTak[] = {u"nie", u"tak"};
constexpr QStringView kKodWlasny[] = {u"nr kolejny", u"EAN 8", u"EAN 13"};
constexpr QStringView kWlasneWazone[] = {u"wyłączone", u"pytać", u"bez pytania"};
constexpr QStringView kEtykiety[] = {u"prefiks i część stała", u"bez prefiksu i zer wiodących"};
constexpr QStringView kKrotkie[] = {u"nie tworzyć", u"zgodne z opcją 'Kody zaczynające się od zera'",
                                    u"zawsze obcinać początkowe zera"};
constexpr QStringView kNaKasy[] = {u"nie wysyłać na urządzenia", u"wysyłać na urządzenia"};

struct Wiersz {
  QStringView nazwa = {};
  QStringView domyslna = {};
  QStringView tytul = {};  // only the parameters that govern codes and prices have one
  std::span<const QStringView> wybory = {};
};

// In the order of the identifiers, from 0. Those behind the last line have no name of their own.
constexpr Wiersz kRejestr[] = {
    {u"CenySprzedazyBrutto", u"1", u"Wyświetlanie cen sprzedaży", kNettoBrutto},
    {u"RachunekMarzy", u"1", u"Sposób liczenia marży", kRachunek},
    {u"RachunekRabatuHurtowego", u"0", u"Sposób liczenia rabatu hurtowego", kRachunek},
    {u"RachunekNarzutuNocnego", u"1", u"Sposób liczenia narzutu nocnego", kRachunek},
    {u"DomyslnieCenaOtwarta", u"0", u"Dla nowych towarów domyślnie cena", kCenaOtwarta},
    {u"MinKodKreskowy", u"1", u"Min. długość kodu kreskowego"},
    {u"MaxKodKreskowy", u"13", u"Max. długość kodu kreskowego"},
    {u"LiteryWKodzieKreskowym", u"0", u"Litery w kodzie kreskowym", kNieTak},
    {u"KodyZaczynajaceSieOdZera", u"0", u"Kody zaczynające się od zera", kNieTak},
    {u"JakTworzycKodWlasny", u"0", u"Sposób tworzenia kodu własnego", kKodWlasny},
    {u"WykorzystanieZwolnionychKodow", u"1", u"Wykorzystanie zwolnionych kodów", kNieTak},
    {u"PrefixKoduWlasnego", u"200", u"Przedrostek kodu własnego EAN (200..209)"},
    {u"PierwszyKodWlasny", u"1001", u"Pierwszy numer kodu własnego"},
    {u"SprawdzacSumeKoduEAN", u"1", u"Sprawdzać cyfrę kontrolną w kodach EAN8 / EAN13", kNieTak},
    {u"AutomatyczneWazone", u"0", u"Automatycznie uzupełniać kody ważone o część zmienną", kNieTak},
    {u"TworzycWlasneWazone", u"0", u"Automatycznie nadawać kody ważone", kWlasneWazone},
    {u"KodyWazoneBezPrefiksu", u"0", u"Kody ważone na etykietach", kEtykiety},
    {u"KodyKrotkieDoWazonych", u"0", u"Dodatkowe kody krótkie do ważonych", kKrotkie},
    {u"MinKodKrotkiDoWazonego", u"1", u"Min. kod krótki do ważonego"},
    {u"MaxKodKrotkiDoWazonego", u"999", u"Max. kod krótki do ważonego"},
    {u"WymuszanieCenyZak", u"0", u"Wymuszać wpisanie ceny ewidencyjnej w karcie towaru", kNieTak},
    {u"WymuszanieMarzy", u"0", u"Wymuszać dodatnią marżę w karcie towaru", kNieTak},
    {u"ZamrozonaPrzecenaZKarty"},
    {u"DomyslnaStawka", u"22", u"Domyślna stawka VAT"},
    {u"DomyslnyMagazyn", u"1", u"Domyślny magazyn"},
    {u"DomyslnyAsortyment", u"1", u"Domyślny asortyment"},
    {u"DomyslnaJM", u"1", u"Domyślna jedn. miary"},
    {u"JMWazone", u"", u"Jednostki ważone"},
    {u"BlokadaSkrotu", u"1", u"Blokada nazwy skróconej towaru na kasach", kNieTak},
    {u"BlokadaStawki", u"1", u"Blokada stawki VAT towaru na kasach", kNieTak},
    {u"AutomatycznePLU", u"0", u"Automatyczne pref. PLU dla nowych towarów", kNieTak},
    {u"OffsetPLU", u"1", u"Przydzielanie PLU przy transmisji od numeru"},
    {u"DniHistoriiDostaw"},
    {u"DaneLogistyczne"},
    {u"SprawdzacUnikalnoscNIP", u"1", u"Sprawdzać unikalność NIP", kNieTak},
    {u"Indeks1Centralny", u"0", u"Indeks centralny w polu SWW", kNieTak},
    {u"WysNaKasyNowyTowar", u"1", u"Nowo wprowadzony towar domyślnie", kNaKasy},
    {u"WysNaKasyReplTowCentr"},
    {u"WysNaKasyTowarPrzyjety"},
    {u"ZakupyKwotyPrzedRabatem"},
    {u"ZakupyWprowadzaniePrzezWartosc"},
    {u"ZakupyKwotyBrutto"},
    {u"ZakupyVatDetalicznyOdWartosci"},
    {u"ZakupyVatDetalicznyOdBrutto"},
    {u"ZakupyWyswietlanieMarzy"},
    {u"ZakupyWielokrotnieTenSamTowar"},
    {u"ZakupyOpakowaniaModyfikujaDoZaplaty"},
    {u"ZakupyLuzneFaktury"},
    {u"ZakupyWidelkiCenyZak"},
    {u"ZakupyOstatniaCena"},
    {u"ZakupyAktualizacjaCenZakupu"},
    {u"ZakupyAktualizacjaCenSprzedazy"},
    {u"ZakupyAutomatycznePrzeceny"},
    {u"ZakupyEdycjaMarzy"},
    {u"PoprawaPZMPPropozycjaPrzeceny"},
    {u"PrzecenyZDostawIloscAktualna"},
    {u"PrzecenyAktualizacjaCenSprzedazy"},
    {u"PrzecenyWielokrotnieTenSamTowar"},
    {u"PrzecenyTylkoStanyDodatnie"},
    {u"PrzecenyVatOdWartosci"},
    {u"PrzecenyPodatekOdBrutto"},
    {u"AktualizacjaCenyHurtowej"},
    {u"AktualizacjaCenyNocnej"},
    {u"ZakupyCenySpZEDI"},
    {u"ZakupyZmianaCenyZakZEDI"},
    {u"ZakupyAutomatEDI"},
    {u"EtykietaGdyNowyTowar"},
    {u"EtykietaGdyZmianaCeny"},
    {u"ZamowieniaEdycjaCeny"},
    {u"BlokadaWielkosciZDostawyNaRozbieznosci"},
    {u"BlokadaDostawcowNaDostawach"},
    {u"BlokadaDostawcowNaZamowieniach"},
    {u"BlokadaCenyZakupuNaDostawach"},
    {u"WyborTowaruZListyDostawcy"},
    {u"ZakupyPodatekVatRR"},
    {u"ZwDostModyfikujeCeneMag"},
    {u"RozbDostModyfikujeCeneMag"},
    {u"WymianaTowModyfikujeCeneMag"},
    {u"ObrOpakModyfikujeCeneMag"},
    {u"SprzedazPodatekOdBrutto"},
};
static_assert(std::size(kRejestr) <= ParametrySystemu::kIlosc);

// The configurations of one database, named like the sections of the product's configuration window.
constexpr QStringView kSekcje[] = {u"Wykazy",   u"Zakupy", u"Sprzedaz",   u"Firma",
                                   u"Centrala", u"Inne",   u"Ksiegowosc", u"Kasy"};

std::vector<OpisParametru> UtworzOpisy() {
  std::vector<OpisParametru> opisy;
  opisy.reserve(ParametrySystemu::kIlosc);
  for (const Wiersz& w : kRejestr)
    opisy.push_back({static_cast<int>(opisy.size()), w.nazwa.toString(), w.domyslna, w.tytul, w.wybory});
  while (opisy.size() < ParametrySystemu::kIlosc) {
    const int id = static_cast<int>(opisy.size());
    opisy.push_back({id, QStringLiteral("Parametr%1").arg(id), {}, {}, {}});
  }
  return opisy;
}

const std::vector<OpisParametru>& Opisy() {
  static const std::vector<OpisParametru> opisy = UtworzOpisy();
  return opisy;
}

}  // namespace

int ParametrKonfiguracji::AsInteger() const {
  if (const auto liczba = liczby::Calkowita(QStringView(*m_wartosc).trimmed())) return *liczba;
  return liczby::Calkowita(m_opis->domyslna).value_or(0);
}

const QString& ParametrySystemu::KonfiguracjaKodow() {
  static const QString nazwa = kSekcje[0].toString();
  return nazwa;
}

std::vector<std::pair<QString, QString>> ParametrySystemu::DomyslneKodowICen() {
  std::vector<std::pair<QString, QString>> wynik;
  for (const OpisParametru& opis : Opisy())
    if (!opis.tytul.isEmpty()) wynik.emplace_back(opis.nazwa, opis.domyslna.toString());
  return wynik;
}

const OpisParametru& ParametrySystemu::Opis(int id) {
  if (id < 0 || id >= kIlosc) throw EVLTWDError(2008);
  return Opisy()[static_cast<std::size_t>(id)];
}

ParametrySystemu::ParametrySystemu() {
  Zastosuj(TMConfig());
}

void ParametrySystemu::Wczytaj(TVLTBazaDanych& baza) {
  TMConfig config;
  for (const QStringView sekcja : kSekcje) baza.WczytajKonfiguracje(sekcja.toString(), config);
  Zastosuj(config);
}

void ParametrySystemu::Zastosuj(const TMConfig& config) {
  for (const OpisParametru& opis : Opisy()) {
    const TMCfgParam* parametr = config.ParamByName(opis.nazwa);
    m_wartosci[static_cast<std::size_t>(opis.id)] = parametr ? parametr->Wartosc() : opis.domyslna.toString();
  }
}

void ParametrySystemu::Ustaw(IdParametru id, const QString& wartosc) {
  m_wartosci[static_cast<std::size_t>(Opis(static_cast<int>(id)).id)] = wartosc;
}

ParametrKonfiguracji ParametrySystemu::Parametr(int id) const {
  const OpisParametru& opis = Opis(id);
  return {opis, m_wartosci[static_cast<std::size_t>(id)]};
}
