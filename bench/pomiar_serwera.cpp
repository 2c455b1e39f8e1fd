#include "bench/pomiar_serwera.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <stdexcept>

#include <QProcess>

#include "bench/pomiar_eksportu.h"
#include "bench/porownanie.h"
#include "bench/serwer.h"
#include "bench/wiersze.h"

namespace {

constexpr const char* kImport = "import.cfg";
constexpr const char* kEksport = "eksport.cfg";
constexpr double kGranicaDodawania = 5;
constexpr double kGranicaIdentycznych = 3;
constexpr double kGranicaEksportu = 3;
constexpr double kPodrozyNaTowar = 2;
constexpr int kSkrocenie = 10;  // on the longer road so many times fewer goods

// What an import of goods leaves, in the order in which it may be copied. A trigger makes the stock rows, so
// they too are there to be written over.
constexpr const char* kSlowniki[] = {"Asort",    "JM",         "Magazyn", "Kategoria",
                                     "Parametr", "ParWartosc", "KatParam"};
constexpr struct {
  const char* nazwa;
  const char* klucz;
  const char* kolumny;
} kUpserty[] = {{"Towar", "TowId", KOLUMNY_TOWARU},
                {"KodDod", "TowId,Kolejnosc", KOLUMNY_KODU},
                {"Istw", "TowId,MagId", KOLUMNY_STANU},
                {"TowWartosc", "TowId,ParId", KOLUMNY_WARTOSCI_PARAMETRU},
                {"TowDostawca", "TowId,KontrId", KOLUMNY_DOSTAWCY}};
constexpr const char* kDziennik = "DziennikZmian";
constexpr const char* kPorownywane[] = {"Asort",      "JM",          "Magazyn", "Kategoria", "Parametr",
                                        "ParWartosc", "KatParam",    "Towar",   "KodDod",    "Istw",
                                        "TowWartosc", "TowDostawca", kDziennik};

// What the export reads of goods that have nothing but what the file gave them.
constexpr const char* kZlaczenie =
    "select T.Kod, T.Nazwa, T.Skrot, T.TypTowaru, T.Indeks1, T.Indeks2, T.Opis1, T.Opis2, T.Opis3, T.Opis4,"
    " T.IleWZgrzewce, T.IleWCalosci, T.TermWazn, T.PrefPLU, T.Marza, T.HurtRabat, T.NocNarzut, T.CenaEw,"
    " T.CenaDet, T.CenaHurt, T.CenaNoc, T.CenaDod, T.CenaOtwarta, T.Stawka, A.Nazwa, J.Nazwa, K.Kody,"
    " G.Nazwa || ': ' || W.Parametry, S.Stan, D.Nipy, T.Aktywny"
    " from Towar T left join Asort A on A.AsId = T.AsId left join JM J on J.JMId = T.JMId"
    " left join (select TowId, string_agg('(' || Kod || '|' || Skrot || '|' || PrefPLU || ')', ';'"
    "            order by Kolejnosc) as Kody from KodDod group by TowId) K on K.TowId = T.TowId"
    " left join Kategoria G on G.KatId = T.KatId"
    " left join (select V.TowId, string_agg(P.Nazwa || '(' || V.Wartosc || ':' ||"
    "              case P.Typ when 0 then L.Lista else P.Od || '..' || P.Do end || ')', ';'"
    "              order by V.ParId) as Parametry"
    "            from TowWartosc V join Parametr P on P.ParId = V.ParId"
    "            left join (select ParId, string_agg(Wartosc, '|' order by Kolejnosc) as Lista"
    "                       from ParWartosc group by ParId) L on L.ParId = V.ParId"
    "            group by V.TowId) W on W.TowId = T.TowId"
    " left join (select O.TowId, '(' || string_agg(N.NIP, '|' order by O.Kolejnosc) || ')' as Nipy"
    "            from TowDostawca O join Kontrahent N on N.KontrId = O.KontrId"
    "            group by O.TowId) D on D.TowId = T.TowId"
    " left join (select TowId, sum(StanMag) as Stan from Istw group by TowId) S on S.TowId = T.TowId"
    " order by T.TowId";

// "A,B" as what an upsert sets.
std::string Ustaw(const char* kolumny) {
  return std::regex_replace(kolumny, std::regex("[^,]+"), "$& = excluded.$&");
}

// The same goods by both programs, each in a database of its own.
class Seria {
 public:
  Seria(const Warsztat& warsztat, const Serwer& serwer, int ile)
      : m_warsztat(warsztat), m_serwer(serwer), m_ile(ile) {
    ImportTowarow().zapiszPlik(warsztat.Sciezka("towary.txt"), ile, false);
  }

