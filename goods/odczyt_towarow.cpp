#include "goods/odczyt_towarow.h"

#include "model/bledy.h"
#include "model/stawki_vat.h"

namespace {

constexpr int kBezStanow = 0;
constexpr int kWszystkieMagazyny = 1;

#define ZORVIK_POLE(nazwa, typ) {#nazwa, TypPola::typ},
constexpr OpisPola kPola[] = {ZORVIK_POLA_EKSPORTU(ZORVIK_POLE)};
#undef ZORVIK_POLE

std::optional<StrumienSzczegolow> StrumienStanow(TVLTBazaDanych& baza, int stany) {
  constexpr auto kId = TypPola::Calkowite;
  constexpr auto kStan = TypPola::Dziesietne;
  if (stany <= kBezStanow) return std::nullopt;
  if (stany == kWszystkieMagazyny)
    return StrumienSzczegolow(
        baza, "select TowId, StanMag from Istw where TowId between :Od and :Do order by TowId, MagId",
        {kId, kStan});
  return StrumienSzczegolow(
      baza,
      "select TowId, StanMag from Istw where TowId between :Od and :Do and MagId = :MagId"
      " order by TowId",
      {kId, kStan}, {{"MagId", stany - 1}});
}

}  // namespace

OdczytTowarow::OdczytTowarow(TVLTBazaDanych& baza, int stany)
    : m_towary(baza, "Towar", kPola),
      m_kody(baza,
             "select TowId, Kod, Skrot, PrefPLU from KodDod where TowId between :Od and :Do"
             " order by TowId, Kolejnosc",
             {TypPola::Calkowite, TypPola::Tekst, TypPola::Tekst, TypPola::Calkowite}),
      m_wartosci(baza,
                 "select TowId, ParId, Wartosc from TowWartosc where TowId between :Od and :Do"
                 " order by TowId, ParId",
                 {TypPola::Calkowite, TypPola::Calkowite, TypPola::Dziesietne}),
      m_dostawcy(baza,
                 "select TowId, KontrId from TowDostawca where TowId between :Od and :Do"
                 " order by TowId, Kolejnosc, KontrId",
                 {TypPola::Calkowite, TypPola::Calkowite}),
      m_stany(StrumienStanow(baza, stany)),
      m_jedenMagazyn(stany > kWszystkieMagazyny) {}

void OdczytTowarow::Strona(int od, int doId) {
  OtworzStrone({&m_towary, &m_kody, &m_wartosci, &m_dostawcy, m_stany ? &*m_stany : nullptr}, od, doId);
}

const DaneTowaru& OdczytTowarow::Wczytaj(int towId) {
  if (!m_towary.Siegnij(towId)) throw EVLTWDError(2001, nullptr, QString::number(towId));
  m_towar.wiersz = &m_towary.Wiersz();
  m_towar.kody.clear();
  for (; m_kody.Siegnij(towId); m_kody.Dalej()) {
    const Odczyt& kod = m_kody.Wiersz();
    m_towar.kody.push_back({.kod = kod[1].AsString(),
                            .skrot = kod[2].AsString(),
                            .prefPLU = static_cast<int>(kod[3].AsInteger())});
  }
  m_towar.wartosci.clear();
  for (; m_wartosci.Siegnij(towId); m_wartosci.Dalej()) {
    const Odczyt& wartosc = m_wartosci.Wiersz();
    m_towar.wartosci.emplace_back(static_cast<int>(wartosc[1].AsInteger()), wartosc[2].AsInteger());
  }
  m_towar.dostawcy.clear();
  for (; m_dostawcy.Siegnij(towId); m_dostawcy.Dalej())
    m_towar.dostawcy.push_back(static_cast<int>(m_dostawcy.Wiersz()[1].AsInteger()));
  if (!m_stany) return m_towar;
  double stan = 0;
  for (; m_stany->Siegnij(towId); m_stany->Dalej()) stan += m_stany->Wiersz()[1].AsFloat();
  m_towar.stan = m_jedenMagazyn ? Zaokraglij(stan, 3) : stan;
  return m_towar;
}
