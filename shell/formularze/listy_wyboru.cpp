#include "shell/formularze/listy_wyboru.h"

#include <algorithm>

#include "model/kategorie.h"
#include "model/kontekst.h"
#include "model/magazyny.h"
#include "model/slowniki.h"
#include "model/stawki_vat.h"
#include "model/szukanie_towaru.h"
#include "model/towar.h"
#include "shell/formularze/pole_formularza.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Pozycje = std::vector<PozycjaListy>;

template <typename Lista>
Pozycje ZeSlownika(KontekstSesji& sesja) {
  Pozycje pozycje;
  Lista lista(sesja);
  lista.Otworz();
  for (int i = 0; i < lista.Ilosc(); ++i) {
    lista.UstawPozycje(i);
    pozycje.push_back({lista.IdBiezacego(), lista.Nazwa(lista.IdBiezacego())});
  }
  std::sort(pozycje.begin(), pozycje.end(),
            [](const auto& a, const auto& b) { return QString::localeAwareCompare(a.nazwa, b.nazwa) < 0; });
  return pozycje;
}

Pozycje StawkiVat(KontekstSesji& sesja) {
  Pozycje pozycje;
  TVLTStawkiVat stawki;
  stawki.Wczytaj(sesja.baza);
  for (int i = 0; i < stawki.Ilosc(); ++i)
    pozycje.push_back({stawki.Stawka(i), StawkaNaTekst(stawki.Stawka(i), true)});
  return pozycje;
}

Pozycje Opakowania(KontekstSesji& sesja) {
  Pozycje pozycje;
  for (const ZnalezionyTowar& towar : AktywneOpakowania(sesja.baza))
    pozycje.push_back({towar.towId, towar.nazwa});
  return pozycje;
}

Pozycje ZBrakiem(Pozycje pozycje) {
  pozycje.insert(pozycje.begin(), {std::nullopt, u"(brak)"_s});
  return pozycje;
}

}  // namespace

std::vector<PozycjaListy> PozycjeListy(RodzajPola rodzaj, KontekstSesji& sesja) {
  switch (rodzaj) {
    case RodzajPola::Asortyment:
      return ZeSlownika<TDmVLTListaAsortymentow>(sesja);
    case RodzajPola::Jednostka:
      return ZeSlownika<TDmVLTListaJednostek>(sesja);
    case RodzajPola::Kategoria:
      return ZBrakiem(ZeSlownika<TDmVLTListaKategorii>(sesja));
    case RodzajPola::Magazyn:
      return ZBrakiem(ZeSlownika<TDmVLTListaMagazynow>(sesja));
    case RodzajPola::Opakowanie:
      return ZBrakiem(Opakowania(sesja));
    case RodzajPola::StawkaVat:
      return StawkiVat(sesja);
    case RodzajPola::TypTowaru:
      return {{static_cast<int>(TypTowaru::Towar), u"towar"_s},
              {static_cast<int>(TypTowaru::Opakowanie), u"opakowanie"_s},
              {static_cast<int>(TypTowaru::Usluga), u"usługa"_s}};
    case RodzajPola::Kontakty:
      return {{1, u"stałe"_s}, {0, u"tymczasowe"_s}};
    default:
      return {};
  }
}

void DopiszBiezaca(std::vector<PozycjaListy>& pozycje, RodzajPola rodzaj, std::optional<int> biezaca) {
  const bool jest = std::any_of(pozycje.begin(), pozycje.end(),
                                [&](const PozycjaListy& pozycja) { return pozycja.wartosc == biezaca; });
  if (biezaca && !jest)
    pozycje.push_back({biezaca, rodzaj == RodzajPola::StawkaVat ? StawkaNaTekst(*biezaca, true)
                                                                : u'[' + QString::number(*biezaca) + u']'});
}
