#include <limits>

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/liczby.h"
#include "platform/plik_tekstowy.h"
#include "platform/windows1250.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class PlikTekstowy : public testing::Test {
 protected:
  QString Sciezka() const { return m_katalog.filePath(u"plik.txt"_s); }

  void Zapisz(const std::string& tresc) const {
    QFile plik(Sciezka());
    ASSERT_TRUE(plik.open(QIODevice::WriteOnly));
    ASSERT_EQ(plik.write(tresc.data(), static_cast<qint64>(tresc.size())), static_cast<qint64>(tresc.size()));
  }

  std::string Tresc() const {
    QFile plik(Sciezka());
    EXPECT_TRUE(plik.open(QIODevice::ReadOnly));
    return plik.readAll().toStdString();
  }

 private:
  QTemporaryDir m_katalog;
};

// The page as its standard has it, 16 bytes a line; the five unused bytes keep their numbers.
TEST(Windows1250, KazdyBajtMaSwojZnak) {
  const QString gorne =
      u"€\u0081‚\u0083„…†‡\u0088‰Š‹ŚŤŽŹ\u0090‘’“”•–—\u0098™š›śťžź"
      u"\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
      u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
      u"ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙"_s;
  std::string bajty;
  for (int i = 0; i < 256; ++i) bajty += static_cast<char>(i);
  const QString znaki = QString::fromLatin1(bajty.data(), 128) + gorne;
  EXPECT_EQ(windows1250::NaUnicode(bajty), znaki);
  EXPECT_EQ(windows1250::ZUnicode(znaki), bajty);
}

TEST(Windows1250, ZnakiSpozaStronySaLiczone) {
  std::string bajty = "x";
  EXPECT_EQ(windows1250::Dopisz(u"ą\u4E2D\U0001F600ñ\u2123b", bajty), 4);
  EXPECT_EQ(bajty, "x\xB9????b");
}

TEST(Liczby, GramatykaLiczby) {
  struct {
    const char* tekst;
    char separator;
    std::optional<double> wartosc;
  } const przypadki[] = {
      {"12", ',', 12.0},  {"-12,5", ',', -12.5}, {"+0,25", ',', 0.25}, {"12.5", '.', 12.5}, {"12.5", ',', {}},
      {"1,2,3", ',', {}}, {"", '.', {}},         {"-", '.', {}},       {"+-1", '.', {}},    {"5.", '.', {}},
      {".5", '.', {}},    {"1e9", '.', {}},      {"nan", '.', {}},     {"inf", '.', {}},    {"0x10", '.', {}},
      {" 1", '.', {}},    {"1 000", '.', {}},    {"--1", '.', {}},     {"007", '.', 7.0},   {"++1", '.', {}},
  };
  for (const auto& p : przypadki)
    EXPECT_EQ(liczby::Liczba(std::string_view(p.tekst), p.separator), p.wartosc) << p.tekst;
  EXPECT_EQ(liczby::Liczba(std::string(400, '9'), '.'), std::nullopt);
  EXPECT_EQ(liczby::Liczba("1," + std::string(90, '0') + "5", ','), 1.0);
  EXPECT_EQ(liczby::Liczba(u"1\u0661", '.'), std::nullopt);
}

TEST(Liczby, Calkowite) {
  EXPECT_EQ(liczby::Calkowita(std::string_view("-2147483648")), std::numeric_limits<int>::min());
  for (const char* zly : {"2147483648", "1.0", "", "+", "+-1", "1 ", "abc"})
    EXPECT_EQ(liczby::Calkowita(std::string_view(zly)), std::nullopt) << zly;
}

TEST(Liczby, StalaLiczbaMiejsc) {
  EXPECT_EQ(liczby::Lf(12.5), "12.500000");
  EXPECT_EQ(liczby::Lf(-0.0000004), "-0.000000");
  EXPECT_EQ(liczby::Lf(-std::numeric_limits<double>::max()).size(), 1 + 309 + 7U);
}

TEST_F(PlikTekstowy, KonceLinii) {
  const struct {
    std::string tresc;
    std::vector<std::string> linie;
  } przypadki[] = {
      {"", {}},
      {"a\r\nb\n\nc", {"a", "b", "", "c"}},
      {"a\r\n\x1A", {"a"}},
      {"a\x1A", {"a"}},
      {"\x1A", {}},
      {"a\n\x1A\r\n", {"a"}},
      {"a\x1A\x1A\n\x1A", {"a"}},
      {"a\n\n" + std::string(300'000, '\x1A'), {"a", ""}},
      {"a\rb\r\rc", {"a", "b", "", "c"}},
      {std::string(400'000, 'b') + "\ra\r\x1A", {std::string(400'000, 'b'), "a"}},
      {"a\r" + std::string(400'000, 'b') + "\nc", {"a\r" + std::string(400'000, 'b'), "c"}},
      {"a\x1A\r\nb\r\n", {"a\x1A", "b"}},
      {"a\rb\r\r\n", {"a\rb\r"}},
  };
  for (const auto& p : przypadki) {
    Zapisz(p.tresc);
    TMFile plik;
    ASSERT_TRUE(plik.Open(Sciezka(), TMFile::Tryb::Odczyt));
    for (int raz = 0; raz < 2; ++raz) {
      std::vector<std::string> linie;
      std::string_view linia;
      while (plik.ReadLine(linia) == TMFile::WynikLinii::Linia) linie.emplace_back(linia);
      EXPECT_EQ(linie, p.linie) << p.tresc;
      EXPECT_EQ(plik.Position(), plik.Size());
      ASSERT_TRUE(plik.Rewind());
    }
  }
}

