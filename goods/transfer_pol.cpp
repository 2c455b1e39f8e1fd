#include "goods/transfer_pol.h"

#include <vector>

#include <QHash>
#include <QSet>

#include "exchange/pola_rekordu.h"
#include "goods/bloki.h"
#include "goods/kontekst_importu.h"
#include "goods/nazwy_jednostek.h"
#include "goods/opcje_towarow.h"
#include "goods/rozpoznawanie_slownikow.h"
#include "model/bufor_nip.h"
#include "model/reguly_kodow.h"
#include "model/stawki_vat.h"
#include "model/towar.h"
#include "run/raport_problemow.h"
#include "run/uwagi.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct PoleTekstowe {
  int pole;
  void (TDmVLTTowar::*ustaw)(const QString&);
};
constexpr PoleTekstowe kTeksty[] = {
    {PoleTowaru::Indeks1, &TDmVLTTowar::UstawIndeks1}, {PoleTowaru::Indeks2, &TDmVLTTowar::UstawIndeks2},
    {PoleTowaru::Opis1, &TDmVLTTowar::UstawOpis1},     {PoleTowaru::Opis2, &TDmVLTTowar::UstawOpis2},
    {PoleTowaru::Opis3, &TDmVLTTowar::UstawOpis3},     {PoleTowaru::Opis4, &TDmVLTTowar::UstawOpis4},
};

// Percents of the file are fractions in the database.
struct PoleLiczbowe {
  int pole;
  void (TDmVLTTowar::*ustaw)(double);
  double dzielnik;
};
constexpr PoleLiczbowe kLiczby[] = {
    {PoleTowaru::IleWZgrzewce, &TDmVLTTowar::UstawIleWZgrzewce, 1},
    {PoleTowaru::IleWCalosci, &TDmVLTTowar::UstawIleWCalosci, 1},
    {PoleTowaru::Marza, &TDmVLTTowar::UstawMarza, 100},
    {PoleTowaru::HurtRabat, &TDmVLTTowar::UstawHurtRabat, 100},
    {PoleTowaru::NocNarzut, &TDmVLTTowar::UstawNocNarzut, 100},
    {PoleTowaru::CenaEw, &TDmVLTTowar::UstawCenaEw, 1},
    {PoleTowaru::CenaDet, &TDmVLTTowar::UstawCenaDet, 1},
    {PoleTowaru::CenaHurt, &TDmVLTTowar::UstawCenaHurt, 1},
    {PoleTowaru::CenaNoc, &TDmVLTTowar::UstawCenaNoc, 1},
    {PoleTowaru::CenaDod, &TDmVLTTowar::UstawCenaDod, 1},
};

struct PoleCalkowite {
  int pole;
  void (TDmVLTTowar::*ustaw)(long long);
  bool flaga;
};
constexpr PoleCalkowite kCalkowite[] = {
    {PoleTowaru::TermWazn, &TDmVLTTowar::UstawTermWazn, false},
    {PoleTowaru::PrefPLU, &TDmVLTTowar::UstawPrefPLU, false},
    {PoleTowaru::CenaOtwarta, &TDmVLTTowar::UstawCenaOtwarta, true},
};

struct CenaSprzedazy {
  int pole;
  double (TDmVLTTowar::*cena)() const;
  void (TDmVLTTowar::*ustaw)(double);
};
constexpr CenaSprzedazy kCenySprzedazy[] = {
    {PoleTowaru::CenaDet, &TDmVLTTowar::CenaDet, &TDmVLTTowar::UstawCenaDet},
    {PoleTowaru::CenaHurt, &TDmVLTTowar::CenaHurt, &TDmVLTTowar::UstawCenaHurt},
    {PoleTowaru::CenaNoc, &TDmVLTTowar::CenaNoc, &TDmVLTTowar::UstawCenaNoc},
    {PoleTowaru::CenaDod, &TDmVLTTowar::CenaDod, &TDmVLTTowar::UstawCenaDod},
};

TransferPol::Odmowa NieJestLiczba(const QString& wartosc) {
  return {wartosc + u" nie jest liczbą"_s};
}

