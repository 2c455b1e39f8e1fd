#include "goods/stany.h"

#include "model/kontekst.h"
#include "model/magazyny.h"
#include "model/zakresy.h"
#include "platform/baza/lista_id.h"
#include "platform/baza/sesja.h"
#include "platform/baza/transakcja.h"
#include "platform/liczby.h"
#include "run/liczniki.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Stocks are written with six decimals; compared in that form, a longer number in a file is the same every
// time.
double JakZapisana(double ilosc) {
  return liczby::Liczba(liczby::Lf(ilosc), '.').value_or(ilosc);
}

}  // namespace

void Stany::WczytajMagazyny() {
  TDmVLTListaMagazynow lista(m_sesja);
  lista.Otworz();
  if (lista.Ilosc() == 0) {
    // Looked up again inside the write transaction, where nobody else makes the same warehouse.
    JednostkaZapisu jednostka(m_sesja.baza);
    lista.Otworz();
    if (lista.Ilosc() == 0) {
      TDmVLTMagazyn magazyn(m_sesja);
      magazyn.Nowy();
      magazyn.UstawNazwe(u"Magazyn nr 1"_s);
      magazyn.Zapisz();
      lista.Przyjmij(magazyn);
    }
    jednostka.Zatwierdz();
  }
  m_magazyny.clear();
  for (int i = 0; i < lista.Ilosc(); ++i) {
    lista.UstawPozycje(i);
    m_magazyny.push_back(lista.IdBiezacego());
  }
}

std::optional<int> Stany::Magazyn(int n) const {
  if (n < 1 || n > static_cast<int>(m_magazyny.size())) return std::nullopt;
  return m_magazyny[static_cast<std::size_t>(n - 1)];
}

void Stany::CzytajZWyprzedzeniem(std::span<const int> towary, int n) {
  const auto magId = Magazyn(n);
  if (!magId || towary.empty()) return;
  static const std::string sql =
      "select TowId, StanMag from ISTW where MagId = :MagId and TowId " + ListaId::Warunek();
  const ListaId lista(towary);
  std::vector<Parametr> parametry{{"MagId", *magId}};
  parametry.insert(parametry.end(), lista.Parametry().begin(), lista.Parametry().end());
  constexpr TypPola kKolumny[] = {TypPola::Calkowite, TypPola::Dziesietne};
  for (auto odczyt = m_sesja.baza.Otworz(sql, kKolumny, parametry); odczyt.Nastepny();)
    m_odczytane[{static_cast<int>(odczyt[0].AsInteger()), n}] = odczyt[1].AsFloat();
}

double Stany::Obecny(int towId, int n, int magId) {
  if (const auto odczytany = m_odczytane.extract({towId, n})) return odczytany.mapped();
  auto odczyt = m_sesja.baza.Otworz("select StanMag from ISTW where TowId = :TowId and MagId = :MagId",
                                    {TypPola::Dziesietne}, {{"TowId", towId}, {"MagId", magId}});
  return odczyt.Nastepny() ? odczyt[0].AsFloat() : 0;
}

void Stany::WymagajIlosci(int n, double ilosc) const {
  if (Magazyn(n)) WymagajZakresu(ilosc);
}

bool Stany::Ustaw(int towId, int n, double ilosc) {
  const auto magId = Magazyn(n);
  if (!magId) return false;
  const double nowa = JakZapisana(WymagajZakresu(ilosc));
  if (nowa == Obecny(towId, n, *magId)) return false;
  JednostkaZapisu jednostka(m_sesja.baza);
  m_sesja.baza.Popraw("update ISTW set StanMag = :StanMag where TowId = :TowId and MagId = :MagId",
                      {{"StanMag", nowa}, {"TowId", towId}, {"MagId", *magId}});
  jednostka.Zatwierdz();
  m_liczniki.Zwieksz(Licznik::Stany);
  return true;
}
