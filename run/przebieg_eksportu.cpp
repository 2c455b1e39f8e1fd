#include "run/przebieg_eksportu.h"

#include <algorithm>
#include <limits>

#include <QScopeGuard>

#include "exchange/czytnik.h"
#include "model/kontekst.h"
#include "platform/baza/dialekt.h"
#include "platform/baza/sesja.h"
#include "platform/baza/transakcja.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kNazwWKomunikacie = 5;

QString Tekst(std::u16string_view tekst) {
  return QStringView(tekst).toString();
}

}  // namespace

void PrzebiegEksportu::Wykaz::Dodaj(const QString& rekord) {
  if (++ile <= kNazwWKomunikacie) pierwsze << rekord;
}

std::optional<Komunikat> PrzebiegEksportu::OtworzPlik() {
  if (!m_zapis.Otworz(Parametry().plik)) return KomunikatBladOtwarcia(Parametry().plik);
  if (const QString& dlaczego = m_zapis.DlaczegoWMiejscu(); !dlaczego.isEmpty())
    m_uwagi.ZglosOCalosci({RodzajUwagi::ZapisWMiejscu, Parametry().plik, dlaczego});
  return std::nullopt;
}

std::optional<KoniecPrzebiegu> PrzebiegEksportu::Przygotuj() {
  const bool faza = !m_opisEksportu.przygotowanie.empty();
  if (faza) Postep().Faza(Tekst(m_opisEksportu.przygotowanie));
  WczytajIdentyfikatory();
  if (faza) Postep().Gotowe();
  return std::nullopt;
}

// A server's driver keeps a whole result: not all of them with one select.
void PrzebiegEksportu::WczytajIdentyfikatory() {
  constexpr int kNaraz = 50'000;
  TVLTBazaDanych& baza = Parametry().sesja.baza;
  const std::string klucz = m_opisEksportu.klucz;
  const std::string select =
      baza.Jezyk().Pierwsze(kNaraz, "select " + klucz + " from " + m_opisEksportu.tabela + " where " + klucz +
                                        " > :Po order by " + klucz);
  for (std::size_t bylo = 0;; bylo = m_identyfikatory.size()) {
    const int po = m_identyfikatory.empty() ? std::numeric_limits<int>::min() : m_identyfikatory.back();
    for (auto odczyt = baza.Otworz(select, {TypPola::Calkowite}, {{"Po", po}}); odczyt.Nastepny();)
      m_identyfikatory.push_back(static_cast<int>(odczyt[0].AsInteger()));
    if (m_identyfikatory.size() < bylo + kNaraz) return;
  }
}

KoniecPrzebiegu PrzebiegEksportu::Cialo() {
  Postep().Faza(Tekst(m_opisEksportu.eksport), static_cast<long long>(m_identyfikatory.size()));
  long long zapisanych = 0;
  const KoniecPrzebiegu koniec = Wypisz(zapisanych);
  if (koniec == KoniecPrzebiegu::Blad) return BladZapisu();
  Postep().Gotowe();
  // The end of the run is told by what the file took to its last byte.
  if (!m_zapis.Zamknij()) return BladZapisu();
  m_liczniki.Zwieksz(Licznik::Rekordy, zapisanych);
  return koniec == KoniecPrzebiegu::Przerwano ? PrzerwanoPrzezOperatora() : koniec;
}

KoniecPrzebiegu PrzebiegEksportu::Wypisz(long long& zapisanych) {
  const OdczytJednejChwili chwila(Parametry().sesja.baza);
  const auto oddaj = qScopeGuard([this] { PoRekordach(); });
  PrzedRekordami();
  Naglowek(m_zapis);
  if (!m_zapis.ZapiszRekord()) return KoniecPrzebiegu::Blad;
  DlawikPostepu dlawik;
  std::size_t przejrzanych = 0;
  const auto pokazNumer = [&] {
    Postep().Pozycja(static_cast<long long>(przejrzanych));
    Postep().DopiszLiczbe(zapisanych);
  };
  KoniecPrzebiegu koniec = KoniecPrzebiegu::Zakonczono;
  for (; przejrzanych < m_identyfikatory.size(); ++przejrzanych) {
    const int id = m_identyfikatory[przejrzanych];
    if (przejrzanych % kStrona == 0)
      Strona(id, m_identyfikatory[std::min(przejrzanych + kStrona, m_identyfikatory.size()) - 1]);
    if (Stop()) {
      koniec = KoniecPrzebiegu::Przerwano;
      break;
    }
    if (Wczytaj(id)) {
      if (!ZapiszRekord()) return KoniecPrzebiegu::Blad;
      ++zapisanych;
    }
    if (dlawik.Przepusc()) pokazNumer();
  }
  pokazNumer();
  return koniec;
}

bool PrzebiegEksportu::ZapiszRekord() {
  WierszEksportu wiersz(m_zapis, Parametry().separatorDziesietny);
  Rekord(wiersz);
  if (!m_zapis.ZapiszRekord()) return false;
  if (m_zapis.BrakujacychZnakow() > 0) m_brakujaceZnaki.Dodaj(NazwaRekordu());
  if (!wiersz.Powody().empty()) {
    QStringList powody;
    for (const std::u16string_view powod : wiersz.Powody()) powody << Tekst(powod);
    m_niezwrotne.Dodaj(NazwaRekordu() + u" ("_s + powody.join(u", "_s) + u')');
  }
  return true;
}

KoniecPrzebiegu PrzebiegEksportu::BladZapisu() {
  const Komunikat blad = KomunikatBleduZapisu();
  OglosBlad(blad.naglowek, blad.tekst);
  return KoniecPrzebiegu::Blad;
}

Komunikat PrzebiegEksportu::KomunikatBleduZapisu() const {
  return {u"Wystąpił błąd"_s, u"Błąd zapisu do pliku "_s + Parametry().plik + u'\n' + m_zapis.OpisBledu()};
}

QString PrzebiegEksportu::CoZostalo() const {
  const QString niepelny = u"Plik eksportu jest niepełny."_s;
  return m_zapis.DawnyPozostal()
             ? niepelny +
                   u" Nie zapisano żadnego wiersza: plik sprzed eksportu, jeśli był, pozostał bez zmian."_s
             : niepelny;
}

void PrzebiegEksportu::PoBledzie() {
  if (!m_zapis.Zamknij()) Pokaz(KomunikatBleduZapisu());
}

void PrzebiegEksportu::PrzedPodsumowaniem() {
  const auto powiedz = [this](const Wykaz& wykaz, const QString& co) {
    if (wykaz.ile > 0)
      Pokaz({u"UWAGA"_s, co + u": "_s + QString::number(wykaz.ile) +
                             (wykaz.ile > kNazwWKomunikacie ? u"\nPierwsze z nich: "_s : u"\nSą to: "_s) +
                             wykaz.pierwsze.join(u", "_s)});
  };
  powiedz(m_brakujaceZnaki, u"Rekordy ze znakami spoza strony kodowej Windows-1250, zapisanymi jako \"?\""_s);
  powiedz(m_niezwrotne, u"Rekordy, których import nie odczyta takimi, jakie są w bazie"_s);
}