  void Dodaj() {
    m_serwer.NowaBaza("zorvik");
    dodawanie.zorvik.push_back(Zorvik("import-towarow", "towary.txt", kImport, '.', "dodanych"));
    Wypisz("zorvik");  // psql's rows
    std::string skrypt;
    for (const char* tabela : kSlowniki) skrypt += Wczytaj(tabela, tabela);
    skrypt += Upserty() + Wczytaj(kDziennik, kDziennik);
    m_serwer.NowaBaza("wzorzec");
    dodawanie.wzorzec.push_back(m_serwer.Psql("wzorzec", skrypt));
    Porownaj("Dodawanie");
  }

  // After Dodaj, as the next.
  void Powtorz() {
    identyczne.zorvik.push_back(Zorvik("import-towarow", "towary.txt", kImport, '.', "bezZmian"));
    identyczne.wzorzec.push_back(m_serwer.Psql("wzorzec", Upserty()));
    Wypisz("zorvik");
    Porownaj("Powtórzenie");
  }

  void Eksportuj() {
    eksport.zorvik.push_back(Zorvik("eksport-towarow", "eksport.txt", kEksport, ',', "rekordow"));
    const std::string plik = m_warsztat.Sciezka("wzorzec.txt");
    eksport.wzorzec.push_back(
        m_serwer.Psql("zorvik", std::string("\\copy (") + kZlaczenie + ") to '" + plik + "'\n"));
    std::ifstream wiersze(plik, std::ios::binary);
    if (std::count(std::istreambuf_iterator<char>(wiersze), {}, '\n') != m_ile)
      throw std::runtime_error("psql nie wypisał tylu towarów, ile eksport");
  }

  Para dodawanie, identyczne, eksport;

 private:
  double Zorvik(const char* operacja, const char* plik, const char* konfiguracja, char separator,
                const char* licznik) const {
    return m_warsztat
        .Zorvik({operacja, plik, m_serwer.Polaczenie("zorvik"), konfiguracja, separator, licznik, m_ile})
        .sekund;
  }

  std::string Plik(const std::string& baza, const char* tabela) const {
    return m_warsztat.Sciezka(baza + '-' + tabela + ".txt");
  }

  std::string Wczytaj(const char* dokad, const char* tabela) const {
    return std::string("\\copy ") + dokad + " from '" + Plik("zorvik", tabela) + "'\n";
  }

  // All rows into a raw table, from there by one statement into the real one, where those that it has are
  // written over.
  std::string Upserty() const {
    std::string skrypt;
    for (const auto& [nazwa, klucz, kolumny] : kUpserty)
      skrypt += std::string("create table Surowe (like ") + nazwa + ");\n" + Wczytaj("Surowe", nazwa) +
                "insert into " + nazwa + " select * from Surowe on conflict (" + klucz + ") do update set " +
                Ustaw(kolumny) + ";\ndrop table Surowe;\n";
    return skrypt;
  }

  void Wypisz(const std::string& baza) const {
    std::string skrypt;
    for (const char* tabela : kPorownywane)
      skrypt +=
          std::string("\\copy (select * from ") + tabela + " W order by W) to '" + Plik(baza, tabela) + "'\n";
    m_serwer.Psql(baza, skrypt);
  }

