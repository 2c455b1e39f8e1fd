#include "exchange/plik_dbase.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "platform/otwarcie_pliku.h"
#include "platform/tozsamosc_pliku.h"

namespace {

constexpr qint64 kDlugoscNaglowka = 32;
constexpr qint64 kDlugoscOpisu = 32;
constexpr size_t kDlugoscNazwy = 11;
constexpr size_t kBajtTypu = 11;
constexpr size_t kBajtDlugosci = 16;
constexpr char kKoniecOpisow = '\x0D';
constexpr char kKoniecPliku = '\x1A';
constexpr qint64 kBlok = 256 * 1024;

qint64 Slowo16(const char* bajty) {
  return static_cast<unsigned char>(bajty[0]) + 256 * static_cast<unsigned char>(bajty[1]);
}

char MalaLitera(char znak) {
  return znak >= 'A' && znak <= 'Z' ? static_cast<char>(znak - 'A' + 'a') : znak;
}

bool TaSamaNazwa(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return MalaLitera(x) == MalaLitera(y); });
}

}  // namespace

bool PlikDBase::Open(const QString& sciezka, bool tylkoOdczyt) {
  Close();
  m_blad.reset();
  if (RodzajPlikuSciezki(sciezka) == RodzajPliku::Brak) return false;
  m_sciezka = sciezka;
  if (const auto powod =
          OtworzPlik(m_plik, sciezka, tylkoOdczyt ? SposobOtwarcia::Odczyt : SposobOtwarcia::Modyfikacja))
    return Odmowa(*powod);
  if (WczytajNaglowek()) return true;
  Close();
  return false;
}

void PlikDBase::Close() {
  m_plik.close();
  m_pola.clear();
  m_rekordow = m_blokIle = 0;
  m_rekord = {};
}

bool PlikDBase::Odmowa(const QString& powod) {
  m_blad = Komunikat{QStringLiteral("BŁĄD"), QStringLiteral("Nie można czytać pliku dBase ") + m_sciezka +
                                                 QStringLiteral("\n") + powod};
  return false;
}

bool PlikDBase::WczytajNaglowek() {
  std::array<char, kDlugoscNaglowka> naglowek;
  if (m_plik.read(naglowek.data(), kDlugoscNaglowka) != kDlugoscNaglowka)
    return Odmowa(QStringLiteral("Plik jest krótszy niż nagłówek dBase"));
  m_rekordowWNaglowku = Slowo16(naglowek.data() + 4) + 65536 * Slowo16(naglowek.data() + 6);
  m_dlugoscNaglowka = Slowo16(naglowek.data() + 8);
  m_dlugoscRekordu = Slowo16(naglowek.data() + 10);
  if (m_dlugoscRekordu > kNajdluzszyRekord) {
    m_blad = Komunikat{QStringLiteral("UWAGA"), QStringLiteral("Za długi rekord")};
    return false;
  }
  // Not one size is believed before it makes sense.
  if (m_dlugoscRekordu == 0) return Odmowa(QStringLiteral("Długość rekordu w nagłówku wynosi 0"));
  const qint64 ilePol = (m_dlugoscNaglowka - 1) / kDlugoscOpisu - 1;
  if (m_dlugoscNaglowka == 0 || ilePol < 1)
    return Odmowa(
        QStringLiteral("Nagłówek nie zawiera opisów pól (długość nagłówka %1)").arg(m_dlugoscNaglowka));
  if (m_dlugoscNaglowka > m_plik.size())
    return Odmowa(QStringLiteral("Nagłówek (%1 bajtów) jest dłuższy niż plik").arg(m_dlugoscNaglowka));
  if (!WczytajPola(ilePol)) return false;
  if (!UzgodnijDlugosci()) return false;
  // A file that ends with its header lacks even the byte that ends a file.
  m_rekordow = std::max<qint64>(0, (m_plik.size() - 1 - m_dlugoscNaglowka) / m_dlugoscRekordu);
  while (m_rekordow > 0 && RekordJestKoncemPliku(m_rekordow - 1)) --m_rekordow;
  return true;
}

bool PlikDBase::WczytajPola(qint64 ile) {
  std::array<char, kDlugoscOpisu> opis;
  for (qint64 i = 0; i < ile; ++i) {
    if (m_plik.read(opis.data(), kDlugoscOpisu) != kDlugoscOpisu)
      return Odmowa(QStringLiteral("Opisy pól są niepełne"));
    const auto koniec = std::find(opis.begin(), opis.begin() + kDlugoscNazwy, '\0');
    if (koniec == opis.begin() || opis[0] == kKoniecOpisow) break;
    if (i == kNajwiecejPol) return Odmowa(QStringLiteral("Plik ma więcej niż %1 pól").arg(kNajwiecejPol));
    const auto dlugosc = static_cast<unsigned char>(opis[kBajtDlugosci]);
    const bool znakowe = opis[kBajtTypu] == 'C';
    m_pola.push_back({std::string(opis.begin(), koniec), opis[kBajtTypu], 0, dlugosc,
                      znakowe ? static_cast<size_t>(Slowo16(&opis[kBajtDlugosci])) : dlugosc});
  }
  return !m_pola.empty() || Odmowa(QStringLiteral("Nagłówek nie zawiera opisów pól"));
}

