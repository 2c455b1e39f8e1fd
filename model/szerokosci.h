#pragma once

#include <string_view>

#include <QString>

#include "platform/baza/szerokosci.h"

class EVLTWDError;

// Texts that are longer than their column are refused before anything is written, with code 2040, on every
// kind of database. Lengths are counted in characters, as servers count them.

// What is wrong with a text, "ma 1001 znaków, a mieści się ich 1000"; empty when nothing is.
QString WadaDlugosci(std::string_view utf8, int mieszczaSie = kZnakowTekstu);

// Throws 2040 that names the field and both lengths. `tabela` and `kolumna` tell the field as people know it.
void WymagajDlugosci(const char* tabela, const char* kolumna, std::string_view utf8,
                     int mieszczaSie = kZnakowTekstu);
void WymagajDlugosci(const char* tabela, const char* kolumna, const QString& tekst,
                     int mieszczaSie = kZnakowTekstu);

bool ZaDlugiTekst(const EVLTWDError& blad);
// How a record that was refused with the error is reported: by the error's title, which for a text that is
// too long would not name the field.
QString TekstDoRaportu(const EVLTWDError& blad);