  // With what was written of the product's database.
  void Porownaj(const char* po) const {
    Wypisz("wzorzec");
    for (const char* tabela : kPorownywane)
      if (!TeSameBajty(Plik("zorvik", tabela), Plik("wzorzec", tabela)))
        throw std::runtime_error(std::string(po) + ": zorvik i psql różnią się w tabeli " + tabela);
  }

  const Warsztat& m_warsztat;
  const Serwer& m_serwer;
  int m_ile;
};

// The longer road.
class Opozniacz {
 public:
  Opozniacz(const Warsztat& warsztat, const std::string& port, const char* ms) {
    m_program.start(QString::fromStdString(warsztat.Program("opozniacz")),
                    {QString::fromStdString(port), QString::fromLatin1(ms)});
    m_program.waitForReadyRead();
    m_port = m_program.readLine().trimmed().toStdString();
  }
  const std::string& Port() const { return m_port; }

  // Journeys made.
  int Zakoncz() {
    m_program.closeWriteChannel();
    m_program.waitForFinished();
    return m_program.readAll().trimmed().toInt();
  }

 private:
  QProcess m_program;
  std::string m_port;
};

void ZmierzPodroze(const Warsztat& warsztat, const Serwer& serwer, int ile, Tabela& tabela) {
  ImportTowarow().zapiszPlik(warsztat.Sciezka("podroze.txt"), ile, false);
  std::vector<double> podroze;
  const auto importuj = [&](const char* ms) {
    serwer.NowaBaza("zorvik");
    Opozniacz opozniacz(warsztat, serwer.Port(), ms);
    const double sekund =
        warsztat
            .Zorvik({"import-towarow", "podroze.txt", serwer.Polaczenie("zorvik", opozniacz.Port()), kImport,
                     '.', "dodanych", ile})
            .sekund;
    podroze.push_back(opozniacz.Zakoncz());
    if (podroze.back() <= 0) throw std::runtime_error("Opóźniacz nie zadziałał");
    return sekund;
  };
  Para czasy;  // with the delay and without
  for (int runda = 0; runda < kRund; ++runda) {
    czasy.zorvik.push_back(importuj("1"));
    czasy.wzorzec.push_back(importuj("0"));
  }
  const double podrozy = Mediana(podroze);
  tabela.Dodaj("podróże do serwera na towar, dodanie " + std::to_string(ile), Liczba("%.0f", podrozy), "",
               podrozy / ile, kPodrozyNaTowar);
  tabela.Informacja("(podróż dłuższa o 1 ms; wzorzec: nie dłuższa)", Sekundy(czasy.Zorvik()),
                    Sekundy(czasy.Wzorzec()), Liczba("%.2f", czasy.Stosunek()));
}

}  // namespace

void ZmierzSerwer(const Warsztat& warsztat, int ile, Tabela& tabela) {
  const Serwer serwer(warsztat);
  warsztat.ZapiszKonfiguracje(kImport, ImportTowarow().ustawienia);
  warsztat.ZapiszKonfiguracje(kEksport, EksportTowarow().ustawienia);
  Seria seria(warsztat, serwer, ile);
  for (int runda = 0; runda < kRund; ++runda) {
    seria.Dodaj();
    seria.Powtorz();
    seria.Eksportuj();
  }
  const std::string n = std::to_string(ile);
  tabela.Dodaj("serwer: dodanie " + n + " towarów (wzorzec: psql)", seria.dodawanie, kGranicaDodawania);
  tabela.Dodaj("serwer: " + n + " identycznych (wzorzec: psql)", seria.identyczne, kGranicaIdentycznych);
  tabela.Dodaj("serwer: eksport " + n + " towarów (wzorzec: psql)", seria.eksport, kGranicaEksportu);
  ZmierzPodroze(warsztat, serwer, std::max(ile / kSkrocenie, 1), tabela);
}
