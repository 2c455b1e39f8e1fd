#include "shell/dialogi/podglad_pliku.h"

#include <algorithm>

#include "contractors/transfer_kontrahenta.h"
#include "exchange/czytnik.h"
#include "model/stawki_vat.h"
#include "platform/baza/polaczenie.h"
#include "platform/liczby.h"
#include "run/pliki_zastrzezone.h"
#include "run/uwagi.h"
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
  CzytaniePodgladu(const StrukturaPliku& struktura, const QString& plik, const ParametryPolaczenia& baza)
      : m_rodzaj(struktura.rodzaj), m_strona(struktura.CBPolskieZnaki), m_czytnik(UtworzCzytnik(struktura)) {
    Zanotuj(SprawdzStrukture(struktura));
    m_pola = PolaPliku(struktura, *m_czytnik);
    for (const int pole : m_pola)
      m_podglad.naglowki << QStringView(KatalogPol(m_rodzaj)[static_cast<size_t>(pole)].nazwa).toString();
    std::optional<Komunikat> odmowa = OdmowaPlikuBazy(baza, plik);
    if (!odmowa) odmowa = m_czytnik->Otworz(plik);
    Zanotuj(odmowa);
    if (odmowa) return;
    Zanotuj(m_czytnik->SprawdzPola());
    if (m_pola.empty()) return;
    CzytajRekordy();
    OznaczStrone();
    OznaczUwagiPliku();
    m_uwagi.Zatwierdz();
    for (const Uwaga& uwaga : m_uwagi.Lista()) m_podglad.uwagi << uwaga.Linia();
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
    std::vector<OcenaStrony>& oceny = m_oceny.emplace_back(m_pola.size());
    for (int pole = 0; pole < LiczbaWartosci(m_rodzaj); ++pole) {
      const std::string_view przed = linia.Reszta();
      wartosci << linia.Tekst();
      const std::string_view bajty = przed.substr(0, przed.size() - linia.Reszta().size());
      m_ocena.Dodaj(bajty);
      if (const int kolumna = Kolumna(pole); kolumna >= 0) oceny[static_cast<size_t>(kolumna)].Dodaj(bajty);
    }
    PodgladPliku::Wiersz& wiersz = m_podglad.wiersze.emplace_back();
    for (const int pole : m_pola)
      wiersz.wartosci << Pokazana(wartosci[pole],
                                  m_rodzaj == RodzajRekordu::Towary && pole == PoleTowaru::StawkaVat);
    if (const auto niezgodnosc = m_czytnik->SprawdzLiczbePol()) wiersz.uwaga = niezgodnosc->Pytanie().tekst;
    wiersz.zauwazone.resize(wiersz.wartosci.size());
    for (const Spostrzezenie& s : m_czytnik->Spostrzezenia()) Oznacz(s, m_podglad.wiersze.size() - 1);
    if (m_rodzaj == RodzajRekordu::Kontrahenci) SprawdzDate(wartosci[PoleKontrahenta::TerminWaznosciKarty]);
  }

  // -1 for a field that is not shown.
  int Kolumna(int pole) const {
    const auto miejsce = std::find(m_pola.begin(), m_pola.end(), pole);
    return miejsce == m_pola.end() ? -1 : static_cast<int>(miejsce - m_pola.begin());
  }

  void Oznacz(const TrescUwagi& tresc, int pole, size_t wiersz) {
    const int kolumna = Kolumna(pole);
    PodgladPliku::Wiersz& w = m_podglad.wiersze[wiersz];
    QString& znak = kolumna < 0 ? w.wLinii : w.zauwazone[kolumna];
    if (!znak.isEmpty()) znak += u'\n';
    znak += tresc.Tekst();
  }
  void Oznacz(const Spostrzezenie& s, size_t wiersz) {
    const TrescUwagi tresc = UwagaZeSpostrzezenia(s, m_rodzaj);
    Oznacz(tresc, s.pole, wiersz);
    m_uwagi.Zglos(tresc, static_cast<int>(wiersz) + 1);
  }

  void SprawdzDate(const QString& wartosc) {
    const QString tekst = wartosc.trimmed();
    const int pole = PoleKontrahenta::TerminWaznosciKarty;
    if (Kolumna(pole) < 0 || tekst.isEmpty() || DataZPliku(tekst).isValid()) return;
    const size_t wiersz = m_podglad.wiersze.size() - 1;
    Oznacz({RodzajUwagi::Data}, pole, wiersz);
    m_uwagi.Zglos({RodzajUwagi::Data}, static_cast<int>(wiersz) + 1);
  }

  // The file is judged by the records here; then each value for itself.
  void OznaczStrone() {
    const auto lepsza = m_ocena.Lepsza(m_strona);
    if (!lepsza) return;
    const TrescUwagi tresc{RodzajUwagi::StronaKodowa, NazwaStrony(m_strona), NazwaStrony(*lepsza)};
    m_uwagi.ZglosOCalosci(tresc);
    for (size_t wiersz = 0; wiersz < m_oceny.size(); ++wiersz)
      for (size_t kolumna = 0; kolumna < m_pola.size(); ++kolumna)
        if (m_oceny[wiersz][kolumna].Lepsza(m_strona)) Oznacz(tresc, m_pola[kolumna], wiersz);
  }

  void OznaczUwagiPliku() {
    for (const Spostrzezenie& s : m_czytnik->SpostrzezeniaPliku()) {
      const TrescUwagi tresc = UwagaZeSpostrzezenia(s, m_rodzaj);
      m_uwagi.ZglosOCalosci(tresc);
      const int kolumna = Kolumna(s.pole);
      for (size_t wiersz = 0; kolumna >= 0 && wiersz < m_podglad.wiersze.size(); ++wiersz)
        if (!m_podglad.wiersze[wiersz].wartosci[kolumna].isEmpty()) Oznacz(tresc, s.pole, wiersz);
    }
  }

  RodzajRekordu m_rodzaj;
  StronaKodowa m_strona;
  std::unique_ptr<Czytnik> m_czytnik;
  std::vector<int> m_pola;
  OcenaStrony m_ocena;                            // of all records here
  std::vector<std::vector<OcenaStrony>> m_oceny;  // of each value
  Uwagi m_uwagi;
  PodgladPliku m_podglad;
};

}  // namespace

PodgladPliku CzytajPodglad(const StrukturaPliku& struktura, const QString& plik,
                           const ParametryPolaczenia& baza) {
  return CzytaniePodgladu(struktura, plik, baza).Wynik();
}