TransferPol::Odmowa BladBlokuPola(const BladBloku& blad, const QString& znieksztalcony) {
  return blad.nieLiczba.isEmpty() ? TransferPol::Odmowa{znieksztalcony} : NieJestLiczba(blad.nieLiczba);
}

const TransferPol::Odmowa kBrakSkrotu{u"Błąd nadania unikalnej nazwy skróconej"_s};
const TransferPol::Odmowa kZgloszona{};

}  // namespace

std::optional<TransferPol::Odmowa> TransferPol::Przenies(const QString& nazwa) {
  if (auto odmowa = Nazwy(nazwa)) return odmowa;
  if (auto odmowa = Typ()) return odmowa;
  if (auto odmowa = ProstePola()) return odmowa;
  if (auto odmowa = Stawka()) return odmowa;
  PoziomyCen();
  if (auto odmowa = Asortyment()) return odmowa;
  if (auto odmowa = Jednostka()) return odmowa;
  if (auto odmowa = Kody()) return odmowa;
  if (auto odmowa = Kategoria()) return odmowa;
  Producent();
  return Dostawcy();
}

bool TransferPol::Bierze(int pole) const {
  return m_nowy ? m_import.NiesiePole(pole) : m_import.Aktualizuje(pole);
}

// The short name comes first: setting the name makes one only where there is none.
TransferPol::Wynik TransferPol::Nazwy(const QString& nazwa) {
  if (Bierze(PoleTowaru::NazwaSkrocona))
    if (const QString skrot = m_pola.Trim(PoleTowaru::NazwaSkrocona); !skrot.isEmpty())
      m_towar.UstawSkrot(skrot);
  const bool zmiana = m_nowy || (Bierze(PoleTowaru::Nazwa) && !m_towar.Centralny());
  if (zmiana && !nazwa.isEmpty()) m_towar.UstawNazwa(nazwa);
  const bool brakSkrotu = m_towar.Skrot().trimmed().isEmpty() && !m_towar.Nazwa().trimmed().isEmpty();
  if (brakSkrotu && !m_towar.UtworzSkrot()) return kBrakSkrotu;
  return std::nullopt;
}

TransferPol::Wynik TransferPol::Typ() {
  if (!Bierze(PoleTowaru::TypTowaru) || m_towar.Centralny()) return std::nullopt;
  const auto typ = m_pola.Calkowita(PoleTowaru::TypTowaru);
  if (!typ.poprawny) return NieJestLiczba(typ.bledny);
  const bool znany = typ.wartosc == 1 || typ.wartosc == 2;
  m_towar.UstawTypTowaru(znany ? static_cast<TypTowaru>(typ.wartosc) : TypTowaru::Towar);
  return std::nullopt;
}

TransferPol::Wynik TransferPol::ProstePola() {
  for (const PoleTekstowe& p : kTeksty)
    if (Bierze(p.pole)) (m_towar.*p.ustaw)(m_pola.Tekst(p.pole));
  for (const PoleLiczbowe& p : kLiczby) {
    if (!Bierze(p.pole)) continue;
    const auto liczba = m_pola.Liczba(p.pole);
    if (!liczba.poprawny) return NieJestLiczba(liczba.bledny);
    (m_towar.*p.ustaw)(liczba.wartosc / p.dzielnik);
  }
  for (const PoleCalkowite& p : kCalkowite) {
    if (!Bierze(p.pole)) continue;
    const auto liczba = m_pola.Calkowita(p.pole);
    if (!liczba.poprawny) return NieJestLiczba(liczba.bledny);
    (m_towar.*p.ustaw)(p.flaga ? liczba.wartosc != 0 : liczba.wartosc);
  }
  return std::nullopt;
}

