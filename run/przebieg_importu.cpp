#include "run/przebieg_importu.h"

#include <utility>

#include "exchange/czytnik.h"
#include "exchange/pola_rekordu.h"
#include "run/pytanie_o_liczbe_pol.h"

using namespace Qt::Literals::StringLiterals;

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
  int numer = 0, paczka = 0;
  const auto pokazNumer = [&] {
    Postep().Pozycja(numer);
    Postep().DopiszLiczbe(numer);
  };
  const auto zakoncz = [&](KoniecPrzebiegu koniec) {
    pokazNumer();
    Postep().Gotowe();
    return koniec;
  };
  while (!Stop()) {
    if (!kolejka.Nastepny()) return zakoncz(PoOstatnimRekordzie(kolejka.Koniec()));
    numer = kolejka.Biezacy().numer;
    if (dlawik.Przepusc()) pokazNumer();
    m_paczka.PrzedRekordem();
    const bool nowaPaczka = std::exchange(paczka, m_paczka.Numer()) != m_paczka.Numer();
    if (nowaPaczka) kolejka.Zapomnij();
    if (nowaPaczka || kolejka.PoczatekBloku()) CzytajZWyprzedzeniem(kolejka.OdBiezacego());
    const RekordPliku& rekord = kolejka.Biezacy();
    switch (pytanie.Zapytaj(rekord.niezgodnosc)) {
      case OdpowiedzLiczbaPol::Przerwij:
        return zakoncz(KoniecPrzebiegu::Przerwano);
      case OdpowiedzLiczbaPol::Pomin:
        PominRekord(rekord);
        break;
      case OdpowiedzLiczbaPol::Ignoruj:
        if (Rekord(rekord) == PoRekordzie::Stop) {
          zakoncz(KoniecPrzebiegu::Przerwano);
          return PrzerwanoPrzezOperatora();
        }
    }
    m_liczniki.Zwieksz(Licznik::Rekordy);
  }
  zakoncz(KoniecPrzebiegu::Przerwano);
  return PrzerwanoPrzezOperatora();
}

KoniecPrzebiegu PrzebiegImportu::PoOstatnimRekordzie(WynikCzytania wynik) {
  if (wynik == WynikCzytania::Koniec) return KoniecPrzebiegu::Zakonczono;
  m_paczka.Zatwierdz();
  OglosBlad(m_czytnik->Blad()->naglowek, m_czytnik->Blad()->tekst);
  return KoniecPrzebiegu::Blad;
}

void PrzebiegImportu::PominRekord(const RekordPliku& rekord) {
  const PolaRekordu pola(rekord.Linia(), Parametry().struktura.rodzaj, Parametry().separatorDziesietny);
  m_raport.NowyRekord(pola.Tekst(m_polaNazwy.pierwsze), pola.Tekst(m_polaNazwy.drugie));
  m_raport.Zglos(rekord.niezgodnosc->Pytanie().tekst);
}
