#include <fstream>

#include <sys/stat.h>
#include <unistd.h>

#include "exchange/czytnik.h"
#include "model/kontekst.h"
#include "model/parametry_systemu.h"
#include "platform/baza/transakcja.h"
#include "run/przebieg_importu.h"
#include "tests/wspolne/baza_testowa.h"
#include "tests/wspolne/przebieg_testowy.h"

namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;

constexpr PozycjaPodsumowania kPodsumowanie[] = {{Licznik::Dodane, u"Dodanych "},
                                                 {Licznik::Pominiete, u"Pominiętych "}};
constexpr OpisPrzebiegu kOpis{u"POMINIETE.TXT", u"zamykanie", u"Zakończono", kPodsumowanie};

// Stores the name of every record; "zly" is refused, "pytanie" asks first, "stop" ends the run.
class PrzebiegProbny final : public PrzebiegImportu {
 public:
  PrzebiegProbny(const ParametryPrzebiegu& parametry, const std::function<void()>& poRekordzie)
      : PrzebiegImportu(parametry, kOpis, {PoleTowaru::Kod, PoleTowaru::Nazwa}), m_poRekordzie(poRekordzie) {}

 protected:
  bool PrzygotujBufory() override { return true; }
  void PrzedRekordami() override {}
  PoRekordzie Rekord(const RekordPliku& rekord) override {
    LiniaRekordu linia = rekord.Linia();
    const QString kod = linia.Tekst();
    const QString nazwa = linia.Tekst();
    m_raport.NowyRekord(kod, nazwa);
    if (nazwa == u"stop") return PoRekordzie::Stop;
    if (nazwa == u"pytanie") Operator().PodajTekst({u"Uwaga"_s, u"Nazwa?"_s});
    if (nazwa == u"zły") {
      m_raport.Zglos(u"Żle"_s, false);
      m_raport.Zglos(u"Bardzo źle"_s);
      m_raport.Zglos(u"Najgorzej"_s);
    } else {
      JednostkaZapisu jednostka(Parametry().sesja.baza);
      Parametry().sesja.baza.ExecSQL("insert into Proba (Nazwa) values (:Nazwa)", {{"Nazwa", nazwa}});
      jednostka.Zatwierdz();
      m_liczniki.Zwieksz(Licznik::Dodane);
    }
    m_poRekordzie();
    return PoRekordzie::Dalej;
  }

 private:
  const std::function<void()>& m_poRekordzie;
};

class PrzebiegTest : public testing::Test {
 protected:
  PrzebiegTest() {
    struktura.CBTypPliku = TypPliku::Rozdzielany;
    struktura.separator = u";"_s;
    struktura.CBNieAnalizujPierwszejLinii = false;
    struktura.pola = {WpisPola(u"00"_s), WpisPola(u"01"_s)};
    baza.baza.ExecSQL("create table Proba (Nazwa text)");
  }

  WynikPrzebiegu Uruchom(const QByteArray& tresc) {
    QFile plik(folder.filePath(u"plik.txt"_s));
    EXPECT_TRUE(plik.open(QIODevice::WriteOnly));
    plik.write(tresc);
    plik.close();
    return Wykonaj(plik.fileName());
  }
  WynikPrzebiegu Wykonaj(const QString& sciezka) {
    PrzebiegProbny przebieg({sesja, struktura, sciezka, postep, oper, stop, '.', folder.path()}, poRekordzie);
    return przebieg.Wykonaj();
  }
  static QByteArray Rekordy(int ile) {
    QByteArray tresc;
    for (int i = 1; i <= ile; ++i) tresc += QByteArray::number(i) + ";nazwa\n";
    return tresc;
  }
  long long Zapisanych() { return baza.Liczba("select count(*) from Proba"); }
  QByteArray Pominiete() { return Zawartosc(folder.filePath(u"POMINIETE.TXT"_s)); }

  QTemporaryDir folder;
  BazaTestowa baza;
  ParametrySystemu parametry;
  KontekstSesji sesja{baza.baza, parametry};
  StrukturaPliku struktura{RodzajRekordu::Towary};
  PostepTestowy postep;
  OperatorTestowy oper;
  std::atomic<bool> stop{false};
  std::function<void()> poRekordzie = [] {};
};

