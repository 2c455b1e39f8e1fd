#include "model/kody_dodatkowe.h"

#include <algorithm>

#include "model/bledy.h"
#include "model/szerokosci.h"
#include "model/zakresy.h"
#include "platform/baza/lista_id.h"
#include "platform/baza/sesja.h"

namespace {

// Order numbers rise.
const KodDodatkowy* Znajdz(const std::vector<KodDodatkowy>& kody, int kolejnosc) {
  const auto kod = std::lower_bound(kody.begin(), kody.end(), kolejnosc,
                                    [](const KodDodatkowy& k, int numer) { return k.kolejnosc < numer; });
  return kod == kody.end() || kod->kolejnosc != kolejnosc ? nullptr : &*kod;
}

// A stored code can be changed in all but its text: another text is another code.
bool TenSam(const KodDodatkowy* a, const KodDodatkowy& b) {
  return a && a->kod == b.kod;
}

void Wstaw(TVLTBazaDanych& baza, int towId, const KodDodatkowy& kod) {
  baza.Wstaw(
      "insert into KodDod (TowId, Kolejnosc, Skrot, Kod, PoziomCen, PrefPLU, IleWKodzie)"
      " values (:TowId, :Kolejnosc, :Skrot, :Kod, :PoziomCen, :PrefPLU, :IleWKodzie)",
      {{"TowId", towId},
       {"Kolejnosc", kod.kolejnosc},
       {"Skrot", kod.skrot},
       {"Kod", kod.kod},
       {"PoziomCen", kod.poziomCen},
       {"PrefPLU", kod.prefPLU},
       {"IleWKodzie", WymagajZakresu(kod.ileWKodzie)}});
}

void Popraw(TVLTBazaDanych& baza, int towId, const KodDodatkowy& kod) {
  baza.Popraw(
      "update KodDod set PrefPLU = :PrefPLU, Skrot = :Skrot, PoziomCen = :PoziomCen,"
      " IleWKodzie = :IleWKodzie where TowId = :TowId and Kolejnosc = :Kolejnosc",
      {{"PrefPLU", kod.prefPLU},
       {"Skrot", kod.skrot},
       {"PoziomCen", kod.poziomCen},
       {"IleWKodzie", WymagajZakresu(kod.ileWKodzie)},
       {"TowId", towId},
       {"Kolejnosc", kod.kolejnosc}});
}

void Skasuj(TVLTBazaDanych& baza, int towId, const KodDodatkowy& kod) {
  baza.ExecSQL("delete from KodDod where TowId = :TowId and Kolejnosc = :Kolejnosc",
               {{"TowId", towId}, {"Kolejnosc", kod.kolejnosc}});
}

#define ZORVIK_SELECT_KODOW \
  "select TowId, Kolejnosc, Skrot, Kod, PoziomCen, PrefPLU, IleWKodzie from KodDod where TowId "

constexpr TypPola kKolumny[] = {TypPola::Calkowite, TypPola::Calkowite, TypPola::Tekst,     TypPola::Tekst,
                                TypPola::Calkowite, TypPola::Calkowite, TypPola::Dziesietne};

KodDodatkowy Odczytany(const Odczyt& wiersz) {
  return {static_cast<int>(wiersz[1].AsInteger()),
          wiersz[3].AsString(),
          wiersz[2].AsString(),
          static_cast<int>(wiersz[4].AsInteger()),
          static_cast<int>(wiersz[5].AsInteger()),
          wiersz[6].AsFloat()};
}

}  // namespace

const KodDodatkowy& KodyDodatkowe::operator[](int indeks) const {
  if (indeks < 0 || indeks >= Ilosc()) throw EVLTWDError(2003, nullptr, QString::number(indeks));
  return m_kody[static_cast<std::size_t>(indeks)];
}

int KodyDodatkowe::Indeks(const QString& kod) const {
  const auto znaleziony =
      std::find_if(m_kody.begin(), m_kody.end(), [&](const KodDodatkowy& k) { return k.kod == kod; });
  return znaleziony == m_kody.end() ? -1 : static_cast<int>(znaleziony - m_kody.begin());
}

