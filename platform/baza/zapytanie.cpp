#include "platform/baza/zapytanie.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "platform/baza/sesja.h"

// A value that stays the same costs no copy of the old one: most fields of an import do.
void TMField::Przyjmij(Wartosc nowa) {
  if (nowa == m_wartosc) return;
  if (!m_zmienione) {
    if (m_stara)
      *m_stara = std::move(m_wartosc);
    else
      m_stara = std::make_unique<Wartosc>(std::move(m_wartosc));
    m_zmienione = true;
  }
  m_wartosc = std::move(nowa);
}

void TMField::SetInteger(long long wartosc) {
  Wartosc nowa(m_opis->typ);
  nowa.SetInteger(wartosc);
  Przyjmij(std::move(nowa));
}

void TMField::SetFloat(double wartosc) {
  Wartosc nowa(m_opis->typ);
  nowa.SetFloat(wartosc);
  Przyjmij(std::move(nowa));
}

void TMField::SetString(const QString& wartosc) {
  Wartosc nowa(m_opis->typ);
  nowa.SetString(wartosc);
  Przyjmij(std::move(nowa));
}

void TMField::Clear() {
  Przyjmij(Wartosc(m_opis->typ));
}

bool TMField::Zmienione() const {
  return m_zmienione && !(*m_stara == m_wartosc);
}

void TMField::Wczytaj(const Wartosc& wartosc) {
  m_wartosc = wartosc;
  m_zmienione = false;
}

void TMField::Odswiez(const Wartosc& wartosc) {
  if (m_zmienione)
    *m_stara = wartosc;
  else
    m_wartosc = wartosc;
}

void TMField::Oproznij() {
  m_wartosc.Clear();
  m_zmienione = false;
}

TMCustomDataSet::TMCustomDataSet(std::span<const OpisPola> pola) : m_opisy(pola) {}

void TMCustomDataSet::MoveTo(int indeks) {
  if (indeks < 0 || indeks >= RecordCount()) throw std::out_of_range("TMCustomDataSet::MoveTo");
  m_biezacy = indeks;
}

void TMCustomDataSet::Append() {
  std::vector<TMField>& wiersz = m_wiersze.emplace_back(std::move(m_wolny));
  m_wolny.clear();
  wiersz.reserve(m_opisy.size());
  for (TMField& pole : wiersz) pole.Oproznij();
  for (std::size_t i = wiersz.size(); i < m_opisy.size(); ++i) wiersz.emplace_back(m_opisy[i]);
  m_biezacy = RecordCount() - 1;
  m_zmianyWierszy = true;
}

std::size_t TMCustomDataSet::IndexOf(std::string_view nazwa) const {
  for (std::size_t i = 0; i < m_opisy.size(); ++i)
    if (m_opisy[i].nazwa == nazwa) return i;
  throw std::out_of_range("no column " + std::string(nazwa));
}

void TKMQuery::SetParam(const char* nazwa, Wartosc wartosc) {
  for (Parametr& p : m_parametry)
    if (std::string_view(p.nazwa) == nazwa) {
      p.wartosc = std::move(wartosc);
      return;
    }
  m_parametry.push_back({nazwa, std::move(wartosc)});
}

void TKMQuery::Open() {
  if (!m_baza)
    throw EBladBazy(RodzajBleduBazy::Polaczenie, QStringLiteral("Sesja nie jest otwarta"), QString());
  Close();
  if (!m_otwierajPusty) {
    try {
      CzytajWiersze();
    } catch (...) {
      Close();  // half a result is none
      throw;
    }
  }
  m_aktywny = true;
  m_zmianyWierszy = false;
}

void TKMQuery::OpenZ(std::span<const Wartosc> wiersz) {
  Close();
  Append();
  UstawWiersz(wiersz);
  m_aktywny = true;
  m_zmianyWierszy = false;
}

void TKMQuery::CzytajWiersze() {
  Odczyt odczyt = m_baza->Otworz(m_sql, Typy(), m_parametry);
  while (odczyt.Nastepny()) {
    Append();
    std::vector<TMField>& wiersz = m_wiersze.back();
    for (std::size_t i = 0; i < wiersz.size(); ++i) wiersz[i].Wczytaj(odczyt[i]);
    if (m_tylkoPierwszy) break;
  }
  m_biezacy = m_wiersze.empty() ? -1 : 0;
}

void TKMQuery::Odswiez(std::span<const Wartosc> wartosci) {
  std::vector<TMField>& wiersz = m_wiersze[static_cast<std::size_t>(m_biezacy)];
  for (std::size_t i = 0; i < wartosci.size(); ++i) wiersz[i].Odswiez(wartosci[i]);
}

bool TKMQuery::OdswiezZ(const std::string& select, std::size_t kolumn) {
  Odczyt odczyt = m_baza->Otworz(select, Typy(), m_parametry);
  if (!odczyt.Nastepny()) return false;
  std::vector<TMField>& wiersz = m_wiersze[static_cast<std::size_t>(m_biezacy)];
  for (std::size_t i = 0; i < kolumn; ++i) wiersz[i].Odswiez(odczyt[i]);
  return true;
}

std::span<const TypPola> TKMQuery::Typy() {
  if (m_typy.empty())
    for (const OpisPola& opis : m_opisy) m_typy.push_back(opis.typ);
  return m_typy;
}

void TKMQuery::Close() {
  if (!m_wiersze.empty()) m_wolny = std::move(m_wiersze.front());
  m_wiersze.clear();
  m_biezacy = -1;
  m_aktywny = false;
  m_zmianyWierszy = false;
}

void TKMQuery::UstawWiersz(std::span<const Wartosc> wartosci) {
  std::vector<TMField>& wiersz = m_wiersze[static_cast<std::size_t>(m_biezacy)];
  for (std::size_t i = 0; i < wiersz.size(); ++i) wiersz[i].Wczytaj(wartosci[i]);
}

bool TKMQuery::GetUpdatesPending() const {
  if (m_zmianyWierszy) return true;
  return std::any_of(m_wiersze.begin(), m_wiersze.end(), [](const std::vector<TMField>& wiersz) {
    return std::any_of(wiersz.begin(), wiersz.end(), [](const TMField& pole) { return pole.Zmienione(); });
  });
}

void TKMQuery::ZatwierdzZmiany() {
  for (std::vector<TMField>& wiersz : m_wiersze)
    for (TMField& pole : wiersz) pole.m_zmienione = false;
  m_zmianyWierszy = false;
}

void TKMQuery::ZatwierdzWiersz() {
  for (TMField& pole : m_wiersze[static_cast<std::size_t>(m_biezacy)]) pole.m_zmienione = false;
  m_zmianyWierszy = false;
}