TEST_F(PlikTekstowy, DlugieLinieSaPomijaneAKrotszeCaleWracaja) {
  const std::string najdluzsza(TMFile::kNajdluzszaLinia, 'x');
  Zapisz("a\n" + najdluzsza + "\n" + najdluzsza + "x\nb\n" + std::string(5'000'000, 'y'));
  TMFile plik;
  ASSERT_TRUE(plik.Open(Sciezka(), TMFile::Tryb::Odczyt));
  std::string_view linia;
  using W = TMFile::WynikLinii;
  EXPECT_EQ(plik.ReadLine(linia), W::Linia);
  EXPECT_EQ(plik.ReadLine(linia), W::Linia);
  EXPECT_EQ(linia, najdluzsza);
  EXPECT_EQ(plik.ReadLine(linia), W::ZaDluga);
  EXPECT_EQ(plik.ReadLine(linia), W::Linia);
  EXPECT_EQ(linia, "b");
  EXPECT_EQ(plik.ReadLine(linia), W::ZaDluga);
  EXPECT_EQ(plik.ReadLine(linia), W::Koniec);
}

TEST_F(PlikTekstowy, ZapisDopisanieIUciecie) {
  TMFile plik;
  ASSERT_TRUE(plik.Open(Sciezka(), TMFile::Tryb::Zapis));
  EXPECT_TRUE(plik.WriteLine("raz"));
  EXPECT_EQ(plik.Position(), 5);
  ASSERT_TRUE(plik.Open(Sciezka(), TMFile::Tryb::Dopisywanie));
  EXPECT_TRUE(plik.WriteLine("dwa"));
  EXPECT_TRUE(plik.Close());
  EXPECT_EQ(Tresc(), "raz\r\ndwa\r\n");
  ASSERT_TRUE(plik.Open(Sciezka(), TMFile::Tryb::Modyfikacja));
  EXPECT_TRUE(plik.WriteLine("x") && plik.SetEof() && plik.Close());
  EXPECT_EQ(Tresc(), "x\r\n");
}

#ifdef Q_OS_LINUX
TEST_F(PlikTekstowy, PelnyDyskJestZglaszany) {
  TMFile plik;
  ASSERT_TRUE(plik.Open(u"/dev/full"_s, TMFile::Tryb::Zapis));
  EXPECT_TRUE(plik.WriteLine("w buforze"));
  EXPECT_FALSE(plik.Flush());
  EXPECT_FALSE(plik.OpisBledu().isEmpty());
  EXPECT_FALSE(plik.WriteLine("x"));
  EXPECT_FALSE(plik.Close());
}
#endif

// What was there when the file was opened is read, neither less nor more.
TEST_F(PlikTekstowy, ZmianaDlugosciWTrakcie) {
  const std::string linia(999, 'x');
  std::string tresc;
  for (int i = 0; i < 1000; ++i) tresc += linia + '\n';
  for (const qint64 dlugosc : {500'500, 1'000'000, 1'000'002}) {
    Zapisz(tresc);
    TMFile plik;
    ASSERT_TRUE(plik.Open(Sciezka(), TMFile::Tryb::Odczyt));
    ASSERT_TRUE(QFile::resize(Sciezka(), dlugosc));
    int calych = 0;
    std::string_view wczytana;
    TMFile::WynikLinii wynik = TMFile::WynikLinii::Linia;
    while ((wynik = plik.ReadLine(wczytana)) == TMFile::WynikLinii::Linia)
      calych += wczytana == linia ? 1 : 1000;
    EXPECT_EQ(wynik, dlugosc < 1'000'000 ? TMFile::WynikLinii::Blad : TMFile::WynikLinii::Koniec);
    EXPECT_EQ(calych, dlugosc < 1'000'000 ? 500 : 1000);
    EXPECT_EQ(plik.OpisBledu(),
              dlugosc < 1'000'000 ? u"Plik został skrócony w trakcie odczytu"_s : QString());
  }
}

}  // namespace
