#pragma once

#include <map>
#include <vector>

#include "exchange/strony_kodowe.h"
#include "tests/end_to_end/stanowisko.h"

// Field number to value; fields that are missing are empty. The rate is a percentage or "ZW".
using Rekord = std::map<int, QString>;

// From lines "number:value~number:value".
inline std::vector<Rekord> Rekordy(const QString& tekst) {
  std::vector<Rekord> rekordy;
  for (const QString& linia : tekst.split(u'\n')) {
    Rekord& rekord = rekordy.emplace_back();
    for (const QString& pole : linia.split(u'~'))
      rekord[pole.section(u':', 0, 0).toInt()] = pole.section(u':', 1);
  }
  return rekordy;
}

inline constexpr int kSzerokosc = 44;

// The file in one of the layouts, in the code page given, and the settings by which it is read.
inline std::string PlikTowarow(const std::vector<Rekord>& rekordy, TypPliku typ, StronaKodowa strona) {
  constexpr int kPol = PoleTowaru::LiczbaWartosci;
  const bool wlasny = typ == TypPliku::Zorvik;
  std::string plik;
  if (wlasny) {
    for (const auto& pole : KatalogPol(RodzajRekordu::Towary).first(kPol))
      plik += BajtyNaStronie(pole.nazwa, strona) + (pole.numer + 1 < kPol ? "\t" : "\r\n");
  } else if (typ == TypPliku::DBase) {
    constexpr int kNaglowek = 32 * (kPol + 1) + 1;
    constexpr int kRekord = 1 + kPol * kSzerokosc;
    const auto slowo = [](int n) {
      return std::string{static_cast<char>(n % 256), static_cast<char>(n / 256)};
    };
    plik = std::string("\x03\x1A\x01\x01", 4) + std::string(4, '\0') + slowo(kNaglowek) + slowo(kRekord);
    plik.resize(32);
    for (int pole = 0; pole < kPol; ++pole) {
      std::string opis = "POLE" + std::to_string(pole);
      opis.resize(32);
      opis[11] = 'C';
      opis[16] = static_cast<char>(kSzerokosc);
      plik += opis;
    }
    plik += '\r';
  }
  for (const Rekord& rekord : rekordy) {
    if (typ == TypPliku::DBase) plik += ' ';
    for (int pole = 0; pole < kPol; ++pole) {
      const auto wpis = rekord.find(pole);
      QString wartosc = wpis == rekord.end() ? QString() : wpis->second;
      if (wlasny && pole == PoleTowaru::StawkaVat) wartosc = wartosc == u"ZW" ? u"-1"_s : wartosc + u"00"_s;
      std::string bajty = BajtyNaStronie(wartosc, strona);
      if (typ == TypPliku::StalaSzerokosc || typ == TypPliku::DBase) bajty.resize(kSzerokosc, ' ');
      plik += bajty;
      if (typ == TypPliku::Rozdzielany) plik += pole + 1 < kPol ? "#" : "";
      if (wlasny) plik += pole + 1 < kPol ? "\t" : "";
    }
    if (typ != TypPliku::DBase) plik += "\r\n";
  }
  return typ == TypPliku::DBase ? plik + '\x1A' : plik;
}

inline QStringList UstawieniaPliku(TypPliku typ, StronaKodowa strona) {
  QStringList slowa;
  const auto ustaw = [&](const QString& klucz, const QString& wartosc) {
    slowa << u"--ustaw"_s << klucz + u'=' + wartosc;
  };
  ustaw(u"ParTypPlikuTow"_s, QString::number(static_cast<int>(typ)));
  ustaw(u"ParPlTypeTow"_s, QString::number(static_cast<int>(strona)));
  if (typ == TypPliku::Zorvik) return slowa;
  ustaw(u"ParNieAnalPierwTow"_s, u"0"_s);
  ustaw(u"ParSeparatorTow"_s, u"#"_s);
  ustaw(u"ParIloscPolTow"_s, QString::number(PoleTowaru::LiczbaWartosci));
  for (int pole = 0; pole < PoleTowaru::LiczbaWartosci; ++pole) {
    const QString dopisek = typ == TypPliku::DBase            ? u"pole%1"_s.arg(pole)
                            : typ == TypPliku::StalaSzerokosc ? u"%1"_s.arg(kSzerokosc, 5)
                                                              : QString();
    ustaw(u"ParPoleTow%1"_s.arg(pole), u"%1"_s.arg(pole, 2, 10, QChar(u'0')) + dopisek);
  }
  const QStringList opisy{u"2323"_s, u"8 8"_s, u"5 5"_s, u"0 0"_s, u"-1ZW"_s};
  ustaw(u"ParIloscOpisowVAT"_s, QString::number(opisy.size()));
  for (qsizetype i = 0; i < opisy.size(); ++i) ustaw(u"ParOpisVAT%1"_s.arg(i), opisy[i]);
  return slowa;
}

// Many goods in the own layout: unique codes and names, one additional code each.
inline std::string DuzyPlik(int ile) {
  QStringList linie;
  for (int i = 0; i < ile; ++i)
    linie << u"0:%1~1:Towar próbny nr %2~18:%3,99~23:23~24:Asortyment %4~26:(%5||)~31:1"_s
                 .arg(5900000000000 + i)
                 .arg(i)
                 .arg(i % 100)
                 .arg(i % 7)
                 .arg(5910000000000 + i);
  return PlikTowarow(Rekordy(linie.join(u'\n')), TypPliku::Zorvik, StronaKodowa::Windows);
}
