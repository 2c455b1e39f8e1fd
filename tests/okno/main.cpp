#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// Real widgets without a screen; settings of the person who runs the tests stay out of reach.
int main(int argc, char** argv) {
  const QTemporaryDir dom;
  for (const char* zmienna : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
    qputenv(zmienna, dom.filePath(QLatin1String(zmienna)).toUtf8());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication program(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zorvik-test"));
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
