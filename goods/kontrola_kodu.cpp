#include "goods/kontrola_kodu.h"

#include <algorithm>

#include "goods/opcje_towarow.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Of digits; the length test keeps them within 64 bits.
long long WartoscCyfr(QStringView cyfry) {
  return cyfry.toLongLong();
}

bool KodWlasnyEan(const KodRekordu& rekord) {
  return rekord.kod.size() > 2 && rekord.kod.startsWith("20"_L1) && rekord.rodzaj != RodzajKodu::Inny;
}

bool KodEan(RodzajKodu rodzaj) {
  return rodzaj == RodzajKodu::Ean13 || rodzaj == RodzajKodu::Ean8;
}

bool TylkoCyfryIPytajniki(QStringView kod) {
  return std::all_of(kod.begin(), kod.end(), [](QChar z) { return z == u'?' || (z >= u'0' && z <= u'9'); });
}

}  // namespace

RegulyKodow RegulyKodowImportu(const OpcjeImportuTowarow& opcje, const FormatyKodowWazonych& formaty) {
  RegulyKodow reguly;
  reguly.minDlugosc = opcje.UpDownMinDlugoscKodu;
  reguly.maxDlugosc = opcje.UpDownMaxDlugoscKodu;
  reguly.litery = opcje.cb_KodyZawierajaceLitery;
  reguly.zeroNaPoczatku = opcje.cb_KodyZaczynajaceSieOdZera;
  reguly.sprawdzacSume = opcje.cb_SprawdzajCyfreKontrolnaWEAN;
  reguly.formaty = formaty;
  return reguly;
}

bool KodKrotki(QStringView kod, QStringView granica) {
  return SameCyfry(kod) && kod.size() <= granica.size() && WartoscCyfr(kod) < WartoscCyfr(granica);
}

std::optional<QString> SprawdzKodRekordu(const KodRekordu& rekord, const OpcjeImportuTowarow& opcje,
                                         const RegulyKodow& reguly) {
  if (KodKrotki(rekord.kod, opcje.EdKodyKrotkie))
    return rekord.nadany ? u"Towar nie miał kodu. Nadany kod (krótki) nie spełniał ustawionych warunków"_s
                         : u"Kod krótki"_s;
  // Only goods that are in the database already: a new good may come with an in-store code.
  if (rekord.znaleziony && !opcje.cb_akceptujKodyWlasneEAN && KodWlasnyEan(rekord)) return u"Kod własny"_s;
  if (const WynikKodu wynik = reguly.SprawdzDlugoscIFormat(rekord.kod); !wynik.Dobry())
    return u"Błąd w kodzie głównym towaru: "_s + wynik.szczegol;
  if (opcje.cb_SprawdzajCyfreKontrolnaWEAN && KodEan(rekord.rodzaj) && !SumaKontrolnaPoprawna(rekord.kod))
    return u"Błąd sumy kontrolnej"_s;
  if (!opcje.cb_KodyZaczynajaceSieOdZera && rekord.kod.startsWith(u'0')) return u"Kod zaczyna się od zera"_s;
  if (!opcje.cb_KodyZawierajaceLitery && !TylkoCyfryIPytajniki(rekord.kod))
    return u"Kod zawiera inne znaki poza cyframi"_s;
  return std::nullopt;
}
