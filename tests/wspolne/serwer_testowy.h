#pragma once

#include <atomic>

#include <QString>

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/baza/sesja.h"

// The same tests run on both kinds of databases: with ZORVIK_TEST_BAZA=odbc on the server whose maintenance
// database ZORVIK_TEST_ODBC names, otherwise on files.
inline bool NaSerwerze() {
  return qEnvironmentVariable("ZORVIK_TEST_BAZA") == QStringLiteral("odbc");
}

// A schema of its own on the test server, gone with the object: to the program a database like any other, and
// made faster than one.
class BazaSerwera {
 public:
  BazaSerwera() : m_nazwa(QStringLiteral("zorvik_%1_%2").arg(getpid()).arg(++s_ile)) {
    Zlec("create schema " + m_nazwa.toStdString());
  }
  ~BazaSerwera() {
    try {
      Zlec("drop schema " + m_nazwa.toStdString() + " cascade");
    } catch (const EBladBazy& blad) {
      ADD_FAILURE() << "the schema stays: " << blad.MacDescription().toStdString();
    }
  }
  BazaSerwera(const BazaSerwera&) = delete;
  BazaSerwera& operator=(const BazaSerwera&) = delete;

  QString Napis() const {
    return Serwer() + QStringLiteral(";pqopt={options=-csearch_path=%1}").arg(m_nazwa);
  }
  const QString& Nazwa() const { return m_nazwa; }

  static QString Serwer() { return qEnvironmentVariable("ZORVIK_TEST_ODBC"); }
  static void Zlec(std::string_view sql) {
    TVLTBazaDanych baza(*ParametryPolaczenia::ZTekstu(QStringLiteral("odbc:") + Serwer()));
    baza.Polacz();
    baza.ExecSQL(sql);
  }

 private:
  inline static std::atomic<int> s_ile = 0;
  const QString m_nazwa;
};

// Skips every test of the program when the server it should use was not started.
class BrakSerwera final : public testing::Environment {
 public:
  void SetUp() override {
    if (NaSerwerze() && BazaSerwera::Serwer().isEmpty())
      GTEST_SKIP() << "no test server: ZORVIK_TEST_ODBC is not set (scripts/test starts one)";
  }
};
inline const testing::Environment* const kBrakSerwera = testing::AddGlobalTestEnvironment(new BrakSerwera);
