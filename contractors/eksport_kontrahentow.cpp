#include "contractors/eksport_kontrahentow.h"

#include <optional>

#include "contractors/odczyt_kontrahentow.h"
#include "contractors/opcje_kontrahentow.h"
#include "contractors/wiersz_kontrahenta.h"
#include "model/kontekst.h"
#include "run/przebieg_eksportu.h"

namespace {

constexpr OpisPrzebiegu kOpis{{}, u"zamykanie pliku eksportu", u"Eksport zakończono", {}};
constexpr OpisEksportu kOpisEksportu{{}, u"eksport bazy kontrahentów", "Kontrahent", "KontrId"};

// The conditions of an export. The boxes for a tax number that is not known and for what is no protected
// workplace decide nothing: their opposites alone let every contractor through, or none.
bool DoWyslania(const DaneKontrahenta& k, const OpcjeEksportuKontrahentow& o) {
  using P = KolumnaKontrahenta;
  const bool typ = (k.Flaga(P::Odbiorca) && o.cb_gdyOdbiorca) || (k.Flaga(P::Dostawca) && o.cb_gdyDostawca) ||
                   (k.Flaga(P::Producent) && o.cb_gdyProducent) || (k.sklep && o.cb_gdySklep);
  const bool kontakty = k.Flaga(P::Staly) ? o.cb_gdyStale : o.cb_gdyTymczasowe;
  return typ && kontakty && o.cb_gdyZnamyNIP && o.cb_gdyZakladPracyChr;
}

class PrzebiegEksportuKontrahentow final : public PrzebiegEksportu {
 public:
  PrzebiegEksportuKontrahentow(const ParametryPrzebiegu& parametry, const OpcjeEksportuKontrahentow& opcje)
      : PrzebiegEksportu(parametry, kOpis, kOpisEksportu), m_opcje(opcje) {}

 protected:
  void PrzedRekordami() override { m_odczyt.emplace(Parametry().sesja.baza); }

  void Naglowek(ZapisRekordow& zapis) override {
    for (const auto& kolumna : KolumnyKontrahenta()) zapis.Pole(kolumna.naglowek);
  }

  void Strona(int od, int doId) override { m_odczyt->Strona(od, doId); }

  bool Wczytaj(int id) override { return DoWyslania(m_odczyt->Wczytaj(id), m_opcje); }

  void Rekord(WierszEksportu& pola) override {
    const WierszKontrahenta wiersz{m_odczyt->Biezacy(), m_opcje, pola};
    for (const auto& kolumna : KolumnyKontrahenta()) kolumna.wpisz(wiersz);
  }

  QString NazwaRekordu() const override {
    const DaneKontrahenta& kontrahent = m_odczyt->Biezacy();
    return (kontrahent[KolumnaKontrahenta::NIP].AsString() + u' ' +
            kontrahent[KolumnaKontrahenta::Nazwa].AsString())
        .trimmed();
  }

  void PoRekordach() override { m_odczyt.reset(); }

 private:
  const OpcjeEksportuKontrahentow& m_opcje;
  std::optional<OdczytKontrahentow> m_odczyt;
};

}  // namespace

WynikPrzebiegu EksportujKontrahentow(const ParametryPrzebiegu& parametry,
                                     const OpcjeEksportuKontrahentow& opcje) {
  return PrzebiegEksportuKontrahentow(parametry, opcje).Wykonaj();
}
