#include "platform/config.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/listy_liczb.h"

namespace {

TEST(Config, NazwaMaJednoMiejsceAWielkoscLiterSieLiczy) {
  TMConfig config;
  config.Ustaw(QStringLiteral("B"), QStringLiteral("1"));
  config.Ustaw(QStringLiteral("A"), QStringLiteral(" 7 "));
  config.Ustaw(QStringLiteral("B"), QStringLiteral("x"));
  ASSERT_EQ(config.Params().size(), 2U);
  EXPECT_EQ(config.Params()[0].Wartosc(), QStringLiteral("x"));
  EXPECT_EQ(config.ParamByName(QStringLiteral("b")), nullptr);
  EXPECT_EQ(config.Calkowita(QStringLiteral("A"), 3), 7);
  EXPECT_EQ(config.Calkowita(QStringLiteral("B"), 3), 3);
  EXPECT_TRUE(config.Flaga(QStringLiteral("B"), true));
}

struct Linia {
  const char* opis;
  std::string bajty;
  QString nazwa;
  QString wartosc;  // null: no parameter
};

TEST(PlikKonfiguracji, KolumnyLinii) {
  const auto nazwa = [](size_t dlugosc) { return "N" + std::string(dlugosc - 1, 'x'); };
  const auto pole = [](std::string tekst, size_t szerokosc) {
    return tekst.append(szerokosc - tekst.size(), ' ');
  };
  const Linia linie[] = {
      {"34 characters", pole("Klucz", 33) + "1\r\n", QStringLiteral("Klucz"), {}},
      {"35 characters, empty value", pole("Klucz", 35) + "\r\n", QStringLiteral("Klucz"), QStringLiteral("")},
      {"value from column 31", pole("Klucz", 30) + "abcde", QStringLiteral("Klucz"), QStringLiteral("abcde")},
      {"blanks and a bare LF", pole("  Klucz", 35) + "  a b \n", QStringLiteral("Klucz"),
       QStringLiteral("a b")},
      {"30 characters of name", nazwa(30) + "     1", QString::fromStdString(nazwa(30)), QStringLiteral("1")},
      {"34 characters of name", nazwa(34) + " 1", QString::fromStdString(nazwa(34)), {}},
      {"Windows-1250", pole("Klucz", 35) + "\xB3\xF3\x9F", QStringLiteral("Klucz"), QStringLiteral("łóź")},
      {"value cut at character 130", pole("Klucz", 35) + std::string(120, 'w'), QStringLiteral("Klucz"),
       QString(95, QLatin1Char('w'))},
      {"no name", std::string(40, ' '), {}, {}},
  };
  for (const Linia& linia : linie) {
    SCOPED_TRACE(linia.opis);
    TMConfig config;
    plik_konfiguracji::Czytaj(linia.bajty, config);
    const TMCfgParam* parametr = config.ParamByName(linia.nazwa);
    ASSERT_EQ(parametr != nullptr, !linia.wartosc.isNull());
    if (parametr) {
      EXPECT_EQ(parametr->Wartosc(), linia.wartosc);
    }
  }
}

TEST(PlikKonfiguracji, ZapisDopelniaNazweDo35) {
  TMConfig config;
  config.Ustaw(QStringLiteral("Par"), QStringLiteral("a\r\nb"));
  config.Ustaw(QString(36, QLatin1Char('n')), QStringLiteral("v"));
  EXPECT_EQ(plik_konfiguracji::Tekst(config), QStringLiteral("Par") + QString(32, QLatin1Char(' ')) +
                                                  QStringLiteral("a  b\r\n") + QString(36, QLatin1Char('n')) +
                                                  QStringLiteral("v\r\n"));
}

TEST(PlikKonfiguracji, NieCzytelnyPlikINieznanyZnak) {
  const QTemporaryDir folder;
  const QString sciezka = folder.filePath(QStringLiteral("Zorvik.cfg"));
  TMConfig config;
  EXPECT_TRUE(plik_konfiguracji::Wczytaj(sciezka, config).has_value());
  EXPECT_TRUE(plik_konfiguracji::Wczytaj(folder.path(), config).has_value());
  config.Ustaw(QStringLiteral("Par"), QStringLiteral("Ω ł"));
  EXPECT_EQ(plik_konfiguracji::Zapisz(sciezka, config).znakowZastapionych, 1);
  ASSERT_FALSE(plik_konfiguracji::Wczytaj(sciezka, config));
  EXPECT_EQ(config.Tekst(QStringLiteral("Par")), QStringLiteral("? ł"));
  EXPECT_TRUE(
      plik_konfiguracji::Zapisz(folder.filePath(QStringLiteral("brak/x.cfg")), config).blad.has_value());

  QFile duzy(sciezka);
  ASSERT_TRUE(duzy.resize(16 * 1024 * 1024 + 1));
  EXPECT_TRUE(plik_konfiguracji::Wczytaj(sciezka, config).has_value());
}

TEST(ZbiorLiczb, JestPosortowanyIBezPowtorzen) {
  TMacSetOfIntegers zbior(4);
  for (const int wartosc : {5, -1, 5, 9, 3}) zbior.Add(wartosc);
  EXPECT_EQ(zbior.GetValues(), (std::vector<int>{-1, 3, 5, 9}));
  EXPECT_FALSE(zbior.Add(3));
  EXPECT_FALSE(zbior.Remove(4));
  EXPECT_TRUE(zbior.Remove(9));
  EXPECT_FALSE(zbior.Remove(9));
  EXPECT_TRUE(zbior.Contains(5));
  EXPECT_FALSE(zbior.Contains(9));
}

}  // namespace
