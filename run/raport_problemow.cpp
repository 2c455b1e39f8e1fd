#include "run/raport_problemow.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include "exchange/czytnik.h"
#include "platform/windows1250.h"
#include "run/liczniki.h"
#include "run/postep.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// With its trailing separator, as messages show a folder.
QString ZSeparatorem(const QString& katalog) {
  const QString wlasny = QDir::toNativeSeparators(katalog);
  return wlasny.endsWith(QDir::separator()) ? wlasny : wlasny + QDir::separator();
}

}  // namespace

QString RaportProblemow::KatalogProgramu() {
  return QCoreApplication::applicationDirPath();
}

QString RaportProblemow::KatalogZapasowy() {
#ifdef Q_OS_WIN
  return u"C:\\"_s;
#else
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
#endif
}

std::optional<Komunikat> RaportProblemow::Otworz(const QString& katalog, const QString& nazwaPliku,
                                                 const QString& zapasowy) {
  m_sciezka = ZSeparatorem(katalog) + nazwaPliku;
  if (m_plik.Open(m_sciezka, TMFile::Tryb::NaNowo)) return std::nullopt;
  m_postep.Pokaz(u"UWAGA"_s, u"Nie udało się utworzyć pliku "_s + nazwaPliku + u" na "_s +
                                 ZSeparatorem(katalog) + u"\nPlik zostanie utworzony na "_s +
                                 ZSeparatorem(zapasowy));
  QDir().mkpath(zapasowy);
  m_sciezka = ZSeparatorem(zapasowy) + nazwaPliku;
  if (m_plik.Open(m_sciezka, TMFile::Tryb::NaNowo)) return std::nullopt;
  return KomunikatBladOtwarcia(std::exchange(m_sciezka, {}));
}

void RaportProblemow::NowyRekord(const QString& pierwszy, const QString& drugi) {
  m_pierwszy = pierwszy;
  m_drugi = drugi;
  m_policzony = false;
}

void RaportProblemow::Zglos(const QString& komunikat, bool liczony) {
  if (!m_linie.empty()) m_linie += "\r\n";
  windows1250::Dopisz(m_pierwszy.trimmed() + u" | "_s + m_drugi.trimmed() + u" | "_s + komunikat, m_linie);
  if (!liczony || m_policzony) return;
  m_policzony = true;
  m_liczniki.Zwieksz(Licznik::Pominiete);
}

void RaportProblemow::Zatwierdz() {
  if (m_linie.empty()) return;
  if (m_plik.IsOpen() && (!m_plik.WriteLine(m_linie) || !m_plik.Flush())) OglosBladZapisu();
  m_linie.clear();
}

void RaportProblemow::Porzuc() {
  m_linie.clear();
}

void RaportProblemow::Zamknij() {
  if (m_plik.IsOpen() && !m_plik.Close()) OglosBladZapisu();
}

// The records themselves are safe in the database, so the run goes on.
void RaportProblemow::OglosBladZapisu() {
  if (m_bladOgloszony) return;
  m_bladOgloszony = true;
  m_postep.Pokaz(u"UWAGA"_s, u"Błąd zapisu do pliku "_s + m_sciezka + u"\n"_s + m_plik.OpisBledu());
}
