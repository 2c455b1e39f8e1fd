#include <cstdio>
#include <stdexcept>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "bench/puls.h"
#include "shell/okno/okno_glowne.h"
#include "shell/rozmowa.h"

// import-w-oknie PLIK BAZA KONFIGURACJA FOLDER [lista]: imports goods from the menu of the real main window
// and looks how long the window did not answer meanwhile. Skipped records are left in FOLDER; with `lista`
// their list is opened and sorted in the end. Prints JSON:
//   polecenieS    from the menu command to the moment when the progress window can be closed
//   przebieg      {ms, procesoraMs, poMs} of the longest stay away from the event loop until then
//   lista         {...} the same of opening the list of skipped records
//   sortowanie    {...} the same of sorting it
//   linie         the lines of the progress window

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kOkresMs = 10;  // between two looks at a window

QJsonObject Opis(const Puls::Przerwa& przerwa) {
  return {{u"ms"_s, przerwa.ms}, {u"procesoraMs"_s, przerwa.procesoraMs}, {u"poMs"_s, przerwa.poMs}};
}

// The person in front of the window; in no hurry, but without a pause.
class Osoba final : public Rozmowa {
 public:
  Osoba(QString plik, bool ogladaListe) : m_plik(std::move(plik)), m_ogladaListe(ogladaListe) {}

  Puls puls;
  QJsonObject wynik;

  std::optional<QString> WybierzDoOdczytu(QWidget* /*rodzic*/, const WyborPliku& /*wybor*/) override {
    return m_plik;
  }
  Przycisk Zapytaj(QWidget* /*rodzic*/, const Komunikat& pytanie, Ikona /*ikona*/, Przyciski przyciski,
                   Przycisk /*domyslny*/) override {
    if (przyciski == QMessageBox::Ok) return QMessageBox::Ok;
    if (pytanie.tekst == u"Czy rzeczywiście chcesz opuścić program") return QMessageBox::Yes;
    throw std::runtime_error(qPrintable(pytanie.tekst));
  }
  int Pokaz(QDialog& okno) override {
    auto* const przycisk = okno.findChild<QAbstractButton*>("button"_L1);
    QTimer zegar;
    if (przycisk)
      zegar.callOnTimeout([&] {
        if (przycisk->text() == u"Zamknij") PoPrzebiegu(okno, zegar);
      });
    else
      zegar.callOnTimeout([&] { PrzyLiscie(okno); });
    zegar.start(kOkresMs);
    return okno.exec();
  }

 private:
  void PoPrzebiegu(QDialog& okno, QTimer& zegar) {
    zegar.stop();
    puls.Uderz();
    wynik[u"polecenieS"_s] = puls.OdPoczatkuMs() / 1e3;
    wynik[u"przebieg"_s] = Opis(puls.Najdluzsza());
    const QAbstractItemModel& model = *okno.findChild<QAbstractItemView*>("linie"_L1)->model();
    QJsonArray linie;
    for (int i = 0; i < model.rowCount(); ++i) linie << model.index(i, 1).data().toString();
    wynik[u"linie"_s] = linie;
    puls.Zacznij();
    if (m_ogladaListe) okno.findChild<QAbstractButton*>("pominiete"_L1)->click();
    okno.close();
  }

  // Step by step, each after the window has drawn what the one before changed.
  void PrzyLiscie(QDialog& okno) {
    QAbstractItemModel& model = *okno.findChild<QAbstractItemView*>("tabela"_L1)->model();
    if (model.rowCount() == 0) return;
    puls.Uderz();
    switch (m_krok++) {
      case 0:
        break;
      case 1:
        wynik[u"lista"_s] = Opis(puls.Najdluzsza());
        puls.Zacznij();
        model.sort(1);
        break;
      default:
        wynik[u"sortowanie"_s] = Opis(puls.Najdluzsza());
        okno.close();
    }
  }

  QString m_plik;
  bool m_ogladaListe;
  int m_krok = 0;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication program(argc, argv);
  QApplication::setApplicationName(u"zorvik"_s);
  const QStringList slowa = QApplication::arguments();
  if (slowa.size() < 5 || slowa.size() > 6) {
    std::fputs("Użycie: import-w-oknie PLIK BAZA KONFIGURACJA FOLDER [lista]\n", stderr);
    return 2;
  }
  Osoba osoba(slowa[1], slowa.size() == 6);
  Tfrm_main okno(osoba, {.katalogStartowy = slowa[4],
                         .utworzBaze = {},
                         .baza = ParametryPolaczenia::ZTekstu(slowa[2]),
                         .plikKonfiguracji = slowa[3],
                         .katalogPominietych = slowa[4]});
  if (!okno.FormShow()) return 1;
  QTimer start;
  start.setSingleShot(true);
  start.callOnTimeout([&] {
    osoba.puls.Zacznij();
    okno.findChild<QAction*>("ImportTowMenu"_L1)->trigger();
    QApplication::quit();
  });
  start.start(0);
  QApplication::exec();
  std::puts(QJsonDocument(osoba.wynik).toJson(QJsonDocument::Compact).constData());
  return osoba.wynik.isEmpty() ? 1 : 0;
}
