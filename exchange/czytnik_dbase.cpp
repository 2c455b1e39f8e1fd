#include "exchange/czytnik_dbase.h"

#include <algorithm>

#include "exchange/bajty.h"
#include "exchange/rozpoznanie_tresci.h"
#include "exchange/strony_kodowe.h"
#include "exchange/typy_kolumn.h"

namespace {

constexpr qint64 kCoIleRekordow = 4096;  // between two reports of progress while counting

// Their bytes are numbers of the machine or places in another file, not the value as text.
struct TypNieczytelny {
  char litera;
  const char* nazwa;
};

constexpr TypNieczytelny kNieczytelne[] = {{'M', "notatka"},        {'I', "liczba binarna"},
                                           {'Y', "kwota binarna"},  {'B', "liczba binarna albo dane"},
                                           {'T', "data z godziną"}, {'@', "data z godziną"},
                                           {'O', "liczba binarna"}, {'+', "licznik automatyczny"},
                                           {'G', "obiekt"},         {'P', "obraz"}};

const TypNieczytelny* Nieczytelny(char litera) {
  const auto typ = std::find_if(std::begin(kNieczytelne), std::end(kNieczytelne),
                                [litera](const TypNieczytelny& t) { return t.litera == litera; });
  return typ == std::end(kNieczytelne) ? nullptr : typ;
}

}  // namespace

CzytnikDBase::CzytnikDBase(const StrukturaPliku& struktura)
    : Czytnik(struktura), m_struktura(struktura), m_reguly(struktura, m_spostrzezenia) {
  for (const WpisPola& wpis : struktura.pola) m_kolumny.push_back({wpis.Numer().value_or(-1), wpis.Nazwa()});
}

std::optional<Komunikat> CzytnikDBase::Otworz(const QString& sciezka) {
  Przewin();
  if (auto odmowa = OdmowaPlikuImportu(sciezka)) return odmowa;
  if (!m_plik.Open(sciezka)) {
    if (const auto tekst = OpisTekstuZamiastDBase(sciezka)) return Komunikat{QStringLiteral("BŁĄD"), *tekst};
    return m_plik.Blad() ? m_plik.Blad() : KomunikatBladOtwarcia(sciezka);
  }
  for (Kolumna& kolumna : m_kolumny)
    kolumna.indeks = m_plik.FieldIndex(BajtyNaStronie(kolumna.nazwa, m_strona));
  return std::nullopt;
}

std::optional<Komunikat> CzytnikDBase::SprawdzPola() const {
  const auto brak = std::find_if(m_kolumny.begin(), m_kolumny.end(),
                                 [](const Kolumna& kolumna) { return kolumna.indeks < 0; });
  if (brak != m_kolumny.end())
    return Komunikat{QStringLiteral("Błąd"),
                     QStringLiteral("W importowanym pliku brak pola: ") + brak->nazwa};
  for (const Kolumna& kolumna : m_kolumny) {
    if (!Czytana(kolumna)) continue;
    if (const TypNieczytelny* typ = Nieczytelny(m_plik.FieldType(kolumna.indeks)))
      return Komunikat{
          QStringLiteral("BŁĄD"),
          QStringLiteral("Kolumna %1 ma typ %2 (%3), którego nie można odczytać jako tekstu\nZmień jej "
                         "typ na znakowy (C) lub liczbowy (N) albo usuń ją z listy pól")
              .arg(kolumna.nazwa, QChar::fromLatin1(typ->litera), QString::fromUtf8(typ->nazwa))};
  }
  return std::nullopt;
}

bool CzytnikDBase::Czytana(const Kolumna& kolumna) const {
  return kolumna.pole >= 0 && kolumna.pole < LiczbaWartosci(m_rodzaj);
}

void CzytnikDBase::Przewin() {
  m_blad.reset();
  m_nastepny = 0;
  m_numer = 0;
}

// The size of the file tells the number; the values are looked at for their letters.
WynikLiczenia CzytnikDBase::Policz(const Postep& postep) {
  WynikLiczenia wynik;
  wynik.rekordow = m_plik.RecordCount();
  Przewin();
  m_ocenaStrony = {};
  LicznikUtf8 utf8;
  for (; m_nastepny < wynik.rekordow && !wynik.przerwano; ++m_nastepny) {
    if (!m_plik.ReadRecord(m_nastepny)) {
      wynik.odmowa = m_plik.Blad();
      break;
    }
    if (!m_plik.IsDeleted())
      for (const Kolumna& kolumna : m_kolumny) {
        const std::string_view wartosc = m_plik.FieldValue(kolumna.indeks);
        m_ocenaStrony.Dodaj(wartosc);
        if (Czytana(kolumna)) utf8.Dodaj(wartosc);
      }
    wynik.przerwano = (m_nastepny + 1) % kCoIleRekordow == 0 && postep && !postep(m_nastepny);
  }
  if (!wynik.odmowa && !wynik.przerwano && utf8.JestUtf8())
    wynik.odmowa = Komunikat{QStringLiteral("BŁĄD"), OpisTresci(RodzajTresci::Utf8, m_plik.FileName())};
  Przewin();
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
  for (Kolumna& kolumna : m_kolumny)
    m_reguly.Zapisz(kolumna.pole, Przytnij(BezSamotnychCr(m_plik.FieldValue(kolumna.indeks), kolumna.bezCr)));
  m_linia = LiniaRekordu(m_reguly.Zloz(), m_strona, static_cast<int>(m_kolumny.size()));
  return WynikCzytania::Rekord;
}
