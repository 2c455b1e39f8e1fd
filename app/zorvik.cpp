#include <algorithm>
#include <memory>

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

#include "app/argumenty.h"
#include "app/nowa_baza.h"
#include "app/polecenia.h"
#include "app/srodowisko.h"
#include "app/terminal.h"
#include "shell/okno/okno_glowne.h"
#include "shell/prezenter.h"
#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// An exception that leaves a handler is shown; it must not pass through the event loop.
class Program final : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* odbiorca, QEvent* zdarzenie) override {
    try {
      return QApplication::notify(odbiorca, zdarzenie);
    } catch (const EMException& blad) {
      EMException::ShowExceptionNow(blad);
    } catch (const std::exception& blad) {
      EMException::ShowExceptionNow(BladProgramu(blad));
    }
    return false;
  }

 private:
  class BladProgramu final : public EMException {
   public:
    explicit BladProgramu(const std::exception& blad) {
      UstawTeksty({}, QString::fromLocal8Bit(blad.what()));
    }
  };
};

QString Pomoc() {
  return u"zorvik – import i eksport bazy towarów i kontrahentów, program okienkowy\n\n"
         u"Użycie: zorvik [OPCJE]\n"_s +
         PomocOpcji(GrupaOpcji::Okno);
}

Argumenty Rozbierz(const QStringList& slowa) {
  const WynikRozbioru rozbior = RozbierzArgumenty(slowa);
  for (const Opcja* opcja : rozbior.uzyte)
    if (!(opcja->grupy & GrupaOpcji::Okno))
      throw BladUzycia{u"Program okienkowy nie ma opcji --%1"_s.arg(QStringView(opcja->nazwa))};
  if (!rozbior.argumenty.polecenie.isEmpty())
    throw BladUzycia{u"Zbędny argument \"%1\""_s.arg(rozbior.argumenty.polecenie)};
  return rozbior.argumenty;
}

StartOkna Start(const Argumenty& argumenty) {
  StartOkna start{.katalogStartowy = QDir::currentPath(),
                  .utworzBaze = [](const ParametryPolaczenia& parametry) -> std::optional<Komunikat> {
                    const WynikNowejBazy wynik = UtworzNowaBaze(parametry, false);
                    if (wynik.status == StatusWyjscia::Zakonczono) return std::nullopt;
                    return wynik.powod;
                  },
                  .plikKonfiguracji = argumenty.konfiguracja,
                  .katalogPominietych = argumenty.pominiete.value_or(QString())};
  if (!argumenty.baza) return start;
  start.baza = BazaZWierszaPolecen(*argumenty.baza);
  return start;
}

StatusWyjscia Uruchom(const QStringList& slowa) {
  const Argumenty argumenty = Rozbierz(slowa);
  if (argumenty.wersja || argumenty.pomoc) {
    terminal::Wypisz(argumenty.pomoc ? Pomoc() : u"zorvik " ZORVIK_WERSJA "\n"_s);
    return StatusWyjscia::Zakonczono;
  }
  const StartOkna start = Start(argumenty);
  QTranslator teksty;  // those of Qt itself
  if (teksty.load(QLocale(QLocale::Polish), u"qtbase"_s, u"_"_s,
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&teksty);
  Rozmowa rozmowa;
  UstawPrezenterBledow(rozmowa);
  Tfrm_main okno(rozmowa, start);
  const bool pokazane = okno.FormShow();
  if (pokazane) QApplication::exec();
  EMException::UstawPrezenter({});
  return pokazane ? StatusWyjscia::Zakonczono : StatusWyjscia::Odmowa;
}

// Help needs no screen.
std::unique_ptr<QCoreApplication> UtworzProgram(int& argc, char** argv) {
  const bool bezOkna = std::any_of(argv, argv + argc, [](const char* slowo) {
    const std::string_view opcja = slowo;
    return opcja == "--help" || opcja == "--version" || opcja == "--wersja";
  });
  if (bezOkna) return std::make_unique<QCoreApplication>(argc, argv);
  return std::make_unique<Program>(argc, argv);
}

}  // namespace

int main(int argc, char** argv) {
  const auto program = UtworzProgram(argc, argv);
  QCoreApplication::setApplicationName(u"zorvik"_s);
  QCoreApplication::setApplicationVersion(QStringLiteral(ZORVIK_WERSJA));
  try {
    return static_cast<int>(Uruchom(SlowaWierszaPolecen(argc, argv)));
  } catch (const BladUzycia& blad) {
    terminal::WypiszBlad(blad.tekst + u"\nPomoc: zorvik --help\n"_s);
    return static_cast<int>(StatusWyjscia::BledneUzycie);
  }
}
