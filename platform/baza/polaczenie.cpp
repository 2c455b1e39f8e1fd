#include "platform/baza/polaczenie.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

QStringList ParametryPolaczenia::Pliki() const {
  return {cel, cel + QLatin1String("-wal"), cel + QLatin1String("-shm"), cel + QLatin1String("-journal")};
}

std::optional<ParametryPolaczenia> ParametryPolaczenia::ZTekstu(const QString& tekst) {
  constexpr QLatin1String kPrzedrostek("sqlite:");
  QString cel = tekst.trimmed();
  if (cel.startsWith(kPrzedrostek, Qt::CaseInsensitive)) {
    cel.remove(0, kPrzedrostek.size());
  } else if (cel.startsWith(QLatin1String("odbc:"), Qt::CaseInsensitive)) {
    return std::nullopt;
  }
  if (cel.isEmpty()) return std::nullopt;
  ParametryPolaczenia parametry;
  parametry.cel = cel;
  return parametry;
}

std::optional<ParametryPolaczenia> ParametryPolaczenia::Domyslne() {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
  QFile plik(folder.filePath(QStringLiteral("zorvik/polaczenie.cfg")));
  if (!plik.open(QIODevice::ReadOnly | QIODevice::Text)) return std::nullopt;
  return ZTekstu(QString::fromUtf8(plik.readLine(4096)));
}
