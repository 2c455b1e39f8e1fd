#include "exchange/rozpoznanie_tresci.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

#include <QFile>

#include "exchange/katalog_pol.h"
#include "platform/otwarcie_pliku.h"

namespace {

constexpr qint64 kPoczatek = 64 * 1024;

std::uint8_t Bajt(std::string_view tekst, size_t i) {
  return static_cast<std::uint8_t>(tekst[i]);
}

bool Sterujacy(char znak) {
  const auto bajt = static_cast<std::uint8_t>(znak);
  const bool odstep = (bajt >= '\t' && bajt <= '\r') || znak == '\x1A';
  return bajt < 0x20 && !odstep;
}

// The first byte beyond ASCII from a place on; most of a file has none, so eight are looked at together.
size_t NastepnySpozaAscii(std::string_view tekst, size_t i) {
  constexpr std::uint64_t kNajstarsze = 0x8080808080808080;
  for (std::uint64_t osiem = 0; i + sizeof osiem <= tekst.size(); i += sizeof osiem) {
    std::memcpy(&osiem, tekst.data() + i, sizeof osiem);
    if ((osiem & kNajstarsze) != 0) break;
  }
  while (i < tekst.size() && Bajt(tekst, i) < 0x80) ++i;
  return i;
}

// Bytes of the UTF-8 sequence that begins with this one; 0 when none does.
size_t DlugoscSekwencji(std::uint8_t bajt) {
  if (bajt >= 0xC2 && bajt <= 0xDF) return 2;
  if (bajt >= 0xE0 && bajt <= 0xEF) return 3;
  return bajt >= 0xF0 && bajt <= 0xF4 ? 4 : 0;
}

// How many of the bytes continue the sequence.
size_t DalszychBajtow(std::string_view sekwencja) {
  size_t ile = 1;
  for (; ile < sekwencja.size(); ++ile) {
    // Behind some first bytes the second one has a narrower range.
    std::uint8_t od = 0x80, po = 0xBF;
    if (ile == 1) {
      const std::uint8_t pierwszy = Bajt(sekwencja, 0);
      if (pierwszy == 0xE0) od = 0xA0;
      if (pierwszy == 0xED) po = 0x9F;
      if (pierwszy == 0xF0) od = 0x90;
      if (pierwszy == 0xF4) po = 0x8F;
    }
    if (Bajt(sekwencja, ile) < od || Bajt(sekwencja, ile) > po) break;
  }
  return ile - 1;
}

// Ć Ę Ń Ó ć ę ń ó of Windows-1250 and Ń Ó ń of Latin II can begin a sequence: PÓŁKA in Windows-1250, Z RÓŻĄ
// in Latin II are valid UTF-8. Such a sequence proves nothing.
bool LiteraStrony(std::uint8_t bajt) {
  constexpr std::string_view kLitery = "\xC6\xCA\xD1\xD3\xE6\xEA\xF1\xF3\xE3\xE0\xE4";
  return kLitery.find(static_cast<char>(bajt)) != std::string_view::npos;
}

// A header of a table: a known version, lengths, a first field with a name and a type.
bool WygladaNaDBase(std::string_view poczatek) {
  constexpr std::string_view kWersje =
      "\x02\x03\x04\x05\x30\x31\x32\x43\x63\x7B\x83\x8B\x8C\x8E\xCB\xE5\xF5\xFB";
  constexpr std::string_view kTypy = "CNLDMFGPIYBTVWQO@+0";
  constexpr size_t kPierwszePole = 32;
  constexpr size_t kDwaOpisy = 64;
  return poczatek.size() >= kDwaOpisy && kWersje.find(poczatek[0]) != std::string_view::npos &&
         poczatek.substr(12, 20).find('\0') != std::string_view::npos &&
         Bajt(poczatek, kPierwszePole) > ' ' &&
         kTypy.find(poczatek[kPierwszePole + 11]) != std::string_view::npos;
}

struct Poczatek {
  std::string bajty;
  bool calosc = false;  // there is no more of the file

