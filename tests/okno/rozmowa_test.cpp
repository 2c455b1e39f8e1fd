#include "shell/rozmowa.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// The real dialog: a name typed without an extension means the file of that name, then the one with it.
TEST(Rozmowa, WybranyDoOdczytuDostajeRozszerzenieGdyGoNieMa) {
  const QTemporaryDir folder;
  for (const char* nazwa : {"jest", "WIELKIE.TXT"})
    EXPECT_TRUE(QFile(folder.filePath(QLatin1String(nazwa))).open(QIODevice::WriteOnly));
  const std::pair<QString, QString> przypadki[] = {{u"cennik"_s, u"cennik.txt"_s},
                                                   {u"jest"_s, u"jest"_s},
                                                   {u"WIELKIE"_s, u"WIELKIE.TXT"_s},
                                                   {u"cennik.csv"_s, u"cennik.csv"_s}};
  for (const auto& [wpisana, wybrana] : przypadki) {
    QTimer::singleShot(0, [plik = folder.filePath(wpisana)] {
      auto* const okno = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      okno->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(plik);
      okno->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
    });
    EXPECT_EQ(
        Rozmowa().WybierzDoOdczytu(
            nullptr, {.tytul = {}, .sciezka = folder.path(), .filtr = u"(*)"_s, .rozszerzenie = u"txt"_s}),
        folder.filePath(wybrana));
  }
}

}  // namespace