// The second byte of a character field's length is the number of decimals elsewhere: it counts only when the
// record says so.
bool PlikDBase::UzgodnijDlugosci() {
  const auto suma = [this](size_t Pole::*dlugosc) {
    return std::accumulate(m_pola.begin(), m_pola.end(), size_t{1},
                           [dlugosc](size_t ile, const Pole& pole) { return ile + pole.*dlugosc; });
  };
  const auto rekord = static_cast<size_t>(m_dlugoscRekordu);
  if (suma(&Pole::dlugosc) != rekord) {
    if (suma(&Pole::dlugoscSzeroka) != rekord)
      return Odmowa(
          QStringLiteral("Pola zajmują razem %1 bajtów, a rekord ma ich %2, więc nie wiadomo, gdzie "
                         "zaczynają się wartości; zapisz tabelę ponownie w formacie dBase III")
              .arg(suma(&Pole::dlugosc))
              .arg(rekord));
    for (Pole& pole : m_pola) pole.dlugosc = pole.dlugoscSzeroka;
  }
  size_t od = 1;  // after the deletion byte
  for (Pole& pole : m_pola) {
    pole.od = od;
    od += pole.dlugosc;
  }
  return true;
}

// Some programs fill the file up with the byte that ends it.
bool PlikDBase::RekordJestKoncemPliku(qint64 numer) {
  std::string bajty(static_cast<size_t>(m_dlugoscRekordu), ' ');
  return m_plik.seek(m_dlugoscNaglowka + m_dlugoscRekordu * numer) &&
         m_plik.read(bajty.data(), m_dlugoscRekordu) == m_dlugoscRekordu && bajty.front() == kKoniecPliku &&
         bajty.find_first_not_of("\x1A\r\n") == std::string::npos;
}

std::string_view PlikDBase::FieldName(int indeks) const {
  if (indeks < 0 || indeks >= FieldCount()) return {};
  return m_pola[static_cast<size_t>(indeks)].nazwa;
}

char PlikDBase::FieldType(int indeks) const {
  return indeks < 0 || indeks >= FieldCount() ? '\0' : m_pola[static_cast<size_t>(indeks)].typ;
}

int PlikDBase::FieldIndex(std::string_view nazwa) const {
  const auto pole = std::find_if(m_pola.begin(), m_pola.end(),
                                 [nazwa](const Pole& p) { return TaSamaNazwa(p.nazwa, nazwa); });
  return pole == m_pola.end() ? -1 : static_cast<int>(pole - m_pola.begin());
}

bool PlikDBase::WczytajBlok(qint64 numer) {
  const qint64 ile = std::min(kBlok / m_dlugoscRekordu, m_rekordow - numer);
  m_blokIle = 0;
  m_blok.resize(static_cast<size_t>(ile * m_dlugoscRekordu));
  if (!m_plik.seek(m_dlugoscNaglowka + m_dlugoscRekordu * numer)) return Odmowa(m_plik.errorString());
  const qint64 przeczytano = m_plik.read(m_blok.data(), static_cast<qint64>(m_blok.size()));
  if (przeczytano < 0) return Odmowa(m_plik.errorString());
  m_blokOd = numer;
  m_blokIle = przeczytano / m_dlugoscRekordu;
  return m_blokIle > 0 || Odmowa(QStringLiteral("Plik został skrócony w trakcie odczytu"));
}

bool PlikDBase::ReadRecord(qint64 numer) {
  m_rekord = {};
  if (numer < 0 || numer >= m_rekordow) return false;
  const bool wBloku = numer >= m_blokOd && numer < m_blokOd + m_blokIle;
  if (!wBloku && !WczytajBlok(numer)) return false;
  m_rekord = std::string_view(m_blok).substr(static_cast<size_t>((numer - m_blokOd) * m_dlugoscRekordu),
                                             static_cast<size_t>(m_dlugoscRekordu));
  return true;
}

std::string_view PlikDBase::FieldValue(int indeks) const {
  if (indeks < 0 || indeks >= FieldCount()) return {};
  const Pole& pole = m_pola[static_cast<size_t>(indeks)];
  if (pole.od + pole.dlugosc > m_rekord.size()) return {};
  const std::string_view bajty = m_rekord.substr(pole.od, pole.dlugosc);
  return bajty.substr(0, bajty.find('\0'));
}
