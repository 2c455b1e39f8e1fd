#include <algorithm>
#include <utility>

#include "model/kontekst.h"
#include "model/nazwy_skrocone.h"
#include "model/reguly_kodow.h"
#include "model/slowniki.h"
#include "model/szukanie_towaru.h"
#include "model/towar.h"
#include "model/towar_plan.h"
#include "platform/baza/sesja.h"

// One pass over the rules of a save. Fills the plan with what the rules themselves change: the main code's
// stored form and the automatic additional code.
class TDmVLTTowar::Walidacja {
 public:
  Walidacja(const TDmVLTTowar& towar, Plan& plan)
      : m_t(towar), m_o(towar.m_otoczenie), m_baza(towar.Context.baza), m_plan(plan) {}

  WynikWalidacji Wykonaj() {
    // In this order; the first failure stops.
    constexpr WynikWalidacji (Walidacja::*kKroki[])() = {
        &Walidacja::Nazwa,    &Walidacja::Stawka,    &Walidacja::Kod,         &Walidacja::Centralny,
        &Walidacja::Slowniki, &Walidacja::Skrot,     &Walidacja::Opakowanie,  &Walidacja::FormatKodu,
        &Walidacja::WolnyKod, &Walidacja::Dodatkowe, &Walidacja::Automatyczny};
    for (const auto krok : kKroki)
      if (WynikWalidacji wynik = (this->*krok)(); !wynik.Dobry()) return wynik;
    return {};
  }

 private:
  WynikWalidacji Nazwa() { return {m_t.Nazwa().trimmed().isEmpty() ? 2840 : 0}; }
  WynikWalidacji Stawka() { return {m_t.Stawka() ? 0 : 2815}; }

  WynikWalidacji Kod() {
    m_plan.kod = m_t.Kod().trimmed();
    return {m_plan.kod.isEmpty() ? 2816 : 0};
  }

  WynikWalidacji Centralny() {
    const QString cku = m_t.CKU();
    if (!m_o.unikalneCKU || cku.isEmpty()) return {};
    const Parametr parametry[] = {{"CKU", cku}, {"TowId", m_t.Id()}};
    auto odczyt =
        Otworz("select TowId, Nazwa, Aktywny from Towar where CKU = :CKU and TowId <> :TowId order by TowId",
               parametry);
    if (!odczyt.Nastepny()) return {};
    const ZnalezionyTowar inny{static_cast<int>(odczyt[0].AsInteger()), odczyt[1].AsString(),
                               odczyt[2].AsInteger() != 0};
    return {2857, OpisUzycia(QStringLiteral("CKU"), cku, inny)};
  }

  WynikWalidacji Slowniki() {
    if (!Jest(m_o.asortymenty, "select AsId from Asort where AsId = :AsId", "AsId", m_t.AsId()))
      return {2813};
    if (!Jest(m_o.jednostki, "select JMId from JM where JMId = :JMId", "JMId", m_t.JMId())) return {2814};
    return {};
  }

  WynikWalidacji Skrot() {
    const QString skrot = m_t.Skrot();
    if (auto wynik = PoprawnySkrot(skrot, false); !wynik.Dobry()) return wynik;
    return WolnySkrot(skrot, false);
  }

  WynikWalidacji Opakowanie() {
    if (m_t.OpakId() < 0) return {};
    auto odczyt = m_baza.Otworz("select Aktywny from Towar where TowId = :TowId", {TypPola::Calkowite},
                                {{"TowId", m_t.OpakId()}});
    return {odczyt.Nastepny() && odczyt[0].AsInteger() != 0 ? 0 : 2818};
  }

  WynikWalidacji FormatKodu() { return Wynik(m_o.reguly.SprawdzGlowny(m_plan.kod, Towar())); }

  WynikWalidacji WolnyKod() {
    m_plan.kod = m_o.reguly.Normalizuj(m_plan.kod);
    return WolnyKod(m_plan.kod, 2822);
  }

