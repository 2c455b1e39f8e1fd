#include "run/pliki_zastrzezone.h"

#include <algorithm>

#include "model/kontekst.h"
#include "platform/baza/sesja.h"
#include "platform/tozsamosc_pliku.h"
#include "run/przebieg.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// What kind of file it is that has to be left alone; empty when it is none.
QString Czym(const ParametryPrzebiegu& parametry, const TozsamoscPliku& plik) {
  const auto ten = [&plik](const QString& inny) { return TozsamoscPliku::Sciezki(inny) == plik; };
  const QString& wybrany = parametry.katalogPominietych;
  for (const QString& katalog :
       {wybrany.isEmpty() ? RaportProblemow::KatalogProgramu() : wybrany, RaportProblemow::KatalogZapasowy()})
    for (const std::u16string_view nazwa : kPlikiPominietych)
      if (ten(katalog + u'/' + QStringView(nazwa).toString())) return u"pominiętych rekordów"_s;
  const QStringList baza = parametry.sesja.baza.Parametry().Pliki();
  return std::any_of(baza.begin(), baza.end(), ten) ? u"bazy danych"_s : QString();
}

}  // namespace

std::optional<Komunikat> OdmowaPlikuPrzebiegu(const ParametryPrzebiegu& parametry, KierunekPliku kierunek) {
  const auto plik = TozsamoscPliku::Sciezki(parametry.plik);
  const bool zapis = kierunek == KierunekPliku::Zapis;
  if (!plik || (!zapis && !plik->Istnieje())) return std::nullopt;
  const QString czym = Czym(parametry, *plik);
  if (czym.isEmpty()) return std::nullopt;
  return Komunikat{u"UWAGA"_s, u"Plik "_s + parametry.plik + u" jest plikiem "_s + czym +
                                   (zapis ? u"\nPodaj inną nazwę pliku eksportu"_s
                                          : u"\nWskaż plik z danymi do importu; rekordy pominięte przenieś "
                                            u"przedtem do innego pliku"_s)};
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
