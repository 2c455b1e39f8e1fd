#include "platform/plik_tekstowy.h"

#include <algorithm>
#include <cstring>

#include "platform/otwarcie_pliku.h"

namespace {

constexpr size_t kPorcja = 256 * 1024;
constexpr char kKoniecPliku = '\x1A';

std::string_view BezCr(std::string_view linia) {
  if (linia.ends_with('\r')) linia.remove_suffix(1);
  return linia;
}

bool Sterujacy(char znak) {
  const auto bajt = static_cast<unsigned char>(znak);
  const bool odstep = (bajt >= '\t' && bajt <= '\r') || znak == kKoniecPliku;
  return bajt < 0x20 && !odstep;
}

// Lower and upper Polish letters in UTF-8.
constexpr std::string_view kPolskieUtf8 = "ĄĆĘŁŃÓŚŹŻąćęłńóśźż";

// Bytes of the UTF-8 sequence that begins with this one; 0 when none does.
std::size_t DlugoscSekwencji(unsigned char bajt) {
  if (bajt < 0x80) return 1;
  if (bajt >= 0xC2 && bajt <= 0xDF) return 2;
  if (bajt >= 0xE0 && bajt <= 0xEF) return 3;
  return bajt >= 0xF0 && bajt <= 0xF4 ? 4 : 0;
}

// UTF-8 without a mark: every byte beyond ASCII is part of a sequence and Polish letters are among them. A
// text of an 8-bit page would have to consist of very odd pairs; read as one, every letter would reach the
// database as two.
bool JestUtf8(std::string_view tekst) {
  constexpr int kWystarczy = 2;
  int polskich = 0;
  for (std::size_t i = 0; i < tekst.size();) {
    const std::size_t ile = DlugoscSekwencji(static_cast<unsigned char>(tekst[i]));
    if (ile == 0) return false;
    const std::string_view sekwencja = tekst.substr(i, ile);
    const bool cala = std::all_of(sekwencja.begin() + 1, sekwencja.end(),
                                  [](char z) { return (static_cast<unsigned char>(z) & 0xC0) == 0x80; });
    if (!cala) return false;
    if (sekwencja.size() == 2 && kPolskieUtf8.find(sekwencja) != std::string_view::npos) ++polskich;
    i += ile;
  }
  return polskich >= kWystarczy;
}

std::optional<QString> Otworz(QFile& plik, const QString& sciezka, TMFile::Tryb tryb) {
  switch (tryb) {
    case TMFile::Tryb::Odczyt:
      return OtworzPlik(plik, sciezka, SposobOtwarcia::Odczyt);
    case TMFile::Tryb::Zapis:
      return OtworzPlik(plik, sciezka, SposobOtwarcia::Zapis);
    case TMFile::Tryb::NaNowo:
      return OtworzNaNowo(plik, sciezka);
    case TMFile::Tryb::Modyfikacja:
    case TMFile::Tryb::Dopisywanie:
      break;
  }
  return OtworzPlik(plik, sciezka, SposobOtwarcia::Modyfikacja);
}

}  // namespace

TMFile::~TMFile() {
  Close();
}

bool TMFile::Open(const QString& sciezka, Tryb tryb) {
  Close();
  m_opisBledu.clear();
  m_bladZapisu = m_zero = false;
  m_od = m_do = 0;
  m_poczatekBufora = 0;
  if (const auto powod = Otworz(m_plik, sciezka, tryb)) {
    m_opisBledu = *powod;
    return false;
  }
  m_bufor.clear();
  if (tryb == Tryb::Odczyt) m_bufor.resize(kPorcja);
  if (tryb == Tryb::Dopisywanie) {
    m_poczatekBufora = m_plik.size();
    if (!m_plik.seek(m_poczatekBufora)) return Blad();
  }
  return true;
}

bool TMFile::Close() {
  if (!m_plik.isOpen()) return !m_bladZapisu;
  Flush();
  m_plik.close();
  if (m_plik.error() != QFileDevice::NoError) Blad();
  return !m_bladZapisu;
}

bool TMFile::Blad() {
  m_opisBledu = m_plik.errorString();
  if (m_plik.openMode() != QIODevice::OpenMode(QIODevice::ReadOnly | QIODevice::Unbuffered))
    m_bladZapisu = true;
  return false;
}

TMFile::Doczytanie TMFile::Doczytaj() {
  // Keep the begun line at the front of the buffer; grow only when it fills the buffer.
  if (m_od > 0) {
    std::memmove(m_bufor.data(), m_bufor.data() + m_od, m_do - m_od);
    m_poczatekBufora += static_cast<qint64>(m_od);
    m_do -= m_od;
    m_od = 0;
  }
  if (m_bufor.size() - m_do < kPorcja / 2) m_bufor.resize(m_bufor.size() + kPorcja);
  const qint64 ile = m_plik.read(m_bufor.data() + m_do, static_cast<qint64>(m_bufor.size() - m_do));
  if (ile < 0) {
    Blad();
    return Doczytanie::Blad;
  }
  if (ile == 0) return Doczytanie::Koniec;
  if (std::memchr(m_bufor.data() + m_do, 0, static_cast<size_t>(ile)) != nullptr) m_zero = true;
  m_do += static_cast<size_t>(ile);
  return Doczytanie::Jest;
}

