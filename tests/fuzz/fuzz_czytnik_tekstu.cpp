// Input: layout, options, separator, number of columns, seven bytes a column, then the file.

#include <algorithm>
#include <array>
#include <cstdint>

#include "exchange/czytnik.h"
#include "platform/windows1250.h"
#include "tests/fuzz/plik_w_pamieci.h"

namespace {

constexpr size_t kDlugoscWpisu = 7;

class Dane {
 public:
  explicit Dane(std::string_view bajty) : m_bajty(bajty) {}
  unsigned Bajt() { return m_bajty.empty() ? 0 : static_cast<unsigned char>(Wez(1).front()); }
  std::string_view Wez(size_t ile) {
    const std::string_view wziete = m_bajty.substr(0, ile);
    m_bajty.remove_prefix(wziete.size());
    return wziete;
  }
  std::string_view Reszta() const { return m_bajty; }

 private:
  std::string_view m_bajty;
};

StrukturaPliku WezStrukture(Dane& dane) {
  const unsigned typ = dane.Bajt();
  const unsigned opcje = dane.Bajt();
  StrukturaPliku s(opcje & 1 ? RodzajRekordu::Kontrahenci : RodzajRekordu::Towary);
  s.CBTypPliku = std::array{TypPliku::Zorvik, TypPliku::Rozdzielany, TypPliku::StalaSzerokosc}[typ % 3];
  s.CBPolskieZnaki = static_cast<StronaKodowa>(opcje >> 1 & 3);
  s.CBKwalifikatorTekstu = static_cast<KwalifikatorTekstu>((opcje >> 3 & 3) % 3);
  s.CBNieAnalizujPierwszejLinii = (opcje & 32) != 0;
  s.separator =
      std::array{QStringLiteral(";"), QStringLiteral("\t"), QStringLiteral("||"), QString()}[dane.Bajt() % 4];
  s.EdPoleUsuniety = QStringLiteral("usunięty");
  s.opisyVat = {OpisVat(QStringLiteral("23VAT")), OpisVat(QStringLiteral("-1ZW"))};
  for (unsigned ile = dane.Bajt() % 48; ile > 0; --ile)
    s.pola.emplace_back(windows1250::NaUnicode(dane.Wez(kDlugoscWpisu)));
  return s;
}

void WezZetony(LiniaRekordu linia) {
  for (int i = 0; !linia.Reszta().empty(); ++i) {
    switch (i % 4) {
      case 0:
        linia.Tekst();
        break;
      case 1:
        linia.Calkowita();
        break;
      case 2:
        linia.Liczba(',');
        break;
      default:
        linia.Pomin();
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bajty, size_t ile) {
  static const PlikWPamieci plik;
  Dane dane(std::string_view(reinterpret_cast<const char*>(bajty), ile));
  const StrukturaPliku struktura = WezStrukture(dane);
  plik.Ustaw(dane.Reszta());

  const std::unique_ptr<Czytnik> czytnik = UtworzCzytnik(struktura);
  if (czytnik->Otworz(plik.Sciezka())) return 0;
  const WynikLiczenia policzone = czytnik->Policz(nullptr);
  qint64 rekordow = 0;
  WynikCzytania wynik = WynikCzytania::Pominiety;
  while ((wynik = czytnik->Nastepny()) == WynikCzytania::Rekord || wynik == WynikCzytania::Pominiety) {
    if (wynik == WynikCzytania::Pominiety) continue;
    Wymagaj(czytnik->NumerRekordu() == ++rekordow);
    const std::string_view linia = czytnik->Linia().Reszta();
    if (struktura.CBTypPliku != TypPliku::Zorvik)
      Wymagaj(std::count(linia.begin(), linia.end(), '\t') == LiczbaWartosci(struktura.rodzaj));
    if (const auto pol = czytnik->SprawdzLiczbePol()) Wymagaj(pol->znaleziono < pol->zadeklarowano);
    WezZetony(czytnik->Linia());
  }
  // The letters of the whole file refuse it without any record that cannot be read.
  const bool utf8 = policzone.odmowa && policzone.odmowa->tekst.contains(QStringLiteral("UTF-8"));
  Wymagaj(utf8 || (wynik == WynikCzytania::Blad) == policzone.odmowa.has_value());
  Wymagaj(rekordow == policzone.rekordow);
  return 0;
}
