#include "goods/eksport_towarow.h"

#include <optional>

#include "goods/odczyt_towarow.h"
#include "goods/opcje_towarow.h"
#include "goods/slowniki_eksportu.h"
#include "goods/wiersz_towaru.h"
#include "model/kontekst.h"
#include "platform/baza/sesja.h"
#include "run/przebieg_eksportu.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr OpisPrzebiegu kOpis{{}, u"zamykanie pliku eksportu", u"Eksport zakończono", {}};
constexpr OpisEksportu kOpisEksportu{u"przygotowanie bufora towarów", u"eksport bazy towarów", "Towar",
                                     "TowId"};

class PrzebiegEksportuTowarow final : public PrzebiegEksportu {
 public:
  PrzebiegEksportuTowarow(const ParametryPrzebiegu& parametry, const OpcjeEksportuTowarow& opcje)
      : PrzebiegEksportu(parametry, kOpis, kOpisEksportu), m_opcje(opcje) {}

 protected:
  void PrzedRekordami() override {
    TVLTBazaDanych& baza = Parametry().sesja.baza;
    m_odczyt.emplace(baza, m_opcje.CBEksportStanow);
    m_slowniki.emplace(baza);
  }

  void Naglowek(ZapisRekordow& zapis) override {
    for (const auto& kolumna : KolumnyTowaru()) zapis.Pole(kolumna.naglowek);
  }

  void Strona(int od, int doId) override { m_odczyt->Strona(od, doId); }

  bool Wczytaj(int id) override {
    m_odczyt->Wczytaj(id);
    return true;
  }

  void Rekord(WierszEksportu& pola) override {
    const WierszTowaru wiersz{m_odczyt->Biezacy(), m_opcje, *m_slowniki, pola};
    for (const auto& kolumna : KolumnyTowaru()) kolumna.wpisz(wiersz);
  }

  QString NazwaRekordu() const override {
    const Odczyt& towar = *m_odczyt->Biezacy().wiersz;
    return (towar[PoleEksportu::Kod].AsString() + u' ' + towar[PoleEksportu::Nazwa].AsString()).trimmed();
  }

  void PoRekordach() override { m_odczyt.reset(); }

 private:
  const OpcjeEksportuTowarow& m_opcje;
  std::optional<OdczytTowarow> m_odczyt;
  std::optional<SlownikiEksportu> m_slowniki;
};

}  // namespace

WynikPrzebiegu EksportujTowary(const ParametryPrzebiegu& parametry, const OpcjeEksportuTowarow& opcje) {
  return PrzebiegEksportuTowarow(parametry, opcje).Wykonaj();
}
