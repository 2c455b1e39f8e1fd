#include "platform/baza/polecenie_soci.h"

#include <soci/soci.h>

struct PolecenieSoci::Wnetrze {
  explicit Wnetrze(soci::session& sesja) : polecenie(sesja) {}

  soci::statement polecenie;
  std::vector<soci::indicator> wskaznikiParametrow;
  std::vector<soci::indicator> wskaznikiKolumn;
};

PolecenieSoci::PolecenieSoci(soci::session& sesja, std::string sql, std::span<const TypPola> kolumny,
                             std::span<const Parametr> parametry)
    : Polecenie(std::move(sql), kolumny, parametry), m(std::make_unique<Wnetrze>(sesja)) {
  m_parametry.reserve(parametry.size());
  for (const Parametr& p : parametry) m_parametry.emplace_back(p.wartosc.Typ());
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

PolecenieSoci::~PolecenieSoci() = default;

void PolecenieSoci::Przypisz(std::span<const Parametr> parametry) {
  WymagajNazw(parametry);
  for (std::size_t i = 0; i < parametry.size(); ++i) {
    m_parametry[i] = parametry[i].wartosc;
    m->wskaznikiParametrow[i] = m_parametry[i].m_pusta ? soci::i_null : soci::i_ok;
  }
}

void PolecenieSoci::Wykonaj(std::span<const Parametr> parametry) {
  Przypisz(parametry);
  m_stan = Stan::WTrakcie;
  const bool jest = m->polecenie.execute(true);
  m_stan = jest ? Stan::PrzedPierwszym : Stan::Koniec;
}

bool PolecenieSoci::Nastepny() {
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

long long PolecenieSoci::Dotknietych() {
  return m->polecenie.get_affected_rows();
}

void PolecenieSoci::Zwolnij() noexcept {
  m_stan = Stan::Wolne;
  Zajete = false;
}
