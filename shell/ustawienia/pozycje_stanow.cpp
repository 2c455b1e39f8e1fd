#include "ustawienia/pozycje_stanow.h"

#include <algorithm>
#include <vector>

#include "model/kontekst.h"
#include "model/magazyny.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Identifiers are few and small; a stray one must not make millions of choices.
constexpr int kNajwyzszyMagazyn = 1000;

struct Magazyn {
  int id;
  QString nazwa;
};

std::vector<Magazyn> Magazyny(KontekstSesji& sesja) {
  TDmVLTListaMagazynow lista(sesja);
  lista.Otworz();
  std::vector<Magazyn> magazyny;
  for (int i = 0; i < lista.Ilosc(); ++i) {
    lista.UstawPozycje(i);
    const int id = lista.IdBiezacego();
    magazyny.push_back({id, lista.Nazwa(id).trimmed()});
  }
  return magazyny;
}

QString Pozycja(int id, const QString& nazwa) {
  const QString magazyn = u"Magazyn "_s + QString::number(id);
  return nazwa.isEmpty() ? magazyn : magazyn + u" – "_s + nazwa;
}

}  // namespace

QStringList PozycjeImportuStanow(KontekstSesji& sesja) {
  QStringList pozycje{u"NIE"_s};
  for (const auto& [id, nazwa] : Magazyny(sesja)) pozycje << Pozycja(id, nazwa);
  return pozycje;
}

QStringList PozycjeEksportuStanow(KontekstSesji& sesja) {
  QStringList pozycje{u"NIE"_s, u"Ogółem"_s};
  const std::vector<Magazyn> magazyny = Magazyny(sesja);
  int najwyzszy = 0;
  for (const Magazyn& magazyn : magazyny) najwyzszy = std::max(najwyzszy, magazyn.id);
  for (int id = 1; id <= std::min(najwyzszy, kNajwyzszyMagazyn); ++id) {
    const auto magazyn =
        std::find_if(magazyny.begin(), magazyny.end(), [id](const Magazyn& m) { return m.id == id; });
    pozycje << Pozycja(id, magazyn == magazyny.end() ? QString() : magazyn->nazwa);
  }
  return pozycje;
}
