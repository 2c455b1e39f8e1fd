#include "run/pliki_zastrzezone.h"

#include <algorithm>

#include "model/kontekst.h"
#include "platform/baza/sesja.h"
#include "platform/tozsamosc_pliku.h"
#include "run/przebieg.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView kBazy = u"bazy danych";

bool JestBaza(const ParametryPolaczenia& baza, const TozsamoscPliku& plik) {
  const QStringList pliki = baza.Pliki();
  return std::any_of(pliki.begin(), pliki.end(),
                     [&plik](const QString& inny) { return TozsamoscPliku::Sciezki(inny) == plik; });
}

// What kind of file it is that has to be left alone; empty when it is none.
QString Czym(const ParametryPrzebiegu& parametry, const TozsamoscPliku& plik) {
  const QString& wybrany = parametry.katalogPominietych;
  for (const QString& katalog :
       {wybrany.isEmpty() ? RaportProblemow::KatalogProgramu() : wybrany, RaportProblemow::KatalogZapasowy()})
    for (const std::u16string_view nazwa : kPlikiPominietych)
      if (TozsamoscPliku::Sciezki(katalog + u'/' + QStringView(nazwa).toString()) == plik)
        return u"pominiętych rekordów"_s;
  return JestBaza(parametry.sesja.baza.Parametry(), plik) ? kBazy.toString() : QString();
}

Komunikat Odmowa(const QString& plik, const QString& czym, KierunekPliku kierunek) {
  return {u"UWAGA"_s, u"Plik "_s + plik + u" jest plikiem "_s + czym +
                          (kierunek == KierunekPliku::Zapis ? u"\nPodaj inną nazwę pliku eksportu"_s
                           : czym == kBazy                  ? u"\nWskaż inny plik"_s
                                           : u"\nWskaż plik z danymi do importu; rekordy pominięte przenieś "
                                             u"przedtem do innego pliku"_s)};
}

}  // namespace

std::optional<Komunikat> OdmowaPlikuBazy(const ParametryPolaczenia& baza, const QString& plik,
                                         KierunekPliku kierunek) {
  const auto tozsamosc = TozsamoscPliku::Sciezki(plik);
  if (!tozsamosc || !JestBaza(baza, *tozsamosc)) return std::nullopt;
  return Odmowa(plik, kBazy.toString(), kierunek);
}

std::optional<Komunikat> OdmowaPlikuPrzebiegu(const ParametryPrzebiegu& parametry, KierunekPliku kierunek) {
  const auto plik = TozsamoscPliku::Sciezki(parametry.plik);
  const bool zapis = kierunek == KierunekPliku::Zapis;
  if (!plik || (!zapis && !plik->Istnieje())) return std::nullopt;
  const QString czym = Czym(parametry, *plik);
  if (czym.isEmpty()) return std::nullopt;
  return Odmowa(parametry.plik, czym, kierunek);
}

std::optional<Komunikat> OdmowaPlikuPominietych(const ParametryPrzebiegu& parametry, const QString& sciezka) {
  const auto miejsce = TozsamoscPliku::Miejsca(sciezka);
  if (!miejsce) return std::nullopt;
  for (const QString& plik : parametry.sesja.baza.Parametry().Pliki())
    if (TozsamoscPliku::Miejsca(plik) == miejsce)
      return Komunikat{u"UWAGA"_s,
                       u"Plik pominiętych rekordów "_s + sciezka +
                           u" jest plikiem bazy danych\nWybierz inny katalog pominiętych rekordów "
                           u"albo zmień nazwę pliku bazy"_s};
  return std::nullopt;
}
