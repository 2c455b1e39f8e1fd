#include "shell/okno/powiazania.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>

#include <gtest/gtest.h>

#include "shell/okno/strony.h"
#include "ustawienia/tabela_ustawien.h"
#include "ustawienia/ustawienia.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The pages of the main window without the window and its rules.
class Strony : public testing::Test {
 protected:
  Strony() {
    zakladki.setObjectName(u"PageControl"_s);
    for (const OpisStrony& opis : TabelaStron()) {
      QWidget* const strona = opis.utworz();
      zakladki.addTab(strona, strona->windowTitle());
    }
    for (const char* nazwa : {"CBImportStanow", "CBEksportStanow"})
      zakladki.findChild<QComboBox*>(nazwa)->addItems({u"NIE"_s, u"A"_s, u"B"_s});
    WypelnijDomyslne(u, u"/start"_s);
    powiazania = std::make_unique<Powiazania>(forma, u);
    powiazania->Pokaz();
  }

  QString Klucz(const Ustawienie& ustawienie) { return QStringView(ustawienie.klucz).toString(); }
  QWidget& Kontrolka(std::string_view nazwa) {
    return *forma.findChild<QWidget*>(QLatin1String(QByteArrayView(nazwa)));
  }

  // What a person sees in a control, as the stored text; and what a person does to make it show a text.
  static QString Widac(const QWidget& kontrolka) {
    if (const auto* p = qobject_cast<const QAbstractButton*>(&kontrolka))
      return p->isChecked() ? u"1"_s : u"0"_s;
    if (const auto* l = qobject_cast<const QComboBox*>(&kontrolka)) return QString::number(l->currentIndex());
    if (const auto* s = qobject_cast<const QSpinBox*>(&kontrolka)) return QString::number(s->value());
    if (const auto* z = qobject_cast<const QTabWidget*>(&kontrolka))
      return QString::number(z->currentIndex());
    return dynamic_cast<const QLineEdit&>(kontrolka).text();
  }
  static void Zmien(QWidget& kontrolka, const QString& tekst) {
    if (auto* p = qobject_cast<QAbstractButton*>(&kontrolka)) {
      if (Widac(*p) != tekst) p->click();
    } else if (auto* l = qobject_cast<QComboBox*>(&kontrolka)) {
      l->setCurrentIndex(tekst.toInt());
    } else if (auto* s = qobject_cast<QSpinBox*>(&kontrolka)) {
      s->setValue(tekst.toInt());
    } else if (auto* z = qobject_cast<QTabWidget*>(&kontrolka)) {
      z->setCurrentIndex(tekst.toInt());
    } else {
      dynamic_cast<QLineEdit&>(kontrolka).setText(tekst);
    }
  }
  static QString Inny(const QString& tekst) {
    return tekst == u"1" ? u"0"_s : tekst == u"0" ? u"1"_s : u"7"_s;
  }

  QWidget forma;
  QTabWidget zakladki{&forma};
  Ustawienia u;
  std::unique_ptr<Powiazania> powiazania;
};

TEST_F(Strony, KazdyKluczTrafiaDoSwojejKontrolkiIWraca) {
  std::set<std::string_view> powiazane;
  for (const Ustawienie& ustawienie : TabelaUstawien()) {
    SCOPED_TRACE(Klucz(ustawienie).toStdString());
    powiazane.insert(ustawienie.przyciski.begin(), ustawienie.przyciski.end());
    if (ustawienie.kontrolka.empty()) continue;
    powiazane.insert(ustawienie.kontrolka);
    const QString przed = ustawienie.odczytaj(u);
    QWidget& kontrolka = Kontrolka(ustawienie.kontrolka);
    EXPECT_EQ(Widac(kontrolka), przed);
    const QString inny = ustawienie.domyslna == u"1" && kontrolka.inherits("QSpinBox") ? u"3"_s : Inny(przed);
    ustawienie.wpisz(u, inny);
    powiazania->Pokaz();
    EXPECT_EQ(Widac(kontrolka), inny);
    if (kontrolka.inherits("QRadioButton")) continue;  // unchecked by its siblings only, see below
    Zmien(kontrolka, przed);
    EXPECT_EQ(ustawienie.odczytaj(u), przed);
  }
  // And the other way round: no option of the pages is left without a key.
  std::set<std::string> opcje{"PageControl"};
  for (int i = 0; i < zakladki.count(); ++i)
    for (const QWidget* kontrolka : zakladki.widget(i)->findChildren<QWidget*>())
      for (const char* klasa : {"QCheckBox", "QRadioButton", "QComboBox", "QSpinBox", "QLineEdit"})
        if (kontrolka->inherits(klasa) && !qobject_cast<QSpinBox*>(kontrolka->parent()))
          opcje.insert(kontrolka->objectName().toStdString());
  EXPECT_EQ(opcje, std::set<std::string>(powiazane.begin(), powiazane.end()));
}

