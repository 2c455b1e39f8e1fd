#include "platform/nazwa_pliku.h"

#include <array>
#include <climits>
#include <cstdlib>
#include <memory>

#include <QStringDecoder>
#include <QStringList>

#include <dirent.h>
#include <unistd.h>

namespace {

constexpr int kNajwiecejDowiazan = 40;         // as the system counts them
constexpr ushort kPierwszyZastepczy = 0xDC00;  // and the byte; never below 0xDC80

// The length of the longest beginning that is valid UTF-8.
qsizetype DlugoscPoprawnego(QByteArrayView bajty) {
  for (qsizetype ile = bajty.size(); ile > 0; --ile) {
    QStringDecoder dekoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString proba = dekoder(bajty.first(ile));
    if (!dekoder.hasError() && proba.toUtf8() == bajty.first(ile)) return ile;
  }
  return 0;
}

bool Zastepczy(QStringView nazwa, qsizetype i) {
  const ushort znak = nazwa[i].unicode();
  return znak >= kPierwszyZastepczy + 0x80 && znak <= kPierwszyZastepczy + 0xFF &&
         (i == 0 || !nazwa[i - 1].isHighSurrogate());
}

}  // namespace

QString NazwaZBajtow(const QByteArray& bajty) {
  QString nazwa;
  for (QByteArrayView reszta(bajty); !reszta.isEmpty();) {
    const qsizetype ile = DlugoscPoprawnego(reszta);
    nazwa += QString::fromUtf8(reszta.first(ile));
    reszta = reszta.sliced(ile);
    if (reszta.isEmpty()) break;
    nazwa += QChar(static_cast<ushort>(kPierwszyZastepczy + static_cast<uchar>(reszta.front())));
    reszta = reszta.sliced(1);
  }
  return nazwa;
}

QByteArray BajtyNazwy(const QString& nazwa) {
  QByteArray bajty;
  qsizetype od = 0;
  for (qsizetype i = 0; i < nazwa.size(); ++i) {
    if (!Zastepczy(nazwa, i)) continue;
    bajty += QStringView(nazwa).mid(od, i - od).toUtf8();
    bajty += static_cast<char>(nazwa[i].unicode() - kPierwszyZastepczy);
    od = i + 1;
  }
  return bajty + QStringView(nazwa).mid(od).toUtf8();
}

QString OdszukajNazwe(const QString& sciezka) {
  const qsizetype nazwa = sciezka.lastIndexOf(u'/') + 1;
  const QString folder = nazwa > 0 ? sciezka.left(nazwa) : QStringLiteral(".");
  if (!QStringView(sciezka).mid(nazwa).contains(u'?') || access(BajtyNazwy(sciezka).constData(), F_OK) == 0)
    return sciezka;
  const std::unique_ptr<DIR, int (*)(DIR*)> katalog(opendir(BajtyNazwy(folder).constData()), &closedir);
  QStringList pasujace;
  while (const dirent* wpis = katalog ? readdir(katalog.get()) : nullptr) {
    const QString cala = sciezka.left(nazwa) + NazwaZBajtow(wpis->d_name);
    QString pokazana = cala;
    for (qsizetype i = 0; i < pokazana.size(); ++i)
      if (Zastepczy(cala, i)) pokazana[i] = u'?';
    if (pokazana == sciezka) pasujace << cala;
  }
  return pasujace.size() == 1 ? pasujace.constFirst() : sciezka;
}

QString KoniecDowiazan(QString sciezka) {
  std::array<char, PATH_MAX> cel;
  for (int i = 0; i < kNajwiecejDowiazan; ++i) {
    const ssize_t ile = readlink(BajtyNazwy(sciezka).constData(), cel.data(), cel.size());
    if (ile <= 0) break;
    const QString dalej = NazwaZBajtow(QByteArray(cel.data(), ile));
    sciezka = dalej.startsWith(u'/') ? dalej : sciezka.left(sciezka.lastIndexOf(u'/') + 1) + dalej;
  }
  return sciezka;
}

QString SciezkaBezDowiazan(const QString& sciezka) {
  const std::unique_ptr<char, decltype(&std::free)> cel(realpath(BajtyNazwy(sciezka).constData(), nullptr),
                                                        &std::free);
  return cel ? NazwaZBajtow(cel.get()) : sciezka;
}
