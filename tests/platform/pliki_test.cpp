#include <filesystem>
#include <fstream>
#include <thread>

#include <QDir>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/nazwa_pliku.h"
#include "platform/otwarcie_pliku.h"
#include "platform/plik_obok.h"
#include "platform/tozsamosc_pliku.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class Pliki : public testing::Test {
 protected:
  // Qt would leave names behind that are no UTF-8.
  ~Pliki() override { std::filesystem::remove_all(m_folder.path().toStdString()); }

  QString W(const QString& nazwa) const { return m_folder.filePath(nazwa); }
  std::string Bajty(const QString& nazwa) const { return BajtyNazwy(W(nazwa)).toStdString(); }
  void Zapisz(const QString& nazwa, const char* tresc = "x") const { std::ofstream(Bajty(nazwa)) << tresc; }
  std::string Tresc(const QString& nazwa) const {
    std::ifstream plik(Bajty(nazwa));
    return {std::istreambuf_iterator<char>(plik), {}};
  }

 private:
  QTemporaryDir m_folder;
};

TEST(NazwaPliku, KazdeBajtyWracaja) {
  const struct {
    QByteArray bajty;
    QString nazwa;
  } przypadki[] = {
      {"cennik ż€😀.txt", u"cennik ż€😀.txt"_s},
      {"za\xBF\xF3\xB3\xE6", u"za\xDCBF\xDCF3\xDCB3\xDCE6"_s},
      {"\xC5\xBC\xC5", u"ż\xDCC5"_s},             // the last letter cut in the middle
      {"\xED\xB2\x80", u"\xDCED\xDCB2\xDC80"_s},  // a surrogate is no character
      {"\xF0\x9F\x98\x80\xB3", u"😀\xDCB3"_s},     // not the low half of what stands before it
  };
  for (const auto& p : przypadki) {
    EXPECT_EQ(NazwaZBajtow(p.bajty), p.nazwa) << p.bajty.constData();
    EXPECT_EQ(BajtyNazwy(p.nazwa), p.bajty) << p.bajty.constData();
  }
}

TEST_F(Pliki, WpisanaNazwaOdnajdujePlik) {
  Zapisz(u"cennik \xDCB3\xDCB9.txt"_s);
  Zapisz(u"dwa\xDCB3"_s);
  Zapisz(u"dwa\xDCB9"_s);
  Zapisz(u"jest?"_s);
  Zapisz(u"jest\xDCB9"_s);
  EXPECT_EQ(OdszukajNazwe(W(u"cennik ??.txt"_s)), W(u"cennik \xDCB3\xDCB9.txt"_s));
  for (const QString& sama : {u"cennik ?.txt"_s, u"dwa?"_s, u"jest?"_s, u"brak/a?"_s})
    EXPECT_EQ(OdszukajNazwe(W(sama)), W(sama));
}

TEST_F(Pliki, TozsamoscPrzezDowiazaniaObuRodzajow) {
  Zapisz(u"a"_s);
  Zapisz(u"b"_s);
  ASSERT_EQ(link(Bajty(u"a"_s).c_str(), Bajty(u"twarde"_s).c_str()), 0);
  ASSERT_EQ(symlink("a", Bajty(u"miękkie"_s).c_str()), 0);
  ASSERT_EQ(symlink("nowy", Bajty(u"donikąd"_s).c_str()), 0);
  ASSERT_EQ(symlink("pętla", Bajty(u"pętla"_s).c_str()), 0);
  const auto a = TozsamoscPliku::Sciezki(W(u"a"_s));
  ASSERT_TRUE(a && a->Istnieje());
  for (const QString& nazwa : {u"twarde"_s, u"miękkie"_s, u"./a"_s})
    EXPECT_EQ(TozsamoscPliku::Sciezki(W(nazwa)), a);
  EXPECT_NE(TozsamoscPliku::Sciezki(W(u"b"_s)), a);
  QFile otwarty(W(u"miękkie"_s));
  ASSERT_TRUE(otwarty.open(QIODevice::ReadOnly));
  EXPECT_EQ(TozsamoscPliku::Otwartego(otwarty.handle()), a);
  EXPECT_EQ(TozsamoscPliku::Otwartego(-1), std::nullopt);
  // Another file in its place is another file, also while the first is open.
  ASSERT_EQ(rename(Bajty(u"b"_s).c_str(), Bajty(u"a"_s).c_str()), 0);
  EXPECT_NE(TozsamoscPliku::Sciezki(W(u"a"_s)), a);
  EXPECT_EQ(TozsamoscPliku::Otwartego(otwarty.handle()), a);
  // What is not there yet: the place that it would take.
  const auto nowy = TozsamoscPliku::Sciezki(W(u"nowy"_s));
  ASSERT_TRUE(nowy && !nowy->Istnieje());
  EXPECT_EQ(TozsamoscPliku::Sciezki(W(u"donikąd"_s)), nowy);
  EXPECT_NE(TozsamoscPliku::Miejsca(W(u"donikąd"_s)), nowy);
  EXPECT_NE(TozsamoscPliku::Sciezki(W(u"inny"_s)), nowy);
  for (const QString& nigdzie : {W(u"pętla"_s), W(u"brak/plik"_s), QString()})
    EXPECT_EQ(TozsamoscPliku::Sciezki(nigdzie), std::nullopt);
}

