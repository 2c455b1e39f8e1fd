#include <algorithm>
#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/end_to_end/ograniczenia.h"
#include "tests/end_to_end/stanowisko.h"

namespace {

constexpr int kRekordow = 5000;  // some 300 bytes each

// The two exports, and settings with which all records are sent.
struct Rodzaj {
  QString polecenie, tytul;
  QStringList ustawienia;
  std::string rekordy;  // makes that many of them
};

std::string Ciag(const std::string& insert) {
  return "with recursive c(n) as (select 1 union all select n + 1 from c where n < " +
         std::to_string(kRekordow) + ") " + insert;
}

QStringList Ustaw(const QStringList& pary) {
  QStringList slowa;
  for (const QString& para : pary) slowa << u"--ustaw"_s << para;
  return slowa;
}

const std::string kDlugi = '\'' + std::string(200, '0') + '\'';

const Rodzaj kTowary{
    u"eksport-towarow"_s,
    u"Eksport towarów"_s,
    {},
    Ciag("insert into Towar (Nazwa, Skrot, Kod, Opis1) select 'Żuk ' || n, n, n, " + kDlugi + " from c")};
const Rodzaj kKontrahenci{
    u"eksport-kontrahentow"_s, u"Eksport kontrahentów"_s,
    Ustaw({u"ParGdyDostawca=1"_s, u"ParGdyTymczasowe=1"_s, u"ParGdyZnamyNIP=1"_s, u"ParGdyZakladPrChr=1"_s}),
    Ciag("insert into Kontrahent (Nazwa, Dostawca, Ulica) select 'Żuk ' || n, 1, " + kDlugi + " from c")};

class EksportCaly : public testing::TestWithParam<const Rodzaj*> {
 protected:
  QStringList Slowa(const QString& plik) const {
    return QStringList{GetParam()->polecenie, plik,   u"--baza"_s, Stanowisko::Baza(),
                       u"--pominiete"_s,      u"."_s, u"--json"_s} +
           GetParam()->ustawienia;
  }
  Wynik Eksport(const QString& plik, std::function<void()> wDziecku = {}) const {
    return s.Uruchom(Slowa(plik), std::move(wDziecku));
  }
  void Napelnij() const {
    TVLTBazaDanych baza;
    s.Polacz(baza);
    baza.ExecSQL(GetParam()->rekordy);
  }
  Stanowisko s;
};

TEST_P(EksportCaly, PlikIWynik) {
  for (const int rekordow : {0, kRekordow}) {
    if (rekordow > 0) Napelnij();
    const Wynik wynik = Eksport(u"plik.txt"_s);
    EXPECT_EQ(wynik.status, 0) << wynik.bledy.toStdString();
    EXPECT_EQ(wynik.Koniec(), u"zakonczono"_s);
    EXPECT_EQ(wynik.Json()[u"operacja"_s].toString(), GetParam()->polecenie);
    EXPECT_EQ(QStringList(wynik.Json().keys()).join(u' '),
              u"czasSekund komunikaty koniec operacja plikPominietych rekordow uwagi"_s);
    EXPECT_EQ(wynik.Liczba(u"rekordow"_s), rekordow);
    EXPECT_TRUE(wynik.MaKomunikat(u"Koniec"_s, u"Eksport zakończono"_s));
    const QByteArray plik = s.Odczytaj(u"plik.txt"_s);
    EXPECT_EQ(plik.count("\r\n"), rekordow + 1);
    EXPECT_EQ(plik.count("\xAFuk 17\t"), rekordow > 0 ? 1 : 0);
    EXPECT_FALSE(QFile::exists(s.Sciezka(u"POMINIETE.TXT"_s)) ||
                 QFile::exists(s.Sciezka(u"POMINIECI.TXT"_s)));
  }
  QStringList slowa = Slowa(u"plik.txt"_s);
  slowa.removeOne(u"--json"_s);
  const Wynik dlaLudzi = s.Uruchom(slowa);
  EXPECT_TRUE(dlaLudzi.wyjscie.startsWith(GetParam()->tytul + u": zakończono po "_s))
      << dlaLudzi.wyjscie.toStdString();
  EXPECT_TRUE(dlaLudzi.wyjscie.endsWith(u". Rekordów: 5000.\n"_s)) << dlaLudzi.wyjscie.toStdString();
}

TEST_P(EksportCaly, PelnyDyskNieKonczySieZakonczeniem) {
  const auto sprawdz = [](const Wynik& wynik) {
    EXPECT_EQ(wynik.status, 4);
    EXPECT_EQ(wynik.Koniec(), u"blad"_s);
    EXPECT_EQ(wynik.Liczba(u"rekordow"_s), 0);
    EXPECT_FALSE(wynik.bledy.contains(u"Eksport zakończono"_s));
    EXPECT_TRUE(wynik.MaKomunikat(u"Wystąpił błąd"_s, u"Błąd zapisu do pliku "_s))
        << wynik.bledy.toStdString();
    EXPECT_TRUE(wynik.bledy.contains(u"Plik eksportu jest niepełny."_s));
  };
  // A header alone is met by the disk when the file is closed, many records before.
  sprawdz(Eksport(u"/dev/full"_s));
  Napelnij();
  sprawdz(Eksport(u"/dev/full"_s));
  sprawdz(Eksport(u"plik.txt"_s, MalyDysk));
  EXPECT_EQ(s.Odczytaj(u"plik.txt"_s).size(), 1 << 20);
}

// Whoever reads a pipe decides how far the export gets: it stands in the middle when it is interrupted.
TEST_P(EksportCaly, CtrlCZostawiaCaleWiersze) {
  Napelnij();
  const std::string potok = s.Sciezka(u"potok"_s).toStdString();
  ASSERT_EQ(mkfifo(potok.c_str(), 0600), 0);
  const auto proces = s.Zacznij(Slowa(u"potok"_s));
  const int fd = open(potok.c_str(), O_RDONLY);
  ASSERT_GE(fd, 0);
  std::string tresc, bufor(1 << 16, '\0');
  for (ssize_t ile; (ile = read(fd, bufor.data(), bufor.size())) > 0;) {
    if (tresc.empty()) kill(static_cast<pid_t>(proces->processId()), SIGINT);
    tresc.append(bufor, 0, static_cast<std::size_t>(ile));
  }
  close(fd);
  const Wynik wynik = Stanowisko::Zakoncz(*proces);
  EXPECT_EQ(wynik.status, 5);
  EXPECT_EQ(wynik.Koniec(), u"przerwano"_s);
  EXPECT_TRUE(wynik.bledy.contains(u"Aktualizacja przerwana przez operatora"_s));
  const int linii = static_cast<int>(std::count(tresc.begin(), tresc.end(), '\n'));
  EXPECT_TRUE(tresc.ends_with("\r\n"));
  EXPECT_EQ(wynik.Liczba(u"rekordow"_s), linii - 1);
  EXPECT_GT(linii, 1);
  EXPECT_LT(linii, kRekordow);
}

INSTANTIATE_TEST_SUITE_P(Rodzaje, EksportCaly, testing::Values(&kTowary, &kKontrahenci),
                         [](const auto& p) { return p.param == &kTowary ? "towary" : "kontrahenci"; });

}  // namespace
