#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Program, WierszPolecen) {
  const struct {
    QStringList slowa;
    int status;
    const char16_t* tekst;
  } przypadki[] = {
      {{u"--help"_s}, 0, u"--baza"},
      {{u"--version"_s}, 0, u"zorvik "},
      {{u"--json"_s}, 2, u"--json"},
      {{u"cennik.txt"_s}, 2, u"cennik.txt"},
      {{u"--baza=odbc:DSN=x;PWD=tajne"_s}, 2, u"Hasła nie podaje się"},
  };
  for (const auto& p : przypadki) {
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QStringLiteral(ZORVIK_OKNO), p.slowa);
    ASSERT_TRUE(program.waitForFinished()) << p.slowa[0].toStdString();
    EXPECT_EQ(program.exitCode(), p.status) << p.slowa[0].toStdString();
    EXPECT_TRUE(QString::fromUtf8(program.readAll()).contains(QStringView(p.tekst)));
  }
}

}  // namespace
