#include "contractors/import_kontrahentow.h"

#include <optional>

#include "contractors/kontekst_importu_kontrahentow.h"
#include "contractors/opcje_kontrahentow.h"
#include "contractors/rekord_kontrahenta.h"
#include "model/bufor_nip.h"
#include "model/kontekst.h"
#include "model/numery_sklepow.h"
#include "run/przebieg_importu.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr PozycjaPodsumowania kPodsumowanie[] = {
    {Licznik::Dodane, u"Ilość dodanych kontrahentów "},
    {Licznik::Poprawione, u"Ilość poprawionych kontrahentów "},
    {Licznik::Pominiete, u"Ilość pominiętych kontrahentów "},
};

constexpr OpisPrzebiegu kOpis{kPominieciKontrahenci, u"zamykanie pliku importu", u"Aktualizację zakończono",
                              kPodsumowanie};

class PrzebiegImportuKontrahentow final : public PrzebiegImportu {
 public:
  PrzebiegImportuKontrahentow(const ParametryPrzebiegu& parametry, const OpcjeImportuKontrahentow& opcje)
      : PrzebiegImportu(parametry, kOpis, {PoleKontrahenta::Nip, PoleKontrahenta::Nazwa}),
        m_opcje(opcje),
        m_bufor(opcje.rb_DodajJesliMaInnyAdres ? TVLTBuforNip::Zawartosc::NipyIAdresy
                                               : TVLTBuforNip::Zawartosc::Nipy) {}

 protected:
  bool PrzygotujBufory() override {
    TVLTBazaDanych& baza = Parametry().sesja.baza;
    return FazaBufora(u"przygotowanie bufora NIP-ów"_s, TVLTBuforNip::IloscKontrahentow(baza),
                      [&](const PostepBufora& postep) { return m_bufor.Napelnij(baza, postep); });
  }

  void PrzedRekordami() override {
    m_paczka.PoOtwarciu = [this](bool) {
      m_bufor.Odswiez(Parametry().sesja.baza);
      m_numerySklepow.Zapomnij();
    };
    m_kontekst.emplace(KontekstImportuKontrahentow{Parametry().sesja, m_opcje, Parametry().struktura, Plik(),
                                                   Parametry().separatorDziesietny, m_bufor, m_numerySklepow,
                                                   m_raport, m_uwagi, m_liczniki});
    m_rekord.emplace(*m_kontekst);
  }

  void PoWycofaniuPaczki() override { m_bufor.Uniewaznij(); }

  PoRekordzie Rekord(const RekordPliku& rekord) override {
    m_rekord->Przetworz(rekord);
    return PoRekordzie::Dalej;
  }

 private:
  const OpcjeImportuKontrahentow& m_opcje;
  TVLTBuforNip m_bufor;
  NumerySklepow m_numerySklepow;
  std::optional<KontekstImportuKontrahentow> m_kontekst;
  std::optional<RekordKontrahenta> m_rekord;
};

}  // namespace

WynikPrzebiegu ImportujKontrahentow(const ParametryPrzebiegu& parametry,
                                    const OpcjeImportuKontrahentow& opcje) {
  return PrzebiegImportuKontrahentow(parametry, opcje).Wykonaj();
}

std::span<const PozycjaPodsumowania> PodsumowanieImportuKontrahentow() {
  return kPodsumowanie;
}
