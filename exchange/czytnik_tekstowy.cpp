#include "exchange/czytnik_tekstowy.h"

#include "exchange/bajty.h"

namespace {

constexpr qint64 kCoIleLinii = 4096;  // between two reports of progress while counting

}  // namespace

CzytnikTekstowy::CzytnikTekstowy(const StrukturaPliku& struktura, int deklarowanaLiczbaPol)
    : Czytnik(struktura),
      m_pomijaPierwsza(struktura.PomijaPierwszaLinie()),
      m_zadeklarowano(deklarowanaLiczbaPol) {}

std::optional<Komunikat> CzytnikTekstowy::Otworz(const QString& sciezka) {
  m_blad.reset();
  if (auto odmowa = OdmowaPlikuImportu(sciezka)) return odmowa;
  if (!m_plik.Open(sciezka, TMFile::Tryb::Odczyt)) return KomunikatBladOtwarcia(sciezka);
  if (const RodzajTresci rodzaj = RozpoznajPlik(sciezka); rodzaj != RodzajTresci::Tekst)
    return Komunikat{QStringLiteral("BŁĄD"), OpisTresci(rodzaj, sciezka)};
  Przewin();
  return std::nullopt;
}

void CzytnikTekstowy::Przewin() {
  m_plik.Rewind();
  m_przedPierwsza = true;
  m_numerLinii = 0;
  m_numer = 0;
  m_blad.reset();
}

WynikLiczenia CzytnikTekstowy::Policz(const Postep& postep) {
  WynikLiczenia wynik;
  m_ocenaStrony = {};
  Przewin();
  m_utf8.emplace();
  std::string_view linia;
  qint64 linii = 0;
  for (;;) {
    const WynikCzytania co = NastepnaLinia(linia);
    if (co == WynikCzytania::Koniec || co == WynikCzytania::Blad) break;
    if (co == WynikCzytania::Rekord) {
      ++wynik.rekordow;
      m_ocenaStrony.Dodaj(linia);
    }
    if (++linii % kCoIleLinii == 0 && postep && !postep(Pozycja())) {
      wynik.przerwano = true;
      break;
    }
  }
  if (!m_blad && !wynik.przerwano && m_utf8->JestUtf8())
    Zglos(OpisTresci(RodzajTresci::Utf8, m_plik.FileName()));
  m_utf8.reset();
  wynik.odmowa = m_blad;
  Przewin();
  return wynik;
}

WynikCzytania CzytnikTekstowy::Zglos(const QString& tekst) {
  m_blad = Komunikat{QStringLiteral("BŁĄD"), tekst};
  return WynikCzytania::Blad;
}

WynikCzytania CzytnikTekstowy::WczytajFizyczna(std::string_view& linia) {
  const TMFile::WynikLinii wynik = m_plik.ReadLine(linia);
  ++m_numerLinii;
  // Met at the latest by Policz, so a run over such a file never begins.
  if (m_plik.NapotkanoZero()) return Zglos(OpisTresci(RodzajTresci::BajtyZerowe, m_plik.FileName()));
  switch (wynik) {
    case TMFile::WynikLinii::Linia:
      if (m_utf8) m_utf8->Dodaj(linia);
      linia = BezSamotnychCr(linia, m_bezCr);
      return WynikCzytania::Rekord;
    case TMFile::WynikLinii::Koniec:
      return WynikCzytania::Koniec;
    case TMFile::WynikLinii::ZaDluga:
      return Zglos(QStringLiteral("Linia %1 pliku %2 jest dłuższa niż %3 bajtów")
                       .arg(QString::number(m_numerLinii), m_plik.FileName(),
                            QString::number(TMFile::kNajdluzszaLinia)));
    case TMFile::WynikLinii::Blad:
      break;
  }
  return Zglos(QStringLiteral("Błąd odczytu pliku ") + m_plik.FileName() + QStringLiteral("\n") +
               m_plik.OpisBledu());
}

WynikCzytania CzytnikTekstowy::WczytajLinie(std::string_view& linia) {
  if (m_przedPierwsza) {
    m_przedPierwsza = false;
    if (m_pomijaPierwsza) {
      const WynikCzytania wynik = WczytajFizyczna(linia);
      if (wynik != WynikCzytania::Rekord) return wynik;
      PierwszaLinia(linia);
    }
  }
  return WczytajFizyczna(linia);
}

WynikCzytania CzytnikTekstowy::NastepnaLinia(std::string_view& linia) {
  const WynikCzytania wynik = WczytajLinie(linia);
  if (wynik == WynikCzytania::Rekord && (linia.empty() || Komentarz(linia))) return WynikCzytania::Pominiety;
  return wynik;
}

void CzytnikTekstowy::SprawdzReszte(std::string_view reszta, std::string_view separator) {
  reszta = Przytnij(reszta);
  while (!separator.empty() && reszta.starts_with(separator))
    reszta = Przytnij(reszta.substr(separator.size()));
  if (!reszta.empty()) m_spostrzezenia.push_back({Spostrzezenie::Rodzaj::WiecejPol});
}

WynikCzytania CzytnikTekstowy::Nastepny() {
  std::string_view linia;
  const WynikCzytania wynik = NastepnaLinia(linia);
  if (wynik != WynikCzytania::Rekord) return wynik;
  ++m_numer;
  m_spostrzezenia.clear();
  m_znaleziono = Rozloz(linia);
  return wynik;
}

std::optional<NiezgodnaLiczbaPol> CzytnikTekstowy::SprawdzLiczbePol() const {
  if (m_znaleziono >= m_zadeklarowano) return std::nullopt;
  return NiezgodnaLiczbaPol{m_numer, m_znaleziono, m_zadeklarowano};
}
