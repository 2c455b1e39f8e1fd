#include "platform/baza/sesja.h"

#include <string>

#include "platform/baza/dialekt.h"
#include "platform/baza/polecenie.h"
#include "platform/baza/silnik.h"
#include "platform/baza/transakcja.h"
#include "platform/baza/zapytanie.h"
#include "platform/config.h"

struct TVLTBazaDanych::Wnetrze {
  ParametryPolaczenia polaczenie;
  Podsluch podsluch;
  std::unique_ptr<Silnik> silnik;
  long long zatwierdzen = 0;

  Silnik& Polaczony() const {
    if (!silnik)
      throw EBladBazy(RodzajBleduBazy::Polaczenie, QStringLiteral("Sesja nie jest otwarta"), QString());
    return *silnik;
  }
};

Odczyt::Odczyt(Silnik& silnik, std::shared_ptr<Polecenie> polecenie)
    : m_silnik(&silnik), m_polecenie(std::move(polecenie)) {}
Odczyt::Odczyt(Odczyt&& inny) noexcept = default;
Odczyt::~Odczyt() {
  if (m_polecenie) m_polecenie->Zwolnij();
}

bool Odczyt::Nastepny() {
  return m_silnik->Nastepny(*m_polecenie);
}
const Wartosc& Odczyt::operator[](std::size_t kolumna) const {
  return m_polecenie->Wiersz()[kolumna];
}

TVLTBazaDanych::TVLTBazaDanych() : m(std::make_unique<Wnetrze>()) {}
TVLTBazaDanych::TVLTBazaDanych(ParametryPolaczenia parametry) : TVLTBazaDanych() {
  UstawPolaczenie(std::move(parametry));
}
TVLTBazaDanych::~TVLTBazaDanych() {
  Odlacz();
}

bool TVLTBazaDanych::WczytajDomyslnePolaczenie() {
  const auto domyslne = ParametryPolaczenia::Domyslne();
  if (!domyslne) return false;
  UstawPolaczenie(*domyslne);
  return true;
}

void TVLTBazaDanych::UstawPolaczenie(ParametryPolaczenia parametry) {
  m->polaczenie = std::move(parametry);
}
const ParametryPolaczenia& TVLTBazaDanych::Parametry() const {
  return m->polaczenie;
}
bool TVLTBazaDanych::Polaczona() const {
  return m->silnik != nullptr;
}
QString TVLTBazaDanych::Nazwa() const {
  return m->silnik ? m->silnik->NazwaBazy() : QString();
}
const Dialekt& TVLTBazaDanych::Jezyk() const {
  return m->Polaczony().Jezyk();
}

void TVLTBazaDanych::Polacz() {
  Odlacz();
  const bool odbc = m->polaczenie.rodzaj == ParametryPolaczenia::Rodzaj::Odbc;
  m->silnik = (odbc ? PolaczOdbc : PolaczSqlite)(m->polaczenie, m->podsluch);
}

void TVLTBazaDanych::Odlacz() {
  if (GetCzyWTransakcji()) WycofTransakcji();
  m->silnik.reset();
}

long long TVLTBazaDanych::ExecSQL(std::string_view sql, std::initializer_list<Parametr> parametry) {
  return ExecSQL(sql, std::span<const Parametr>(parametry.begin(), parametry.size()));
}

long long TVLTBazaDanych::ExecSQL(std::string_view sql, std::span<const Parametr> parametry) {
  const auto polecenie = m->Polaczony().Wykonaj(sql, {}, parametry);
  const long long ile = polecenie->Dotknietych();
  polecenie->Zwolnij();
  return ile;
}

Odczyt TVLTBazaDanych::Otworz(std::string_view sql, std::initializer_list<TypPola> kolumny,
                              std::initializer_list<Parametr> parametry) {
  return Otworz(sql, std::span<const TypPola>(kolumny.begin(), kolumny.size()),
                std::span<const Parametr>(parametry.begin(), parametry.size()));
}

