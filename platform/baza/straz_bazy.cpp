#include "platform/baza/straz_bazy.h"

#include <QFileInfo>

#include "platform/baza/polaczenie.h"

void StrazBazy::Zapamietaj(const QString& baza, std::function<qint64()> wedlugNaglowka) {
  m_baza = baza;
  m_wedlugNaglowka = std::move(wedlugNaglowka);
  m_rozmiar = QFileInfo(baza).size();
  m_pliki.clear();
  // What is not there yet is none of the files that are open.
  ParametryPolaczenia parametry;
  parametry.cel = baza;
  for (const QString& plik : parametry.PlikiOtwarte())
    if (const auto tozsamosc = TozsamoscPliku::Sciezki(plik); tozsamosc && tozsamosc->Istnieje())
      m_pliki.emplace_back(plik, *tozsamosc);
}

std::optional<QString> StrazBazy::CoSieStalo() {
  for (const auto& [plik, tozsamosc] : m_pliki) {
    const auto teraz = TozsamoscPliku::Sciezki(plik);
    if (!teraz || !teraz->Istnieje())
      return QStringLiteral("Plik %1 został usunięty albo przeniesiony").arg(plik);
    if (*teraz != tozsamosc) return QStringLiteral("Na miejscu pliku %1 jest teraz inny plik").arg(plik);
  }
  const qint64 rozmiar = QFileInfo(m_baza).size();
  if (rozmiar < m_rozmiar && rozmiar < m_wedlugNaglowka())
    return QStringLiteral("Plik %1 został skrócony").arg(m_baza);
  m_rozmiar = rozmiar;
  return std::nullopt;
}