// A new good always gets a rate: a file without the column gives what an unknown description gives.
TransferPol::Wynik TransferPol::Stawka() {
  if (!m_nowy && (!Bierze(PoleTowaru::StawkaVat) || m_towar.Centralny())) return std::nullopt;
  const Odmowa odmowa{u"Błąd w polu 'stawka'"_s};
  auto stawka = m_pola.Calkowita(PoleTowaru::StawkaVat, kStawkaDomyslna);
  if (!stawka.poprawny) {
    // A number too long to be read is out of range, not unreadable.
    if (m_import.struktura.CBTypPliku != TypPliku::Zorvik || SameCyfry(stawka.bledny)) return odmowa;
    stawka.wartosc = kStawkaDomyslna;
  }
  if (stawka.wartosc < kStawkaZwolniona || stawka.wartosc > kStawkaNajwyzsza) return odmowa;
  if (!m_import.slowniki.Stawka(stawka.wartosc)) return odmowa;
  m_towar.UstawStawka(stawka.wartosc);
  if (stawka.wartosc == kStawkaDomyslna) ZglosDomyslnaStawke(!stawka.poprawny);
  return std::nullopt;
}

// Tells of a text that was no rate. The own layout holds numbers, the others the texts that were described.
void TransferPol::ZglosDomyslnaStawke(bool nieczytelna) {
  const auto zglos = [&](const QString& tekst) {
    m_import.uwagi.Zglos({RodzajUwagi::NieznanyVat, tekst, StawkaNaTekst(kStawkaDomyslna, true)},
                         m_rekord.numer);
  };
  if (m_import.struktura.CBTypPliku == TypPliku::Zorvik) {
    const QString tekst = m_pola.Trim(PoleTowaru::StawkaVat);
    if (nieczytelna || tekst.isEmpty()) zglos(tekst);
    return;
  }
  for (const Spostrzezenie& s : m_rekord.spostrzezenia)
    if (s.rodzaj == Spostrzezenie::Rodzaj::NieznanyVat) zglos(s.szczegol);
}

// Gross prices of the file become net at the rate the good has now; the purchase price alone is rounded.
void TransferPol::PoziomyCen() {
  const int stawka = m_towar.Stawka().value_or(0);
  if (stawka <= 0) return;
  const OpcjeImportuTowarow& opcje = m_import.opcje;
  if (opcje.cb_poziomCenyZakupuImp == PoziomCeny::Brutto && Bierze(PoleTowaru::CenaEw))
    m_towar.UstawCenaEw(Zaokraglij(NettoZBrutto(m_towar.CenaEw(), stawka), 2));
  if (opcje.cb_poziomCenSprzedazyImp != PoziomCeny::Brutto) return;
  for (const CenaSprzedazy& p : kCenySprzedazy)
    if (Bierze(p.pole)) (m_towar.*p.ustaw)(NettoZBrutto((m_towar.*p.cena)(), stawka));
}

TransferPol::Wynik TransferPol::Asortyment() {
  QString nazwa = Bierze(PoleTowaru::Asortyment) ? m_pola.Trim(PoleTowaru::Asortyment) : QString();
  if (nazwa.isEmpty()) {
    if (m_towar.AsId() > 0) return std::nullopt;
    nazwa = u"Pomocniczy"_s;
  }
  const int id = m_import.slowniki.Asortyment(nazwa, m_towar.AsId());
  if (id < 0) return Odmowa{u"Błąd w polu 'asortyment'"_s};
  m_towar.UstawAsId(id);
  return std::nullopt;
}

TransferPol::Wynik TransferPol::Jednostka() {
  const bool bierze = Bierze(PoleTowaru::JednostkaMiary);
  if (!bierze && m_towar.JMId() > 0) return std::nullopt;
  QString nazwa = bierze ? m_pola.Trim(PoleTowaru::JednostkaMiary) : QString();
  if (m_import.opcje.cb_formatujJM) NormalizujJednostke(nazwa);
  if (nazwa.isEmpty()) nazwa = u"szt."_s;
  const int id = m_import.slowniki.Jednostka(nazwa, m_towar.JMId());
  if (id < 0) return Odmowa{u"Błąd w polu 'jednosta'"_s};
  m_towar.UstawJMId(id);
  return std::nullopt;
}

