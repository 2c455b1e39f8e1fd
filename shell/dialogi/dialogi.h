#pragma once

class QString;
class QWidget;
struct KontekstOkna;
struct StrukturaPliku;

// The structure dialog with everything it opens. True when the person accepted: `struktura` then holds what
// was entered; otherwise nothing has changed. `plik`: the one whose first records are shown, may be empty.
bool EdytujStrukture(QWidget* rodzic, KontekstOkna& kontekst, StrukturaPliku& struktura, const QString& plik);

// The fields an import takes over. True when the person saved; otherwise nothing has changed.
bool EdytujPolaStandardowe(QWidget* rodzic, KontekstOkna& kontekst, StrukturaPliku& struktura);
