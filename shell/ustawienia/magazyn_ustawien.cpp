#include "ustawienia/magazyn_ustawien.h"

#include <algorithm>

#include <QDir>
#include <QFileInfo>

#include "exchange/czytnik.h"
#include "platform/baza/sesja.h"
#include "platform/config.h"
#include "run/pliki_zastrzezone.h"
#include "ustawienia/tabela_ustawien.h"
#include "ustawienia/ustawienia.h"
#include "ustawienia/wspolzaleznosci.h"

namespace magazyn_ustawien {
namespace {

Komunikat Uwaga(const QString& tekst) {
  return {QStringLiteral("UWAGA"), tekst};
}

Komunikaty Zastosuj(const TMConfig& config, Ustawienia& ustawienia) {
  Komunikaty komunikaty;
  for (const QString& klucz : ZastosujUstawienia(config, ustawienia))
    komunikaty.push_back(Uwaga(QStringLiteral("Pominięto ustawienie %1: niewłaściwa wartość \"%2\"")
                                   .arg(klucz, config.Tekst(klucz))));
  return komunikaty;
}

WynikImportu WczytajPlik(const QString& sciezka, Ustawienia& ustawienia) {
  TMConfig config;
  if (plik_konfiguracji::Wczytaj(sciezka, config)) return {false, {KomunikatBladOtwarcia(sciezka)}};
  return {true, Zastosuj(config, ustawienia)};
}

// The database's own file is not opened: closing it would take the engine's locks away.
WynikImportu ImportujPozaBaza(const QString& sciezka, const TVLTBazaDanych* baza, Ustawienia& ustawienia) {
  if (baza)
    if (const auto odmowa = OdmowaPlikuBazy(baza->Parametry(), sciezka)) return {false, {*odmowa}};
  return ImportujZPliku(sciezka, ustawienia);
}

void Dopisz(Komunikaty& cel, Komunikaty zrodlo) {
  for (Komunikat& komunikat : zrodlo) cel.push_back(std::move(komunikat));
}

}  // namespace

QString NazwaKonfiguracji() {
  return QStringLiteral("ZORVIK");
}

QString DomyslnyPlik(const QString& katalogStartowy) {
  return QDir::toNativeSeparators(QDir(katalogStartowy).filePath(QStringLiteral("ZorvikDef.cfg")));
}

Komunikaty WczytajDomyslnyPlik(const QString& katalogStartowy, Ustawienia& ustawienia) {
  const QString sciezka = DomyslnyPlik(katalogStartowy);
  if (!QFileInfo::exists(sciezka)) return {};
  return WczytajPlik(sciezka, ustawienia).komunikaty;
}

Komunikaty WczytajZBazy(TVLTBazaDanych& baza, Ustawienia& ustawienia) {
  // Without the state as it is: a choice that was made before must not be made again after the database's.
  TMConfig config;
  baza.WczytajKonfiguracje(NazwaKonfiguracji(), config);
  return Zastosuj(config, ustawienia);
}

void ZapiszDoBazy(TVLTBazaDanych& baza, const Ustawienia& ustawienia) {
  TMConfig config;
  ZapiszUstawienia(ustawienia, config);
  baza.ZapiszKonfiguracje(NazwaKonfiguracji(), config);
  baza.Utrwal();
}

WynikImportu ImportujZPliku(const QString& sciezka, Ustawienia& ustawienia) {
  if (!QFileInfo::exists(sciezka)) return {false, {KomunikatBrakPliku(sciezka)}};
  return WczytajPlik(sciezka, ustawienia);
}

std::optional<Komunikat> PytanieONadpisanie(const QString& sciezka) {
  if (!QFileInfo::exists(sciezka)) return std::nullopt;
  return Komunikat{QStringLiteral("Uwaga"),
                   QStringLiteral("Plik o podanej nazwie już istnieje. Czy nadpisać go")};
}

Komunikaty EksportujDoPliku(const QString& sciezka, const Ustawienia& ustawienia) {
  TMConfig config;
  ZapiszUstawienia(ustawienia, config);
  const plik_konfiguracji::WynikZapisu wynik = plik_konfiguracji::Zapisz(sciezka, config);
  if (wynik.blad) return {Uwaga(QStringLiteral("Nie można zapisać pliku %1\n%2").arg(sciezka, *wynik.blad))};
  if (wynik.znakowZastapionych > 0)
    return {Uwaga(QStringLiteral("Znaki spoza strony kodowej Windows-1250 zapisano w pliku %1 jako \"?\"")
                      .arg(sciezka))};
  return {};
}

WynikWczytania WczytajUstawienia(const Zrodla& zrodla, Ustawienia& ustawienia) {
  WynikWczytania wynik;
  WypelnijDomyslne(ustawienia, zrodla.katalogStartowy);
  Dopisz(wynik.komunikaty, WczytajDomyslnyPlik(zrodla.katalogStartowy, ustawienia));
  if (zrodla.baza) Dopisz(wynik.komunikaty, WczytajZBazy(*zrodla.baza, ustawienia));
  if (zrodla.plikKonfiguracji) {
    WynikImportu zPliku = ImportujPozaBaza(*zrodla.plikKonfiguracji, zrodla.baza, ustawienia);
    wynik.brakPliku = !zPliku.wczytano;
    Dopisz(wynik.komunikaty, std::move(zPliku.komunikaty));
  }
  // The length of a list makes its entries known, so it may be given behind them.
  auto pojedyncze = zrodla.pojedyncze;
  std::stable_partition(pojedyncze.begin(), pojedyncze.end(),
                        [](const auto& para) { return JestDlugosciaListy(para.first); });
  for (const auto& [klucz, wartosc] : pojedyncze) {
    switch (UstawKlucz(ustawienia, klucz, wartosc)) {
      case WynikUstawienia::Ustawiono:
        break;
      case WynikUstawienia::NieznanyKlucz:
        wynik.bledneKlucze.push_back(klucz);
        break;
      case WynikUstawienia::ZlaWartosc:
        wynik.bledneWartosci.push_back(klucz);
        break;
    }
  }
  wspolzaleznosci::ZastosujWspolzaleznosci(ustawienia);
  return wynik;
}

}  // namespace magazyn_ustawien
