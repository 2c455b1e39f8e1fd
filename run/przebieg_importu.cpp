#include "run/przebieg_importu.h"

#include <thread>

#include "exchange/czytnik.h"
#include "exchange/pola_rekordu.h"
#include "platform/baza/blad_bazy.h"
#include "run/pytanie_o_liczbe_pol.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Programs that have met in a deadlock should not meet again at once.
constexpr std::chrono::milliseconds kPrzedPowtorzeniem{20};
constexpr int kNajwiecejPowtorzen = 3;

}  // namespace

PrzebiegImportu::PrzebiegImportu(const ParametryPrzebiegu& parametry, const OpisPrzebiegu& opis,
                                 PolaNazwy polaNazwy)
    : Przebieg(parametry, opis), m_polaNazwy(polaNazwy), m_czytnik(UtworzCzytnik(parametry.struktura)) {}

PrzebiegImportu::~PrzebiegImportu() = default;

std::optional<Komunikat> PrzebiegImportu::OtworzPlik() {
  if (auto odmowa = m_czytnik->Otworz(Parametry().plik)) return odmowa;
  return m_czytnik->SprawdzPola();
}

void PrzebiegImportu::ZamknijPlik() {
  m_czytnik.reset();
}

std::optional<KoniecPrzebiegu> PrzebiegImportu::Przygotuj() {
  if (!PrzygotujBufory()) return PrzerwanoPrzezOperatora();
  return PrzejrzyjPlik();
}

bool PrzebiegImportu::FazaBufora(const QString& tekst, long long maksimum,
                                 const std::function<bool(const PostepBufora&)>& napelnij) {
  Postep().Faza(tekst, maksimum);
  DlawikPostepu dlawik;
  const bool pelny = napelnij([&](int przeczytanych) {
    if (dlawik.Przepusc()) Postep().Pozycja(przeczytanych);
    return !Stop();
  });
  if (pelny) Postep().Gotowe();
  return pelny;
}

std::optional<KoniecPrzebiegu> PrzebiegImportu::PrzejrzyjPlik() {
  Postep().Faza(u"Wstępne przeglądanie pliku"_s, m_czytnik->Rozmiar());
  DlawikPostepu dlawik;
  const WynikLiczenia wynik = m_czytnik->Policz([&](qint64 pozycja) {
    if (dlawik.Przepusc()) Postep().Pozycja(pozycja);
    return !Stop();
  });
  if (wynik.przerwano) return PrzerwanoPrzezOperatora();
  if (wynik.odmowa) {
    Pokaz(*wynik.odmowa);
    return KoniecPrzebiegu::Odmowa;
  }
  for (const Spostrzezenie& s : m_czytnik->SpostrzezeniaPliku())
    m_uwagi.ZglosOCalosci(UwagaZeSpostrzezenia(s, Parametry().struktura.rodzaj));
  Postep().Pozycja(m_czytnik->Rozmiar());
  Postep().Gotowe();
  m_rekordow = wynik.rekordow;
  Postep().Faza(u"Ilość rekordów do przetworzenia "_s);
  Postep().DopiszLiczbe(m_rekordow);
  Postep().Gotowe();
  return std::nullopt;
}

KoniecPrzebiegu PrzebiegImportu::Cialo() {
  PrzedRekordami();
  Postep().Faza(u"Numer aktualnego rekordu "_s, m_rekordow);
  KolejkaRekordow kolejka(*m_czytnik);
  PytanieOLiczbePol pytanie(Operator());
  DlawikPostepu dlawik;
  int numer = 0;
  const auto pokazNumer = [&] {
    Postep().Pozycja(numer);
    Postep().DopiszLiczbe(numer);
  };
  Krok krok = Krok::Dalej;
  while (krok == Krok::Dalej) try {
      const bool stop = Stop();
      if (stop || !kolejka.Nastepny()) {
        m_paczka.Zatwierdz();  // here, where its records can still be gone through again
        krok = stop ? Krok::Zatrzymany : Krok::Koniec;
        continue;
      }
      numer = kolejka.Biezacy().numer;
      if (dlawik.Przepusc()) pokazNumer();
      OtworzPaczke(kolejka);
      krok = Rozpatrz(kolejka.Biezacy(), pytanie);
      ZapomnijZatwierdzone(kolejka);
    } catch (const EBladBazy& blad) {
      if (!PowtorzPaczke(blad, kolejka)) throw;
    }
  pokazNumer();
  Postep().Gotowe();
  switch (krok) {
    case Krok::Zatrzymany:
      return PrzerwanoPrzezOperatora();
    case Krok::Porzucony:
      return KoniecPrzebiegu::Przerwano;
    default:
      return PoOstatnimRekordzie(kolejka.Koniec());
  }
}

