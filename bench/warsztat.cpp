#include "bench/warsztat.h"

#include <fstream>
#include <stdexcept>

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "bench/baza.h"
#include "bench/dane.h"
#include "bench/proces.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kPlikDostawcow = "dostawcy.txt";
constexpr const char* kKonfiguracjaDostawcow = "dostawcy.cfg";

}  // namespace

Warsztat::Warsztat(const fs::path& programy)
    : m_programy(programy), m_folder(programy.parent_path() / "dane") {
  fs::remove_all(m_folder);
  fs::create_directories(m_folder);
  Uruchom({Program("zorvik-cli"), "nowa-baza", Sciezka(kPusta)});
  ZapiszPlikKontrahentow(Sciezka(kPlikDostawcow), kDostawcow, false);
  ZapiszKonfiguracje(kKonfiguracjaDostawcow, UstawieniaImportuKontrahentow());
  KopiujBaze(kPusta, kZDostawcami);
  WczytajDostawcow(kZDostawcami);
  sqlite::Wykonaj(sqlite::Otworz(Sciezka(kZDostawcami)), kBezDziennika);
}

void Warsztat::WczytajDostawcow(const std::string& baza) const {
  Zorvik({"import-kontrahentow", kPlikDostawcow, baza, kKonfiguracjaDostawcow, '.', "dodanych", kDostawcow});
}

void Warsztat::KopiujBaze(const std::string& skad, const std::string& dokad) const {
  for (const char* koncowka : {"-wal", "-shm"}) fs::remove(Sciezka(dokad + koncowka));
  fs::copy_file(Sciezka(skad), Sciezka(dokad), fs::copy_options::overwrite_existing);
}

void Warsztat::ZapiszKonfiguracje(const std::string& nazwa, const Ustawienia& ustawienia) const {
  std::ofstream(Sciezka(nazwa), std::ios::binary) << PlikKonfiguracji(ustawienia);
}

Zuzycie Warsztat::Zorvik(const Zadanie& z) const {
  const bool serwer = z.baza.starts_with("odbc:");
  const Przebieg przebieg =
      Uruchom({Program("zorvik-cli"), z.operacja, Sciezka(z.plik), "--baza",
               serwer ? z.baza : Sciezka(z.baza), "--konfiguracja", Sciezka(z.konfiguracja), "--pominiete",
               m_folder.string(), "--separator-dziesietny", std::string(1, z.separator), "--json"},
              {"LD_PRELOAD=" + Program("liblicznik.so"), "LICZNIK_PLIK=" + Sciezka("licznik.txt")});
  const auto wynik = QJsonDocument::fromJson(QByteArray::fromStdString(przebieg.wyjscie)).object();
  const int policzono = wynik.value(QLatin1String(z.licznik)).toInt();
  if (policzono != z.ile)
    throw std::runtime_error(z.operacja + ' ' + z.plik + ": " + z.licznik + " = " +
                             std::to_string(policzono) + ", powinno być " + std::to_string(z.ile));
  long oczekiwan = 0;
  double stronyB = 0, pamiecKb = 0;
  std::ifstream(Sciezka("licznik.txt")) >> oczekiwan >> stronyB >> pamiecKb;
  if ((!serwer && stronyB <= 0) || pamiecKb <= 0) throw std::runtime_error("Licznik nie zadziałał");
  return {przebieg.sekund, przebieg.procesora, oczekiwan, pamiecKb / 1024, stronyB / 1024 / 1024};
}

double Warsztat::Wzorzec(const std::string& tryb, const std::string& baza, const std::string& plik) const {
  return Uruchom({Program("wzorzec"), tryb, Sciezka(baza), Sciezka(plik)}).sekund;
}
