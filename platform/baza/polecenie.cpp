#include "platform/baza/polecenie.h"

#include <soci/soci.h>
#include <soci/sqlite3/soci-sqlite3.h>

struct Polecenie::Wnetrze {
  explicit Wnetrze(soci::session& sesja) : polecenie(sesja), sqlite(sesja.get_backend_name() == "sqlite3") {}

  soci::statement polecenie;
  const bool sqlite;
  std::vector<soci::indicator> wskaznikiParametrow;
  std::vector<soci::indicator> wskaznikiKolumn;
};

Polecenie::Polecenie(soci::session& sesja, const std::string& sql, std::span<const TypPola> kolumny,
                     std::span<const Parametr> parametry)
    : m_sql(sql), m(std::make_unique<Wnetrze>(sesja)) {
  m_parametry.reserve(parametry.size());
  for (const Parametr& p : parametry) {
    m_nazwy.emplace_back(p.nazwa);
    m_parametry.emplace_back(p.wartosc.Typ());
  }
  m_kolumny.reserve(kolumny.size());
  for (const TypPola typ : kolumny) m_kolumny.emplace_back(typ);
  m->wskaznikiParametrow.resize(parametry.size());
  m->wskaznikiKolumn.resize(kolumny.size());

  // The buffers are bound once; SOCI reads and writes them at every run.
  for (std::size_t i = 0; i < m_parametry.size(); ++i) {
    Wartosc& w = m_parametry[i];
    soci::indicator& wskaznik = m->wskaznikiParametrow[i];
    switch (w.m_typ) {
      case TypPola::Calkowite:
        m->polecenie.exchange(soci::use(w.m_calkowita, wskaznik, m_nazwy[i]));
        break;
      case TypPola::Dziesietne:
        m->polecenie.exchange(soci::use(w.m_dziesietna, wskaznik, m_nazwy[i]));
        break;
      default:
        m->polecenie.exchange(soci::use(w.m_tekst, wskaznik, m_nazwy[i]));
    }
  }
  for (std::size_t i = 0; i < m_kolumny.size(); ++i) {
    Wartosc& w = m_kolumny[i];
    soci::indicator& wskaznik = m->wskaznikiKolumn[i];
    switch (w.m_typ) {
      case TypPola::Calkowite:
        m->polecenie.exchange(soci::into(w.m_calkowita, wskaznik));
        break;
      case TypPola::Dziesietne:
        m->polecenie.exchange(soci::into(w.m_dziesietna, wskaznik));
        break;
      default:
        m->polecenie.exchange(soci::into(w.m_tekst, wskaznik));
    }
  }
  m->polecenie.alloc();
  m->polecenie.prepare(m_sql);
  m->polecenie.define_and_bind();
}

Polecenie::~Polecenie() = default;

void Polecenie::Przypisz(std::span<const Parametr> parametry) {
  if (parametry.size() != m_parametry.size()) throw soci::soci_error("wrong number of statement parameters");
  for (std::size_t i = 0; i < parametry.size(); ++i) {
    // Every caller of one text names the placeholders in one order: anything else is a mistake in the
    // program.
    if (m_nazwy[i] != parametry[i].nazwa) throw soci::soci_error("unexpected statement parameter");
    m_parametry[i] = parametry[i].wartosc;
    m->wskaznikiParametrow[i] = m_parametry[i].m_pusta ? soci::i_null : soci::i_ok;
  }
}

void Polecenie::Wykonaj(std::span<const Parametr> parametry) {
  Przypisz(parametry);
  m_stan = Stan::WTrakcie;
  const bool jest = m->polecenie.execute(true);
  m_stan = jest ? Stan::PrzedPierwszym : Stan::Koniec;
}

bool Polecenie::Nastepny() {
  switch (m_stan) {
    case Stan::PrzedPierwszym:
      m_stan = Stan::WTrakcie;
      break;
    case Stan::WTrakcie:
      if (!m->polecenie.fetch()) m_stan = Stan::Koniec;
      break;
    default:
      return false;
  }
  if (m_stan != Stan::WTrakcie) return false;
  for (std::size_t i = 0; i < m_kolumny.size(); ++i)
    m_kolumny[i].m_pusta = m->wskaznikiKolumn[i] == soci::i_null;
  return true;
}

long long Polecenie::Dotknietych() {
  return m->polecenie.get_affected_rows();
}

void Polecenie::Zwolnij() noexcept {
  if (m_stan != Stan::Wolne) {
    if (m->sqlite)
      sqlite_api::sqlite3_reset(
          static_cast<soci::sqlite3_statement_backend*>(m->polecenie.get_backend())->stmt_);
    m_stan = Stan::Wolne;
  }
  Zajete = false;
}
