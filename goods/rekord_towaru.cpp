#include "goods/rekord_towaru.h"

#include "goods/kontekst_importu.h"
#include "goods/numeracja_nazw.h"
#include "goods/opcje_towarow.h"
#include "goods/rozpoznawanie_slownikow.h"
#include "goods/stany.h"
#include "goods/transfer_pol.h"
#include "model/bledy.h"
#include "model/bufor_towarow.h"
#include "model/kody_wlasne.h"
#include "model/kontekst.h"
#include "model/nazwy_skrocone.h"
#include "model/stawki_vat.h"
#include "model/szerokosci.h"
#include "model/szukanie_towaru.h"
#include "model/zapas_towarow.h"
#include "platform/baza/sesja.h"
#include "run/liczniki.h"
#include "run/operator.h"
#include "run/raport_problemow.h"
#include "run/uwagi.h"

using namespace Qt::Literals::StringLiterals;

namespace {
bool ZlaSumaEan(const RegulyKodow& reguly, const QString& kod) {
  const RodzajKodu rodzaj = reguly.Rodzaj(kod);
  return (rodzaj == RodzajKodu::Ean13 || rodzaj == RodzajKodu::Ean8) && !SumaKontrolnaPoprawna(kod);
}
}  // namespace

RekordTowaru::RekordTowaru(KontekstImportu& import)
    : m_import(import),
      m_towar(import.sesja, {.reguly = import.reguly,
                             .skroty = import.skroty,
                             .bufor = &import.bufor,
                             .asortymenty = &import.slowniki.Asortymenty(),
                             .jednostki = &import.slowniki.Jednostki(),
                             .kategorie = &import.slowniki.Kategorie(),
                             .zapas = &import.zapas}),
      m_zapis(import, m_towar) {}

void RekordTowaru::CzytajZWyprzedzeniem(std::span<const RekordPliku> rekordy) {
  const TVLTBuforTowarow& bufor = m_import.bufor;
  if (!bufor.BrakJestPewny()) return;
  std::vector<int> towary;
  for (const RekordPliku& rekord : rekordy)
    if (const auto kandydat = bufor.JedynyZKodem(rekord.Linia().Tekst().trimmed()))
      towary.push_back(*kandydat);
  if (m_import.opcje.CBImportStanow > 0 && m_import.NiesiePole(PoleTowaru::Stan))
    m_import.stany.CzytajZWyprzedzeniem(towary, m_import.opcje.CBImportStanow);
  m_import.zapas.Wczytaj(m_import.sesja.baza, std::move(towary));
}

PoRekordzie RekordTowaru::Przetworz(const RekordPliku& rekord) {
  const PolaRekordu pola(rekord.Linia(), RodzajRekordu::Towary, m_import.separator);
  m_kod = {};
  m_kod.kod = pola.Trim(PoleTowaru::Kod);
  m_nazwa = pola.Trim(PoleTowaru::Nazwa);
  m_stan.reset();
  m_numer = rekord.numer;
  m_import.raport.NowyRekord(m_kod.kod, m_nazwa);
  // Names made for a record that was not saved are free again.
  m_import.skroty.Zwolnij();

  Krok krok = Krok::Koniec;
  try {
    krok = Przeprowadz(rekord, pola);
  } catch (const EBladBazy& blad) {
    if (blad.KonczyPrzebieg()) throw;
    Pomin(u"Nie można zapisać towaru"_s);
  } catch (const EVLTWDError& blad) {
    Pomin(TekstDoRaportu(blad));
  }
  return krok == Krok::Stop ? PoRekordzie::Stop : PoRekordzie::Dalej;
}

RekordTowaru::Krok RekordTowaru::Przeprowadz(const RekordPliku& rekord, const PolaRekordu& pola) {
  if (const Krok krok = FiltrujStatus(rekord, pola); krok != Krok::Dalej) return krok;
  if (const Krok krok = UstalKod(); krok != Krok::Dalej) return krok;
  if (const Krok krok = UstalNazwe(); krok != Krok::Dalej) return krok;
  if (const Krok krok = SprawdzKod(); krok != Krok::Dalej) return krok;
  const OpcjeImportuTowarow& opcje = m_import.opcje;
  if (m_kod.znaleziony && !opcje.cb_akttow && !SlownikiDoUzupelnienia())
    return Pomin(u"Towar o tym kodzie już jest w bazie"_s);
  if (const Krok krok = SprawdzTaSamaNazwe(); krok != Krok::Dalej) return krok;
  if (!m_kod.znaleziony && !opcje.cb_nowetowary && !SlownikiDoUzupelnienia())
    return Pomin(u"Towaru o tym kodzie nie ma w bazie"_s);
  if (const Krok krok = CzytajStan(pola); krok != Krok::Dalej) return krok;

  if (!m_kod.znaleziony) {
    m_towar.Nowy();
    m_towar.UstawKod(m_kod.kod);
    m_towar.UstawAktywny(m_aktywny ? 1 : 0);
  }
  if (const auto odmowa = TransferPol(m_import, rekord, pola, m_towar, !m_kod.znaleziony).Przenies(m_nazwa)) {
    if (!odmowa->tekst.isEmpty()) return Pomin(odmowa->tekst);
    // A dictionary entry that the database refused has no words of its own.
    return m_import.raport.RekordPoliczony() ? Krok::Koniec : Pomin(u"Nie można zapisać towaru"_s);
  }
  return m_kod.znaleziony ? PoprawTowar() : DodajTowar();
}