TEST_F(Strony, GrupyTrzechPrzyciskowSaZapisaneWSwojejKolejnosci) {
  int grup = 0;
  for (const Ustawienie& ustawienie : TabelaUstawien()) {
    if (ustawienie.przyciski.empty()) continue;
    ++grup;
    SCOPED_TRACE(Klucz(ustawienie).toStdString());
    for (const int numer : {2, 3, 1}) {
      QWidget& przycisk = Kontrolka(ustawienie.przyciski[static_cast<std::size_t>(numer - 1)]);
      Zmien(przycisk, u"1"_s);
      EXPECT_EQ(ustawienie.odczytaj(u), QString::number(numer));
      ustawienie.wpisz(u, QString::number(numer % 3 + 1));
      powiazania->Pokaz();
      EXPECT_EQ(Widac(przycisk), u"0"_s);
      EXPECT_EQ(Widac(Kontrolka(ustawienie.przyciski[static_cast<std::size_t>(numer % 3)])), u"1"_s);
    }
  }
  EXPECT_EQ(grup, 5);
  // Stored in another order than shown.
  Zmien(Kontrolka("RBDodajTowarZNazwaAuto"), u"1"_s);
  EXPECT_EQ(u.importTow.towarBezNazwy, TowarBezNazwy{2});
}

TEST_F(Strony, KlikniecieZostawiaJedenPrzyciskNip) {
  u.importKontr.rb_pominKontrBezNIPu = u.importKontr.rb_dodajKontrBezNIPu = true;  // a stored contradiction
  powiazania->Pokaz();
  QStringList zmienione;
  powiazania->PoZmianie = [&](const QString& nazwa) { zmienione << nazwa; };
  Zmien(Kontrolka("rb_dodajKontrBezNIPuJesliInnyAdres"), u"1"_s);
  EXPECT_TRUE(u.importKontr.rb_dodajKontrBezNIPuJesliInnyAdres);
  EXPECT_FALSE(u.importKontr.rb_pominKontrBezNIPu || u.importKontr.rb_dodajKontrBezNIPu);
  EXPECT_TRUE(zmienione.contains(u"rb_dodajKontrBezNIPuJesliInnyAdres"));
  zmienione.clear();
  u = Ustawienia();
  powiazania->Pokaz();
  for (const auto* przycisk : forma.findChildren<QRadioButton*>())
    EXPECT_FALSE(przycisk->objectName().startsWith(u"rb_") && przycisk->isChecked());
  EXPECT_TRUE(zmienione.isEmpty());
}

TEST_F(Strony, GranicaKodowKrotkichPrzyjmujeSameCyfry) {
  auto& pole = dynamic_cast<QLineEdit&>(Kontrolka("EdKodyKrotkie"));
  pole.clear();
  for (const QString& wpisane : {u"x"_s, u" "_s, u"-"_s, u"1234567890123"_s, u"4"_s}) pole.insert(wpisane);
  EXPECT_EQ(pole.text(), u"1234567890123"_s);
  EXPECT_EQ(u.importTow.EdKodyKrotkie, u"1234567890123"_s);
}

TEST_F(Strony, DlugoscKoduMoznaWpisac) {
  auto& pole = dynamic_cast<QSpinBox&>(Kontrolka("UpDownMaxDlugoscKodu"));
  auto& tekst = dynamic_cast<QLineEdit&>(Kontrolka("EdMaxDlugoscKodu"));
  EXPECT_EQ(tekst.text(), u"13 znaków"_s);
  const struct {
    const char16_t* wpisano;
    const char16_t* widac;
  } przypadki[] = {
      {u"4", u"4 znaków"}, {u"2 znaków", u"2 znaki"}, {u" 20", u"20 znaków"}, {u"1 znak", u"1 znak"}};
  for (const auto& [wpisano, widac] : przypadki) {
    tekst.setText(QStringView(wpisano).toString());
    pole.interpretText();
    EXPECT_EQ(tekst.text(), QStringView(widac));
    EXPECT_EQ(u.importTow.UpDownMaxDlugoscKodu, pole.value());
  }
  for (const QString& zly : {u"21"_s, u"100 znaków"_s}) {
    tekst.setText(zly);
    EXPECT_FALSE(pole.hasAcceptableInput()) << zly.toStdString();
  }
  EXPECT_FALSE(pole.wrapping());
}

TEST_F(Strony, KazdaKontrolkaMaNazweDlaCzytnikaEkranu) {
  int sprawdzonych = 0;
  for (QWidget* kontrolka : zakladki.findChildren<QWidget*>()) {
    if (!(kontrolka->focusPolicy() & Qt::TabFocus) || qobject_cast<QSpinBox*>(kontrolka->parent())) continue;
    const QAccessibleInterface* const opis = QAccessible::queryAccessibleInterface(kontrolka);
    ASSERT_NE(opis, nullptr);
    if (kontrolka->inherits("QTabBar")) continue;
    EXPECT_FALSE(opis->text(QAccessible::Name).isEmpty()) << kontrolka->objectName().toStdString();
    ++sprawdzonych;
  }
  EXPECT_GT(sprawdzonych, 60);
}

}  // namespace