TEST_F(PrzebiegTest, CalyPlik) {
  const WynikPrzebiegu wynik = Uruchom("1;chleb\n#\n2;z\xB3y\n3;mleko\n");  // "zły"
  EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Zakonczono);
  EXPECT_TRUE(postep.linie.contains(u"Numer aktualnego rekordu 3"_s));
  EXPECT_TRUE(postep.koniec);
  EXPECT_EQ(wynik.komunikaty.size(), 1u);
  EXPECT_EQ(Zapisanych(), 2);
  EXPECT_EQ(Pominiete(), "2 | z\xB3y | \xAFle\r\n2 | z\xB3y | Bardzo \x9Fle\r\n2 | z\xB3y | Najgorzej\r\n");
  EXPECT_EQ(baza.baza.LiczbaZatwierdzen(), 1);
  EXPECT_EQ(QFileInfo(baza.Sciezka() + u"-wal"_s).size(), 0) << "what is saved lies in the database file";
  Uruchom(Rekordy(2 * PaczkaZapisow::kNajwiecejRekordow + 1));
  EXPECT_EQ(baza.baza.LiczbaZatwierdzen(), 1 + 3);
}

TEST_F(PrzebiegTest, OdmowaPrzedPrzebiegiem) {
  const auto w = [this](const QString& nazwa) { return folder.filePath(nazwa).toStdString(); };
  std::ofstream(w(u"POMINIECI.TXT"_s)) << "1;a\n";
  const std::string baza1 = baza.Sciezka().toStdString();
  EXPECT_EQ(link(w(u"POMINIECI.TXT"_s).c_str(), w(u"twarde"_s).c_str()), 0);
  EXPECT_EQ(link(baza1.c_str(), w(u"baza"_s).c_str()), 0);
  EXPECT_EQ(symlink((baza1 + "-wal").c_str(), w(u"dziennik"_s).c_str()), 0);
  EXPECT_EQ(mkfifo(w(u"potok"_s).c_str(), 0600), 0);
  const std::pair<QString, QString> przypadki[] = {
      {u"/nie/ma"_s, u"UWAGA: Plik /nie/ma nie istnieje"_s},
      {folder.path(), u"UWAGA: %1 jest folderem, a nie plikiem\n"_s.arg(folder.path())},
      {folder.filePath(u"potok"_s), u" jest potokiem, a nie plikiem\n"_s},
      {u"/dev/zero"_s, u"UWAGA: /dev/zero jest urządzeniem, a nie plikiem\n"_s},
      {folder.filePath(u"twarde"_s), u"/twarde jest plikiem pominiętych rekordów\n"_s},
      {folder.filePath(u"baza"_s), u"/baza jest plikiem bazy danych\n"_s},
      {folder.filePath(u"dziennik"_s), u"/dziennik jest plikiem bazy danych\n"_s}};
  for (const TypPliku typ : {TypPliku::Rozdzielany, TypPliku::DBase})
    for (const auto& [plik, tekst] : przypadki) {
      struktura.CBTypPliku = typ;
      postep.linie.clear();
      EXPECT_EQ(Wykonaj(plik).koniec, KoniecPrzebiegu::Odmowa);
      EXPECT_TRUE(postep.linie.join(u'|').contains(tekst)) << postep.linie.join(u'|').toStdString();
    }
  EXPECT_EQ(Zawartosc(folder.filePath(u"twarde"_s)), "1;a\n");
  struktura.CBTypPliku = TypPliku::Rozdzielany;
  EXPECT_EQ(Uruchom(QByteArray("1;a\n2;b\n").append('\0')).koniec, KoniecPrzebiegu::Odmowa);
  EXPECT_EQ(Zapisanych(), 0);
}