RekordTowaru::Krok RekordTowaru::FiltrujStatus(const RekordPliku& rekord, const PolaRekordu& pola) {
  m_aktywny = true;
  if (!m_import.MaStatus(rekord)) return Krok::Dalej;
  m_aktywny = pola.Trim(PoleTowaru::Status) == u"1";
  const JakieTowary jakie = m_import.opcje.jakieTowary;
  if (m_aktywny && jakie == JakieTowary::RBTowaryUsuniete) return Pomin(u"Towar aktywny"_s);
  if (!m_aktywny && jakie == JakieTowary::RBTowaryAktywne) return Pomin(u"Towar usunięty"_s);
  return Krok::Dalej;
}

RekordTowaru::Krok RekordTowaru::UstalKod() {
  if (m_kod.kod.isEmpty()) {
    if (m_import.opcje.towarBezKodu == TowarBezKodu::RBPominTowarBezKodu) return Pomin(u"Brak kodu"_s);
    m_kod.nadany = true;
    if (m_import.opcje.towarBezKodu != TowarBezKodu::RBDodajKodWlasny) return Krok::Dalej;
    const auto wlasny = m_import.kodyWlasne.Zaproponuj();
    if (!wlasny) return Pomin(u"Brak wolnych kodów własnych"_s);
    m_kod.kod = *wlasny;
    m_kod.rodzaj = m_import.reguly.Rodzaj(m_kod.kod);
    return Krok::Dalej;
  }
  m_kod.rodzaj = m_import.reguly.Rodzaj(m_kod.kod);
  if (const Krok krok = ZnajdzTowar(m_kod.kod); krok != Krok::Dalej || m_kod.znaleziony) return krok;
  // A weighted code is stored with its variable part when the database is set so.
  const QString pelny = m_import.reguly.Normalizuj(m_kod.kod);
  return pelny == m_kod.kod ? Krok::Dalej : ZnajdzTowar(pelny);
}

// The buffer's one candidate needs no search: reading the good, which is wanted anyway, confirms it.
RekordTowaru::Krok RekordTowaru::ZnajdzTowar(const QString& kod) {
  const TVLTBuforTowarow& bufor = m_import.bufor;
  if (bufor.BrakJestPewny()) {
    const std::vector<int> kandydaci = bufor.TowaryZKodem(kod);
    if (kandydaci.empty()) return Krok::Dalej;
    if (kandydaci.size() == 1) {
      m_towar.Wczytaj(kandydaci.front());
      m_kod.znaleziony = m_towar.MaKod(kod);
      return Krok::Dalej;
    }
  }
  const auto towary = TowaryZKodem(m_import.sesja.baza, &bufor, kod);
  if (towary.size() > 1) return Pomin(u"Kod jest przypisany do więcej niż jednego towaru"_s);
  if (!towary.empty()) {
    m_towar.Wczytaj(towary.front().towId);
    m_kod.znaleziony = true;
  }
  return Krok::Dalej;
}

RekordTowaru::Krok RekordTowaru::UstalNazwe() {
  if (m_kod.znaleziony || !m_nazwa.isEmpty()) return Krok::Dalej;
  switch (m_import.opcje.towarBezNazwy) {
    case TowarBezNazwy::RBPominTowarBezNazwy:
      return Pomin(u"Brak nazwy towaru"_s);
    case TowarBezNazwy::RBDodajTowarZNazwaAuto:
      m_nazwa = m_import.nazwy.Zaproponuj();
      break;
    case TowarBezNazwy::RBDodajTowarBezNazwy:
      break;  // asked for when the good is saved
  }
  return Krok::Dalej;
}