  WynikWalidacji Dodatkowe() {
    if (!Towar()) return {};
    const SkrotyTowaru skroty = m_t.Skroty();
    for (int i = 0; i < m_t.m_kody.Ilosc(); ++i) {
      const KodDodatkowy& kod = m_t.m_kody[i];
      if (auto wynik = Wynik(m_o.reguly.SprawdzDodatkowy(kod.kod)); !wynik.Dobry()) return wynik;
      if (kod.kod == m_plan.kod) return {2828, kod.kod};
      if (auto wynik = WolnyKod(kod.kod, 2830); !wynik.Dobry()) return wynik;
      if (auto wynik = PoprawnySkrot(kod.skrot, true); !wynik.Dobry()) return wynik;
      if (auto wynik = TDmVLTNazwySkrocone::SprawdzWsrodKodow(kod.skrot, skroty, i); !wynik.dobry)
        return {2824, wynik.komunikat};
      if (auto wynik = WolnySkrot(kod.skrot, true); !wynik.Dobry()) return wynik;
    }
    return {};
  }

  WynikWalidacji Automatyczny() {
    if (!Towar()) return {};
    const QString kod = m_o.reguly.KodKrotki(m_plan.kod);
    if (kod.isEmpty() || kod == m_plan.kod || m_t.m_kody.Indeks(kod) >= 0) return {};
    if (auto wynik = Wynik(m_o.reguly.SprawdzAutomatyczny(kod)); !wynik.Dobry()) return wynik;
    if (auto wynik = WolnyKod(kod, 2897); !wynik.Dobry()) return wynik;
    const auto skrot = m_o.skroty.Utworz(m_t.Nazwa(), m_t.Skroty(1), m_t.m_kody.Ilosc(), m_t.Id(), true);
    if (auto wynik = PoprawnySkrot(skrot.value_or(QString()), true); !wynik.Dobry()) return wynik;
    m_plan.kody = m_t.m_kody;
    m_plan.kody->Dodaj({0, kod, *skrot});
    return {};
  }

  bool Towar() const { return m_t.TypTowaru() == ::TypTowaru::Towar; }

  Odczyt Otworz(std::string_view sql, std::span<const Parametr> parametry) {
    constexpr TypPola kKolumny[] = {TypPola::Calkowite, TypPola::Tekst, TypPola::Calkowite};
    return m_baza.Otworz(sql, kKolumny, parametry);
  }

  bool Jest(TDmVLTListaSlownika* slownik, std::string_view sql, const char* nazwa, int id) {
    return (slownik && slownik->Znajdz(id)) ||
           m_baza.Otworz(sql, {TypPola::Calkowite}, {{nazwa, id}}).Nastepny();
  }

  static WynikWalidacji Wynik(WynikKodu wynik) { return {wynik.kod, std::move(wynik.szczegol)}; }

  WynikWalidacji WolnyKod(const QString& kod, int blad) {
    if (!InnyTowarMozeMiecKod(m_o.bufor, kod, m_t.Id())) return {};
    for (const ZnalezionyTowar& inny : TowaryZKodem(m_baza, nullptr, kod))
      if (inny.towId != m_t.Id()) return {blad, OpisUzycia(QStringLiteral("Kod"), kod, inny)};
    return {};
  }

  WynikWalidacji PoprawnySkrot(const QString& skrot, bool dodatkowy) {
    if (m_o.skroty.Poprawny(skrot)) return {};
    return {2823, m_o.skroty.Sprawdz(skrot, dodatkowy).komunikat};
  }

  WynikWalidacji WolnySkrot(const QString& skrot, bool dodatkowy) {
    auto wynik = m_o.skroty.SprawdzUnikalnosc(skrot, m_t.Id(), dodatkowy);
    return wynik.towId < 0 ? WynikWalidacji{} : WynikWalidacji{2819, std::move(wynik.komunikat)};
  }

  const TDmVLTTowar& m_t;
  const OtoczenieTowarow& m_o;
  TVLTBazaDanych& m_baza;
  Plan& m_plan;
};

WynikWalidacji TDmVLTTowar::SprawdzDoPlanu(Plan& plan) const {
  return Walidacja(*this, plan).Wykonaj();
}

WynikWalidacji TDmVLTTowar::Sprawdz() const {
  Plan plan;
  return SprawdzDoPlanu(plan);
}
