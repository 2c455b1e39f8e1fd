#include "shell/przebieg/wykonanie_przebiegu.h"

#include "platform/wyjatek.h"
#include "robotnik/stan_przebiegu.h"
#include "shell/formularze/formularze.h"
#include "shell/przebieg/okno_postepu.h"
#include "shell/przebieg/operator_okna.h"
#include "shell/przebieg/postep_okna.h"
#include "shell/przebieg/watek_roboczy.h"
#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void PokazWyjatek(QWidget* rodzic, Rozmowa& rozmowa, const std::exception_ptr& wyjatek) {
  const QString naglowek = u"Wystąpił błąd"_s;
  try {
    std::rethrow_exception(wyjatek);
  } catch (const EMException& blad) {
    rozmowa.PokazBlad(rodzic, blad);
  } catch (const std::exception& blad) {
    rozmowa.Powiedz(rodzic, {naglowek, QString::fromLocal8Bit(blad.what())}, QMessageBox::Critical);
  } catch (...) {
    rozmowa.Powiedz(rodzic, {naglowek, u"Nieznany błąd"_s}, QMessageBox::Critical);
  }
}

}  // namespace

WynikPrzebiegu WykonajZOknemPostepu(QWidget* rodzic, Rozmowa& rozmowa, const ZadaniePrzebiegu& zadanie) {
  WynikPrzebiegu wynik;
  wynik.koniec = KoniecPrzebiegu::Blad;
  StanPrzebiegu stan;
  Tfrm_progress okno(stan, rozmowa, rodzic);
  okno.setWindowTitle(zadanie.tytul);
  // Goes first: nothing above may go while the worker works.
  WatekRoboczy watek(stan, [&](const std::exception_ptr& wyjatek) {
    okno.PokazWynik(wynik);
    PokazWyjatek(&okno, rozmowa, wyjatek);
  });
  watek.Uruchom([&](Przekazanie& doOkna, const std::atomic<bool>& stop) {
    PostepOkna postep(doOkna, okno, rozmowa);
    OperatorOkna oper(doOkna, okno, rozmowa);
    wynik = zadanie.wykonaj({postep, oper, stop, FabrykaFormularzy(&okno, rozmowa, doOkna)});
    doOkna.Wykonaj([&] { okno.PokazWynik(wynik); });
  });
  rozmowa.Pokaz(okno);
  watek.Dokoncz();
  return wynik;
}
