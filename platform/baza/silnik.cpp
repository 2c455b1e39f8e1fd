#include "platform/baza/silnik.h"

#include <soci/error.h>

#include "platform/baza/dialekt.h"
#include "platform/baza/polecenie.h"

namespace {

// "insert into Towar": enough to name the table, too little to hold a value.
QString OpisOperacji(std::string_view sql) {
  constexpr int kSlow = 3;
  return QString::fromUtf8(sql.data(), static_cast<qsizetype>(std::min<std::size_t>(sql.size(), 200)))
      .simplified()
      .section(QLatin1Char(' '), 0, kSlow - 1);
}

}  // namespace

Silnik::Silnik(const Podsluch& podsluch) : m_podsluch(podsluch) {}
Silnik::~Silnik() = default;

void Silnik::Oglos(std::string_view sql) const {
  if (m_podsluch) m_podsluch(sql);
}

void Silnik::Rzuc(const soci::soci_error& blad, std::string_view sql) {
  const PrzyczynaBledu przyczyna = Rozpoznaj(blad);
  const QString operacja = OpisOperacji(sql);
  throw EBladBazy(
      przyczyna.rodzaj, przyczyna.powod,
      przyczyna.szczegoly + (operacja.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(operacja)));
}

std::shared_ptr<Polecenie> Silnik::Wolne(std::string_view sql, std::span<const TypPola> kolumny,
                                         std::span<const Parametr> parametry) {
  m_klucz.assign(sql);
  for (const Parametr& p : parametry) m_klucz += static_cast<char>(1 + static_cast<int>(p.wartosc.Typ()));
  m_klucz += '\x10';
  for (const TypPola typ : kolumny) m_klucz += static_cast<char>(1 + static_cast<int>(typ));
  // A text that is being read by somebody gets a second statement.
  const auto [poczatek, koniec] = m_polecenia.equal_range(m_klucz);
  for (auto p = poczatek; p != koniec; ++p)
    if (!p->second->Zajete) return p->second;
  return m_polecenia.emplace(m_klucz, Przygotuj(std::string(sql), kolumny, parametry))->second;
}

std::shared_ptr<Polecenie> Silnik::Wykonaj(std::string_view sql, std::span<const TypPola> kolumny,
                                           std::span<const Parametr> parametry) {
  Oglos(sql);
  try {
    auto polecenie = Wolne(sql, kolumny, parametry);
    polecenie->Zajete = true;
    try {
      polecenie->Wykonaj(parametry);
    } catch (...) {
      polecenie->Zwolnij();
      throw;
    }
    return polecenie;
  } catch (const soci::soci_error& blad) {
    Rzuc(blad, sql);
  }
}

bool Silnik::Nastepny(Polecenie& polecenie) {
  try {
    return polecenie.Nastepny();
  } catch (const soci::soci_error& blad) {
    Rzuc(blad, polecenie.Sql());
  }
}

Wartosc Silnik::Zapytaj(std::string_view sql, TypPola typ) {
  const auto polecenie = Wykonaj(sql, {&typ, 1}, {});
  Wartosc wartosc(typ);
  if (Nastepny(*polecenie)) wartosc = polecenie->Wiersz().front();
  polecenie->Zwolnij();
  return wartosc;
}

void Silnik::Steruj(const std::string& sql) {
  if (!sql.empty()) Wykonaj(sql, {}, {})->Zwolnij();
}

void Silnik::ZakonczOdczyt() {
  if (WTransakcji()) Wycofaj();
}

bool Silnik::KopiujDo(const QString& /*plik*/, const PostepKopii& /*postep*/) {
  throw EBladBazy(RodzajBleduBazy::Inny, QStringLiteral("Bazę na serwerze kopiuje program serwera"), {});
}

void Silnik::UstawPunkt(int poziom) {
  Steruj(Jezyk().UstawPunkt(poziom));
}

void Silnik::ZwolnijPunkt(int poziom) {
  Steruj(Jezyk().ZwolnijPunkt(poziom));
}

void Silnik::WycofDoPunktu(int poziom) {
  Steruj(Jezyk().WycofDoPunktu(poziom));
}