TEST_F(Pliki, RodzajBezOtwierania) {
  using R = RodzajPliku;
  Zapisz(u"plik"_s);
  ASSERT_EQ(mkfifo(Bajty(u"potok"_s).c_str(), 0600), 0);
  ASSERT_EQ(symlink("potok", Bajty(u"do potoku"_s).c_str()), 0);
  const std::pair<QString, R> przypadki[] = {{W(u"plik"_s), R::Zwykly},     {W(u"brak"_s), R::Brak},
                                             {W(u"."_s), R::Folder},        {W(u"potok"_s), R::Potok},
                                             {W(u"do potoku"_s), R::Potok}, {u"/dev/zero"_s, R::Urzadzenie}};
  for (const auto& [sciezka, rodzaj] : przypadki) {
    EXPECT_EQ(RodzajPlikuSciezki(sciezka), rodzaj) << sciezka.toStdString();
    QFile plik;  // a pipe without a writer would keep it waiting
    const auto powod = OtworzPlik(plik, sciezka, SposobOtwarcia::Odczyt);
    const int blad = rodzaj == R::Brak ? ENOENT : rodzaj == R::Folder ? EISDIR : ESPIPE;
    EXPECT_EQ(powod.value_or(QString()), rodzaj == R::Zwykly ? QString() : qt_error_string(blad));
    EXPECT_EQ(plik.isOpen(), rodzaj == R::Zwykly);
  }
}

TEST_F(Pliki, PotokDoZapisuCzekaNaCzytajacego) {
  ASSERT_EQ(mkfifo(Bajty(u"potok"_s).c_str(), 0600), 0);
  QFile plik;
  EXPECT_EQ(OtworzPlik(plik, W(u"potok"_s), SposobOtwarcia::Zapis), qt_error_string(ENXIO));
  std::thread czytajacy([&] {
    usleep(300'000);
    EXPECT_EQ(Tresc(u"potok"_s), "dane");
  });
  EXPECT_EQ(OtworzPlik(plik, W(u"potok"_s), SposobOtwarcia::Zapis), std::nullopt);
  EXPECT_EQ(fcntl(plik.handle(), F_GETFL) & O_NONBLOCK, 0) << "a full pipe would fail";
  plik.write("dane");
  plik.close();
  czytajacy.join();
}

TEST_F(Pliki, NowyPlikZastepujeDowiazanie) {
  for (const bool twarde : {false, true}) {
    Zapisz(u"cudzy"_s, "dane");
    const QString nazwa = u"pomini\xDCEAte"_s;
    ASSERT_EQ(twarde ? link(Bajty(u"cudzy"_s).c_str(), Bajty(nazwa).c_str())
                     : symlink("cudzy", Bajty(nazwa).c_str()),
              0);
    for (const char* tresc : {"pierwszy", "drugi"}) {
      QFile plik;
      ASSERT_EQ(OtworzNaNowo(plik, W(nazwa)), std::nullopt);
      plik.write(tresc);
      plik.close();
      EXPECT_EQ(Tresc(nazwa), tresc);
    }
    EXPECT_EQ(Tresc(u"cudzy"_s), "dane");
    ASSERT_EQ(unlink(Bajty(nazwa).c_str()), 0);
  }
  ASSERT_EQ(mkfifo(Bajty(u"potok"_s).c_str(), 0600), 0);
  QFile plik;
  EXPECT_NE(OtworzNaNowo(plik, W(u"potok"_s)), std::nullopt);
  EXPECT_NE(OtworzNaNowo(plik, W(u"."_s)), std::nullopt);
}

TEST_F(Pliki, NazwaZajetaTymczasemZostajeZajeta) {
  for (const auto istniejacy : {PlikObok::Istniejacy::Zachowaj, PlikObok::Istniejacy::Zastap}) {
    PlikObok obok;
    ASSERT_EQ(obok.Zacznij(W(u"kopia"_s)), std::nullopt);
    PlikObok drugi;  // leaves alone what another one is writing
    ASSERT_EQ(drugi.Zacznij(W(u"inny"_s)), std::nullopt);
    EXPECT_TRUE(QFile::exists(obok.Sciezka()));
    drugi.Porzuc();
    Zapisz(u"kopia"_s, "cudzy");
    const bool zachowaj = istniejacy == PlikObok::Istniejacy::Zachowaj;
    EXPECT_EQ(obok.Podmien(istniejacy).has_value(), zachowaj);
    EXPECT_EQ(Tresc(u"kopia"_s), zachowaj ? "cudzy" : "");
    EXPECT_EQ(QDir(W(u"."_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"kopia"_s});
  }
}

}  // namespace
