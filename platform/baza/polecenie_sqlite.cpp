#include "platform/baza/polecenie_sqlite.h"

#include <soci/sqlite3/soci-sqlite3.h>

using namespace sqlite_api;  // where SOCI puts SQLite's own header

PolecenieSqlite::PolecenieSqlite(sqlite_api::sqlite3& polaczenie, std::string sql,
                                 std::span<const TypPola> kolumny, std::span<const Parametr> parametry)
    : Polecenie(std::move(sql), kolumny, parametry), m_polaczenie(polaczenie) {
  const int wynik = sqlite3_prepare_v2(&m_polaczenie, m_sql.c_str(), static_cast<int>(m_sql.size()) + 1,
                                       &m_polecenie, nullptr);
  if (wynik != SQLITE_OK) Rzuc(wynik);
  for (const std::string& nazwa : m_nazwy)
    m_indeksy.push_back(sqlite3_bind_parameter_index(m_polecenie, (':' + nazwa).c_str()));
}

PolecenieSqlite::~PolecenieSqlite() {
  sqlite3_finalize(m_polecenie);
}

void PolecenieSqlite::Wykonaj(std::span<const Parametr> parametry) {
  WymagajNazw(parametry);
  // A statement without columns has used the caller's values before this call returns.
  if (!m_kolumny.empty()) {
    m_parametry.resize(parametry.size());
    for (std::size_t i = 0; i < parametry.size(); ++i) m_parametry[i] = parametry[i].wartosc;
  }
  for (std::size_t i = 0; i < parametry.size(); ++i)
    Powiaz(m_indeksy[i], m_kolumny.empty() ? parametry[i].wartosc : m_parametry[i]);
  m_stan = Stan::WTrakcie;
  m_stan = Krok() ? Stan::PrzedPierwszym : Stan::Koniec;
}

void PolecenieSqlite::Powiaz(int indeks, const Wartosc& wartosc) {
  const int wynik = [&] {
    if (wartosc.m_pusta) return sqlite3_bind_null(m_polecenie, indeks);
    switch (wartosc.m_typ) {
      case TypPola::Calkowite:
        return sqlite3_bind_int64(m_polecenie, indeks, wartosc.m_calkowita);
      case TypPola::Dziesietne:
        return sqlite3_bind_double(m_polecenie, indeks, wartosc.m_dziesietna);
      default:
        return sqlite3_bind_text(m_polecenie, indeks, wartosc.m_tekst.data(),
                                 static_cast<int>(wartosc.m_tekst.size()), SQLITE_STATIC);
    }
  }();
  if (wynik != SQLITE_OK) Rzuc(wynik);
}

// True when the statement stands before a row.
bool PolecenieSqlite::Krok() {
  const int wynik = sqlite3_step(m_polecenie);
  if (wynik != SQLITE_ROW && wynik != SQLITE_DONE) Rzuc(wynik);
  return wynik == SQLITE_ROW;
}

bool PolecenieSqlite::Nastepny() {
  if (m_stan == Stan::WTrakcie && !Krok()) m_stan = Stan::Koniec;
  if (m_stan == Stan::PrzedPierwszym) m_stan = Stan::WTrakcie;
  if (m_stan != Stan::WTrakcie) return false;
  for (int i = 0; i < static_cast<int>(m_kolumny.size()); ++i) CzytajKolumne(i);
  return true;
}

void PolecenieSqlite::CzytajKolumne(int numer) {
  Wartosc& wartosc = m_kolumny[static_cast<std::size_t>(numer)];
  wartosc.m_pusta = sqlite3_column_type(m_polecenie, numer) == SQLITE_NULL;
  if (wartosc.m_pusta) return;
  switch (wartosc.m_typ) {
    case TypPola::Calkowite:
      wartosc.m_calkowita = sqlite3_column_int64(m_polecenie, numer);
      break;
    case TypPola::Dziesietne:
      wartosc.m_dziesietna = sqlite3_column_double(m_polecenie, numer);
      break;
    default: {
      const void* const tekst = sqlite3_column_text(m_polecenie, numer);
      const auto bajtow = static_cast<std::size_t>(sqlite3_column_bytes(m_polecenie, numer));
      wartosc.m_tekst.assign(static_cast<const char*>(tekst), bajtow);
    }
  }
}

long long PolecenieSqlite::Dotknietych() {
  return sqlite3_changes(&m_polaczenie);
}

void PolecenieSqlite::Zwolnij() noexcept {
  if (m_stan != Stan::Wolne) sqlite3_reset(m_polecenie);
  m_stan = Stan::Wolne;
  Zajete = false;
}

void PolecenieSqlite::Rzuc(int wynik) const {
  throw soci::sqlite3_soci_error(sqlite3_errmsg(&m_polaczenie), wynik);
}
