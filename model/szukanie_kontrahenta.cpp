#include "model/szukanie_kontrahenta.h"

#include "model/bufor_nip.h"
#include "platform/baza/sesja.h"

namespace {

constexpr TypPola kKolumny[] = {TypPola::Calkowite, TypPola::Tekst, TypPola::Tekst};

ZnalezionyKontrahent Biezacy(const Odczyt& odczyt) {
  return {static_cast<int>(odczyt[0].AsInteger()), odczyt[1].AsString(), odczyt[2].AsString()};
}

}  // namespace

std::optional<ZnalezionyKontrahent> KontrahentZNipem(TVLTBazaDanych& baza, QStringView nip) {
  const QString cyfry = NormalizujNip(nip);
  if (cyfry.isEmpty()) return std::nullopt;
  // The digits in their order, whatever stands between them: few rows leave the database, one of them it is.
  QString wzor(u'%');
  for (const QChar cyfra : cyfry) wzor += cyfra + QStringLiteral("%");
  const Parametr parametr[] = {{"Wzor", wzor}};
  for (auto odczyt =
           baza.Otworz("select KontrId, NIP, Nazwa from Kontrahent where NIP like :Wzor order by KontrId",
                       kKolumny, parametr);
       odczyt.Nastepny();)
    if (NormalizujNip(odczyt[1].AsString()) == cyfry) return Biezacy(odczyt);
  return std::nullopt;
}

std::optional<ZnalezionyKontrahent> KontrahentZId(TVLTBazaDanych& baza, int kontrId) {
  const Parametr parametr[] = {{"KontrId", kontrId}};
  auto odczyt =
      baza.Otworz("select KontrId, NIP, Nazwa from Kontrahent where KontrId = :KontrId", kKolumny, parametr);
  return odczyt.Nastepny() ? std::optional(Biezacy(odczyt)) : std::nullopt;
}
