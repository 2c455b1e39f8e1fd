#include "exchange/ocena_strony.h"

#include "exchange/strony_kodowe.h"

namespace {

constexpr StronaKodowa kStrony[] = {StronaKodowa::Windows, StronaKodowa::LatinII, StronaKodowa::Mazovia};

constexpr unsigned char kPierwszy = 0x80;

}  // namespace

void OcenaStrony::Dodaj(std::string_view bajty) {
  // Most lines are plain ASCII, which this tells many bytes at a time.
  unsigned char suma = 0;
  for (const char bajt : bajty) suma |= static_cast<unsigned char>(bajt);
  if (suma < kPierwszy) return;
  for (const char znak : bajty) {
    const auto bajt = static_cast<unsigned char>(znak);
    if (bajt < kPierwszy) continue;
    ++m_ile[bajt - kPierwszy];
    ++m_razem;
  }
}

long long OcenaStrony::PolskichLiter(StronaKodowa strona) const {
  long long ile = 0;
  for (std::size_t i = 0; i < m_ile.size(); ++i)
    if (m_ile[i] > 0 && JestPolskaLitera(static_cast<char>(kPierwszy + i), strona)) ile += m_ile[i];
  return ile;
}

std::optional<StronaKodowa> OcenaStrony::Lepsza(StronaKodowa wybrana) const {
  const auto wiekszosc = [this](long long ile) { return ile * 2 > m_razem; };
  if (!wiekszosc(m_razem - PolskichLiter(wybrana))) return std::nullopt;
  std::optional<StronaKodowa> najlepsza;
  long long najwiecej = 0;
  for (const StronaKodowa strona : kStrony) {
    const long long ile = PolskichLiter(strona);
    if (ile <= najwiecej || !wiekszosc(ile)) continue;
    najwiecej = ile;
    najlepsza = strona;
  }
  return najlepsza;
}

QString NazwaStrony(StronaKodowa strona) {
  switch (strona) {
    case StronaKodowa::Windows:
      return QStringLiteral("Windows");
    case StronaKodowa::LatinII:
      return QStringLiteral("Latin II");
    case StronaKodowa::Mazovia:
      return QStringLiteral("Mazovia");
    case StronaKodowa::Ascii:
      break;
  }
  return QStringLiteral("ASCII");
}
