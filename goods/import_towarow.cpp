#include "goods/import_towarow.h"

#include <algorithm>
#include <optional>

#include "goods/kontekst_importu.h"
#include "goods/kontrola_kodu.h"
#include "goods/numeracja_nazw.h"
#include "goods/opcje_towarow.h"
#include "goods/rekord_towaru.h"
#include "goods/rozpoznawanie_slownikow.h"
#include "goods/stany.h"
#include "goods/transfer_pol.h"
#include "model/bufor_nip.h"
#include "model/bufor_towarow.h"
#include "model/kody_wlasne.h"
#include "model/kontekst.h"
#include "model/nazwy_skrocone.h"
#include "model/reguly_kodow.h"
#include "model/stawki_vat.h"
#include "model/zapas_towarow.h"
#include "platform/baza/sesja.h"
#include "run/przebieg_importu.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr PozycjaPodsumowania kPodsumowanie[] = {
    {Licznik::Dodane, u"Ilość dodanych towarów "},
    {Licznik::Poprawione, u"Ilość poprawionych towarów "},
    {Licznik::Pominiete, u"Ilość pominiętych towarów "},
    {Licznik::Asortymenty, u"Ilość dodanych asortymentów"},
    {Licznik::Jednostki, u"Ilość dodanych jednostek"},
    {Licznik::Stawki, u"Ilość dodanych stawek"},
    {Licznik::Kategorie, u"Ilość dodanych kategorii"},
    {Licznik::Parametry, u"Ilość dodanych parametrów"},
    {Licznik::FormatyKodowWazonych, u"Ilość dodanych formatów kodów ważonych"},
};

constexpr OpisPrzebiegu kOpis{kPominieteTowary, u"zamykanie pliku importu", u"Aktualizację zakończono",
                              kPodsumowanie};

// What the records of one run share. Made when the database is connected and the file accepted.
struct Zasoby {
  Zasoby(const ParametryPrzebiegu& parametry, const OpcjeImportuTowarow& opcje, TVLTBuforTowarow& bufor,
         RaportProblemow& raport, Liczniki& liczniki)
      : reguly(RegulyKodowImportu(opcje, {})),
        slowniki(parametry.sesja, opcje, raport, liczniki, reguly.formaty),
        stany(parametry.sesja, liczniki),
        kodyWlasne(parametry.sesja.baza, bufor, reguly,
                   UstawieniaKodowWlasnych::ZParametrow(parametry.sesja.parametry)),
        skroty(parametry.sesja.baza, &bufor),
        nazwy(parametry.sesja.baza) {
    reguly.UstawWazone(parametry.sesja.parametry);
  }

  RegulyKodow reguly;
  RozpoznawanieSlownikow slowniki;
  Stany stany;
  KodyWlasne kodyWlasne;
  TDmVLTNazwySkrocone skroty;
  NumeracjaNazw nazwy;
  ZapasTowarow zapas;
};

class PrzebiegImportuTowarow final : public PrzebiegImportu {
 public:
  PrzebiegImportuTowarow(const ParametryPrzebiegu& parametry, const OpcjeImportuTowarow& opcje,
                         TVLTBuforTowarow& bufor)
      : PrzebiegImportu(parametry, kOpis, {PoleTowaru::Kod, PoleTowaru::Nazwa}),
        m_opcje(opcje),
        m_bufor(bufor) {}

 protected:
  bool PrzygotujBufory() override { return PrzygotujBuforTowarow() && PrzygotujBuforNip(); }

  void PrzedRekordami() override {
    m_zasoby.emplace(Parametry(), m_opcje, m_bufor, m_raport, m_liczniki);
    m_zasoby->stany.WczytajMagazyny();
    m_paczka.PoOtwarciu = [this](bool obceZmiany) { PoOtwarciuPaczki(obceZmiany); };
    m_paczka.PoZatwierdzeniu = [this] {
      m_zasoby->skroty.ZatwierdzPaczke();
      m_zasoby->nazwy.ZatwierdzPaczke();
      m_bufor.Zatwierdz();
    };
    m_kontekst.emplace(KontekstImportu{Parametry().sesja, m_opcje, Parametry().struktura, Plik(),
                                       Parametry().separatorDziesietny, m_bufor, m_nipy ? &*m_nipy : nullptr,
                                       m_zasoby->slowniki, m_zasoby->stany, m_zasoby->reguly,
                                       m_zasoby->kodyWlasne, m_zasoby->skroty, m_zasoby->nazwy,
                                       m_zasoby->zapas, m_raport, m_uwagi, m_liczniki, Operator()});
    m_rekord.emplace(*m_kontekst);
    ZglosStawkiBezOpisu();
  }