// The file of the last run is emptied; where it cannot be made, another folder is taken and named.
TEST_F(PrzebiegTest, PlikPominietych) {
  PostepTestowy cichy;
  Liczniki liczniki;
  const QString zapas = folder.filePath(u"zapas"_s);
  const auto otworz = [&](const QString& gdzie, const QString& zapasowy) {
    RaportProblemow raport(cichy, liczniki);
    const auto odmowa = raport.Otworz(gdzie, u"POMINIETE.TXT"_s, zapasowy);
    return odmowa ? odmowa->tekst : raport.Sciezka();
  };
  EXPECT_EQ(otworz(folder.filePath(u"brak"_s), zapas), zapas + u"/POMINIETE.TXT"_s);
  ASSERT_EQ(cichy.linie.size(), 1);
  EXPECT_TRUE(
      cichy.linie[0].startsWith(u"UWAGA: Nie udało się utworzyć pliku POMINIETE.TXT na "_s + folder.path()));
  EXPECT_TRUE(cichy.linie[0].endsWith(u"\nPlik zostanie utworzony na "_s + zapas + u'/'));
  const QString niemozliwy = zapas + u"/POMINIETE.TXT"_s;  // a file where a folder should be
  EXPECT_EQ(otworz(niemozliwy, niemozliwy), KomunikatBladOtwarcia(niemozliwy + u"/POMINIETE.TXT"_s).tekst);
  Uruchom("1;z\xB3y\n");
  Uruchom("1;a\n");
  EXPECT_EQ(Pominiete(), "");
  // A link is replaced; the database itself is not, even if it bears that name.
  const QString sciezka = folder.filePath(u"POMINIETE.TXT"_s);
  EXPECT_TRUE(QFile::remove(sciezka));
  EXPECT_EQ(link(baza.Sciezka().toStdString().c_str(), sciezka.toStdString().c_str()), 0);
  EXPECT_EQ(Uruchom("1;z\xB3y\n2;b\n").koniec, KoniecPrzebiegu::Zakonczono);
  EXPECT_EQ(Pominiete(), "1 | z\xB3y | \xAFle\r\n1 | z\xB3y | Bardzo \x9Fle\r\n1 | z\xB3y | Najgorzej\r\n");
  EXPECT_EQ(Zapisanych(), 2);
  TVLTBazaDanych inna;
  inna.UstawPolaczenie(*ParametryPolaczenia::ZTekstu(sciezka));
  KontekstSesji naNiej{inna, parametry};
  PrzebiegProbny przebieg(
      {naNiej, struktura, folder.filePath(u"plik.txt"_s), postep, oper, stop, '.', folder.path()},
      poRekordzie);
  EXPECT_EQ(przebieg.Wykonaj().koniec, KoniecPrzebiegu::Odmowa);
  EXPECT_TRUE(postep.linie.last().contains(u"/POMINIETE.TXT jest plikiem bazy danych"_s));
  EXPECT_NE(Pominiete(), "");
}