// A code that the good has already keeps its price level and quantity, and its short name where the file has
// none.
TransferPol::Wynik TransferPol::Kody() {
  if (!Bierze(PoleTowaru::KodyDodatkowe)) return std::nullopt;
  const QString pole = m_pola.Trim(PoleTowaru::KodyDodatkowe);
  if (pole.isEmpty()) return std::nullopt;
  auto blok = CzytajBlokKodow(pole);
  if (blok.blad) return BladBlokuPola(*blok.blad, u"Błąd w polu kodów dodatkowych"_s);

  QHash<QString, const KodDodatkowy*> obecne;
  for (const KodDodatkowy& kod : m_towar.Kody().Wszystkie())
    if (!obecne.contains(kod.kod)) obecne.insert(kod.kod, &kod);
  QSet<QString> nowe;
  std::vector<KodDodatkowy> kody;
  for (KodZBloku& zPliku : blok.wartosc) {
    if (nowe.contains(zPliku.kod) || !m_import.reguly.SprawdzDodatkowy(zPliku.kod).Dobry())
      return Odmowa{u"Błąd w kodzie dodatkowym: "_s + zPliku.kod};
    const KodDodatkowy* const obecny = obecne.value(zPliku.kod);
    KodDodatkowy kod = obecny ? *obecny : KodDodatkowy{};
    kod.kod = std::move(zPliku.kod);
    nowe.insert(kod.kod);
    if (!zPliku.skrot.isEmpty()) kod.skrot = std::move(zPliku.skrot);
    kod.prefPLU = zPliku.plu;
    kody.push_back(std::move(kod));
  }
  m_towar.Kody().Ustaw(std::move(kody));
  // A good whose name is still to be asked for gets its short names together with the name.
  if (!m_towar.Nazwa().isEmpty() && !m_towar.UtworzBrakujaceSkroty()) return kBrakSkrotu;
  return std::nullopt;
}

TransferPol::Wynik TransferPol::Kategoria() {
  if (!Bierze(PoleTowaru::KategoriaIParametry)) return std::nullopt;
  const QString pole = m_pola.Trim(PoleTowaru::KategoriaIParametry);
  if (pole.isEmpty()) return std::nullopt;
  const auto blok = CzytajBlokKategorii(pole);
  if (blok.blad) return BladBlokuPola(*blok.blad, u"Błąd w polu parametrów"_s);

  const int katId = m_import.slowniki.Kategoria(blok.wartosc.kategoria, m_towar.KatId());
  if (katId < 0) return kZgloszona;
  m_towar.UstawKatId(katId);
  for (const ParametrZBloku& parametr : blok.wartosc.parametry) {
    const auto wartosc = m_import.slowniki.Parametr(katId, parametr);
    if (!wartosc) return kZgloszona;
    m_towar.Wartosci().Ustaw(wartosc->first, wartosc->second);
  }
  m_towar.Wartosci().Uzupelnij(m_import.slowniki.ParametryKategorii(katId));
  return std::nullopt;
}

void TransferPol::Producent() {
  if (!m_import.nipy || !Bierze(PoleTowaru::NipProducenta)) return;
  const QString nip = m_pola.Trim(PoleTowaru::NipProducenta);
  if (nip.isEmpty()) return;
  if (const int id = KontrahentZNipem(nip); id >= 0) m_towar.UstawProducent(id);
}

TransferPol::Wynik TransferPol::Dostawcy() {
  if (!m_import.nipy || !Bierze(PoleTowaru::NipyDostawcow)) return std::nullopt;
  const QString pole = m_pola.Trim(PoleTowaru::NipyDostawcow);
  if (pole.isEmpty()) return std::nullopt;
  const auto blok = CzytajBlokNipow(pole);
  if (blok.blad) return Odmowa{u"Błąd w polu NIP-ów dostawców"_s};
  std::vector<int> dostawcy;
  for (const QString& nip : blok.wartosc)
    if (const int id = KontrahentZNipem(nip); id >= 0) dostawcy.push_back(id);
  // A list of unknown suppliers only says nothing about the known ones.
  if (!dostawcy.empty()) m_towar.Dostawcy().UstawZNipem(dostawcy);
  return std::nullopt;
}

// A missing contractor does not stop the good.
int TransferPol::KontrahentZNipem(const QString& nip) {
  const int id = m_import.nipy->Znajdz(nip);
  if (id < 0) m_import.raport.Zglos(u"Brak kontrahenta z NIPem "_s + nip, false);
  return id;
}
