#include "platform/baza/polecenie_odbc.h"

#include <algorithm>

#include "platform/baza/blad_bazy.h"
#include "platform/baza/dialekt.h"

namespace {

constexpr std::size_t kBuforTekstu = 256;
constexpr std::size_t kNajwiekszyBufor = 64 * 1024;
constexpr SQLULEN kZnakowCzasu = 19;

SQLUSMALLINT Numer(std::size_t indeks) {
  return static_cast<SQLUSMALLINT>(indeks + 1);
}

}  // namespace

PolecenieOdbc::PolecenieOdbc(soci::session& sesja, std::string sql, const Dialekt& jezyk,
                             std::span<const TypPola> kolumny, std::span<const Parametr> parametry)
    : Polecenie(std::move(sql), kolumny, parametry),
      m_polecenie(sesja),
      m_narodowe(jezyk.TekstyNarodowe()),
      m_wczytane(kolumny.size()) {
  m_parametry.reserve(parametry.size());
  for (const Parametr& p : parametry) m_parametry.emplace_back(p.wartosc.Typ());
  m_polecenie.alloc();
  m_polecenie.prepare(jezyk.Przeloz(m_sql));
  for (const std::string& nazwa : Sterownik().names_) {
    const auto parametr = std::find(m_nazwy.begin(), m_nazwy.end(), nazwa);
    if (parametr == m_nazwy.end()) throw soci::soci_error("a placeholder without a parameter");
    m_miejsca.push_back({static_cast<std::size_t>(parametr - m_nazwy.begin()), 0, nullptr, 0});
  }
  for (std::size_t i = 0; i < m_wczytane.size(); ++i) {
    const TypPola typ = m_kolumny[i].Typ();
    if (typ == TypPola::Tekst || typ == TypPola::Czas) m_wczytane[i].bufor.resize(kBuforTekstu);
    ZwiazKolumne(i);
  }
}

soci::odbc_statement_backend& PolecenieOdbc::Sterownik() {
  return *static_cast<soci::odbc_statement_backend*>(m_polecenie.get_backend());
}

void PolecenieOdbc::Sprawdz(SQLRETURN wynik, const char* co) {
  if (soci::is_odbc_error(wynik)) throw soci::odbc_soci_error(SQL_HANDLE_STMT, Sterownik().hstmt_, co);
}

SQLSMALLINT PolecenieOdbc::TypTekstu(SQLULEN bajtow) const {
  constexpr SQLULEN kNajdluzszyVarchar = 8000, kNajdluzszyNarodowy = 4000;
  if (m_narodowe) return bajtow > kNajdluzszyNarodowy ? SQL_WLONGVARCHAR : SQL_WVARCHAR;
  return bajtow > kNajdluzszyVarchar ? SQL_LONGVARCHAR : SQL_VARCHAR;
}

// The driver reads numbers where they are; a text may have moved or grown since the last run.
void PolecenieOdbc::ZwiazParametr(std::size_t ktory) {
  Miejsce& m = m_miejsca[ktory];
  Wartosc& w = m_parametry[m.parametr];
  const auto zwiaz = [&](SQLSMALLINT c, SQLSMALLINT sql, SQLULEN rozmiar, void* gdzie, SQLLEN bufor) {
    if (m.zwiazane == gdzie && m.rozmiar >= rozmiar) return;
    Sprawdz(SQLBindParameter(Sterownik().hstmt_, Numer(ktory), SQL_PARAM_INPUT, c, sql, rozmiar, 0, gdzie,
                             bufor, &m.dlugosc),
            "binding a parameter");
    m.zwiazane = gdzie;
    m.rozmiar = rozmiar;
  };
  switch (w.Typ()) {
    case TypPola::Calkowite:
      zwiaz(SQL_C_SBIGINT, SQL_BIGINT, 0, &w.m_calkowita, 0);
      m.dlugosc = 0;
      break;
    case TypPola::Dziesietne:
      zwiaz(SQL_C_DOUBLE, SQL_DOUBLE, 0, &w.m_dziesietna, 0);
      m.dlugosc = 0;
      break;
    default: {
      std::string& tekst = w.m_tekst;
      if (!w.IsNull() && tekst.find('\0') != std::string::npos)
        throw EBladBazy(RodzajBleduBazy::Ograniczenie,
                        QStringLiteral("Tekst zawiera znak o kodzie 0, którego baza danych nie przyjmuje"),
                        {});
      const SQLULEN rozmiar = std::max<SQLULEN>(tekst.size(), 1);
      if (w.Typ() == TypPola::Czas)
        zwiaz(SQL_C_CHAR, SQL_TYPE_TIMESTAMP, kZnakowCzasu, tekst.data(), 0);
      else
        zwiaz(SQL_C_CHAR, TypTekstu(rozmiar), rozmiar, tekst.data(), 0);
      m.dlugosc = static_cast<SQLLEN>(tekst.size());
    }
  }
  if (w.IsNull()) m.dlugosc = SQL_NULL_DATA;
}

