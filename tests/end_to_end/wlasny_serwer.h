#pragma once

#include "tests/end_to_end/stanowisko.h"

// A server of one test alone, which may be restarted: the other tests have the common one. It is the test
// server for as long as the object lives; nothing on files.
class WlasnySerwer {
 public:
  WlasnySerwer() : m_wspolny(qgetenv(kZmienna)) {
    if (!NaSerwerze()) return;
    m_powloka.setWorkingDirectory(QStringLiteral(ZORVIK_ZRODLA));
    m_powloka.start(u"bash"_s, {u"-c"_s,
                                u"source scripts/wspolne.sh; source scripts/serwer_testowy.sh\n"
                                "uruchom_serwer_testowy; echo \"$ZORVIK_TEST_ODBC\"\n"
                                "while read -r; do wznow_serwer_testowy; echo gotowe; done"_s});
    qputenv(kZmienna, Linia());
  }
  ~WlasnySerwer() {
    if (!NaSerwerze()) return;
    qputenv(kZmienna, m_wspolny);
    m_powloka.closeWriteChannel();
    EXPECT_TRUE(m_powloka.waitForFinished());
  }
  WlasnySerwer(const WlasnySerwer&) = delete;
  WlasnySerwer& operator=(const WlasnySerwer&) = delete;

  // Ends every connection; the server answers again when this returns.
  void Wznow() {
    m_powloka.write("\n");
    EXPECT_EQ(Linia(), "gotowe");
  }

 private:
  static constexpr const char* kZmienna = "ZORVIK_TEST_ODBC";

  QByteArray Linia() {
    while (!m_powloka.canReadLine() && m_powloka.waitForReadyRead()) {
    }
    return m_powloka.readLine().trimmed();
  }

  const QByteArray m_wspolny;
  QProcess m_powloka;
};
