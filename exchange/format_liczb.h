#pragma once

#include <string>

// A number as the exports write it. With a decimal comma: "12,5", "3,0" (no trailing zeros, one digit at
// least behind the comma). With a decimal point the text keeps its six decimals: "12.500000". `separator` is
// the system's mark.
std::string FormatLiczby(double wartosc, char separator);

// What stands for a number that is not to be sent, whatever the decimal mark.
inline constexpr char kLiczbaNiewysylana[] = "0.00";