TEST_F(PrzebiegTest, SkroconyPlikKonczyPrzebiegBledem) {
  poRekordzie = [this] { QFile::resize(folder.filePath(u"plik.txt"_s), 300'000); };
  EXPECT_EQ(Uruchom(Rekordy(40'000)).koniec, KoniecPrzebiegu::Blad);
  EXPECT_TRUE(postep.linie.join(u'|').contains(
      u"/plik.txt\nPlik został skrócony w trakcie odczytu\nZapisano w bazie"_s))
      << postep.linie.join(u'|').toStdString();
  EXPECT_EQ(Zapisanych(), 25'925);
}

TEST_F(PrzebiegTest, Przerwanie) {
  poRekordzie = [this] { stop = Zapisanych() == 2; };
  EXPECT_EQ(Uruchom("1;a\n2;b\n3;c\n").koniec, KoniecPrzebiegu::Przerwano);
  EXPECT_EQ(Zapisanych(), 2);
  EXPECT_THAT(postep.linie.mid(4), ElementsAre(u"Aktualizacja przerwana przez operatora"_s, u"zamykanie"_s,
                                               u"Koniec: Zakończono"_s, u"Dodanych 2"_s, u"Pominiętych 0"_s));
  stop = false;
  poRekordzie = [] {};
  const WynikPrzebiegu wynik = Uruchom("1;a\n2;stop;x\n3;c;x\n");
  EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Przerwano);
  EXPECT_EQ(wynik.uwagi.at(0).ile, 1);
  EXPECT_EQ(Zapisanych(), 3);
}

TEST_F(PrzebiegTest, ZaMaloPol) {
  struct {
    OdpowiedzLiczbaPol odpowiedz;
    KoniecPrzebiegu koniec;
    int pytan, dodanych, pominietych;
  } const przypadki[] = {
      {OdpowiedzLiczbaPol::Przerwij, KoniecPrzebiegu::Przerwano, 1, 1, 0},
      {OdpowiedzLiczbaPol::Pomin, KoniecPrzebiegu::Zakonczono, 2, 2, 2},
      {OdpowiedzLiczbaPol::Ignoruj, KoniecPrzebiegu::Zakonczono, 1, 4, 0},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(static_cast<int>(p.odpowiedz));
    oper.liczbaPol = p.odpowiedz;
    oper.pytania.clear();
    const WynikPrzebiegu wynik = Uruchom("1;a\n2\n3\n4;d\n");
    EXPECT_EQ(wynik.koniec, p.koniec);
    EXPECT_EQ(oper.pytania.size(), p.pytan);
    EXPECT_EQ(oper.pytania[0], u"Liczba pól w rekordzie 2 wynosi 1, deklarowana liczba pól wynosi 2."_s);
    EXPECT_EQ(wynik.liczniki[Licznik::Dodane], p.dodanych);
    EXPECT_EQ(wynik.liczniki[Licznik::Pominiete], p.pominietych);
    EXPECT_EQ(postep.linie.contains(u"Aktualizacja przerwana przez operatora"_s), false);
  }
}

TEST_F(PrzebiegTest, PrzedPytaniemPaczkaJestZatwierdzona) {
  long long widoczne = -1;
  oper.przyPytaniu = [&] {
    TVLTBazaDanych inna;
    baza.Polacz(inna);
    auto odczyt = inna.Otworz("select count(*) from Proba", {TypPola::Calkowite});
    odczyt.Nastepny();
    widoczne = odczyt[0].AsInteger();
    EXPECT_FALSE(baza.baza.GetCzyWTransakcji());
    EXPECT_EQ(Pominiete().count('\n'), 3) << "the file keeps pace with what is saved";
  };
  EXPECT_EQ(Uruchom("0;z\xB3y\n1;a\n2;pytanie\n").koniec, KoniecPrzebiegu::Zakonczono);
  EXPECT_EQ(widoczne, 1);
  EXPECT_EQ(baza.baza.LiczbaZatwierdzen(), 2);
}

// The records of a batch that met other programs' changes come again, up to three times; whatever they were
// asked and counted before counts once.
TEST_F(PrzebiegTest, KolidujacaPaczkaJestPowtarzana) {
  const struct {
    const char* polecenie;
    std::string_view ktore;  // a letter for each of these statements: those with an x fail
    KoniecPrzebiegu koniec;
    long long zapisanych;
  } przypadki[] = {
      {"insert into Proba", "..x", KoniecPrzebiegu::Zakonczono, 3},
      {"commit", "xxx", KoniecPrzebiegu::Zakonczono, 3},
      {"commit", ".x", KoniecPrzebiegu::Zakonczono, 3},
      {"begin", "xx", KoniecPrzebiegu::Zakonczono, 3},
      {"commit", "xxxx", KoniecPrzebiegu::Blad, 0},
      {"insert into Proba", "..xxxx", KoniecPrzebiegu::Blad, 1},
      // Four collisions over two batches, the question between them; no batch has met more than three.
      {"commit", "xx.xx", KoniecPrzebiegu::Zakonczono, 3},
  };
  const auto koliduj = [this](std::string_view polecenie, std::string_view ktore) {
    baza.baza.ExecSQL("delete from Proba");
    baza.baza.UstawPodsluch([polecenie, ktore](std::string_view sql) mutable {
      if (!sql.starts_with(polecenie) || ktore.empty()) return;
      const char teraz = ktore.front();
      ktore.remove_prefix(1);
      if (teraz == 'x') throw EBladBazy(RodzajBleduBazy::Kolizja, u"Zakleszczenie"_s, {});
    });
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.polecenie);
    koliduj(p.polecenie, p.ktore);
    const WynikPrzebiegu wynik = Uruchom("1;a\n2;z\xB3y\n3;pytanie\n4;b\n");
    baza.baza.UstawPodsluch({});
    EXPECT_EQ(wynik.koniec, p.koniec);
    EXPECT_EQ(Zapisanych(), p.zapisanych);
    EXPECT_EQ(wynik.liczniki[Licznik::Dodane], p.zapisanych);
    EXPECT_EQ(Pominiete().count('\n'), p.zapisanych == 0 ? 0 : 3);
  }
  koliduj("commit", "xx.xx");  // the count begins anew with every batch
  EXPECT_EQ(Uruchom(Rekordy(PaczkaZapisow::kNajwiecejRekordow + 1)).koniec, KoniecPrzebiegu::Zakonczono);
}

// A commit that fails takes its batch with its counters, lines and notices; the batches before it stay.
TEST_F(PrzebiegTest, BladZatwierdzeniaKonczyPrzebieg) {
  constexpr int kPaczka = PaczkaZapisow::kNajwiecejRekordow;
  int zatwierdzen = 0;
  baza.baza.UstawPodsluch([&](std::string_view sql) {
    if (sql == "commit" && ++zatwierdzen == 2)
      throw EBladBazy(RodzajBleduBazy::PelnyDysk, u"Brak miejsca"_s, {});
  });
  const WynikPrzebiegu wynik = Uruchom("0;z\xB3y\n" + Rekordy(kPaczka + 50) + "0;z\xB3y\n0;b;x\n");
  EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Blad);
  EXPECT_EQ(Zapisanych(), kPaczka - 1);
  EXPECT_EQ(wynik.liczniki[Licznik::Dodane], kPaczka - 1);
  EXPECT_EQ(wynik.liczniki[Licznik::Pominiete], 1);
  EXPECT_TRUE(wynik.uwagi.empty());
  EXPECT_EQ(Pominiete().count('\n'), 3);
  ASSERT_EQ(wynik.komunikaty.size(), 1u);
  EXPECT_TRUE(wynik.komunikaty[0].tekst.startsWith(u"Brak miejsca"_s));
  EXPECT_TRUE(wynik.komunikaty[0].tekst.contains(u"do rekordu %1 włącznie"_s.arg(kPaczka)));
}

// The fault that ended the run stands first, behind it whether the disk has what the run has left.
TEST_F(PrzebiegTest, PoBledzieMowiCoPrzetrwa) {
  const QString zapisano = u"Zapisano w bazie wynik pracy do rekordu 2 włącznie."_s;
  const struct {
    std::function<void()> przyUtrwalaniu;
    int zapisanych;
    QString tekst;
  } przypadki[] = {{[] {}, 2, zapisano},
                   {[] { throw EBladBazy(RodzajBleduBazy::Wejscie, u"Zły sektor"_s, {}); }, 2,
                    zapisano + u"\nNie ma jednak pewności, że przetrwa to wyłączenie komputera. Sprawdź dysk "
                               u"i powtórz import."_s},
                   {[this] { QFile::remove(baza.Sciezka()); }, 0,
                    u"Niczego z tego przebiegu nie można uznać za zapisane. Przywróć plik bazy i powtórz "
                    u"import."_s}};
  for (const auto& p : przypadki) {
    baza.baza.UstawPodsluch([&p, wstawien = 0](std::string_view sql) mutable {
      if (sql.starts_with("insert") && ++wstawien == 3) throw EBladBazy(RodzajBleduBazy::PelnyDysk, {}, {});
      if (sql.find("wal_checkpoint") != std::string_view::npos) p.przyUtrwalaniu();
    });
    const WynikPrzebiegu wynik = Uruchom("1;a\n2;b\n3;c\n");
    EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Blad);
    EXPECT_EQ(wynik.liczniki[Licznik::Dodane], p.zapisanych);
    ASSERT_EQ(wynik.komunikaty.size(), 1u);
    EXPECT_EQ(wynik.komunikaty[0].tekst, u"Brak miejsca na dysku bazy danych\n"_s + p.tekst);
  }
}

// A notice counts records, each once, and shows the first ten; it is told after the end and before the
// summary and changes no counter. Skipped lines and records undone with their batch leave none.
TEST_F(PrzebiegTest, UwagiSaLiczoneIPokazaneNaKoncu) {
  baza.baza.UstawPodsluch([razy = 0](std::string_view sql) mutable {
    if (sql.starts_with("insert") && ++razy == 3) throw EBladBazy(RodzajBleduBazy::Kolizja, u"Kolizja"_s, {});
  });
  const WynikPrzebiegu wynik = Uruchom("1;a;3,69\n2;b\n#;;x\n" + Rekordy(11).replace("a\n", "a;;x\n"));
  baza.baza.UstawPodsluch({});
  ASSERT_EQ(wynik.uwagi.size(), 1u);
  EXPECT_EQ(wynik.uwagi[0].NazwaRodzaju(), u"wiecej-pol"_s);
  EXPECT_EQ(wynik.uwagi[0].ile, 12);
  EXPECT_THAT(wynik.uwagi[0].rekordy, ElementsAre(1, 3, 4, 5, 6, 7, 8, 9, 10, 11));
  EXPECT_EQ(wynik.liczniki[Licznik::Dodane], 13);
  const qsizetype koniec = postep.linie.indexOf(u"Koniec: Zakończono"_s);
  EXPECT_THAT(postep.linie.mid(koniec + 1),
              ElementsAre(u"Uwaga: "_s + wynik.uwagi[0].tekst +
                              u". Rekordów: 12 (1, 3, 4, 5, 6, 7, 8, 9, 10, 11, …)."_s,
                          u"Dodanych 13"_s, u"Pominiętych 0"_s));
}

TEST(Uwagi, RozneTekstyMajaGranice) {
  Uwagi uwagi;
  for (int i = 1; i <= 60; ++i) uwagi.Zglos({RodzajUwagi::WiecejPol, QString::number(i)}, i);
  uwagi.Zglos({RodzajUwagi::WiecejPol, u"1"_s}, 61);
  uwagi.Zglos({RodzajUwagi::WiecejPol, u"1"_s}, 61);
  EXPECT_TRUE(uwagi.Lista().empty());
  uwagi.Zatwierdz();
  const auto lista = uwagi.Lista();
  ASSERT_EQ(lista.size(), 51u);
  EXPECT_EQ(lista.front().ile, 2);
  EXPECT_THAT(lista.back().rekordy, ElementsAre(51, 52, 53, 54, 55, 56, 57, 58, 59, 60));
}

TEST_F(PrzebiegTest, CudzeZmianyOdswiezajaPamiec) {
  std::vector<bool> otwarcia;
  Liczniki liczniki;
  RaportProblemow raport(postep, liczniki);
  Uwagi uwagi;
  PaczkaZapisow paczka(baza.baza, liczniki, raport, uwagi);
  paczka.PoOtwarciu = [&](bool obce) { otwarcia.push_back(obce); };
  TVLTBazaDanych inna;
  baza.Polacz(inna);
  for (const bool obca : {false, false, true, false}) {
    if (obca) inna.ExecSQL("insert into Proba (Nazwa) values ('obca')");
    paczka.PrzedRekordem();
    baza.baza.ExecSQL("insert into Proba (Nazwa) values ('nasza')");
    paczka.Zatwierdz();
  }
  EXPECT_THAT(otwarcia, ElementsAre(true, false, true, false));
}

TEST(OperatorNieobecny, BezpieczneOdpowiedziOglaszaRaz) {
  PostepTestowy postep;
  OperatorNieobecny oper(postep, OdpowiedzLiczbaPol::Pomin);
  EXPECT_EQ(oper.LiczbaPol({u"Uwaga"_s, u"Za mało."_s}), OdpowiedzLiczbaPol::Pomin);
  for (int i = 0; i < 2; ++i) EXPECT_FALSE(oper.CzyTak({u"Uwaga"_s, u"Czy?"_s}, false));
  EXPECT_THAT(postep.linie, ElementsAre(u"Uwaga: Za mało. Odpowiedź bez operatora: pomiń ten rekord"_s,
                                        u"Uwaga: Czy? Odpowiedź bez operatora (także dalej): nie"_s));
}

}  // namespace
