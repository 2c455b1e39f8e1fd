#include "goods/bloki.h"

#include <QStringList>

#include <gmock/gmock.h>

namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;

// "?" malformed, "?x" not a number, otherwise the content written back.
QString Kody(const char16_t* blok) {
  const auto wynik = CzytajBlokKodow(blok);
  if (wynik.blad) return u"?"_s + wynik.blad->nieLiczba;
  QString tekst;
  for (const KodZBloku& k : wynik.wartosc) tekst += u"<%1,%2,%3>"_s.arg(k.kod, k.skrot).arg(k.plu);
  return tekst;
}

QString Nipy(const char16_t* blok) {
  const auto wynik = CzytajBlokNipow(blok);
  return wynik.blad ? u"?"_s : QStringList(wynik.wartosc.begin(), wynik.wartosc.end()).join(u',');
}

QString Kategoria(const char16_t* blok) {
  const auto wynik = CzytajBlokKategorii(blok);
  if (wynik.blad) return u"?"_s + wynik.blad->nieLiczba;
  QString tekst = wynik.wartosc.kategoria;
  for (const ParametrZBloku& p : wynik.wartosc.parametry)
    tekst += u"<%1=%2 %3>"_s.arg(p.nazwa).arg(p.n).arg(
        p.typ == ParametrZBloku::Typ::Zakres ? u"%1-%2"_s.arg(p.od).arg(p.doo)
                                             : QStringList(p.wartosci.begin(), p.wartosci.end()).join(u'/'));
  return tekst;
}

struct Blok {
  QString (*czytaj)(const char16_t*);
  const char16_t* blok;
  QString wynik;
};

TEST(Bloki, SaCzytaneCaleAlboWcale) {
  const Blok bloki[] = {
      {Kody, u"(590||)", u"<590,,0>"_s},
      {Kody, u"(590|Mleko 2|7);(27??|x|)", u"<590,Mleko 2,7><27??,x,0>"_s},
      {Kody, u" ( 590 | a b | 1 ) ; (2||) ", u"<590,a b,1><2,,0>"_s},
      {Kody, u"(590||x1)", u"?x1"_s},
      {Kody, u"(590|)", u"?"_s},
      {Kody, u"(590|||)", u"?"_s},
      {Kody, u"(|a|)", u"?"_s},
      {Kody, u"(590||", u"?"_s},
      {Kody, u"590||)", u"?"_s},
      {Kody, u"(590||)(2||)", u"?"_s},
      {Kody, u"(590||);", u"?"_s},
      {Kody, u"((590||)", u"?"_s},
      {Kody, u"x(590||)", u"?"_s},

      {Nipy, u"(123)", u"123"_s},
      {Nipy, u"(123|456 78)", u"123,456 78"_s},
      {Nipy, u"(1|2;(3|4)", u"1,2,3,4"_s},  // joined from two columns
      {Nipy, u"(1;2)", u"1,2"_s},
      {Nipy, u"(1);(2)", u"1,2"_s},
      {Nipy, u"(|1|)", u"1"_s},
      {Nipy, u"()", u"?"_s},
      {Nipy, u"(1", u"?"_s},
      {Nipy, u"1)", u"?"_s},
      {Nipy, u"(1(2)", u"?"_s},
      {Nipy, u"(1;(2|3;(4)", u"1,2,3,4"_s},  // from three columns
      {Nipy, u"((1))", u"?"_s},
      {Nipy, u"(1;(2))", u"?"_s},
      {Nipy, u"(1;2);3)", u"?"_s},
      {Nipy, u"(1||2)", u"?"_s},
      {Nipy, u"(1;;2)", u"?"_s},

      {Kategoria, u" Nabiał ", u"Nabiał"_s},
      {Kategoria, u"Nabiał: Tłuszcz(2:3,2 %|2 %);Masa(500:1..1000)",
       u"Nabiał<Tłuszcz=2 3,2 %/2 %><Masa=500 1-1000>"_s},
      {Kategoria, u"N: p(1:a..b)", u"N<p=1 a..b>"_s},  // no bounds: one value that holds dots
      {Kategoria, u"N: p(0:-5..5)", u"N<p=0 -5-5>"_s},
      {Kategoria, u"N: p(3:a|b)", u"?"_s},
      {Kategoria, u"N: p(0:a|b)", u"?"_s},
      {Kategoria, u"N: p(x:a|b)", u"?x"_s},
      {Kategoria, u"N: p(a|b)", u"?"_s},
      {Kategoria, u"N: p(1:a|b", u"?"_s},
      {Kategoria, u"N: (1:a)", u"?"_s},
      {Kategoria, u"N: p(1:a);", u"?"_s},
      {Kategoria, u"N:", u"?"_s},
      {Kategoria, u"N(1)", u"?"_s},
      {Kategoria, u": p(1:a)", u"?"_s},
      {Kategoria, u"N: ;p(1:a)", u"?"_s},
      {Kategoria, u"N: p(1:a);;q(1:b)", u"?"_s},
      {Kategoria, u"N: p;q(1:a)", u"?"_s},
      {Kategoria, u"N;M", u"?"_s},
  };
  for (const Blok& b : bloki)
    EXPECT_EQ(b.czytaj(b.blok), b.wynik) << QString::fromUtf16(b.blok).toStdString();
}

}  // namespace
