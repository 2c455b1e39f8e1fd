#include "goods/zapis_towaru.h"

#include <QSet>

#include "goods/kontekst_importu.h"
#include "model/bledy.h"
#include "model/bufor_towarow.h"
#include "model/nazwy_skrocone.h"
#include "model/szerokosci.h"
#include "model/towar.h"
#include "run/operator.h"
#include "run/raport_problemow.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString TekstOdmowy(const EVLTWDError& odmowa, bool brakKodu) {
  if (ZaDlugiTekst(odmowa)) return TekstDoRaportu(odmowa);
  switch (odmowa.MacCode()) {
    case 2840:
      return brakKodu ? u"Brak nazwy i kodu towaru"_s : u"Brak nazwy towaru"_s;
    case 2816:
      return u"Brak kodu towaru"_s;
    case 2822:
      return u"Towar o tym kodzie już jest w bazie"_s;
    case 2828:
      return u" Kod główny pokrywa się z kodem dodatkowym"_s;
    case 2819:
    case 2823:
    case 2824:
      return u"Błąd nadania unikalnej nazwy skróconej"_s;
    default:
      return u"Nie można zapisać towaru"_s;
  }
}

// Names that a good had before its save and has not any more.
QSet<QString> Oddane(const TVLTBuforTowarow::Teksty& bylo, const TVLTBuforTowarow::Teksty& jest) {
  if (bylo.skrot == jest.skrot && bylo.dodSkroty == jest.dodSkroty) return {};
  const auto skroty = [](const TVLTBuforTowarow::Teksty& teksty) {
    return QSet<QString>(teksty.dodSkroty.begin(), teksty.dodSkroty.end()) << teksty.skrot;
  };
  return skroty(bylo) - skroty(jest);
}

bool OdmowaSkrotu(int kod) {
  return kod == 2819 || kod == 2823 || kod == 2824;
}

}  // namespace

ZapisTowaru::Wynik ZapisTowaru::Zapisz(const QString& rezygnacja) {
  for (;;) {
    try {
      ZapiszIPowiadom();
      return Wynik::Zapisany;
    } catch (const EVLTWDError& odmowa) {
      if (WyreczWPoprawianiu(odmowa)) continue;
      const QString tekst = TekstOdmowy(odmowa, m_towar.Kod().trimmed().isEmpty());
      switch (
          PoprawLubPomin(m_import.oper, m_towar, {tekst, odmowa}, u"Zignorować ten towar? Jesteś pewny?"_s)) {
        case Poprawka::Poprawiono:
          break;
        case Poprawka::Stop:
          return Wynik::Stop;
        case Poprawka::Zrezygnowano:
          m_import.raport.Zglos(ZaDlugiTekst(odmowa) ? tekst : rezygnacja);
          return Wynik::Pominiety;
      }
    }
  }
}

void ZapisTowaru::ZapiszIPowiadom() {
  if (m_towar.CzyNowy()) {
    const int id = m_towar.Zapisz();
    m_import.bufor.Dodaj(id, m_towar.Teksty());
  } else {
    const TVLTBuforTowarow::Teksty bylo = m_towar.TekstyZBazy();
    const int id = m_towar.Zapisz();
    const TVLTBuforTowarow::Teksty jest = m_towar.Teksty();
    m_import.bufor.Zmien(id, bylo, jest);
    for (const QString& skrot : Oddane(bylo, jest)) m_import.skroty.Oddaj(skrot);
  }
  m_import.skroty.Potwierdz();
}

// True when the good was changed and is worth another save.
bool ZapisTowaru::WyreczWPoprawianiu(const EVLTWDError& odmowa) {
  return OdmowaSkrotu(odmowa.MacCode()) &&
         m_import.oper.CzyTak({u"Uwaga"_s, u"Czy wyręczyć Cię w poprawianiu nazwy skróconej"_s}, false) &&
         PoprawSkroty();
}

bool ZapisTowaru::PoprawSkroty() {
  bool poprawiono = false;
  for (int i = -1; i < m_towar.Kody().Ilosc(); ++i)
    if (m_towar.SkrotDoPoprawy(i)) {
      if (!m_towar.UtworzSkrot(i)) return false;
      poprawiono = true;
    }
  return poprawiono;
}
