#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "tests/wspolne/serwer_testowy.h"

using namespace Qt::Literals::StringLiterals;

struct Wynik {
  int status = -1;
  QString wyjscie, bledy;

  QJsonObject Json() const { return QJsonDocument::fromJson(wyjscie.toUtf8()).object(); }
  QString Koniec() const { return Json()[u"koniec"_s].toString(); }
  int Liczba(const QString& klucz) const { return Json()[klucz].toInt(-1); }
  bool MaKomunikat(const QString& tytul, const QString& poczatek) const {
    for (const auto& wpis : Json()[u"komunikaty"_s].toArray())
      if (wpis[u"tytul"_s] == tytul && wpis[u"tekst"_s].toString().startsWith(poczatek)) return true;
    return false;
  }
};

// A folder of its own in which the real program runs on a real database, as if nobody had ever run it before.
class Stanowisko {
 public:
  explicit Stanowisko(bool demo = false) {
    static int argc = 0;
    static QCoreApplication aplikacja(argc, nullptr);
    if (NaSerwerze()) Zapisz(u"baza.odbc"_s, m_serwera.emplace().Napis().toStdString());
    QStringList slowa{u"nowa-baza"_s, Baza()};
    if (demo) slowa << u"--demo"_s;
    EXPECT_EQ(Uruchom(slowa).status, 0);
  }

  // How the program is told of the database: a server's password stands in a file.
  static QString Baza() { return NaSerwerze() ? u"odbc:@baza.odbc"_s : u"baza.db"_s; }
  const BazaSerwera& Serwer() const { return *m_serwera; }
  QString Sciezka(const QString& nazwa) const { return m_folder.filePath(nazwa); }
  QByteArray Odczytaj(const QString& nazwa) const {
    QFile plik(Sciezka(nazwa));
    return plik.open(QIODevice::ReadOnly) ? plik.readAll() : QByteArray();
  }
  void Zapisz(const QString& nazwa, const std::string& bajty) const {
    QFile plik(Sciezka(nazwa));
    EXPECT_TRUE(plik.open(QIODevice::WriteOnly));
    EXPECT_EQ(plik.write(bajty.data(), static_cast<qint64>(bajty.size())), static_cast<qint64>(bajty.size()));
  }

  // `wDziecku` runs in the child before the program starts.
  std::unique_ptr<QProcess> Zacznij(const QStringList& slowa, std::function<void()> wDziecku = {}) const {
    auto proces = std::make_unique<QProcess>();
    QProcessEnvironment otoczenie = QProcessEnvironment::systemEnvironment();
    otoczenie.insert(u"XDG_CONFIG_HOME"_s, Sciezka(u"ustawienia"_s));
    otoczenie.insert(u"XDG_DATA_HOME"_s, Sciezka(u"dane"_s));
    otoczenie.insert(u"LC_ALL"_s, u"C"_s);
    proces->setProcessEnvironment(otoczenie);
    proces->setWorkingDirectory(m_folder.path());
    if (wDziecku) proces->setChildProcessModifier(std::move(wDziecku));
    proces->start(QStringLiteral(ZORVIK_CLI), slowa);
    EXPECT_TRUE(proces->waitForStarted());
    return proces;
  }
  static Wynik Zakoncz(QProcess& proces) {
    EXPECT_TRUE(proces.state() == QProcess::NotRunning || proces.waitForFinished(120'000));
    return {proces.exitStatus() == QProcess::NormalExit ? proces.exitCode() : -1,
            QString::fromUtf8(proces.readAllStandardOutput()),
            QString::fromUtf8(proces.readAllStandardError())};
  }
  Wynik Uruchom(const QStringList& slowa, std::function<void()> wDziecku = {}) const {
    return Zakoncz(*Zacznij(slowa, std::move(wDziecku)));
  }

  // An import into the database of this place; its skipped-records file comes here too.
  QStringList SlowaImportu(const QString& plik, const QStringList& dalsze = {},
                           const QString& polecenie = u"import-towarow"_s) const {
    return QStringList{polecenie, plik, u"--baza"_s, Baza(), u"--pominiete"_s, u"."_s, u"--json"_s} + dalsze;
  }
  Wynik Import(const QString& plik, const QStringList& dalsze = {}) const {
    return Uruchom(SlowaImportu(plik, dalsze));
  }

  void Polacz(TVLTBazaDanych& sesja) const {
    sesja.UstawPolaczenie(
        *ParametryPolaczenia::ZTekstu(m_serwera ? u"odbc:"_s + m_serwera->Napis() : Sciezka(u"baza.db"_s)));
    sesja.Polacz();
  }
  // First column of every row, as text.
  QStringList Zapytaj(std::string_view sql) const {
    TVLTBazaDanych sesja;
    Polacz(sesja);
    QStringList wiersze;
    auto odczyt = sesja.Otworz(sql, {TypPola::Tekst});
    while (odczyt.Nastepny()) wiersze << odczyt[0].AsString();
    return wiersze;
  }
  int Ile(std::string_view sql) const { return Zapytaj(sql).value(0).toInt(); }
  int Towarow() const { return Ile("select cast(count(*) as text) from Towar"); }

 private:
  QTemporaryDir m_folder;
  std::optional<BazaSerwera> m_serwera;
};
