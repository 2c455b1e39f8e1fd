#include "exchange/strony_kodowe.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/windows1250.h"

namespace {

constexpr int kStron = 6;
constexpr size_t kLiter = 18;
using Strona = std::array<std::uint8_t, kLiter>;

// Ą Ć Ę Ł Ń Ó Ś Ż Ź ą ć ę ł ń ó ś ż ź. In plain ASCII Ź is X and ź is x, to stay apart from Ż and ż.
constexpr std::array<Strona, kStron> kStrony = {{
    {0xA5, 0xC6, 0xCA, 0xA3, 0xD1, 0xD3, 0x8C, 0xAF, 0x8F,  // Windows
     0xB9, 0xE6, 0xEA, 0xB3, 0xF1, 0xF3, 0x9C, 0xBF, 0x9F},
    {0xA4, 0x8F, 0xA8, 0x9D, 0xE3, 0xE0, 0x97, 0xBD, 0x8D,  // Latin II
     0xA5, 0x86, 0xA9, 0x88, 0xE4, 0xA2, 0x98, 0xBE, 0xAB},
    {0x8F, 0x95, 0x90, 0x9C, 0xA5, 0xA3, 0x98, 0xA1, 0xA0,  // Mazovia
     0x86, 0x8D, 0x91, 0x92, 0xA4, 0xA2, 0x9E, 0xA7, 0xA6},
    {0x41, 0x43, 0x45, 0x4C, 0x4E, 0x4F, 0x53, 0x5A, 0x58,  // ASCII
     0x61, 0x63, 0x65, 0x6C, 0x6E, 0x6F, 0x73, 0x7A, 0x78},
    {0x80, 0x82, 0x84, 0x8B, 0x8D, 0x8E, 0x92, 0x97, 0x99,  // not offered
     0xA0, 0xA2, 0xA4, 0xAB, 0xAD, 0xAE, 0xB2, 0xB7, 0xB9},
    {0x80, 0x81, 0x82, 0x83, 0x84, 0x85, 0x86, 0x88, 0x87,  // not offered
     0x89, 0x8A, 0x8B, 0x8C, 0x8D, 0x8E, 0x8F, 0x91, 0x90},
}};

constexpr std::uint8_t Zamien(std::uint8_t bajt, const Strona& zrodlo, const Strona& cel) {
  if (bajt < 0x80) return bajt;
  for (size_t i = 0; i < kLiter; ++i)
    if (zrodlo[i] == bajt) return cel[i];
  return bajt;
}

using TablicaZnakow = std::array<char16_t, 256>;

// For every offered page the Unicode character of each byte, so that a token is decoded in one pass.
const std::array<TablicaZnakow, 4>& ZnakiStron() {
  static const std::array<TablicaZnakow, 4> znaki = [] {
    std::array<TablicaZnakow, 4> wynik{};
    for (size_t strona = 0; strona < wynik.size(); ++strona)
      for (size_t bajt = 0; bajt < 256; ++bajt)
        wynik[strona][bajt] =
            windows1250::Znak(Zamien(static_cast<std::uint8_t>(bajt), kStrony[strona], kStrony[0]));
    return wynik;
  }();
  return znaki;
}

}  // namespace

void KonwertujStrone(std::string& tekst, int zrodlo, int cel) {
  if (zrodlo == cel || zrodlo < 0 || zrodlo >= kStron || cel < 0 || cel >= kStron) return;
  for (char& znak : tekst)
    znak = static_cast<char>(Zamien(static_cast<std::uint8_t>(znak), kStrony[static_cast<size_t>(zrodlo)],
                                    kStrony[static_cast<size_t>(cel)]));
}

QString TekstZeStrony(std::string_view bajty, StronaKodowa strona) {
  if (bajty.empty()) return {};
  const TablicaZnakow& znaki = ZnakiStron()[static_cast<size_t>(strona)];
  QString tekst(static_cast<qsizetype>(bajty.size()), Qt::Uninitialized);
  QChar* cel = tekst.data();
  for (const char bajt : bajty) *cel++ = QChar(znaki[static_cast<std::uint8_t>(bajt)]);
  return tekst;
}

bool JestPolskaLitera(char bajt, StronaKodowa strona) {
  const Strona& litery = kStrony[static_cast<size_t>(strona)];
  return std::find(litery.begin(), litery.end(), static_cast<std::uint8_t>(bajt)) != litery.end();
}

std::string BajtyNaStronie(QStringView tekst, StronaKodowa strona) {
  std::string bajty = windows1250::ZUnicode(tekst);
  KonwertujStrone(bajty, static_cast<int>(StronaKodowa::Windows), static_cast<int>(strona));
  return bajty;
}
