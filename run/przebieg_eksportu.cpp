#include "run/przebieg_eksportu.h"

#include <QDir>
#include <QFileInfo>

#include "exchange/czytnik.h"
#include "model/kontekst.h"
#include "platform/baza/sesja.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kNazwWKomunikacie = 5;

QString Tekst(std::u16string_view tekst) {
  return QStringView(tekst).toString();
}

// Where a path leads, whether or not there is a file yet.
QString Cel(const QString& sciezka) {
  const QFileInfo plik(sciezka);
  if (plik.exists()) return plik.canonicalFilePath();
  const QString folder = plik.absoluteDir().canonicalPath();
  return folder.isEmpty() ? plik.absoluteFilePath() : QDir(folder).filePath(plik.fileName());
}

bool TenSamPlik(const QString& a, const QString& b) {
  return !a.isEmpty() && !b.isEmpty() && Cel(a) == Cel(b);
}

std::optional<Komunikat> Odmowa(const QString& plik, const QString& czym) {
  return Komunikat{u"UWAGA"_s,
                   u"Plik "_s + plik + u" jest plikiem "_s + czym + u"\nPodaj inną nazwę pliku eksportu"_s};
}

}  // namespace

void PrzebiegEksportu::Wykaz::Dodaj(const QString& rekord) {
  if (++ile <= kNazwWKomunikacie) pierwsze << rekord;
}

// Opening empties the file, so what must not be lost is looked for first.
std::optional<Komunikat> PrzebiegEksportu::OtworzPlik() {
  const QString& plik = Parametry().plik;
  const QString& wybrany = Parametry().katalogPominietych;
  for (const QString& katalog :
       {wybrany.isEmpty() ? RaportProblemow::KatalogProgramu() : wybrany, RaportProblemow::KatalogZapasowy()})
    for (const std::u16string_view nazwa : kPlikiPominietych)
      if (TenSamPlik(plik, QDir(katalog).filePath(Tekst(nazwa))))
        return Odmowa(plik, u"pominiętych rekordów"_s);
  for (const QString& plikBazy : Parametry().sesja.baza.Parametry().Pliki())
    if (TenSamPlik(plik, plikBazy)) return Odmowa(plik, u"bazy danych"_s);
  if (!m_zapis.Otworz(plik)) return KomunikatBladOtwarcia(plik);
  return std::nullopt;
}

std::optional<KoniecPrzebiegu> PrzebiegEksportu::Przygotuj() {
  const bool faza = !m_opisEksportu.przygotowanie.empty();
  if (faza) Postep().Faza(Tekst(m_opisEksportu.przygotowanie));
  for (auto odczyt = Parametry().sesja.baza.Otworz(m_opisEksportu.identyfikatory, {TypPola::Calkowite});
       odczyt.Nastepny();)
    m_identyfikatory.push_back(static_cast<int>(odczyt[0].AsInteger()));
  if (faza) Postep().Gotowe();
  return std::nullopt;
}

KoniecPrzebiegu PrzebiegEksportu::Cialo() {
  Postep().Faza(Tekst(m_opisEksportu.eksport), static_cast<long long>(m_identyfikatory.size()));
  PrzedRekordami();
  Naglowek(m_zapis);
  if (!m_zapis.ZapiszRekord()) return BladZapisu();
  long long przejrzanych = 0;
  long long zapisanych = 0;
  DlawikPostepu dlawik;
  const auto pokazNumer = [&] {
    Postep().Pozycja(przejrzanych);
    Postep().DopiszLiczbe(zapisanych);
  };
  bool stop = false;
  for (const int id : m_identyfikatory) {
    if ((stop = Stop())) break;
    if (Wczytaj(id)) {
      if (!ZapiszRekord()) return BladZapisu();
      ++zapisanych;
    }
    ++przejrzanych;
    if (dlawik.Przepusc()) pokazNumer();
  }
  PoRekordach();
  pokazNumer();
  Postep().Gotowe();
  // The end of the run is told by what the file took to its last byte.
  if (!m_zapis.Zamknij()) return BladZapisu();
  m_liczniki.Zwieksz(Licznik::Rekordy, zapisanych);
  return stop ? PrzerwanoPrzezOperatora() : KoniecPrzebiegu::Zakonczono;
}

bool PrzebiegEksportu::ZapiszRekord() {
  WierszEksportu wiersz(m_zapis, Parametry().separatorDziesietny);
  Rekord(wiersz);
  if (!m_zapis.ZapiszRekord()) return false;
  if (m_zapis.BrakujacychZnakow() > 0) m_brakujaceZnaki.Dodaj(NazwaRekordu());
  if (const auto powod = wiersz.Powod(); !powod.empty())
    m_niezwrotne.Dodaj(NazwaRekordu() + u" ("_s + Tekst(powod) + u')');
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
