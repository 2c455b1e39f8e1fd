#include "exchange/czytnik.h"

#include "exchange/czytnik_dbase.h"
#include "exchange/czytnik_rozdzielany.h"
#include "exchange/czytnik_szerokosci.h"
#include "exchange/czytnik_wlasny.h"
#include "platform/tozsamosc_pliku.h"

Komunikat NiezgodnaLiczbaPol::Pytanie() const {
  return {QStringLiteral("Uwaga"),
          QStringLiteral("Liczba pól w rekordzie %1 wynosi %2, deklarowana liczba pól wynosi %3.")
              .arg(numerRekordu)
              .arg(znaleziono)
              .arg(zadeklarowano)};
}

Czytnik::Czytnik(const StrukturaPliku& struktura)
    : m_rodzaj(struktura.rodzaj), m_strona(struktura.CBPolskieZnaki), m_pola(struktura.Pola()) {}

std::vector<Spostrzezenie> Czytnik::SpostrzezeniaPliku() const {
  const auto lepsza = m_ocenaStrony.Lepsza(m_strona);
  if (!lepsza) return {};
  return {{Spostrzezenie::Rodzaj::StronaKodowa, Spostrzezenie::kCalaLinia, NazwaStrony(m_strona),
           NazwaStrony(*lepsza)}};
}

std::unique_ptr<Czytnik> UtworzCzytnik(const StrukturaPliku& struktura) {
  switch (struktura.CBTypPliku) {
    case TypPliku::Rozdzielany:
      return std::make_unique<CzytnikRozdzielany>(struktura);
    case TypPliku::StalaSzerokosc:
      return std::make_unique<CzytnikSzerokosci>(struktura);
    case TypPliku::DBase:
      return std::make_unique<CzytnikDBase>(struktura);
    case TypPliku::Zorvik:
      break;
  }
  return std::make_unique<CzytnikWlasny>(struktura);
}

std::optional<Komunikat> OdmowaPlikuImportu(const QString& sciezka) {
  const RodzajPliku rodzaj = RodzajPlikuSciezki(sciezka);
  if (rodzaj == RodzajPliku::Zwykly) return std::nullopt;
  if (rodzaj == RodzajPliku::Brak) return KomunikatBrakPliku(sciezka);
  return Komunikat{QStringLiteral("UWAGA"),
                   QStringLiteral("%1 jest %2, a nie plikiem\nZapisz dane w zwykłym pliku i wskaż ten plik")
                       .arg(sciezka, CzymJest(rodzaj))};
}

Komunikat KomunikatBrakPliku(const QString& sciezka) {
  return {QStringLiteral("UWAGA"), QStringLiteral("Plik ") + sciezka + QStringLiteral(" nie istnieje")};
}

Komunikat KomunikatBladOtwarcia(const QString& sciezka) {
  return {QStringLiteral("UWAGA"), QStringLiteral("Błąd otwarcia pliku ") + sciezka +
                                       QStringLiteral("\nByć może plik jest używany przez inną aplikację")};
}
