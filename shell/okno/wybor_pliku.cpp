#include "shell/okno/wybor_pliku.h"

#include <QDir>
#include <QFileInfo>

#include "shell/kontrolki/filtry_plikow.h"
#include "shell/kontrolki/pamiec_okien.h"
#include "shell/rozmowa.h"
#include "ustawienia/magazyn_ustawien.h"
#include "ustawienia/rodzaje_przebiegow.h"
#include "ustawienia/tabela_ustawien.h"
#include "ustawienia/ustawienia.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr PlikiFiltru kEksportu{u"pliki tekstowe (*.txt)", u"txt"};
constexpr PlikiFiltru kKonfiguracji{u"Pliki konfiguracji Zorvika (Zorvik*.cfg)", u"cfg"};

QString Napis(std::u16string_view tekst) {
  return QStringView(tekst).toString();
}

QString KluczFolderu(const RodzajPrzebiegu& rodzaj) {
  return u"foldery/"_s + Napis(rodzaj.nazwa);
}

// The file where its folder exists, otherwise its name alone at home.
QString WIstniejacymFolderze(const QString& plik) {
  const QFileInfo opis(QDir::fromNativeSeparators(plik));
  return opis.dir().exists() ? opis.absoluteFilePath() : QDir::home().filePath(opis.fileName());
}

// A path that somebody has chosen counts whole; the folder used last is better than the one the program was
// started in, and than one that is gone.
QString Proponowany(const RodzajPrzebiegu& rodzaj, const QString& plik, const QString& domyslny) {
  const QFileInfo opis(QDir::fromNativeSeparators(plik));
  if (plik != domyslny && opis.dir().exists()) return opis.absoluteFilePath();
  const QString folder = PamiecOkien().value(KluczFolderu(rodzaj)).toString();
  if (folder.isEmpty() || !QDir(folder).exists()) return WIstniejacymFolderze(plik);
  return QDir(folder).filePath(opis.fileName());
}

std::optional<QString> Wybierz(QWidget* okno, Rozmowa& rozmowa, Kierunek kierunek,
                               const Rozmowa::WyborPliku& wybor) {
  if (kierunek == Kierunek::Import) return rozmowa.WybierzDoOdczytu(okno, wybor);
  const std::optional<QString> plik = rozmowa.WybierzDoZapisu(okno, wybor);
  if (!plik) return std::nullopt;
  const std::optional<Komunikat> pytanie = magazyn_ustawien::PytanieONadpisanie(*plik);
  return pytanie && !rozmowa.CzyTak(okno, *pytanie) ? std::nullopt : plik;
}

}  // namespace

std::optional<QString> WybierzPlikPrzebiegu(QWidget* okno, Rozmowa& rozmowa, const RodzajPrzebiegu& rodzaj,
                                            const Ustawienia& ustawienia, const QString& katalogStartowy) {
  const bool import = rodzaj.kierunek == Kierunek::Import;
  const TypPliku typ = (ustawienia.*rodzaj.struktura).CBTypPliku;
  Ustawienia domyslne;
  WypelnijDomyslne(domyslne, katalogStartowy);
  return Wybierz(okno, rozmowa, rodzaj.kierunek,
                 {.tytul = Napis(rodzaj.tytul),
                  .sciezka = Proponowany(rodzaj, ustawienia.*rodzaj.plik, domyslne.*rodzaj.plik),
                  .filtr = import ? FiltrImportu(typ) : Filtr({kEksportu}),
                  .rozszerzenie = import ? RozszerzenieImportu(typ) : u"txt"_s});
}

void ZapamietajPlikPrzebiegu(const RodzajPrzebiegu& rodzaj, const QString& plik, Ustawienia& ustawienia) {
  ustawienia.*rodzaj.plik = QDir::toNativeSeparators(plik);
  PamiecOkien().setValue(KluczFolderu(rodzaj), QFileInfo(plik).absolutePath());
}

std::optional<QString> WybierzPlikKonfiguracji(QWidget* okno, Rozmowa& rozmowa, Kierunek kierunek,
                                               const Ustawienia& ustawienia) {
  return Wybierz(okno, rozmowa, kierunek,
                 {.tytul = kierunek == Kierunek::Import ? u"Import konfiguracji z pliku"_s
                                                        : u"Eksport konfiguracji do pliku"_s,
                  .sciezka = WIstniejacymFolderze(ustawienia.plikKonfiguracji),
                  .filtr = Filtr({kKonfiguracji}),
                  .rozszerzenie = u"cfg"_s});
}