void PrzebiegImportu::OtworzPaczke(KolejkaRekordow& kolejka) {
  m_paczka.PrzedRekordem();
  ZapomnijZatwierdzone(kolejka);
  if (const auto blok = kolejka.NowyBlok(); !blok.empty()) CzytajZWyprzedzeniem(blok);
}

// To be called wherever a batch may have been committed: the record in hand belongs to the next one. One that
// held no record before it brings nothing forward: a record that asks and collides would come again for ever.
void PrzebiegImportu::ZapomnijZatwierdzone(KolejkaRekordow& kolejka) {
  if (m_zakonczonychPaczek == m_paczka.Zakonczonych()) return;
  m_zakonczonychPaczek = m_paczka.Zakonczonych();
  if (kolejka.Zapomnij()) m_powtorzen = 0;
}

PrzebiegImportu::Krok PrzebiegImportu::Rozpatrz(const RekordPliku& rekord, PytanieOLiczbePol& pytanie) {
  switch (pytanie.Zapytaj(rekord.niezgodnosc)) {
    case OdpowiedzLiczbaPol::Przerwij:
      return Krok::Porzucony;
    case OdpowiedzLiczbaPol::Pomin:
      PominRekord(rekord);
      break;
    case OdpowiedzLiczbaPol::Ignoruj:
      ZglosSpostrzezenia(rekord);
      if (Rekord(rekord) == PoRekordzie::Stop) return Krok::Zatrzymany;
  }
  m_liczniki.Zwieksz(Licznik::Rekordy);
  return Krok::Dalej;
}

// The records of the batch come again.
bool PrzebiegImportu::PowtorzPaczke(const EBladBazy& blad, KolejkaRekordow& kolejka) {
  ZapomnijZatwierdzone(kolejka);
  if (blad.Rodzaj() == RodzajBleduBazy::Grupa)
    m_paczka.PiszPojedynczo();
  else if (blad.Rodzaj() == RodzajBleduBazy::Kolizja && m_powtorzen < kNajwiecejPowtorzen)
    ++m_powtorzen;
  else
    return false;
  m_paczka.Wycofaj();
  PoWycofaniuPaczki();
  kolejka.Wroc();
  m_zakonczonychPaczek = m_paczka.Zakonczonych();
  std::this_thread::sleep_for(kPrzedPowtorzeniem * m_powtorzen);
  return true;
}

KoniecPrzebiegu PrzebiegImportu::PoOstatnimRekordzie(WynikCzytania wynik) {
  if (wynik == WynikCzytania::Koniec) return KoniecPrzebiegu::Zakonczono;
  OglosBlad(m_czytnik->Blad()->naglowek, m_czytnik->Blad()->tekst);
  return KoniecPrzebiegu::Blad;
}

void PrzebiegImportu::ZglosSpostrzezenia(const RekordPliku& rekord) {
  for (const Spostrzezenie& s : rekord.spostrzezenia)
    if (s.rodzaj != Spostrzezenie::Rodzaj::NieznanyVat)  // whether a rate is taken, the run kind knows
      m_uwagi.Zglos(UwagaZeSpostrzezenia(s, Parametry().struktura.rodzaj), rekord.numer);
}

void PrzebiegImportu::PominRekord(const RekordPliku& rekord) {
  const PolaRekordu pola(rekord.Linia(), Parametry().struktura.rodzaj, Parametry().separatorDziesietny);
  m_raport.NowyRekord(pola.Tekst(m_polaNazwy.pierwsze), pola.Tekst(m_polaNazwy.drugie));
  m_raport.Zglos(rekord.niezgodnosc->Pytanie().tekst);
}
