#include "model/szczegoly_towaru.h"

#include <algorithm>

#include "model/bledy.h"
#include "model/zakresy.h"
#include "platform/baza/dialekt.h"
#include "platform/baza/lista_id.h"
#include "platform/baza/sesja.h"

namespace {
auto MiejsceParametru(auto& wartosci, int parId) {
  return std::lower_bound(wartosci.begin(), wartosci.end(), parId,
                          [](const WartosciParametrow::Pozycja& p, int id) { return p.first < id; });
}

#define ZORVIK_SELECT_WARTOSCI "select TowId, ParId, Wartosc from TowWartosc where TowId "
constexpr TypPola kKolumnyWartosci[] = {TypPola::Calkowite, TypPola::Calkowite, TypPola::Dziesietne};

WartosciParametrow::Pozycja OdczytanaWartosc(const Odczyt& wiersz) {
  return {static_cast<int>(wiersz[1].AsInteger()), wiersz[2].AsFloat()};
}

#define ZORVIK_SELECT_DOSTAWCOW                                       \
  "select D.TowId, D.KontrId, K.NIP from TowDostawca D, Kontrahent K" \
  " where D.KontrId = K.KontrId and D.TowId "
constexpr TypPola kKolumnyDostawcow[] = {TypPola::Calkowite, TypPola::Calkowite, TypPola::Tekst};

DostawcyTowaru::Dostawca OdczytanyDostawca(const Odczyt& wiersz) {
  const std::string_view nip = wiersz[2].AsUtf8();
  return {static_cast<int>(wiersz[1].AsInteger()),
          std::any_of(nip.begin(), nip.end(), [](char c) { return c >= '0' && c <= '9'; })};
}

template <typename Szczegol>
void CzytajWielu(TVLTBazaDanych& baza, const std::string& sql, std::span<const TypPola> kolumny,
                 const ListaId& towary, Szczegol (*odczytany)(const Odczyt&),
                 const std::function<void(int, Szczegol)>& przyjmij) {
  for (auto odczyt = baza.Otworz(sql, kolumny, towary.Parametry()); odczyt.Nastepny();)
    przyjmij(static_cast<int>(odczyt[0].AsInteger()), odczytany(odczyt));
}
}  // namespace

std::optional<double> WartosciParametrow::Wartosc(int parId) const {
  const auto miejsce = MiejsceParametru(m_wartosci, parId);
  if (miejsce == m_wartosci.end() || miejsce->first != parId) return std::nullopt;
  return miejsce->second;
}

void WartosciParametrow::Ustaw(int parId, double wartosc) {
  const auto miejsce = MiejsceParametru(m_wartosci, parId);
  if (miejsce != m_wartosci.end() && miejsce->first == parId)
    miejsce->second = wartosc;
  else
    m_wartosci.insert(miejsce, {parId, wartosc});
}

bool WartosciParametrow::Usun(int parId) {
  return std::erase_if(m_wartosci, [parId](const Pozycja& p) { return p.first == parId; }) != 0;
}

void WartosciParametrow::Uzupelnij(std::vector<int> parametry) {
  std::sort(parametry.begin(), parametry.end());
  std::vector<Pozycja> pelne;
  pelne.reserve(parametry.size());
  for (const int parId : parametry) pelne.emplace_back(parId, Wartosc(parId).value_or(0));
  m_wartosci = std::move(pelne);
}

bool WartosciParametrow::TakieSameJakWBazie() const {
  return std::equal(m_wartosci.begin(), m_wartosci.end(), m_zBazy.begin(), m_zBazy.end(),
                    [](const Pozycja& a, const Pozycja& b) {
                      return a.first == b.first && RowneKwoty(a.second, b.second);
                    });
}

void WartosciParametrow::Wyczysc() {
  m_wartosci.clear();
  m_zBazy.clear();
}

