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

constexpr OpisPrzebiegu kOpis{{}, u"zamykanie pliku eksportu", u"Eksport zakończono", {}, kPlikNiepelny};
constexpr OpisEksportu kOpisEksportu{u"przygotowanie bufora towarów", u"eksport bazy towarów"};

class PrzebiegEksportuTowarow final : public PrzebiegEksportu {
 public:
  PrzebiegEksportuTowarow(const ParametryPrzebiegu& parametry, const OpcjeEksportuTowarow& opcje)
      : PrzebiegEksportu(parametry, kOpis, kOpisEksportu), m_opcje(opcje) {}

 protected:
  std::vector<int> Identyfikatory() override {
    std::vector<int> identyfikatory;
    for (auto odczyt =
             Parametry().sesja.baza.Otworz("select TowId from Towar order by TowId", {TypPola::Calkowite});
         odczyt.Nastepny();)
      identyfikatory.push_back(static_cast<int>(odczyt[0].AsInteger()));
    return identyfikatory;
  }

  // The goods first: what is read after their first row comes from the same moment of the database, the
  // dictionaries included.
  void PrzedRekordami() override {
    TVLTBazaDanych& baza = Parametry().sesja.baza;
    m_odczyt.emplace(baza, m_opcje.CBEksportStanow);
    m_slowniki.emplace(baza);
  }

  void Naglowek(ZapisRekordow& zapis) override {
    for (const KolumnaEksportu& kolumna : KolumnyTowaru()) zapis.Pole(kolumna.naglowek);
  }

  std::u16string_view Rekord(int id, ZapisRekordow& zapis) override {
    WierszTowaru wiersz{m_odczyt->Wczytaj(id), m_opcje, *m_slowniki, Parametry().separatorDziesietny, zapis};
    for (const KolumnaEksportu& kolumna : KolumnyTowaru()) kolumna.wpisz(wiersz);
    return wiersz.powod;
  }

  QString NazwaRekordu() const override {
    const Odczyt& towar = *m_odczyt->Biezacy().wiersz;
    return towar[PoleEksportu::Kod].AsString() + u' ' + towar[PoleEksportu::Nazwa].AsString();
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
