#pragma once

#include <memory>

class QWidget;
class Rozmowa;
class TDmVLTElement;
class TFmVLTFormularzElementu;
enum class Poprawka;
class QString;

// The edit form of a record: goods and contractors have theirs, other records none (null). Main thread; the
// record may belong to a worker that waits meanwhile.
std::unique_ptr<TFmVLTFormularzElementu> UtworzFormularz(QWidget* rodzic, Rozmowa& rozmowa,
                                                         TDmVLTElement& rekord);

// Shows the form of a record that could not be saved, the reason beside the field it concerns. Corrected
// (save again), given up, or stop the whole run.
Poprawka PoprawWFormularzu(QWidget* rodzic, Rozmowa& rozmowa, TDmVLTElement& rekord, const QString& odmowa);
