#include "platform/config.h"

#include <algorithm>

#include <QFile>
#include <QSaveFile>

#include "platform/liczby.h"
#include "platform/windows1250.h"

std::optional<int> TMCfgParam::Calkowita() const {
  return liczby::Calkowita(QStringView(m_wartosc).trimmed());
}

std::optional<bool> TMCfgParam::Flaga() const {
  if (m_wartosc == QLatin1String("1")) return true;
  if (m_wartosc == QLatin1String("0")) return false;
  return std::nullopt;
}

void TMConfig::Ustaw(const QString& nazwa, const QString& wartosc) {
  const auto miejsce = m_miejsca.constFind(nazwa);
  if (miejsce != m_miejsca.constEnd()) {
    m_parametry[static_cast<size_t>(*miejsce)].UstawWartosc(wartosc);
    return;
  }
  m_miejsca.insert(nazwa, static_cast<qsizetype>(m_parametry.size()));
  m_parametry.emplace_back(nazwa, wartosc);
}

const TMCfgParam* TMConfig::ParamByName(const QString& nazwa) const {
  const auto miejsce = m_miejsca.constFind(nazwa);
  return miejsce == m_miejsca.constEnd() ? nullptr : &m_parametry[static_cast<size_t>(*miejsce)];
}

QString TMConfig::Tekst(const QString& nazwa, const QString& domyslna) const {
  const TMCfgParam* parametr = ParamByName(nazwa);
  return parametr ? parametr->Wartosc() : domyslna;
}

int TMConfig::Calkowita(const QString& nazwa, int domyslna) const {
  const TMCfgParam* parametr = ParamByName(nazwa);
  return parametr ? parametr->Calkowita().value_or(domyslna) : domyslna;
}

bool TMConfig::Flaga(const QString& nazwa, bool domyslna) const {
  const TMCfgParam* parametr = ParamByName(nazwa);
  return parametr ? parametr->Flaga().value_or(domyslna) : domyslna;
}

namespace plik_konfiguracji {
namespace {

constexpr size_t kKolumnaWartosci = 35;  // of the writer; also the shortest line that is a parameter
constexpr size_t kDlugoscNazwy = 30;     // of the reader
constexpr size_t kDlugoscWartosci = 100;
constexpr qint64 kNajwiekszyPlik = 16 * 1024 * 1024;

void DopiszBezKoncaLinii(QStringView tekst, QString& wyjscie) {
  for (const QChar znak : tekst)
    wyjscie += znak == QLatin1Char('\r') || znak == QLatin1Char('\n') ? QLatin1Char(' ') : znak;
}

void CzytajLinie(std::string_view linia, TMConfig& config) {
  if (linia.size() < kKolumnaWartosci) return;
  const QString nazwa = windows1250::NaUnicode(linia.substr(0, kDlugoscNazwy)).trimmed();
  const QString wartosc = windows1250::NaUnicode(linia.substr(kDlugoscNazwy, kDlugoscWartosci)).trimmed();
  if (!nazwa.isEmpty()) config.Ustaw(nazwa, wartosc);
}

}  // namespace

QString Tekst(const TMConfig& config) {
  QString tekst;
  for (const TMCfgParam& parametr : config.Params()) {
    DopiszBezKoncaLinii(parametr.Nazwa().leftJustified(kKolumnaWartosci), tekst);
    DopiszBezKoncaLinii(parametr.Wartosc(), tekst);
    tekst += QLatin1String("\r\n");
  }
  return tekst;
}

void Czytaj(std::string_view bajty, TMConfig& config) {
  while (!bajty.empty()) {
    const size_t koniec = std::min(bajty.find('\n'), bajty.size());
    std::string_view linia = bajty.substr(0, koniec);
    if (!linia.empty() && linia.back() == '\r') linia.remove_suffix(1);
    CzytajLinie(linia, config);
    bajty.remove_prefix(std::min(koniec + 1, bajty.size()));
  }
}

std::optional<QString> Wczytaj(const QString& sciezka, TMConfig& config) {
  QFile plik(sciezka);
  if (!plik.open(QIODevice::ReadOnly)) return plik.errorString();
  // One byte more than allowed tells a file that is too large, whatever its size is said to be.
  const QByteArray bajty = plik.read(kNajwiekszyPlik + 1);
  if (plik.error() != QFileDevice::NoError) return plik.errorString();
  if (bajty.size() > kNajwiekszyPlik) return QStringLiteral("To nie jest plik konfiguracji (jest za duży)");
  Czytaj(std::string_view(bajty.constData(), static_cast<size_t>(bajty.size())), config);
  return std::nullopt;
}

WynikZapisu Zapisz(const QString& sciezka, const TMConfig& config) {
  WynikZapisu wynik;
  std::string bajty;
  wynik.znakowZastapionych = windows1250::Dopisz(Tekst(config), bajty);
  QSaveFile plik(sciezka);
  const bool zapisano =
      plik.open(QIODevice::WriteOnly) &&
      plik.write(bajty.data(), static_cast<qint64>(bajty.size())) == static_cast<qint64>(bajty.size()) &&
      plik.commit();
  if (!zapisano) wynik.blad = plik.errorString();
  return wynik;
}

}  // namespace plik_konfiguracji
