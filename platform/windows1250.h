#pragma once

#include <QString>
#include <QStringView>
#include <optional>
#include <string>
#include <string_view>

// Windows-1250 and Unicode, by a table of our own: the converters of the operating system differ in the five
// bytes the page leaves undefined. Those map to U+0081, U+0083, U+0088, U+0090 and U+0098, so every byte
// comes back as it was.
namespace windows1250 {

char16_t Znak(unsigned char bajt);
// None for a character the page lacks.
std::optional<unsigned char> Bajt(char16_t znak);

QString NaUnicode(std::string_view bajty);

// Appends the text to `wyjscie`, "?" for every character the page lacks; returns how many those are.
int Dopisz(QStringView tekst, std::string& wyjscie);
std::string ZUnicode(QStringView tekst);

}  // namespace windows1250
