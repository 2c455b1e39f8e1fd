#include "platform/baza/polaczenie.h"

#include <algorithm>
#include <vector>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include "platform/baza/napis_odbc.h"
#include "platform/nazwa_pliku.h"

namespace {

constexpr QLatin1String kSqlite("sqlite:");
constexpr QLatin1String kOdbc("odbc:");
constexpr QChar kZPliku(u'@');

bool Haslo(const AtrybutOdbc& atrybut) {
  return atrybut.klucz.compare(QLatin1String("PWD"), Qt::CaseInsensitive) == 0 ||
         atrybut.klucz.compare(QLatin1String("Password"), Qt::CaseInsensitive) == 0;
}

}  // namespace

QStringList ParametryPolaczenia::Pliki() const {
  if (rodzaj != Rodzaj::Sqlite) return {};
  return PlikiOtwarte() << SciezkaBezDowiazan(cel) + QLatin1String("-journal");
}

QStringList ParametryPolaczenia::PlikiOtwarte() const {
  if (rodzaj != Rodzaj::Sqlite) return {};
  const QString plik = SciezkaBezDowiazan(cel);
  return {cel, plik + QLatin1String("-wal"), plik + QLatin1String("-shm")};
}

QString ParametryPolaczenia::Opis() const {
  if (rodzaj == Rodzaj::Sqlite) return cel;
  if (!MaHaslo()) return kOdbc + cel;
  std::vector<AtrybutOdbc> atrybuty = RozbierzNapisOdbc(cel);
  std::erase_if(atrybuty, Haslo);
  return kOdbc + ZlozNapisOdbc(atrybuty);
}

bool ParametryPolaczenia::MaHaslo() const {
  if (rodzaj != Rodzaj::Odbc || cel.startsWith(kZPliku)) return false;
  const std::vector<AtrybutOdbc> atrybuty = RozbierzNapisOdbc(cel);
  return std::any_of(atrybuty.begin(), atrybuty.end(), Haslo);
}

void ParametryPolaczenia::UstawHaslo(const QString& haslo) {
  if (haslo.isEmpty() || rodzaj != Rodzaj::Odbc || cel.startsWith(kZPliku)) return;
  std::vector<AtrybutOdbc> atrybuty = RozbierzNapisOdbc(cel);
  std::erase_if(atrybuty, Haslo);
  atrybuty.push_back({QStringLiteral("PWD"), haslo});
  cel = ZlozNapisOdbc(atrybuty);
}

std::optional<ParametryPolaczenia> ParametryPolaczenia::ZTekstu(const QString& tekst) {
  ParametryPolaczenia parametry;
  parametry.cel = tekst.trimmed();
  for (const auto& [przedrostek, rodzaj] : {std::pair(kSqlite, Rodzaj::Sqlite), {kOdbc, Rodzaj::Odbc}})
    if (parametry.cel.startsWith(przedrostek, Qt::CaseInsensitive)) {
      parametry.cel = parametry.cel.mid(przedrostek.size()).trimmed();
      parametry.rodzaj = rodzaj;
      break;
    }
  if (parametry.cel.isEmpty()) return std::nullopt;
  return parametry;
}

QString ParametryPolaczenia::Tekst() const {
  if (rodzaj == Rodzaj::Sqlite) return kSqlite + QFileInfo(cel).absoluteFilePath();
  if (cel.startsWith(kZPliku)) return kOdbc + kZPliku + QFileInfo(cel.mid(1)).absoluteFilePath();
  return kOdbc + cel;
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
