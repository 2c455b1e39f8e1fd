#pragma once

#include <string_view>
#include <vector>

#include <QString>
#include <QStringView>

class ZapisRekordow;

// One line of an export in the making: writes its fields in their order and keeps why an import of the line
// would not give the record as it is.
class WierszEksportu {
 public:
  // `separator`: the system's decimal mark.
  WierszEksportu(ZapisRekordow& zapis, char separator) : m_zapis(zapis), m_separator(separator) {}

  void Tekst(const QString& tekst);
  // A text that an import takes without the blanks around it.
  void Nazwa(const QString& nazwa);
  // A text made of several; `powod`: why an import would not take it apart into the same, empty when it
  // would.
  void Blok(const QString& blok, std::u16string_view powod);
  void Liczba(double liczba);
  void Calkowita(long long liczba);
  // Plain ASCII that comes back as it is.
  void Ascii(std::string_view tekst);

  void DodajPowod(std::u16string_view powod);
  // Each once, in the order of the columns; empty when the record will come back.
  const std::vector<std::u16string_view>& Powody() const { return m_powody; }

 private:
  ZapisRekordow& m_zapis;
  char m_separator;
  std::vector<std::u16string_view> m_powody;
};

// A column of an export file; `Wiersz` is what the columns of one record kind are written from.
template <typename Wiersz>
struct KolumnaEksportu {
  std::u16string_view naglowek;
  void (*wpisz)(const Wiersz&);
};

// Why a block with such a name does not come back.
inline constexpr std::u16string_view kZnakiBloku = u"znaki bloku w nazwie";
// Whether a name cannot stand in a block as it is: it holds one of the characters, or blanks at its ends.
bool GinieWBloku(const QString& nazwa, QStringView znaki);

// Whether a line that begins with the text is read as a comment.
bool ZaczynaKomentarz(const QString& tekst);
