#pragma once

#include <QString>

class TMField;
enum class RodzajPola;

// How columns are shown as texts and what a text typed in their place means.

// With the system's decimal mark.
QString PokazLiczbe(double liczba, int najmniejMiejsc = 0);

QString PokazKolumne(RodzajPola rodzaj, const TMField& kolumna);

// What is wrong with the text, in words for a person; empty when the column can hold it. An empty number is
// 0.
QString WadaTekstu(RodzajPola rodzaj, const QString& tekst);

// A text without a fault.
void WpiszTekst(RodzajPola rodzaj, const QString& tekst, TMField& kolumna);
