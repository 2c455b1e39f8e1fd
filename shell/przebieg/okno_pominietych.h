#pragma once

class QString;
class QWidget;
class Rozmowa;

// Shows the skipped-records file of a run as a table that can be narrowed to one reason, and offers to open
// the file itself.
void PokazPominiete(QWidget* rodzic, Rozmowa& rozmowa, const QString& plik);
