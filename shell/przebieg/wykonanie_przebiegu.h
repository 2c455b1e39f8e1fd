#pragma once

#include <atomic>
#include <functional>

#include <QString>

#include "model/kontekst.h"
#include "run/przebieg.h"

class QWidget;
class Rozmowa;

// A run to be carried out beside the window.
struct ZadaniePrzebiegu {
  QString tytul;  // of the progress window
  // Called on the worker. Its exceptions are shown once and end the run as a fault.
  struct Otoczenie {
    IPostep& postep;
    IOperator& oper;
    const std::atomic<bool>& stop;
    // Makes edit forms that show themselves in the main thread; for KontekstSesji.
    std::function<std::unique_ptr<TFmVLTFormularzElementu>(TDmVLTElement&)> fabrykaFormularzy;
  };
  std::function<WynikPrzebiegu(const Otoczenie&)> wykonaj;
};

// Runs it on a thread of its own behind the modal progress window (Tfrm_progress) and returns when the person
// has closed that window after the end of the run.
WynikPrzebiegu WykonajZOknemPostepu(QWidget* rodzic, Rozmowa& rozmowa, const ZadaniePrzebiegu& zadanie);
