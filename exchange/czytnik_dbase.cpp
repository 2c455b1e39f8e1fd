#include "exchange/czytnik_dbase.h"

#include <algorithm>

#include "exchange/bajty.h"
#include "exchange/strony_kodowe.h"
#include "exchange/typy_kolumn.h"

namespace {

constexpr qint64 kCoIleRekordow = 4096;  // between two reports of progress while counting

}  // namespace

CzytnikDBase::CzytnikDBase(const StrukturaPliku& struktura)
    : Czytnik(struktura), m_struktura(struktura), m_reguly(struktura, m_spostrzezenia) {
  for (const WpisPola& wpis : struktura.pola) m_kolumny.push_back({wpis.Numer().value_or(-1), wpis.Nazwa()});
}

std::optional<Komunikat> CzytnikDBase::Otworz(const QString& sciezka) {
  m_blad.reset();
  m_nastepny = 0;
  m_numer = 0;
  if (auto odmowa = OdmowaPlikuImportu(sciezka)) return odmowa;
  if (!m_plik.Open(sciezka)) return m_plik.Blad() ? m_plik.Blad() : KomunikatBladOtwarcia(sciezka);
  for (Kolumna& kolumna : m_kolumny)
    kolumna.indeks = m_plik.FieldIndex(BajtyNaStronie(kolumna.nazwa, m_strona));
  return std::nullopt;
}

std::optional<Komunikat> CzytnikDBase::SprawdzPola() const {
  const auto brak = std::find_if(m_kolumny.begin(), m_kolumny.end(),
                                 [](const Kolumna& kolumna) { return kolumna.indeks < 0; });
  if (brak == m_kolumny.end()) return std::nullopt;
  return Komunikat{QStringLiteral("Błąd"), QStringLiteral("W importowanym pliku brak pola: ") + brak->nazwa};
}

// The size of the file tells the number; the values are looked at for their letters.
WynikLiczenia CzytnikDBase::Policz(const Postep& postep) {
  WynikLiczenia wynik;
  wynik.rekordow = m_plik.RecordCount();
  m_ocenaStrony = {};
  for (qint64 numer = 0; numer < wynik.rekordow && m_plik.ReadRecord(numer); ++numer) {
    if (!m_plik.IsDeleted())
      for (const Kolumna& kolumna : m_kolumny) m_ocenaStrony.Dodaj(m_plik.FieldValue(kolumna.indeks));
    if ((numer + 1) % kCoIleRekordow != 0 || !postep || postep(numer)) continue;
    wynik.przerwano = true;
    break;
  }
  return wynik;
}

std::vector<Spostrzezenie> CzytnikDBase::SpostrzezeniaPliku() const {
  std::vector<Spostrzezenie> wynik = Czytnik::SpostrzezeniaPliku();
  if (m_plik.HeaderRecordCount() != m_plik.RecordCount())
    wynik.push_back({Spostrzezenie::Rodzaj::DbaseLiczba, Spostrzezenie::kCalaLinia,
                     QString::number(m_plik.HeaderRecordCount()), QString::number(m_plik.RecordCount())});
  for (const Kolumna& kolumna : m_kolumny)
    if (const auto typ =
            SprawdzTypKolumny(m_struktura, kolumna.pole, m_plik.FieldType(kolumna.indeks), kolumna.nazwa))
      wynik.push_back(*typ);
  return wynik;
}

WynikCzytania CzytnikDBase::Nastepny() {
  if (m_nastepny >= m_plik.RecordCount()) return WynikCzytania::Koniec;
  if (!m_plik.ReadRecord(m_nastepny)) {
    m_blad = m_plik.Blad();
    return WynikCzytania::Blad;
  }
  ++m_nastepny;
  if (m_plik.IsDeleted()) return WynikCzytania::Pominiety;
  ++m_numer;
  m_spostrzezenia.clear();
  m_reguly.Wyczysc();
  for (const Kolumna& kolumna : m_kolumny)
    m_reguly.Zapisz(kolumna.pole, Przytnij(m_plik.FieldValue(kolumna.indeks)));
  m_linia = LiniaRekordu(m_reguly.Zloz(), m_strona, static_cast<int>(m_kolumny.size()));
  return WynikCzytania::Rekord;
}