  void CzytajZWyprzedzeniem(std::span<const RekordPliku> rekordy) override {
    m_rekord->CzytajZWyprzedzeniem(rekordy);
  }

  void PoWycofaniuPaczki() override {
    m_bufor.Cofnij();
    m_zasoby->kodyWlasne.Zapomnij();
    m_zasoby->skroty.CofnijPaczke();
    m_zasoby->nazwy.CofnijPaczke();
  }

  PoRekordzie Rekord(const RekordPliku& rekord) override { return m_rekord->Przetworz(rekord); }

  void PrzedPodsumowaniem() override {
    if (m_liczniki[Licznik::Stany] == 0) return;
    Pokaz({u"UWAGA"_s,
           u"Wykonano import stanów magazynowych. Należy uruchomić program Veltrana i wywołać operację:\r"
           u"Kontrola->Operacje serwisowe->Automatyczna inicjacja-> według stanów towarowych"_s});
  }

  void PoBledzie() override { m_bufor.Uniewaznij(); }

 private:
  bool PrzygotujBuforTowarow() {
    if (m_bufor.Gotowy()) return true;
    return FazaBufora(u"przygotowanie bufora towarów"_s, 0, [this](const PostepBufora& postep) {
      return m_bufor.Napelnij(Parametry().sesja.baza, postep);
    });
  }

  bool PrzygotujBuforNip() {
    const StrukturaPliku& struktura = Parametry().struktura;
    const auto uzywane = [&](int pole) { return struktura.CzyOferowane(pole) && Plik().NiesiePole(pole); };
    if (!uzywane(PoleTowaru::NipProducenta) && !uzywane(PoleTowaru::NipyDostawcow)) return true;
    TVLTBazaDanych& baza = Parametry().sesja.baza;
    m_nipy.emplace();
    return FazaBufora(u"przygotowanie bufora NIP-ów"_s, TVLTBuforNip::IloscKontrahentow(baza),
                      [&](const PostepBufora& postep) { return m_nipy->Napelnij(baza, postep); });
  }

  // A good of the file can never get them.
  void ZglosStawkiBezOpisu() {
    const StrukturaPliku& struktura = Parametry().struktura;
    if (struktura.CBTypPliku == TypPliku::Zorvik || !Plik().NiesiePole(PoleTowaru::StawkaVat)) return;
    TVLTStawkiVat stawki;
    stawki.Wczytaj(Parametry().sesja.baza);
    for (int i = 0; i < stawki.Ilosc(); ++i) {
      const int stawka = stawki.Stawka(i);
      const bool opisana = std::any_of(
          struktura.opisyVat.begin(), struktura.opisyVat.end(),
          [&](const OpisVat& opis) { return opis.Stawka().toInt() == stawka && !opis.Opis().isEmpty(); });
      if (!opisana)
        m_uwagi.ZglosOCalosci({RodzajUwagi::StawkaBezOpisu, StawkaNaTekst(stawka, true),
                               StawkaNaTekst(TransferPol::kStawkaDomyslna, true)});
    }
  }

  // Inside the transaction nobody else writes, so that what is looked up in memory from here on holds.
  void PoOtwarciuPaczki(bool obceZmiany) {
    m_zasoby->zapas.Wyczysc();
    m_zasoby->stany.Zapomnij();
    m_bufor.SprawdzObceZmiany(Parametry().sesja.baza);
    if (!obceZmiany) return;
    m_zasoby->slowniki.Wczytaj();
    m_zasoby->nazwy.Zapomnij();
  }

  const OpcjeImportuTowarow& m_opcje;
  TVLTBuforTowarow& m_bufor;
  std::optional<TVLTBuforNip> m_nipy;
  std::optional<Zasoby> m_zasoby;
  std::optional<KontekstImportu> m_kontekst;
  std::optional<RekordTowaru> m_rekord;
};

}  // namespace

WynikPrzebiegu ImportujTowary(const ParametryPrzebiegu& parametry, const OpcjeImportuTowarow& opcje,
                              TVLTBuforTowarow& bufor) {
  return PrzebiegImportuTowarow(parametry, opcje, bufor).Wykonaj();
}

std::span<const PozycjaPodsumowania> PodsumowanieImportuTowarow() {
  return kPodsumowanie;
}