RekordTowaru::Krok RekordTowaru::SprawdzKod() {
  if (m_kod.kod.isEmpty()) return Krok::Dalej;
  if (m_kod.kod.contains(u'?')) {
    if (!m_import.opcje.cb_KodyWazone) return Pomin(u"Kod ważony"_s);
    if (!m_import.slowniki.FormatKodu(m_kod.kod)) return Krok::Koniec;
  }
  if (const auto odmowa = SprawdzKodRekordu(m_kod, m_import.opcje, m_import.reguly)) return Pomin(*odmowa);
  return Krok::Dalej;
}

bool RekordTowaru::SlownikiDoUzupelnienia() const {
  const OpcjeImportuTowarow& opcje = m_import.opcje;
  return opcje.cb_noweasortymenty || opcje.cb_nowejednostki || opcje.cb_nowestawki;
}

RekordTowaru::Krok RekordTowaru::SprawdzTaSamaNazwe() {
  const TowarZTaSamaNazwa wybor = m_import.opcje.towarZTaSamaNazwa;
  if (m_kod.znaleziony || wybor == TowarZTaSamaNazwa::RBDodajTowarZTaSamaNazwa || m_nazwa.isEmpty())
    return Krok::Dalej;
  std::optional<int> towId;
  try {
    towId = TowarZNazwa();
  } catch (const EBladBazy& blad) {
    if (blad.KonczyPrzebieg()) throw;
    return Pomin(u"Błąd szukania towaru o tej samej nazwie"_s);
  }
  if (!towId) return Krok::Dalej;
  if (wybor == TowarZTaSamaNazwa::RBPominTowarZTaSamaNazwa)
    return Pomin(u"Towar o takiej nazwie jest już w bazie"_s);
  return DodajJakoKodDodatkowy(*towId);
}

// Only the exact text counts, so a wider search for similar names first would change nothing. Of several
// goods the one with the lowest identifier.
std::optional<int> RekordTowaru::TowarZNazwa() const {
  const TVLTBuforTowarow& bufor = m_import.bufor;
  if (bufor.BrakJestPewny() && !bufor.MozeByNazwa(m_nazwa)) return std::nullopt;
  auto odczyt = m_import.sesja.baza.Otworz("select TowId from Towar where Nazwa=:Nazwa order by TowId",
                                           {TypPola::Calkowite}, {{"Nazwa", m_nazwa}});
  if (!odczyt.Nastepny()) return std::nullopt;
  return static_cast<int>(odczyt[0].AsInteger());
}

RekordTowaru::Krok RekordTowaru::DodajJakoKodDodatkowy(int towId) {
  ZapytajOKod();
  if (const WynikKodu wynik = m_import.reguly.SprawdzDodatkowy(m_kod.kod); !wynik.Dobry())
    return Pomin(u"Błąd w kodzie dodatkowym: "_s + wynik.szczegol);
  m_towar.Wczytaj(towId);
  // Only a code that was asked for: one of the file would have found the good.
  if (m_towar.MaKod(m_kod.kod)) return Pomin(u"Towar o tym kodzie już jest w bazie"_s);
  KodDodatkowy kod;
  kod.kod = m_kod.kod;
  m_towar.Kody().Dodaj(std::move(kod));
  if (!m_towar.UtworzSkrot(m_towar.Kody().Ilosc() - 1))
    return Pomin(u"Błąd nadania unikalnej nazwy skróconej"_s);
  if (const Krok krok = Zapisz(u"Błąd podczas dodania kodu dodatkowego"_s); krok != Krok::Dalej) return krok;
  m_import.kodyWlasne.Potwierdz(m_kod.kod);
  m_import.liczniki.Zwieksz(Licznik::Poprawione);
  return Krok::Koniec;
}

RekordTowaru::Krok RekordTowaru::CzytajStan(const PolaRekordu& pola) {
  const bool bierze =
      m_kod.znaleziony ? m_import.Aktualizuje(PoleTowaru::Stan) : m_import.NiesiePole(PoleTowaru::Stan);
  if (m_import.opcje.CBImportStanow <= 0 || !bierze) return Krok::Dalej;
  if (pola.Trim(PoleTowaru::Stan).isEmpty()) return Krok::Dalej;
  const auto ilosc = pola.Liczba(PoleTowaru::Stan);
  if (!ilosc.poprawny) return Pomin(ilosc.bledny + u" nie jest liczbą"_s);
  if (ilosc.wartosc < 0 && !m_import.opcje.cb_importStanowUjemnych) return Krok::Dalej;
  m_import.stany.WymagajIlosci(m_import.opcje.CBImportStanow, ilosc.wartosc);
  m_stan = ilosc.wartosc;
  return Krok::Dalej;
}

