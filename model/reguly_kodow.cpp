#include "model/reguly_kodow.h"

#include <algorithm>

#include "model/parametry_systemu.h"

namespace {

constexpr int kBladKodu = 2404;
constexpr int kBladSumy = 2826;

bool Cyfra(QChar znak) {
  return znak >= u'0' && znak <= u'9';
}

WynikKodu Odmow(OdmowaKodu odmowa, int kod, const QString& szczegol) {
  return {odmowa, kod, szczegol};
}

// The verdict of Sprawdz in the words of a code's place in the record.
WynikKodu JakoKodTowaru(WynikKodu wynik, int kod) {
  if (wynik.kod == kBladKodu) wynik.kod = kod;
  return wynik;
}

}  // namespace

bool SameCyfry(QStringView tekst) {
  return std::all_of(tekst.begin(), tekst.end(), Cyfra);
}

QChar CyfraKontrolna(QStringView cyfry) {
  int suma = 0;
  int waga = 3;
  for (auto it = cyfry.rbegin(); it != cyfry.rend(); ++it, waga = 4 - waga)
    suma += waga * (it->unicode() - u'0');
  return QChar(u'0' + (10 - suma % 10) % 10);
}

bool SumaKontrolnaPoprawna(QStringView kod) {
  return !kod.isEmpty() && CyfraKontrolna(kod.chopped(1)) == kod.back();
}

RegulyKodow RegulyKodow::ZParametrow(const ParametrySystemu& parametry, const FormatyKodowWazonych& formaty) {
  RegulyKodow reguly;
  reguly.minDlugosc = parametry[IdParametru::MinKodKreskowy].AsInteger();
  reguly.maxDlugosc = parametry[IdParametru::MaxKodKreskowy].AsInteger();
  reguly.litery = parametry[IdParametru::LiteryWKodzieKreskowym].AsFlag();
  reguly.zeroNaPoczatku = parametry[IdParametru::KodyZaczynajaceSieOdZera].AsFlag();
  reguly.sprawdzacSume = parametry[IdParametru::SprawdzacSumeKoduEAN].AsFlag();
  reguly.formaty = formaty;
  reguly.UstawWazone(parametry);
  return reguly;
}

void RegulyKodow::UstawWazone(const ParametrySystemu& parametry) {
  uzupelniacWazone = parametry[IdParametru::AutomatyczneWazone].AsFlag();
  kodyKrotkie =
      static_cast<KodyKrotkie>(std::clamp(parametry[IdParametru::KodyKrotkieDoWazonych].AsInteger(), 0, 2));
  minKodKrotki = parametry[IdParametru::MinKodKrotkiDoWazonego].AsInteger();
  maxKodKrotki = parametry[IdParametru::MaxKodKrotkiDoWazonego].AsInteger();
}

RodzajKodu RegulyKodow::Rodzaj(QStringView kod) const {
  if (kod.contains(u'?') || formaty.Dopasuj(kod)) return RodzajKodu::Wazony;
  if (!SameCyfry(kod)) return RodzajKodu::Inny;
  switch (kod.size()) {
    case 13:
      return RodzajKodu::Ean13;
    case 12:
      return RodzajKodu::Upc12;
    case 8:
      return RodzajKodu::Ean8;
    default:
      return RodzajKodu::Inny;
  }
}

WynikKodu RegulyKodow::SprawdzDlugoscIFormat(const QString& kod) const {
  if (kod.size() < minDlugosc || kod.size() > maxDlugosc) return Odmow(OdmowaKodu::Dlugosc, kBladKodu, kod);
  const bool drukowalny =
      std::all_of(kod.begin(), kod.end(), [](QChar znak) { return znak.isPrint() && !znak.isSpace(); });
  if (!drukowalny || (kod.contains(u'?') && !formaty.Dopasuj(kod)))
    return Odmow(OdmowaKodu::Format, kBladKodu, kod);
  return {};
}

WynikKodu RegulyKodow::Sprawdz(const QString& kod) const {
  if (WynikKodu wynik = SprawdzDlugoscIFormat(kod); !wynik.Dobry()) return wynik;
  const bool cyfry = SameCyfry(kod);
  if (!litery && !std::all_of(kod.begin(), kod.end(), [](QChar znak) { return Cyfra(znak) || znak == u'?'; }))
    return Odmow(OdmowaKodu::Litery, kBladKodu, kod);
  if (!zeroNaPoczatku && kod.startsWith(u'0')) return Odmow(OdmowaKodu::Zero, kBladKodu, kod);
  if (sprawdzacSume && cyfry && (kod.size() == 8 || kod.size() == 13) && !SumaKontrolnaPoprawna(kod))
    return Odmow(OdmowaKodu::SumaKontrolna, kBladSumy, kod);
  return {};
}

WynikKodu RegulyKodow::SprawdzGlowny(const QString& kod, bool towar) const {
  if (WynikKodu wynik = Sprawdz(kod); !wynik.Dobry()) return JakoKodTowaru(std::move(wynik), 2894);
  if (!towar && Wazony(kod)) return Odmow(OdmowaKodu::Wazony, 2821, kod);
  return {};
}

WynikKodu RegulyKodow::SprawdzDodatkowy(const QString& kod) const {
  if (WynikKodu wynik = Sprawdz(kod); !wynik.Dobry()) return JakoKodTowaru(std::move(wynik), 2895);
  if (Wazony(kod)) return Odmow(OdmowaKodu::Wazony, 2827, kod);
  return {};
}

WynikKodu RegulyKodow::SprawdzAutomatyczny(const QString& kod) const {
  WynikKodu wynik = SprawdzDodatkowy(kod);
  if (!wynik.Dobry()) wynik.kod = 2896;
  return wynik;
}

QString RegulyKodow::Normalizuj(const QString& kod) const {
  if (!uzupelniacWazone || kod.size() >= FormatyKodowWazonych::kDlugosc || kod.contains(u'?') ||
      !formaty.Dopasuj(kod))
    return kod;
  return kod.leftJustified(FormatyKodowWazonych::kDlugosc, u'?');
}

QString RegulyKodow::KodKrotki(QStringView kod) const {
  if (kodyKrotkie == KodyKrotkie::NieTworzyc) return {};
  const auto format = formaty.Dopasuj(kod);
  if (!format || format->czescStala == 0) return {};
  const QStringView stala = kod.mid(2, format->czescStala);
  bool liczba = false;
  const qlonglong numer = stala.toLongLong(&liczba);
  if (!liczba || !SameCyfry(stala) || numer < minKodKrotki || numer > maxKodKrotki) return {};
  const bool zeraZostaja = kodyKrotkie == KodyKrotkie::WedlugZera && zeroNaPoczatku;
  return zeraZostaja ? stala.toString() : QString::number(numer);
}
