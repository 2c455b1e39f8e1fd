#include "platform/baza/polaczenie.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

constexpr QLatin1String kPrzedrostek("sqlite:");

}  // namespace

QStringList ParametryPolaczenia::Pliki() const {
  return {cel, cel + QLatin1String("-wal"), cel + QLatin1String("-shm"), cel + QLatin1String("-journal")};
}

std::optional<ParametryPolaczenia> ParametryPolaczenia::ZTekstu(const QString& tekst) {
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

QString ParametryPolaczenia::Tekst() const {
  return kPrzedrostek + QFileInfo(cel).absoluteFilePath();
}

std::optional<ParametryPolaczenia> ParametryPolaczenia::Domyslne() {
  QFile plik(PlikDomyslnych());
  if (!plik.open(QIODevice::ReadOnly | QIODevice::Text)) return std::nullopt;
  return ZTekstu(QString::fromUtf8(plik.readLine(4096)));
}

QString ParametryPolaczenia::PlikDomyslnych() {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
  return folder.filePath(QStringLiteral("zorvik/polaczenie.cfg"));
}

std::optional<QString> ParametryPolaczenia::Zapamietaj() const {
  QSaveFile plik(PlikDomyslnych());
  QDir().mkpath(QFileInfo(plik.fileName()).path());
  // The rights first: nobody else can read the file at any moment.
  const bool zapisano = plik.open(QIODevice::WriteOnly) &&
                        plik.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                        plik.write(Tekst().toUtf8() + '\n') > 0 && plik.commit();
  if (zapisano) return std::nullopt;
  return plik.errorString();
}
