// Input: the first byte chooses the block, the rest is its text in Windows-1250. What is accepted is whole:
// written in the plain form and read again it is the same.

#include <cstdint>

#include "goods/bloki.h"
#include "platform/windows1250.h"
#include "tests/fuzz/plik_w_pamieci.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString Tekst(const std::vector<KodZBloku>& kody) {
  QString tekst;
  for (const KodZBloku& k : kody)
    tekst += (tekst.isEmpty() ? u""_s : u";"_s) +
             (u'(' + k.kod + u'|' + k.skrot + u'|' + QString::number(k.plu) + u')');
  return tekst;
}

QString Tekst(const std::vector<QString>& nipy) {
  QString tekst;
  for (const QString& nip : nipy) tekst += (tekst.isEmpty() ? u'(' : u'|') + nip;
  return tekst + u')';
}

QString Tekst(const BlokKategorii& blok) {
  QString tekst = blok.kategoria;
  bool pierwszy = true;
  for (const ParametrZBloku& p : blok.parametry) {
    tekst += (pierwszy ? u": "_s : u";"_s) + p.nazwa + u'(' + QString::number(p.n) + u':';
    pierwszy = false;
    if (p.typ == ParametrZBloku::Typ::Zakres) {
      tekst += QString::number(p.od) + u".."_s + QString::number(p.doo);
    } else {
      for (std::size_t i = 0; i < p.wartosci.size(); ++i)
        tekst += (i == 0 ? QString() : QString(u'|')) + p.wartosci[i];
      Wymagaj(p.n >= 1 && p.n <= static_cast<int>(p.wartosci.size()));
    }
    tekst += u')';
  }
  return tekst;
}

template <typename Czytanie>
void Sprawdz(const QString& tekst, Czytanie czytaj) {
  const auto wynik = czytaj(tekst);
  if (wynik.blad) return;
  const QString zapisany = Tekst(wynik.wartosc);
  const auto znowu = czytaj(zapisany);
  Wymagaj(!znowu.blad && Tekst(znowu.wartosc) == zapisany);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dane, std::size_t rozmiar) {
  if (rozmiar == 0) return 0;
  const QString tekst =
      windows1250::NaUnicode({reinterpret_cast<const char*>(dane) + 1, rozmiar - 1});  // bytes as text
  switch (dane[0] % 3) {
    case 0:
      Sprawdz(tekst, CzytajBlokKodow);
      break;
    case 1:
      Sprawdz(tekst, CzytajBlokKategorii);
      break;
    default:
      Sprawdz(tekst, CzytajBlokNipow);
  }
  return 0;
}