Odczyt TVLTBazaDanych::Otworz(std::string_view sql, std::span<const TypPola> kolumny,
                              std::span<const Parametr> parametry) {
  Silnik& silnik = m->Polaczony();
  return {silnik, silnik.Wykonaj(sql, kolumny, parametry)};
}

void TVLTBazaDanych::PowiazQuery(TKMQuery& query) {
  query.Powiaz(*this);
}

int TVLTBazaDanych::PobierzAutoId() {
  const Wartosc id = m->Polaczony().Zapytaj(Jezyk().OstatnieAutoId());
  return id.IsNull() ? -1 : static_cast<int>(id.AsInteger());
}

void TVLTBazaDanych::StartTransakcji() {
  m->Polaczony().Rozpocznij();
}

void TVLTBazaDanych::KoniecTransakcji() {
  m->Polaczony().Zatwierdz();
  ++m->zatwierdzen;
}

void TVLTBazaDanych::WycofTransakcji() noexcept {
  try {
    if (GetCzyWTransakcji()) m->silnik->Wycofaj();
  } catch (...) {
  }
}

bool TVLTBazaDanych::GetCzyWTransakcji() const {
  return m->silnik && m->silnik->WTransakcji();
}

void TVLTBazaDanych::UstawPunkt(int poziom) {
  m->Polaczony().UstawPunkt(poziom);
}

void TVLTBazaDanych::ZwolnijPunkt(int poziom) {
  m->Polaczony().ZwolnijPunkt(poziom);
}

void TVLTBazaDanych::WycofDoPunktu(int poziom) noexcept {
  try {
    m->Polaczony().WycofDoPunktu(poziom);
    ZwolnijPunkt(poziom);
  } catch (...) {
    // Half a unit must not be committed with what surrounds it.
    WycofTransakcji();
  }
}

long long TVLTBazaDanych::ZnacznikObcychZmian() {
  return m->Polaczony().ZnacznikObcychZmian();
}

long long TVLTBazaDanych::LiczbaZatwierdzen() const {
  return m->zatwierdzen;
}

void TVLTBazaDanych::Utrwal() {
  m->Polaczony().Utrwal();
}

void TVLTBazaDanych::RejestrujZmiane(int tabela, const QString& opis, int id1, int id2) {
  ExecSQL(
      "insert into DziennikZmian (Czas, Tabela, Opis, Id1, Id2)"
      " values (getdate(), :Tabela, :Opis, :Id1, :Id2)",
      {{"Tabela", tabela}, {"Opis", opis}, {"Id1", id1}, {"Id2", id2}});
}

void TVLTBazaDanych::WczytajKonfiguracje(const QString& nazwa, TMConfig& config) {
  auto odczyt = Otworz("select Parametr, Wartosc from Konfiguracja where Nazwa = :Nazwa order by Kolejnosc",
                       {TypPola::Tekst, TypPola::Tekst}, {{"Nazwa", nazwa}});
  while (odczyt.Nastepny()) config.Ustaw(odczyt[0].AsString(), odczyt[1].AsString());
}

void TVLTBazaDanych::ZapiszKonfiguracje(const QString& nazwa, const TMConfig& config) {
  JednostkaZapisu jednostka(*this);
  ExecSQL("delete from Konfiguracja where Nazwa = :Nazwa", {{"Nazwa", nazwa}});
  int kolejnosc = 0;
  for (const TMCfgParam& parametr : config.Params())
    ExecSQL(
        "insert into Konfiguracja (Nazwa, Kolejnosc, Parametr, Wartosc)"
        " values (:Nazwa, :Kolejnosc, :Parametr, :Wartosc)",
        {{"Nazwa", nazwa},
         {"Kolejnosc", kolejnosc++},
         {"Parametr", parametr.Nazwa()},
         {"Wartosc", parametr.Wartosc()}});
  jednostka.Zatwierdz();
}

void TVLTBazaDanych::UstawPodsluch(Podsluch podsluch) {
  m->podsluch = std::move(podsluch);
}