int KodyDodatkowe::Dodaj(KodDodatkowy kod) {
  kod.kolejnosc = m_kody.empty() ? 1 : m_kody.back().kolejnosc + 1;
  m_kody.push_back(std::move(kod));
  return m_kody.back().kolejnosc;
}

void KodyDodatkowe::UstawSkrot(int indeks, const QString& skrot) {
  if (indeks < 0 || indeks >= Ilosc()) throw EVLTWDError(2003, nullptr, QString::number(indeks));
  m_kody[static_cast<std::size_t>(indeks)].skrot = skrot;
}

bool KodyDodatkowe::Usun(int kolejnosc) {
  return std::erase_if(m_kody, [=](const KodDodatkowy& kod) { return kod.kolejnosc == kolejnosc; }) != 0;
}

void KodyDodatkowe::Ustaw(std::vector<KodDodatkowy> kody) {
  int poprzedni = 0;
  for (KodDodatkowy& kod : kody) poprzedni = kod.kolejnosc = std::max(kod.kolejnosc, poprzedni + 1);
  m_kody = std::move(kody);
}

bool KodyDodatkowe::TakieSameJakWBazie() const {
  return std::equal(m_kody.begin(), m_kody.end(), m_zBazy.begin(), m_zBazy.end(),
                    [](const KodDodatkowy& a, const KodDodatkowy& b) {
                      return a.kod == b.kod && a.skrot == b.skrot && a.prefPLU == b.prefPLU;
                    });
}

int KodyDodatkowe::Wyslany(TVLTBazaDanych& baza, int indeks) const {
  auto odczyt = baza.Otworz("select count(*) from KasTow where KodWyslany = :Kod", {TypPola::Calkowite},
                            {{"Kod", (*this)[indeks].kod}});
  return odczyt.Nastepny() ? static_cast<int>(odczyt[0].AsInteger()) : 0;
}

void KodyDodatkowe::Wyczysc() {
  m_kody.clear();
  m_zBazy.clear();
}

void KodyDodatkowe::Wczytaj(TVLTBazaDanych& baza, int towId) {
  m_kody.clear();
  const Parametr parametry[] = {{"TowId", towId}};
  for (auto odczyt = baza.Otworz(ZORVIK_SELECT_KODOW "= :TowId order by Kolejnosc", kKolumny, parametry);
       odczyt.Nastepny();)
    m_kody.push_back(Odczytany(odczyt));
  m_zBazy = m_kody;
}

void KodyDodatkowe::Wczytaj(TVLTBazaDanych& baza, const ListaId& towary,
                            const std::function<void(int towId, KodDodatkowy)>& przyjmij) {
  static const std::string sql = ZORVIK_SELECT_KODOW + ListaId::Warunek() + " order by TowId, Kolejnosc";
  for (auto odczyt = baza.Otworz(sql, kKolumny, towary.Parametry()); odczyt.Nastepny();)
    przyjmij(static_cast<int>(odczyt[0].AsInteger()), Odczytany(odczyt));
}

void KodyDodatkowe::WymagajMiejsca() const {
  if (!Zmienione()) return;
  for (const KodDodatkowy& kod : m_kody) {
    WymagajDlugosci("KodDod", "Kod", kod.kod);
    WymagajDlugosci("KodDod", "Skrot", kod.skrot);
  }
}

void KodyDodatkowe::Zapisz(TVLTBazaDanych& baza, int towId) const {
  if (!Zmienione()) return;
  for (const KodDodatkowy& bylo : m_zBazy)
    if (!TenSam(Znajdz(m_kody, bylo.kolejnosc), bylo)) Skasuj(baza, towId, bylo);
  for (const KodDodatkowy& jest : m_kody) {
    const KodDodatkowy* bylo = Znajdz(m_zBazy, jest.kolejnosc);
    if (!TenSam(bylo, jest))
      Wstaw(baza, towId, jest);
    else if (!(*bylo == jest))
      Popraw(baza, towId, jest);
  }
}
