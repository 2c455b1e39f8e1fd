#pragma once

#include <string>
#include <string_view>

#include <QString>
#include <QStringView>

#include "exchange/struktura_pliku.h"

// The Polish letters of the code pages files come in. A page is known by its 18 letters alone: every other
// byte keeps its value, whatever the pages.

// Rewrites the letters of page `zrodlo` as those of page `cel`; both are rows of the table. Bytes below 128
// never change, so a text in plain ASCII letters stays what it is.
void KonwertujStrone(std::string& tekst, int zrodlo, int cel);

// Bytes of a file in `strona` as text: the conversion to Windows-1250, then the meaning of the bytes in that
// page.
QString TekstZeStrony(std::string_view bajty, StronaKodowa strona);

// Whether a byte from 128 up is one of the 18 letters on that page; ASCII has none there.
bool JestPolskaLitera(char bajt, StronaKodowa strona);

// A configured text (a separator, a code word) as it stands in a file written in `strona`.
std::string BajtyNaStronie(QStringView tekst, StronaKodowa strona);