void WartosciParametrow::Wczytaj(TVLTBazaDanych& baza, int towId) {
  m_wartosci.clear();
  const Parametr parametry[] = {{"TowId", towId}};
  for (auto odczyt =
           baza.Otworz(ZORVIK_SELECT_WARTOSCI "= :TowId order by ParId", kKolumnyWartosci, parametry);
       odczyt.Nastepny();)
    m_wartosci.push_back(OdczytanaWartosc(odczyt));
  m_zBazy = m_wartosci;
}

void WartosciParametrow::Wczytaj(TVLTBazaDanych& baza, const ListaId& towary,
                                 const std::function<void(int towId, Pozycja)>& przyjmij) {
  static const std::string sql = ZORVIK_SELECT_WARTOSCI + ListaId::Warunek() + " order by TowId, ParId";
  CzytajWielu(baza, sql, kKolumnyWartosci, towary, OdczytanaWartosc, przyjmij);
}

void WartosciParametrow::Zapisz(TVLTBazaDanych& baza, int towId) const {
  if (m_wartosci == m_zBazy) return;
  if (!m_zBazy.empty()) baza.ExecSQL("delete from TowWartosc where TowId = :TowId", {{"TowId", towId}});
  for (const auto& [parId, wartosc] : m_wartosci)
    baza.Wstaw("insert into TowWartosc (TowId, ParId, Wartosc) values (:TowId, :ParId, :Wartosc)",
               {{"TowId", towId}, {"ParId", parId}, {"Wartosc", WymagajZakresu(wartosc)}});
}

void DostawcyTowaru::UstawZNipem(std::span<const int> kontrahenci) {
  std::vector<Dostawca> nowi;
  const auto dodaj = [&nowi](Dostawca dostawca) {
    if (std::none_of(nowi.begin(), nowi.end(),
                     [&](const Dostawca& d) { return d.kontrId == dostawca.kontrId; }))
      nowi.push_back(dostawca);
  };
  for (const int kontrId : kontrahenci) dodaj({kontrId, true});
  for (const Dostawca& dostawca : m_dostawcy)
    if (!dostawca.maNip) dodaj(dostawca);
  m_dostawcy = std::move(nowi);
}

bool DostawcyTowaru::TakieSameJakWBazie() const {
  const auto nastepnyZNipem = [](auto it, auto koniec) {
    return std::find_if(it, koniec, [](const Dostawca& d) { return d.maNip; });
  };
  auto a = m_dostawcy.begin();
  auto b = m_zBazy.begin();
  for (;; ++a, ++b) {
    a = nastepnyZNipem(a, m_dostawcy.end());
    b = nastepnyZNipem(b, m_zBazy.end());
    if (a == m_dostawcy.end() || b == m_zBazy.end()) return a == m_dostawcy.end() && b == m_zBazy.end();
    if (a->kontrId != b->kontrId) return false;
  }
}

void DostawcyTowaru::Wyczysc() {
  m_dostawcy.clear();
  m_zBazy.clear();
}

void DostawcyTowaru::Wczytaj(TVLTBazaDanych& baza, int towId) {
  m_dostawcy.clear();
  const Parametr parametry[] = {{"TowId", towId}};
  for (auto odczyt = baza.Otworz(ZORVIK_SELECT_DOSTAWCOW "= :TowId order by D.Kolejnosc, D.KontrId",
                                 kKolumnyDostawcow, parametry);
       odczyt.Nastepny();)
    m_dostawcy.push_back(OdczytanyDostawca(odczyt));
  m_zBazy = m_dostawcy;
}

void DostawcyTowaru::Wczytaj(TVLTBazaDanych& baza, const ListaId& towary,
                             const std::function<void(int towId, Dostawca)>& przyjmij) {
  static const std::string sql =
      ZORVIK_SELECT_DOSTAWCOW + ListaId::Warunek() + " order by D.TowId, D.Kolejnosc, D.KontrId";
  CzytajWielu(baza, sql, kKolumnyDostawcow, towary, OdczytanyDostawca, przyjmij);
}

