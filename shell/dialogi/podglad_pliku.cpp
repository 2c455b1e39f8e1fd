#include "shell/dialogi/podglad_pliku.h"

#include <algorithm>

#include "exchange/czytnik.h"
#include "model/stawki_vat.h"
#include "platform/liczby.h"
#include "ustawienia/kontrola_struktury.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A file may begin with any number of lines that are no records.
constexpr int kNajwiecejOdczytow = 1000;
constexpr qint64 kNajdalej = 4 * 1024 * 1024;
constexpr qsizetype kNajdluzszaWartosc = 200;

// In the order of the file's columns; several columns that feed one field are one.
std::vector<int> PolaPliku(const StrukturaPliku& struktura, const Czytnik& czytnik) {
  std::vector<int> pola;
  const auto dodaj = [&](int pole) {
    if (czytnik.NiesiePole(pole) && std::find(pola.begin(), pola.end(), pole) == pola.end())
      pola.push_back(pole);
  };
  if (struktura.CBTypPliku == TypPliku::Zorvik)
    for (const PoleKatalogu& pole : KatalogPol(struktura.rodzaj)) dodaj(pole.numer);
  else
    for (const WpisPola& wpis : struktura.pola) dodaj(wpis.Numer().value_or(-1));
  return pola;
}

QString Pokazana(QString wartosc, bool stawkaVat) {
  if (stawkaVat)
    if (const auto stawka = liczby::Calkowita(QStringView(wartosc).trimmed()))
      return StawkaNaTekst(*stawka, true);
  if (wartosc.size() > kNajdluzszaWartosc) wartosc = wartosc.left(kNajdluzszaWartosc) + u'…';
  return wartosc;
}

class CzytaniePodgladu {
 public:
  CzytaniePodgladu(const StrukturaPliku& struktura, const QString& plik)
      : m_rodzaj(struktura.rodzaj), m_czytnik(UtworzCzytnik(struktura)) {
    Zanotuj(SprawdzStrukture(struktura));
    m_pola = PolaPliku(struktura, *m_czytnik);
    for (const int pole : m_pola)
      m_podglad.naglowki << QStringView(KatalogPol(m_rodzaj)[static_cast<size_t>(pole)].nazwa).toString();
    const std::optional<Komunikat> odmowa = m_czytnik->Otworz(plik);
    Zanotuj(odmowa);
    if (odmowa) return;
    Zanotuj(m_czytnik->SprawdzPola());
    if (!m_pola.empty()) CzytajRekordy();
  }

  PodgladPliku Wynik() && { return std::move(m_podglad); }

 private:
  void Zanotuj(const std::optional<Komunikat>& powod) {
    if (powod) m_podglad.powody << powod->tekst;
  }

  void CzytajRekordy() {
    for (int i = 0; i < kNajwiecejOdczytow && m_czytnik->Pozycja() < kNajdalej; ++i) {
      const WynikCzytania wynik = m_czytnik->Nastepny();
      if (wynik == WynikCzytania::Blad) return Zanotuj(m_czytnik->Blad());
      if (wynik == WynikCzytania::Rekord) DodajWiersz();
      if (m_podglad.wiersze.size() == PodgladPliku::kRekordow) return;
      if (wynik != WynikCzytania::Koniec) continue;
      if (m_podglad.wiersze.empty()) m_podglad.powody << u"Plik nie zawiera żadnego rekordu"_s;
      return;
    }
    if (m_podglad.wiersze.empty()) m_podglad.powody << u"Początek pliku nie zawiera żadnego rekordu"_s;
  }

  void DodajWiersz() {
    QStringList wartosci;
    LiniaRekordu& linia = m_czytnik->Linia();
    for (int pole = 0; pole < LiczbaWartosci(m_rodzaj); ++pole) wartosci << linia.Tekst();
    PodgladPliku::Wiersz& wiersz = m_podglad.wiersze.emplace_back();
    for (const int pole : m_pola)
      wiersz.wartosci << Pokazana(wartosci[pole],
                                  m_rodzaj == RodzajRekordu::Towary && pole == PoleTowaru::StawkaVat);
    if (const auto niezgodnosc = m_czytnik->SprawdzLiczbePol()) wiersz.uwaga = niezgodnosc->Pytanie().tekst;
  }

  RodzajRekordu m_rodzaj;
  std::unique_ptr<Czytnik> m_czytnik;
  std::vector<int> m_pola;
  PodgladPliku m_podglad;
};

}  // namespace

PodgladPliku CzytajPodglad(const StrukturaPliku& struktura, const QString& plik) {
  return CzytaniePodgladu(struktura, plik).Wynik();
}