void PolecenieOdbc::ZwiazKolumne(std::size_t ktora) {
  Kolumna& k = m_wczytane[ktora];
  Wartosc& w = m_kolumny[ktora];
  const auto zwiaz = [&](SQLSMALLINT c, void* gdzie, std::size_t rozmiar) {
    Sprawdz(SQLBindCol(Sterownik().hstmt_, Numer(ktora), c, gdzie, static_cast<SQLLEN>(rozmiar), &k.dlugosc),
            "binding a column");
  };
  switch (w.Typ()) {
    case TypPola::Calkowite:
      zwiaz(SQL_C_SBIGINT, &w.m_calkowita, sizeof(long long));
      break;
    case TypPola::Dziesietne:
      zwiaz(SQL_C_DOUBLE, &w.m_dziesietna, sizeof(double));
      break;
    default:
      zwiaz(SQL_C_CHAR, k.bufor.data(), k.bufor.size());
  }
}

void PolecenieOdbc::Wykonaj(std::span<const Parametr> parametry) {
  WymagajNazw(parametry);
  for (std::size_t i = 0; i < parametry.size(); ++i) m_parametry[i] = parametry[i].wartosc;
  for (std::size_t i = 0; i < m_miejsca.size(); ++i) ZwiazParametr(i);
  m_stan = Stan::WTrakcie;
  const bool jest = Sterownik().execute(1) == soci::details::statement_backend::ef_success;
  m_stan = jest && !m_kolumny.empty() ? Stan::PrzedPierwszym : Stan::Koniec;
}

bool PolecenieOdbc::Nastepny() {
  if (m_stan == Stan::PrzedPierwszym)
    m_stan = Stan::WTrakcie;
  else if (m_stan == Stan::WTrakcie && Sterownik().fetch(1) != soci::details::statement_backend::ef_success)
    m_stan = Stan::Koniec;
  if (m_stan != Stan::WTrakcie) return false;
  PrzyjmijWiersz();
  return true;
}

void PolecenieOdbc::PrzyjmijWiersz() {
  for (std::size_t i = 0; i < m_kolumny.size(); ++i) {
    Kolumna& k = m_wczytane[i];
    Wartosc& w = m_kolumny[i];
    w.m_pusta = k.dlugosc == SQL_NULL_DATA;
    if (k.bufor.empty() || w.IsNull()) continue;
    if (k.dlugosc < 0 || static_cast<std::size_t>(k.dlugosc) >= k.bufor.size())
      WczytajDlugi(i);
    else
      w.m_tekst.assign(k.bufor.data(), static_cast<std::size_t>(k.dlugosc));
  }
}

// A text that its buffer did not hold. The next rows get a larger one.
void PolecenieOdbc::WczytajDlugi(std::size_t ktora) {
  Kolumna& k = m_wczytane[ktora];
  if (k.dlugosc < 0) throw soci::soci_error("a text of unknown length");
  std::vector<char> caly(static_cast<std::size_t>(k.dlugosc) + 1);
  SQLLEN dlugosc = 0;
  Sprawdz(SQLGetData(Sterownik().hstmt_, Numer(ktora), SQL_C_CHAR, caly.data(),
                     static_cast<SQLLEN>(caly.size()), &dlugosc),
          "reading a long text");
  if (dlugosc + 1 != static_cast<SQLLEN>(caly.size()))
    throw soci::soci_error("a long text was not read whole");
  m_kolumny[ktora].m_tekst.assign(caly.data(), static_cast<std::size_t>(dlugosc));
  if (caly.size() > kNajwiekszyBufor) return;
  k.bufor.resize(std::min(kNajwiekszyBufor, caly.size() * 2));
  ZwiazKolumne(ktora);
}

long long PolecenieOdbc::Dotknietych() {
  return Sterownik().get_affected_rows();
}

// The driver keeps a whole result until it is told that nobody reads on.
void PolecenieOdbc::Zwolnij() noexcept {
  if (m_stan != Stan::Wolne) SQLFreeStmt(Sterownik().hstmt_, SQL_CLOSE);
  m_stan = Stan::Wolne;
  Zajete = false;
}
