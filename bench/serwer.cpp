#include "bench/serwer.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "bench/proces.h"

namespace {

constexpr const char* kZmienna = "ZORVIK_TEST_ODBC";
constexpr const char* kPusta = "pusta";

}  // namespace

Serwer::Serwer(const Warsztat& warsztat)
    : m_warsztat(warsztat), m_polaczenie(RozbierzNapisOdbc(qEnvironmentVariable(kZmienna))) {
  Zaloz(kPusta, "template0");
  Uruchom({m_warsztat.Program("zorvik-cli"), "nowa-baza", Polaczenie(kPusta)});
  m_warsztat.WczytajDostawcow(Polaczenie(kPusta));
  Psql(kPusta, Warsztat::kBezDziennika + std::string(";\n"));
}

void Serwer::NowaBaza(const std::string& nazwa) const {
  Zaloz(nazwa, kPusta);
}

void Serwer::Zaloz(const std::string& nazwa, const std::string& wzor) const {
  Psql("postgres",
       "drop database if exists " + nazwa + ";\ncreate database " + nazwa + " template " + wzor + ";\n");
}

std::string Serwer::Wartosc(const char* klucz) const {
  for (const AtrybutOdbc& a : m_polaczenie)
    if (a.klucz == QLatin1String(klucz)) return a.wartosc.toStdString();
  throw std::runtime_error(std::string(kZmienna) + " nie wskazuje serwera: brak " + klucz);
}

std::string Serwer::Polaczenie(const std::string& baza, const std::string& port) const {
  const std::string plik = m_warsztat.Sciezka(baza + '-' + port + ".odbc");
  std::vector<AtrybutOdbc> atrybuty = m_polaczenie;
  // The last of two equal keys holds. Unencrypted as by psql below, or the proxy would count the greetings.
  atrybuty.insert(atrybuty.end(), {{QStringLiteral("Database"), QString::fromStdString(baza)},
                                   {QStringLiteral("Port"), QString::fromStdString(port)},
                                   {QStringLiteral("SSLmode"), QStringLiteral("disable")}});
  std::ofstream(plik) << ZlozNapisOdbc(atrybuty).toStdString() << '\n';
  std::filesystem::permissions(plik,
                               std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  return "odbc:@" + plik;
}

double Serwer::Psql(const std::string& baza, const std::string& skrypt) const {
  const std::string plik = m_warsztat.Sciezka("psql.sql");
  std::ofstream(plik) << skrypt;
  return Uruchom({"psql", "-X", "-q", "-v", "ON_ERROR_STOP=1", "-d", baza, "-f", plik},
                 {"PGHOST=" + Wartosc("Server"), "PGPORT=" + Port(), "PGUSER=" + Wartosc("UID"),
                  "PGPASSWORD=" + Wartosc("PWD"), "PGSSLMODE=disable", "PGCLIENTENCODING=UTF8"})
      .sekund;
}
