#include "model/bufor_towarow.h"

#include <algorithm>
#include <string>
#include <utility>

#include <QHashFunctions>

#include "platform/baza/dialekt.h"
#include "platform/baza/sesja.h"

namespace {

constexpr int kCoIlePostep = 1000;

std::uint64_t Odcisk(const QString& tekst) {
  return qHash(tekst, 0);
}

// An empty text is nobody's: it is never looked for.
void Wstaw(std::unordered_multimap<std::uint64_t, int>& indeks, const QString& tekst, int towId) {
  if (!tekst.isEmpty()) indeks.emplace(Odcisk(tekst), towId);
}

// One occurrence: a good may have the same text twice.
void Wyjmij(std::unordered_multimap<std::uint64_t, int>& indeks, const QString& tekst, int towId) {
  const auto [poczatek, koniec] = indeks.equal_range(Odcisk(tekst));
  const auto para = std::find_if(poczatek, koniec, [towId](const auto& p) { return p.second == towId; });
  if (para != koniec) indeks.erase(para);
}

long long Chwila(TVLTBazaDanych& baza) {
  const std::string select = baza.Jezyk().ZnacznikChwili();
  if (select.empty()) return 0;
  auto odczyt = baza.Otworz(select, {TypPola::Calkowite});
  return odczyt.Nastepny() ? odczyt[0].AsInteger() : 0;
}

}  // namespace

bool TVLTBuforTowarow::Napelnij(TVLTBazaDanych& baza, const Postep& postep) {
  Uniewaznij();
  // Asked first: what others write while we read counts as written afterwards.
  m_znacznik = baza.ZnacznikObcychZmian();
  m_chwila = Chwila(baza);
  m_obceZmiany = false;
  for (auto odczyt = baza.Otworz("select (select count(*) from Towar), (select count(*) from KodDod)",
                                 {TypPola::Calkowite, TypPola::Calkowite});
       odczyt.Nastepny();) {
    const auto towarow = static_cast<std::size_t>(odczyt[0].AsInteger());
    const auto kodow = static_cast<std::size_t>(odczyt[1].AsInteger());
    m_nazwy.reserve(towarow);
    m_kody.reserve(towarow + kodow);
    m_skroty.reserve(towarow + kodow);
  }
  int ilosc = 0;
  for (auto odczyt = baza.Otworz("select TowId, Nazwa, Kod, Skrot from Towar",
                                 {TypPola::Calkowite, TypPola::Tekst, TypPola::Tekst, TypPola::Tekst});
       odczyt.Nastepny();) {
    const int towId = static_cast<int>(odczyt[0].AsInteger());
    Wstaw(m_nazwy, odczyt[1].AsString(), towId);
    Wstaw(m_kody, odczyt[2].AsString(), towId);
    Wstaw(m_skroty, odczyt[3].AsString(), towId);
    if (++ilosc % kCoIlePostep == 0 && postep && !postep(ilosc)) {
      Uniewaznij();
      return false;
    }
  }
  for (auto odczyt = baza.Otworz("select TowId, Kod, Skrot from KodDod",
                                 {TypPola::Calkowite, TypPola::Tekst, TypPola::Tekst});
       odczyt.Nastepny();) {
    const int towId = static_cast<int>(odczyt[0].AsInteger());
    Wstaw(m_kody, odczyt[1].AsString(), towId);
    Wstaw(m_skroty, odczyt[2].AsString(), towId);
  }
  m_ilosc = ilosc;
  m_gotowy = true;
  return true;
}

void TVLTBuforTowarow::Uniewaznij() {
  m_kody.clear();
  m_skroty.clear();
  m_nazwy.clear();
  m_zmiany.clear();
  m_ilosc = 0;
  m_gotowy = false;
}