TMFile::WynikLinii TMFile::OstatniaLinia(std::string_view& linia) {
  linia = std::string_view(m_bufor.data() + m_od, m_do - m_od);
  m_od = m_do;
  if (linia.ends_with(kKoniecPliku)) linia.remove_suffix(1);
  if (linia.empty()) return WynikLinii::Koniec;
  linia = BezCr(linia);
  return WynikLinii::Linia;
}

TMFile::WynikLinii TMFile::PominDlugaLinie() {
  for (;;) {
    const void* lf = std::memchr(m_bufor.data() + m_od, '\n', m_do - m_od);
    if (lf != nullptr) {
      m_od = static_cast<size_t>(static_cast<const char*>(lf) - m_bufor.data()) + 1;
      return WynikLinii::ZaDluga;
    }
    m_od = m_do;
    const Doczytanie doczytanie = Doczytaj();
    if (doczytanie == Doczytanie::Blad) return WynikLinii::Blad;
    if (doczytanie == Doczytanie::Koniec) return WynikLinii::ZaDluga;
  }
}

TMFile::WynikLinii TMFile::ReadLine(std::string_view& linia) {
  linia = {};
  if (!m_plik.isOpen() || m_plik.isWritable()) return WynikLinii::Blad;
  size_t przejrzane = 0;
  for (;;) {
    const char* od = m_bufor.data() + m_od;
    const size_t jest = m_do - m_od;
    const void* lf = jest > przejrzane ? std::memchr(od + przejrzane, '\n', jest - przejrzane) : nullptr;
    if (lf != nullptr) {
      const auto dlugosc = static_cast<size_t>(static_cast<const char*>(lf) - od);
      m_od += dlugosc + 1;
      if (dlugosc > kNajdluzszaLinia) return WynikLinii::ZaDluga;
      linia = BezCr(std::string_view(od, dlugosc));
      return WynikLinii::Linia;
    }
    if (jest > kNajdluzszaLinia) return PominDlugaLinie();
    przejrzane = jest;
    const Doczytanie doczytanie = Doczytaj();
    if (doczytanie == Doczytanie::Blad) return WynikLinii::Blad;
    if (doczytanie == Doczytanie::Koniec) return OstatniaLinia(linia);
  }
}

bool TMFile::WriteLine(std::string_view linia) {
  if (m_bladZapisu || !m_plik.isOpen() || !m_plik.isWritable()) return false;
  m_bufor.append(linia).append("\r\n");
  return m_bufor.size() < kPorcja || Flush();
}

bool TMFile::Flush() {
  if (!m_plik.isOpen() || !m_plik.isWritable() || m_bladZapisu) return !m_bladZapisu;
  size_t zapisane = 0;
  while (zapisane < m_bufor.size()) {
    const qint64 ile =
        m_plik.write(m_bufor.data() + zapisane, static_cast<qint64>(m_bufor.size() - zapisane));
    if (ile <= 0) return Blad();
    zapisane += static_cast<size_t>(ile);
  }
  m_poczatekBufora += static_cast<qint64>(zapisane);
  m_bufor.clear();
  return true;
}

bool TMFile::SetEof() {
  if (!m_plik.isOpen() || !m_plik.isWritable()) return false;
  if (!Flush()) return false;
  return m_plik.resize(m_poczatekBufora) || Blad();
}

bool TMFile::Rewind() {
  if (!m_plik.isOpen() || !Flush()) return false;
  m_od = m_do = 0;
  m_poczatekBufora = 0;
  return m_plik.seek(0) || Blad();
}

qint64 TMFile::Position() const {
  return m_poczatekBufora + static_cast<qint64>(m_plik.isWritable() ? m_bufor.size() : m_od);
}

qint64 TMFile::Size() const {
  return m_plik.size();
}

RodzajTresci RozpoznajTresc(std::string_view poczatek) {
  if (poczatek.starts_with("\xEF\xBB\xBF")) return RodzajTresci::Utf8;
  if (poczatek.starts_with("\xFF\xFE") || poczatek.starts_with("\xFE\xFF")) return RodzajTresci::Utf16;
  if (poczatek.find('\0') != std::string_view::npos) return RodzajTresci::BajtyZerowe;
  if (JestUtf8(poczatek)) return RodzajTresci::Utf8;
  // A stray control character is a blemish; a share of them is another kind of file.
  const auto sterujacych = static_cast<size_t>(std::count_if(poczatek.begin(), poczatek.end(), Sterujacy));
  return sterujacych * 20 > poczatek.size() ? RodzajTresci::Binarny : RodzajTresci::Tekst;
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
  }
  return {};
}

std::optional<QString> RozpoznajPlik(const QString& sciezka) {
  QFile plik;
  if (OtworzPlik(plik, sciezka, SposobOtwarcia::Odczyt)) return std::nullopt;
  const QByteArray poczatek = plik.read(64 * 1024);
  const RodzajTresci rodzaj =
      RozpoznajTresc(std::string_view(poczatek.constData(), static_cast<size_t>(poczatek.size())));
  if (rodzaj == RodzajTresci::Tekst) return std::nullopt;
  return OpisTresci(rodzaj, sciezka);
}
