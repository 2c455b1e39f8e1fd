#include "exchange/wiersz_eksportu.h"

#include <algorithm>
#include <string>

#include "exchange/format_liczb.h"
#include "exchange/zapis_rekordow.h"

namespace {

bool OdstepNaBrzegu(const QString& tekst) {
  return !tekst.isEmpty() && (tekst.front().isSpace() || tekst.back().isSpace());
}

}  // namespace

void WierszEksportu::Tekst(const QString& tekst) {
  m_zapis.Pole(tekst);
  if (tekst.isEmpty()) return;
  for (const QChar znak : tekst) {
    if (znak == u'\t') DodajPowod(u"tabulator");
    if (znak == u'\n' || znak == u'\r') DodajPowod(u"koniec wiersza");
  }
}

void WierszEksportu::Nazwa(const QString& nazwa) {
  Tekst(nazwa);
  if (OdstepNaBrzegu(nazwa)) DodajPowod(u"odstęp na brzegu");
}

void WierszEksportu::Blok(const QString& blok, std::u16string_view powod) {
  Tekst(blok);
  if (!powod.empty()) DodajPowod(powod);
}

void WierszEksportu::DodajPowod(std::u16string_view powod) {
  if (std::find(m_powody.begin(), m_powody.end(), powod) == m_powody.end()) m_powody.push_back(powod);
}

void WierszEksportu::Liczba(double liczba) {
  m_zapis.PoleAscii(FormatLiczby(liczba, m_separator));
}

void WierszEksportu::Calkowita(long long liczba) {
  m_zapis.PoleAscii(std::to_string(liczba));
}

void WierszEksportu::Ascii(std::string_view tekst) {
  m_zapis.PoleAscii(tekst);
}

bool GinieWBloku(const QString& nazwa, QStringView znaki) {
  return OdstepNaBrzegu(nazwa) ||
         std::any_of(nazwa.begin(), nazwa.end(), [znaki](QChar znak) { return znaki.contains(znak); });
}

bool ZaczynaKomentarz(const QString& tekst) {
  return tekst.startsWith(u'#') || tekst.startsWith(QLatin1String("//"));
}
