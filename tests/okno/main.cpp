#include <QApplication>

#include <gtest/gtest.h>

// Real widgets without a screen; settings of the person who runs the tests stay out of reach.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication program(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zorvik-test"));
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
