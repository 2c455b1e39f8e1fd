#include "model/szukanie_towaru.h"

#include <algorithm>

#include "model/bufor_towarow.h"
#include "platform/baza/sesja.h"

namespace {
bool Wiarygodny(const TVLTBuforTowarow* bufor) {
  return bufor && bufor->Gotowy() && bufor->BrakJestPewny();
}
}  // namespace

std::vector<ZnalezionyTowar> TowaryZKodem(TVLTBazaDanych& baza, const TVLTBuforTowarow* bufor,
                                          const QString& kod) {
  std::vector<ZnalezionyTowar> towary;
  if (Wiarygodny(bufor) && !bufor->MozeByKod(kod)) return towary;
  for (const std::string_view sql : {"select TowId, Nazwa, Aktywny from Towar where Kod = :Kod",
                                     "select T.TowId, T.Nazwa, T.Aktywny from KodDod K, Towar T"
                                     " where K.TowId = T.TowId and K.Kod = :Kod"})
    for (auto odczyt =
             baza.Otworz(sql, {TypPola::Calkowite, TypPola::Tekst, TypPola::Calkowite}, {{"Kod", kod}});
         odczyt.Nastepny();)
      towary.push_back(
          {static_cast<int>(odczyt[0].AsInteger()), odczyt[1].AsString(), odczyt[2].AsInteger() != 0});
  std::sort(towary.begin(), towary.end(), [](const auto& a, const auto& b) { return a.towId < b.towId; });
  towary.erase(std::unique(towary.begin(), towary.end(),
                           [](const auto& a, const auto& b) { return a.towId == b.towId; }),
               towary.end());
  return towary;
}

bool InnyTowarMozeMiecKod(const TVLTBuforTowarow* bufor, const QString& kod, int wlasneId) {
  if (!Wiarygodny(bufor)) return true;
  if (!bufor->MozeByKod(kod)) return false;
  const std::vector<int> towary = bufor->TowaryZKodem(kod);
  return std::any_of(towary.begin(), towary.end(), [wlasneId](int towId) { return towId != wlasneId; });
}

std::vector<ZnalezionyTowar> AktywneOpakowania(TVLTBazaDanych& baza) {
  std::vector<ZnalezionyTowar> opakowania;
  for (auto odczyt = baza.Otworz(
           "select TowId, Nazwa from Towar where TypTowaru = 1 and Aktywny = 1 order by Nazwa, TowId",
           {TypPola::Calkowite, TypPola::Tekst});
       odczyt.Nastepny();)
    opakowania.push_back({static_cast<int>(odczyt[0].AsInteger()), odczyt[1].AsString(), true});
  return opakowania;
}

QString OpisUzycia(const QString& czego, const QString& kod, const ZnalezionyTowar& towar) {
  return czego + QStringLiteral(" '") + kod + QStringLiteral("' jest już używany przez ") +
         (towar.aktywny ? QString() : QStringLiteral("usunięty ")) + QStringLiteral("towar [") +
         QString::number(towar.towId) + QStringLiteral("]: ") + towar.nazwa;
}