void DostawcyTowaru::Zapisz(TVLTBazaDanych& baza, int towId) const {
  if (m_dostawcy == m_zBazy) return;
  if (!m_zBazy.empty()) baza.ExecSQL("delete from TowDostawca where TowId = :TowId", {{"TowId", towId}});
  int kolejnosc = 0;
  for (const Dostawca& dostawca : m_dostawcy)
    baza.Wstaw("insert into TowDostawca (TowId, KontrId, Kolejnosc) values (:TowId, :KontrId, :Kolejnosc)",
               {{"TowId", towId}, {"KontrId", dostawca.kontrId}, {"Kolejnosc", kolejnosc++}});
}

const StanyTowaru::Stan& StanyTowaru::operator[](int indeks) const {
  if (indeks < 0 || indeks >= Ilosc()) throw EVLTWDError(2003, nullptr, QString::number(indeks));
  return m_stany[static_cast<std::size_t>(indeks)];
}

bool StanyTowaru::Ustaw(int magId, double Stan::*pole, double wartosc) {
  const auto stan =
      std::find_if(m_stany.begin(), m_stany.end(), [magId](const Stan& s) { return s.magId == magId; });
  if (stan == m_stany.end()) return false;
  if ((*stan).*pole != wartosc) stan->zmieniony = true;
  (*stan).*pole = wartosc;
  return true;
}

void StanyTowaru::Wczytaj(TVLTBazaDanych& baza, int towId) {
  constexpr TypPola kKolumny[] = {TypPola::Calkowite,  TypPola::Tekst,      TypPola::Dziesietne,
                                  TypPola::Dziesietne, TypPola::Dziesietne, TypPola::Dziesietne,
                                  TypPola::Dziesietne};
  const bool nowy = towId < 0;
  const Parametr parametr[] = {{"TowId", towId}};
  m_stany.clear();
  // In both forms the good stands in the condition of the join, so that a warehouse without its row is listed
  // as well.
  const std::string_view sql =
      nowy ? "select MagId, Nazwa from Magazyn order by Nazwa, MagId"
      : baza.Jezyk().ZnaOuterJoin()
          ? "select M.MagId, M.Nazwa, I.StanMag, I.BlokadaMag, I.CenaMag, I.StanMin, I.StanMax"
            " from Magazyn M left outer join Istw I on (M.MagId = I.MagId) and I.TowId = :TowId"
            " order by M.Nazwa, M.MagId"
          : "select M.MagId, M.Nazwa, I.StanMag, I.BlokadaMag, I.CenaMag, I.StanMin, I.StanMax"
            " from Magazyn M, Istw I where M.MagId *= I.MagId and I.TowId = :TowId"
            " order by M.Nazwa, M.MagId";
  for (auto odczyt = baza.Otworz(sql, std::span(kKolumny).first(nowy ? 2 : std::size(kKolumny)),
                                 std::span(parametr).first(nowy ? 0 : 1));
       odczyt.Nastepny();) {
    Stan& stan = m_stany.emplace_back();
    stan.magId = static_cast<int>(odczyt[0].AsInteger());
    stan.nazwa = odczyt[1].AsString();
    if (nowy) continue;
    stan.stanMag = odczyt[2].AsFloat();
    stan.blokadaMag = odczyt[3].AsFloat();
    stan.cenaMag = odczyt[4].AsFloat();
    stan.stanMin = odczyt[5].AsFloat();
    stan.stanMax = odczyt[6].AsFloat();
  }
}

void StanyTowaru::Zapisz(TVLTBazaDanych& baza, int towId) const {
  for (const Stan& stan : m_stany)
    if (stan.zmieniony)
      baza.ExecSQL(
          "update Istw set CenaMag = :CenaMag, StanMin = :StanMin, StanMax = :StanMax"
          " where MagId = :MagId and TowId = :TowId",
          {{"CenaMag", WymagajZakresu(stan.cenaMag)},
           {"StanMin", WymagajZakresu(stan.stanMin)},
           {"StanMax", WymagajZakresu(stan.stanMax)},
           {"MagId", stan.magId},
           {"TowId", towId}});
}

void StanyTowaru::ZatwierdzZmiany() {
  for (Stan& stan : m_stany) stan.zmieniony = false;
}
