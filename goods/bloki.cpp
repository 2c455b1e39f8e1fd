#include "goods/bloki.h"

#include <algorithm>

#include <QList>

namespace {

constexpr QChar kOtwarcie = u'(';
constexpr QChar kZamkniecie = u')';
constexpr QChar kNastepny = u';';
constexpr QChar kCzesc = u'|';

template <typename T>
WynikBloku<T> Zly(const QString& nieLiczba = {}) {
  return {{}, BladBloku{nieLiczba}};
}

// Takes "prefix(content)" off the front, together with the ";" that must follow unless the block ends.
struct Element {
  QStringView przed;
  QStringView tresc;
};
std::optional<Element> WezElement(QStringView& reszta) {
  const qsizetype otwarcie = reszta.indexOf(kOtwarcie);
  const qsizetype zamkniecie = reszta.indexOf(kZamkniecie);
  if (otwarcie < 0 || zamkniecie < otwarcie) return std::nullopt;
  const Element element{reszta.left(otwarcie).trimmed(), reszta.mid(otwarcie + 1, zamkniecie - otwarcie - 1)};
  if (element.tresc.contains(kOtwarcie)) return std::nullopt;
  reszta = reszta.mid(zamkniecie + 1).trimmed();
  if (reszta.isEmpty()) return element;
  if (reszta.front() != kNastepny) return std::nullopt;
  reszta = reszta.mid(1).trimmed();
  if (reszta.isEmpty()) return std::nullopt;
  return element;
}

// A name that holds what parts a block would be read back as something else.
bool DobraNazwa(QStringView nazwa) {
  constexpr QStringView kZnakiBloku = u";()";
  return !nazwa.isEmpty() &&
         std::none_of(nazwa.begin(), nazwa.end(), [=](QChar znak) { return kZnakiBloku.contains(znak); });
}

std::optional<int> Liczba(QStringView tekst) {
  bool dobra = false;
  const int liczba = tekst.trimmed().toInt(&dobra);
  return dobra ? std::optional(liczba) : std::nullopt;
}

// "lo..hi"; a content that only resembles a range is a list.
bool CzytajZakres(QStringView tresc, ParametrZBloku& parametr) {
  const qsizetype kropki = tresc.indexOf(u"..");
  if (kropki < 0 || tresc.contains(kCzesc)) return false;
  const auto od = Liczba(tresc.left(kropki));
  const auto doo = Liczba(tresc.mid(kropki + 2));
  if (!od || !doo) return false;
  parametr.typ = ParametrZBloku::Typ::Zakres;
  parametr.od = *od;
  parametr.doo = *doo;
  return true;
}

void CzytajListe(QStringView tresc, ParametrZBloku& parametr) {
  parametr.typ = ParametrZBloku::Typ::Lista;
  for (const QStringView wartosc : tresc.split(kCzesc))
    parametr.wartosci.push_back(wartosc.trimmed().toString());
}

}  // namespace

WynikBloku<std::vector<KodZBloku>> CzytajBlokKodow(QStringView blok) {
  using Kody = std::vector<KodZBloku>;
  Kody kody;
  QStringView reszta = blok.trimmed();
  while (!reszta.isEmpty()) {
    const auto element = WezElement(reszta);
    if (!element || !element->przed.isEmpty()) return Zly<Kody>();
    const auto czesci = element->tresc.split(kCzesc);
    if (czesci.size() != 3) return Zly<Kody>();
    KodZBloku kod{czesci[0].trimmed().toString(), czesci[1].trimmed().toString(), 0};
    if (kod.kod.isEmpty()) return Zly<Kody>();
    if (const QStringView plu = czesci[2].trimmed(); !plu.isEmpty()) {
      const auto liczba = Liczba(plu);
      if (!liczba) return Zly<Kody>(plu.toString());
      kod.plu = *liczba;
    }
    kody.push_back(std::move(kod));
  }
  return {std::move(kody), {}};
}

WynikBloku<BlokKategorii> CzytajBlokKategorii(QStringView blok) {
  BlokKategorii wynik;
  const qsizetype dwukropek = blok.indexOf(u':');
  wynik.kategoria = blok.left(dwukropek < 0 ? blok.size() : dwukropek).trimmed().toString();
  if (!DobraNazwa(wynik.kategoria)) return Zly<BlokKategorii>();
  if (dwukropek < 0) return {std::move(wynik), {}};

  QStringView reszta = blok.mid(dwukropek + 1).trimmed();
  if (reszta.isEmpty()) return Zly<BlokKategorii>();
  while (!reszta.isEmpty()) {
    const auto element = WezElement(reszta);
    if (!element || !DobraNazwa(element->przed)) return Zly<BlokKategorii>();
    const qsizetype koniecN = element->tresc.indexOf(u':');
    if (koniecN < 0) return Zly<BlokKategorii>();
    ParametrZBloku parametr;
    parametr.nazwa = element->przed.toString();
    const QStringView n = element->tresc.left(koniecN).trimmed();
    const auto liczba = Liczba(n);
    if (!liczba) return n.isEmpty() ? Zly<BlokKategorii>() : Zly<BlokKategorii>(n.toString());
    parametr.n = *liczba;
    const QStringView tresc = element->tresc.mid(koniecN + 1).trimmed();
    if (!CzytajZakres(tresc, parametr)) {
      CzytajListe(tresc, parametr);
      if (parametr.n < 1 || parametr.n > static_cast<int>(parametr.wartosci.size()))
        return Zly<BlokKategorii>();
    }
    wynik.parametry.push_back(std::move(parametr));
  }
  return {std::move(wynik), {}};
}

// A later column that brought a list left its "(" behind the ";" and took the ")" of what was there before: a
// list may be opened again while it is open, but it is closed once, at a ";" or at the end.
WynikBloku<std::vector<QString>> CzytajBlokNipow(QStringView blok) {
  using Nipy = std::vector<QString>;
  Nipy nipy;
  bool otwarty = false;
  for (QStringView czesc : blok.split(kNastepny)) {
    czesc = czesc.trimmed();
    if (czesc.startsWith(kOtwarcie))
      czesc = czesc.mid(1);
    else if (!otwarty)
      return Zly<Nipy>();
    otwarty = !czesc.endsWith(kZamkniecie);
    if (!otwarty) czesc.chop(1);
    if (czesc.contains(kOtwarcie) || czesc.contains(kZamkniecie)) return Zly<Nipy>();
    for (const QStringView nip : czesc.split(kCzesc)) nipy.push_back(nip.trimmed().toString());
  }
  const auto pusty = [](const QString& nip) { return nip.isEmpty(); };
  nipy.erase(nipy.begin(), std::find_if_not(nipy.begin(), nipy.end(), pusty));
  nipy.erase(std::find_if_not(nipy.rbegin(), nipy.rend(), pusty).base(), nipy.end());
  if (otwarty || nipy.empty() || std::any_of(nipy.begin(), nipy.end(), pusty)) return Zly<Nipy>();
  return {std::move(nipy), {}};
}