// What a text was before stays a candidate, which the caller confirms anyway.
void TVLTBuforTowarow::DoczytajZapisane(TVLTBazaDanych& baza) {
  const long long od = std::exchange(m_chwila, Chwila(baza));
  const auto dopisz = [](Indeks& indeks, const QString& tekst, int towId) {
    const auto [poczatek, koniec] = indeks.equal_range(Odcisk(tekst));
    if (std::none_of(poczatek, koniec, [towId](const auto& p) { return p.second == towId; }))
      Wstaw(indeks, tekst, towId);
  };
  const auto czytaj = [&](std::string_view sql, std::vector<Indeks*> indeksy) {
    std::vector<TypPola> kolumny{TypPola::Calkowite};
    kolumny.resize(1 + indeksy.size(), TypPola::Tekst);
    const Parametr parametry[] = {{"Od", od}};
    for (auto odczyt = baza.Otworz(std::string(sql) + baza.Jezyk().ZapisaneOd(), kolumny, parametry);
         odczyt.Nastepny();)
      for (std::size_t i = 0; i < indeksy.size(); ++i)
        dopisz(*indeksy[i], odczyt[1 + i].AsString(), static_cast<int>(odczyt[0].AsInteger()));
  };
  czytaj("select TowId, Nazwa, Kod, Skrot from Towar where ", {&m_nazwy, &m_kody, &m_skroty});
  czytaj("select TowId, Kod, Skrot from KodDod where ", {&m_kody, &m_skroty});
}

void TVLTBuforTowarow::SprawdzObceZmiany(TVLTBazaDanych& baza) {
  if (m_gotowy && !baza.Jezyk().ZapisaneOd().empty()) return DoczytajZapisane(baza);
  m_obceZmiany = m_obceZmiany || baza.ZnacznikObcychZmian() != m_znacznik;
}

bool TVLTBuforTowarow::MozeByKod(const QString& kod) const {
  return m_kody.contains(Odcisk(kod));
}
std::optional<int> TVLTBuforTowarow::JedynyZKodem(const QString& kod) const {
  const auto [poczatek, koniec] = m_kody.equal_range(Odcisk(kod));
  if (poczatek == koniec) return std::nullopt;
  const bool jeden =
      std::all_of(poczatek, koniec, [towId = poczatek->second](const auto& p) { return p.second == towId; });
  return jeden ? std::optional(poczatek->second) : std::nullopt;
}
bool TVLTBuforTowarow::MozeBySkrot(const QString& skrot) const {
  return m_skroty.contains(Odcisk(skrot));
}
bool TVLTBuforTowarow::MozeByNazwa(const QString& nazwa) const {
  return m_nazwy.contains(Odcisk(nazwa));
}

void TVLTBuforTowarow::Dodaj(int towId, const Teksty& teksty) {
  m_zmiany.push_back({towId, {}, teksty, true});
  Wpisz(towId, {}, teksty);
  ++m_ilosc;
}

void TVLTBuforTowarow::Zmien(int towId, const Teksty& bylo, const Teksty& jest) {
  m_zmiany.push_back({towId, bylo, jest, false});
  Wpisz(towId, bylo, jest);
}

void TVLTBuforTowarow::Cofnij() {
  for (auto zmiana = m_zmiany.rbegin(); zmiana != m_zmiany.rend(); ++zmiana) {
    Wpisz(zmiana->towId, zmiana->jest, zmiana->bylo);
    if (zmiana->nowy) --m_ilosc;
  }
  m_zmiany.clear();
}

void TVLTBuforTowarow::Wpisz(int towId, const Teksty& bylo, const Teksty& jest) {
  const auto jeden = [towId](Indeks& indeks, const QString& stary, const QString& nowy) {
    if (stary == nowy) return;
    Wyjmij(indeks, stary, towId);
    Wstaw(indeks, nowy, towId);
  };
  const auto wiele = [towId](Indeks& indeks, const std::vector<QString>& stare,
                             const std::vector<QString>& nowe) {
    if (stare == nowe) return;
    for (const QString& stary : stare) Wyjmij(indeks, stary, towId);
    for (const QString& nowy : nowe) Wstaw(indeks, nowy, towId);
  };
  jeden(m_nazwy, bylo.nazwa, jest.nazwa);
  jeden(m_kody, bylo.kod, jest.kod);
  jeden(m_skroty, bylo.skrot, jest.skrot);
  wiele(m_kody, bylo.dodatkowe, jest.dodatkowe);
  wiele(m_skroty, bylo.dodSkroty, jest.dodSkroty);
}

std::vector<int> TVLTBuforTowarow::Kandydaci(const Indeks& indeks, const QString& tekst) {
  std::vector<int> towary;
  const auto [poczatek, koniec] = indeks.equal_range(Odcisk(tekst));
  for (auto para = poczatek; para != koniec; ++para) towary.push_back(para->second);
  std::sort(towary.begin(), towary.end());
  towary.erase(std::unique(towary.begin(), towary.end()), towary.end());
  return towary;
}