bool RekordTowaru::ZapiszStan(int towId) {
  return m_stan && m_import.stany.Ustaw(towId, m_import.opcje.CBImportStanow, *m_stan);
}

RekordTowaru::Krok RekordTowaru::DodajTowar() {
  if (!m_import.opcje.cb_nowetowary) return Krok::Koniec;
  if (m_nazwa.isEmpty())
    if (const auto nazwa =
            m_import.oper.PodajTekst({u"Uwaga"_s, u"Podaj nazwę towaru o kodzie "_s + m_kod.kod})) {
      m_towar.UstawNazwa(nazwa->trimmed());
      m_towar.UtworzBrakujaceSkroty();
    }
  ZapytajOKod();
  m_towar.UstawKod(m_kod.kod);

  if (const Krok krok = Zapisz(u"Błąd dodania do bazy (użytkownik zrezygnował)"_s); krok != Krok::Dalej)
    return krok;
  m_import.kodyWlasne.Potwierdz(m_towar.Kod());
  m_import.liczniki.Zwieksz(Licznik::Dodane);
  if (!m_import.NiesiePole(PoleTowaru::StawkaVat) && m_towar.Stawka())
    m_import.uwagi.Zglos({RodzajUwagi::VatDomyslny, StawkaNaTekst(*m_towar.Stawka(), true)}, m_numer);
  if (m_stan) m_import.stany.PrzyjmijNowy(m_towar.Id(), m_import.opcje.CBImportStanow);
  ZapiszStan(m_towar.Id());
  return Krok::Koniec;
}

void RekordTowaru::ZapytajOKod() {
  if (!m_kod.kod.isEmpty()) return;
  if (const auto kod = m_import.oper.PodajTekst({u"Uwaga"_s, u"Podaj kod towaru "_s + m_nazwa}))
    m_kod.kod = kod->trimmed();
}

RekordTowaru::Krok RekordTowaru::PoprawTowar() {
  const bool stan = ZapiszStan(m_towar.Id());
  const bool status = ZmienStatus();
  // Stock and status are counted once, together with whatever else changes in this record.
  if (stan || status) m_import.liczniki.Zwieksz(Licznik::Poprawione);
  if (m_towar.TakiSamJakWBazie()) {
    if (stan || status) return Krok::Koniec;
    m_import.liczniki.Zwieksz(Licznik::BezZmian);
    return Pomin(u"Towar identyczny z towarem w bazie"_s);
  }
  if (m_towar.Centralny() && ZlaSumaEan(m_import.reguly, m_towar.Kod()))
    return Pomin(u"Nie można poprawić sumy kontrolnej EAN towaru wysłanego na kasę"_s);
  if (!m_import.opcje.cb_akttow) return Krok::Koniec;

  if (const Krok krok = Zapisz(u"Błąd zapisu (użytkownik zrezygnował)"_s); krok != Krok::Dalej) return krok;
  if (!stan && !status) m_import.liczniki.Zwieksz(Licznik::Poprawione);
  return Krok::Koniec;
}

// True when the good was removed or restored.
bool RekordTowaru::ZmienStatus() {
  const bool wBazieAktywny = m_towar.Aktywny() != 0;
  if (m_aktywny == wBazieAktywny) return false;
  if (m_aktywny) {
    if (!m_import.opcje.cb_PrzywrocUsuniety) return false;
    m_towar.Przywroc();
    return true;
  }
  try {
    m_towar.Usun();
    return true;
  } catch (const EVLTWDError& odmowa) {
    if (odmowa.MacCode() == 2868)
      m_import.raport.Zglos(u"Nie można usunąć towaru centralnego"_s, false);
    else if (odmowa.MacCode() == 2867)
      m_import.raport.Zglos(u"Nie można usunąć towaru z niezerowym stanem lub blokadą"_s, false);
    else
      throw;
    return false;
  }
}

RekordTowaru::Krok RekordTowaru::Zapisz(const QString& rezygnacja) {
  switch (m_zapis.Zapisz(rezygnacja)) {
    case ZapisTowaru::Wynik::Zapisany:
      m_import.nazwy.Zapisana(m_towar.Nazwa());
      return Krok::Dalej;
    case ZapisTowaru::Wynik::Pominiety:
      return Krok::Koniec;
    case ZapisTowaru::Wynik::Stop:
      break;
  }
  return Krok::Stop;
}

RekordTowaru::Krok RekordTowaru::Pomin(const QString& komunikat) {
  m_import.raport.Zglos(komunikat);
  return Krok::Koniec;
}
