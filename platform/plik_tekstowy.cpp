#include "platform/plik_tekstowy.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "platform/otwarcie_pliku.h"

namespace {

constexpr size_t kPorcja = 256 * 1024;
constexpr char kKoniecPliku = '\x1A';

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
  m_sciezka = sciezka;
  m_opisBledu.clear();
  m_bladZapisu = m_zero = false;
  m_od = m_do = 0;
  m_poczatekBufora = 0;
  if (const auto powod = Otworz(m_plik, sciezka, tryb)) {
    m_opisBledu = *powod;
    return false;
  }
  m_bufor.clear();
  if (tryb == Tryb::Odczyt) {
    m_bufor.resize(kPorcja);
    return ZbadajTekst();
  }
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

// Bytes 1A at the end, with line ends among them, are the end of a file as old systems knew it.
qint64 TMFile::KoniecTekstu() {
  qint64 koniec = m_plik.size();
  for (qint64 od = koniec; od > 0;) {
    const qint64 ile = std::min<qint64>(od, kPorcja);
    od -= ile;
    if (!m_plik.seek(od) || m_plik.read(m_bufor.data(), ile) != ile) break;
    for (qint64 i = ile - 1; i >= 0; --i) {
      const char znak = m_bufor[static_cast<size_t>(i)];
      if (znak == kKoniecPliku) koniec = od + i;
      if (znak != kKoniecPliku && znak != '\r' && znak != '\n') return koniec;
    }
  }
  return koniec;
}

// CR alone ends the lines when there is no LF anywhere.
char TMFile::ZnakKoncaLinii() {
  bool cr = false;
  for (qint64 od = 0; od < m_koniec && (cr || od <= kNajdluzszaLinia);) {
    const qint64 ile =
        m_plik.seek(od) ? m_plik.read(m_bufor.data(), std::min<qint64>(kPorcja, m_koniec - od)) : 0;
    if (ile <= 0) break;
    if (std::memchr(m_bufor.data(), '\n', static_cast<size_t>(ile)) != nullptr) return '\n';
    cr = cr || std::memchr(m_bufor.data(), '\r', static_cast<size_t>(ile)) != nullptr;
    od += ile;
  }
  return cr ? '\r' : '\n';
}

bool TMFile::ZbadajTekst() {
  m_koniec = KoniecTekstu();
  m_koniecLinii = ZnakKoncaLinii();
  return m_plik.seek(0) || Blad();
}

std::string_view TMFile::BezCr(std::string_view linia) const {
  if (m_koniecLinii == '\n' && linia.ends_with('\r')) linia.remove_suffix(1);
  return linia;
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
  const qint64 zostalo = m_koniec - m_poczatekBufora - static_cast<qint64>(m_do);
  if (zostalo == 0) return Doczytanie::Koniec;
  const qint64 ile =
      m_plik.read(m_bufor.data() + m_do, std::min(zostalo, static_cast<qint64>(m_bufor.size() - m_do)));
  if (ile <= 0) {
    Blad();
    if (ile == 0) m_opisBledu = QStringLiteral("Plik został skrócony w trakcie odczytu");
    return Doczytanie::Blad;
  }
  if (std::memchr(m_bufor.data() + m_do, 0, static_cast<size_t>(ile)) != nullptr) m_zero = true;
  m_do += static_cast<size_t>(ile);
  return Doczytanie::Jest;
}

TMFile::WynikLinii TMFile::OstatniaLinia(std::string_view& linia) {
  if (m_od == m_do) return WynikLinii::Koniec;
  linia = BezCr(std::string_view(m_bufor.data() + m_od, m_do - m_od));
  m_od = m_do;
  return WynikLinii::Linia;
}

TMFile::WynikLinii TMFile::PominDlugaLinie() {
  for (;;) {
    const void* koniec = std::memchr(m_bufor.data() + m_od, m_koniecLinii, m_do - m_od);
    if (koniec != nullptr) {
      m_od = static_cast<size_t>(static_cast<const char*>(koniec) - m_bufor.data()) + 1;
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
    const void* koniec =
        jest > przejrzane ? std::memchr(od + przejrzane, m_koniecLinii, jest - przejrzane) : nullptr;
    if (koniec != nullptr) {
      const auto dlugosc = static_cast<size_t>(static_cast<const char*>(koniec) - od);
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
  return m_plik.isWritable() ? m_plik.size() : m_koniec;
}
