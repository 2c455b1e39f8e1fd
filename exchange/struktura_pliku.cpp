#include "exchange/struktura_pliku.h"

#include <algorithm>

#include "platform/liczby.h"

namespace {

// Positions within an entry's text.
constexpr qsizetype kDlugoscNumeru = 2;
constexpr qsizetype kDlugoscSzerokosci = 5;
constexpr qsizetype kDlugoscNazwyKolumny = 20;
constexpr qsizetype kDlugoscKoduVat = 2;
constexpr qsizetype kDlugoscOpisuVat = 15;

constexpr QLatin1String kZwolniona("-1");

}  // namespace

WpisPola::WpisPola(int numer, const QString& dopisek)
    : m_tekst(QStringLiteral("%1").arg(numer, kDlugoscNumeru, 10, QLatin1Char('0')) + dopisek) {}

std::optional<int> WpisPola::Numer() const {
  return liczby::Calkowita(QStringView(m_tekst).left(kDlugoscNumeru).trimmed());
}

QString WpisPola::Dopisek() const {
  return m_tekst.mid(kDlugoscNumeru).trimmed();
}

std::optional<int> WpisPola::Szerokosc() const {
  return liczby::Calkowita(QStringView(m_tekst).mid(kDlugoscNumeru).left(kDlugoscSzerokosci).trimmed());
}

QString WpisPola::Nazwa() const {
  return m_tekst.mid(kDlugoscNumeru, kDlugoscNazwyKolumny).trimmed();
}

OpisVat::OpisVat(const QString& kod, const QString& opis)
    : m_tekst(kod.leftJustified(kDlugoscKoduVat, QLatin1Char(' '), true) + opis.left(kDlugoscOpisuVat)) {}

QString OpisVat::Kod() const {
  return m_tekst.left(kDlugoscKoduVat).trimmed();
}

QString OpisVat::Opis() const {
  return m_tekst.mid(kDlugoscKoduVat, kDlugoscOpisuVat).trimmed();
}

QString OpisVat::Stawka() const {
  const QString kod = Kod();
  return kod == kZwolniona ? kod : kod + QStringLiteral("00");
}

StrukturaPliku::StrukturaPliku(RodzajRekordu rodzaj_)
    : rodzaj(rodzaj_), oferowane(static_cast<size_t>(LiczbaPolOferowanych(rodzaj_)), 1) {}

bool StrukturaPliku::PomijaPierwszaLinie() const {
  switch (CBTypPliku) {
    case TypPliku::Zorvik:
      return true;
    case TypPliku::DBase:
      return false;
    case TypPliku::Rozdzielany:
    case TypPliku::StalaSzerokosc:
      break;
  }
  return CBNieAnalizujPierwszejLinii;
}

std::optional<char> StrukturaPliku::Kwalifikator() const {
  switch (CBKwalifikatorTekstu) {
    case KwalifikatorTekstu::Cudzyslow:
      return '"';
    case KwalifikatorTekstu::Apostrof:
      return '\'';
    case KwalifikatorTekstu::Brak:
      break;
  }
  return std::nullopt;
}

bool StrukturaPliku::ZawieraPole(int pole) const {
  return std::any_of(pola.begin(), pola.end(), [pole](const WpisPola& wpis) { return wpis.Numer() == pole; });
}

ZbiorPol StrukturaPliku::Pola() const {
  ZbiorPol zbior;
  for (const WpisPola& wpis : pola) {
    const int numer = wpis.Numer().value_or(-1);
    if (numer >= 0 && numer < LiczbaWartosci(rodzaj)) zbior.set(static_cast<size_t>(numer));
  }
  return zbior;
}

bool StrukturaPliku::CzyOferowane(int pole) const {
  const int pozycja = PozycjaOferowana(rodzaj, pole);
  if (pozycja < 0) return true;
  return pozycja < static_cast<int>(oferowane.size()) && oferowane[static_cast<size_t>(pozycja)] != 0;
}

void StrukturaPliku::UstawOferowane(int pole, bool oferuj) {
  const int pozycja = PozycjaOferowana(rodzaj, pole);
  if (pozycja >= 0 && pozycja < static_cast<int>(oferowane.size()))
    oferowane[static_cast<size_t>(pozycja)] = oferuj ? 1 : 0;
}

void StrukturaPliku::PrzyjmijTypPliku(TypPliku typ) {
  CBTypPliku = typ;
  if (typ == TypPliku::DBase) CBNieAnalizujPierwszejLinii = false;
  if (typ != TypPliku::Zorvik) return;
  CBNieAnalizujPierwszejLinii = true;
  // The own layout writes the values as the program numbers them: those are the defaults.
  const StrukturaPliku stale(rodzaj);
  EdPoleAktywny = stale.EdPoleAktywny;
  EdPoleUsuniety = stale.EdPoleUsuniety;
  EdPoleTypTowar = stale.EdPoleTypTowar;
  EdPoleTypOpakowanie = stale.EdPoleTypOpakowanie;
  EdPoleTypUsluga = stale.EdPoleTypUsluga;
  EdPoleDostawca = stale.EdPoleDostawca;
  EdPoleOdbiorca = stale.EdPoleOdbiorca;
  EdPoleProducent = stale.EdPoleProducent;
  EdPoleSklep = stale.EdPoleSklep;
}

std::optional<Komunikat> SprawdzSlowaStatusu(const QString& aktywny, const QString& usuniety) {
  if (aktywny != usuniety) return std::nullopt;
  return Komunikat{QStringLiteral("BŁĄD"),
                   QStringLiteral("Pola 'Aktywny' i 'Usunięty' nie mogą być takie same")};
}

std::optional<Komunikat> SprawdzListePol(RodzajRekordu rodzaj, const std::vector<WpisPola>& pola) {
  if (rodzaj != RodzajRekordu::Towary) return std::nullopt;
  const bool jestKod = std::any_of(pola.begin(), pola.end(),
                                   [](const WpisPola& wpis) { return wpis.Numer() == PoleTowaru::Kod; });
  if (jestKod) return std::nullopt;
  return Komunikat{QStringLiteral("UWAGA"), QStringLiteral("Nie wskazano pola z kodem towaru")};
}

QString EtykietaStawki(int procent) {
  return QStringLiteral("%1 %").arg(procent, 2);
}
