#include "exchange/czytnik_dbase.h"

#include <algorithm>

#include "exchange/bajty.h"
#include "exchange/strony_kodowe.h"

CzytnikDBase::CzytnikDBase(const StrukturaPliku& struktura) : Czytnik(struktura), m_reguly(struktura) {
  for (const WpisPola& wpis : struktura.pola) m_kolumny.push_back({wpis.Numer().value_or(-1), wpis.Nazwa()});
}

std::optional<Komunikat> CzytnikDBase::Otworz(const QString& sciezka) {
  m_blad.reset();
  m_nastepny = 0;
  m_numer = 0;
  if (!QFile::exists(sciezka)) return KomunikatBrakPliku(sciezka);
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

WynikLiczenia CzytnikDBase::Policz(const Postep&) {
  WynikLiczenia wynik;
  wynik.rekordow = m_plik.RecordCount();
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
  m_reguly.Wyczysc();
  for (const Kolumna& kolumna : m_kolumny)
    m_reguly.Zapisz(kolumna.pole, Przytnij(m_plik.FieldValue(kolumna.indeks)));
  m_linia = LiniaRekordu(m_reguly.Zloz(), m_strona, static_cast<int>(m_kolumny.size()));
  return WynikCzytania::Rekord;
}