  RodzajTresci Rodzaj() const { return RozpoznajTresc(bajty, calosc); }
};

Poczatek PoczatekPliku(const QString& sciezka) {
  QFile plik;
  if (OtworzPlik(plik, sciezka, SposobOtwarcia::Odczyt)) return {};
  const QByteArray bajty = plik.read(kPoczatek);
  return {bajty.toStdString(), bajty.size() >= plik.size()};
}

std::vector<std::string_view> PierwszeLinie(std::string_view tekst) {
  constexpr size_t kIle = 20;
  std::vector<std::string_view> linie;
  while (!tekst.empty() && linie.size() < kIle) {
    const size_t koniec = std::min(tekst.find_first_of("\r\n"), tekst.size());
    if (koniec > 0) linie.push_back(tekst.substr(0, koniec));
    tekst.remove_prefix(std::min(koniec + 1, tekst.size()));
  }
  if (linie.size() > 1) linie.pop_back();  // it may be cut
  return linie;
}

// By the characters that stand equally often in the first lines; a price or a quoted text may hold one more,
// and a comma stands in prices of any width.
QString UkladTekstu(std::string_view tekst) {
  const std::vector<std::string_view> linie = PierwszeLinie(tekst);
  const auto ile = [](std::string_view linia, char znak) {
    return std::count(linia.begin(), linia.end(), znak);
  };
  if (!linie.empty() && ile(linie[0], '\t') >= PoleTowaru::Status - 1)
    return QStringLiteral("plik w formacie programu Zorvik");
  const auto wKazdej = [&](const auto& warunek) {
    return !linie.empty() && std::all_of(linie.begin(), linie.end(), warunek);
  };
  const bool rownej = linie.size() > 1 && wKazdej([&](auto l) { return l.size() == linie[0].size(); });
  constexpr std::pair<char, const char*> kSeparatory[] = {
      {'\t', "tabulator"}, {';', "średnik"}, {'|', "kreska |"}, {',', "przecinek"}};
  for (const auto& [znak, nazwa] : kSeparatory) {
    const bool poTyle = wKazdej([&, z = znak](auto l) { return ile(l, z) == ile(linie[0], z); });
    const bool wystarczy = rownej ? poTyle && znak != ',' : true;
    if (wystarczy && wKazdej([&, z = znak](auto l) { return ile(l, z) > 0; }))
      return QStringLiteral("plik tekstowy z separatorem pól (%1)").arg(QString::fromUtf8(nazwa));
  }
  return QStringLiteral("plik tekstowy ze stałą szerokością kolumn");
}

}  // namespace

void LicznikUtf8::Dodaj(std::string_view kawalek) {
  for (size_t i = NastepnySpozaAscii(kawalek, 0); i < kawalek.size(); i = NastepnySpozaAscii(kawalek, i)) {
    const std::uint8_t pierwszy = Bajt(kawalek, i);
    const size_t dlugosc = DlugoscSekwencji(pierwszy);
    const std::string_view sekwencja = kawalek.substr(i, dlugosc);
    const size_t dalszych = dlugosc == 0 ? 0 : DalszychBajtow(sekwencja);
    if (dlugosc > 0 && dalszych + 1 == sekwencja.size()) {
      if (sekwencja.size() == dlugosc && !LiteraStrony(pierwszy)) ++m_pewnych;
      i += sekwencja.size();
    } else {
      ++m_zlych;
      ++i;
    }
  }
}

RodzajTresci RozpoznajTresc(std::string_view poczatek, bool calosc) {
  if (poczatek.starts_with("\xEF\xBB\xBF")) return RodzajTresci::Utf8;
  if (poczatek.starts_with("\xFF\xFE") || poczatek.starts_with("\xFE\xFF")) return RodzajTresci::Utf16;
  if (WygladaNaDBase(poczatek)) return RodzajTresci::DBase;
  if (poczatek.find('\0') != std::string_view::npos) return RodzajTresci::BajtyZerowe;
  LicznikUtf8 utf8;
  utf8.Dodaj(poczatek);
  if (calosc ? utf8.JestUtf8() : utf8.BezWatpienia()) return RodzajTresci::Utf8;
  // A stray control character is a blemish; a share of them is another kind of file.
  const auto sterujacych = static_cast<size_t>(std::count_if(poczatek.begin(), poczatek.end(), Sterujacy));
  return sterujacych * 20 > poczatek.size() ? RodzajTresci::Binarny : RodzajTresci::Tekst;
}

RodzajTresci RozpoznajPlik(const QString& sciezka) {
  return PoczatekPliku(sciezka).Rodzaj();
}

QString OpisTresci(RodzajTresci rodzaj, const QString& sciezka) {
  const QString zapisz =
      QStringLiteral("\nZapisz go jako zwykły tekst w kodowaniu Windows-1250 i spróbuj ponownie");
  const QString plik = QStringLiteral("Plik ") + sciezka;
  switch (rodzaj) {
    case RodzajTresci::Tekst:
      break;
    case RodzajTresci::Utf8:
      return plik + QStringLiteral(" jest zapisany w kodowaniu UTF-8") + zapisz;
    case RodzajTresci::Utf16:
      return plik + QStringLiteral(" jest zapisany w kodowaniu UTF-16") + zapisz;
    case RodzajTresci::BajtyZerowe:
      return plik + QStringLiteral(" zawiera bajty zerowe, więc nie jest plikiem tekstowym") + zapisz;
    case RodzajTresci::Binarny:
      return plik + QStringLiteral(" nie jest plikiem tekstowym") + zapisz;
    case RodzajTresci::DBase:
      return plik + QStringLiteral(
                        " nie jest plikiem tekstowym: wygląda na plik formatu DBase III"
                        "\nWybierz ten rodzaj pliku w strukturze albo wskaż inny plik");
  }
  return {};
}

std::optional<QString> OpisTekstuZamiastDBase(const QString& sciezka) {
  const Poczatek poczatek = PoczatekPliku(sciezka);
  const RodzajTresci rodzaj = poczatek.Rodzaj();
  if (poczatek.bajty.empty() || (rodzaj != RodzajTresci::Tekst && rodzaj != RodzajTresci::Utf8))
    return std::nullopt;
  return QStringLiteral(
             "Plik %1 nie jest plikiem formatu DBase III: wygląda na %2"
             "\nWybierz ten rodzaj pliku w strukturze albo wskaż inny plik")
      .arg(sciezka, UkladTekstu(poczatek.bajty));
}
