#pragma once

#include <functional>
#include <memory>

#include "run/operator.h"

class QWidget;
class Przekazanie;
class Rozmowa;
class TDmVLTElement;
class TFmVLTFormularzElementu;

// The edit form of a record: goods and contractors have theirs, other records and those without a row none
// (null). Main thread; the record and its session may belong to a worker that waits meanwhile. No transaction
// may be open while the form is shown. Throws EBladBazy when a dictionary cannot be read.
std::unique_ptr<TFmVLTFormularzElementu> UtworzFormularz(QWidget* rodzic, Rozmowa& rozmowa,
                                                         TDmVLTElement& rekord);

// Shows the form of a record that could not be saved, the reason beside the field it concerns. Corrected
// (save again), given up, or stop the whole run. A record without a form is given up.
Poprawka PoprawWFormularzu(QWidget* rodzic, Rozmowa& rozmowa, TDmVLTElement& rekord,
                           const OdmowaZapisu& odmowa);

// What makes edit forms for a worker's session (KontekstSesji::fabrykaFormularzy): PokazModalnie is called on
// the worker, the form is made and shown in the main thread, the worker waits. Everything referred to must
// outlive the session.
std::function<std::unique_ptr<TFmVLTFormularzElementu>(TDmVLTElement&)> FabrykaFormularzy(
    QWidget* rodzic, Rozmowa& rozmowa, Przekazanie& przekazanie);
