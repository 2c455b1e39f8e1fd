// Input: a configuration file as it is. Whatever it holds, the settings stay within their bounds, and what is
// written from them reads back as itself.

#include <cstdint>

#include "platform/config.h"
#include "platform/windows1250.h"
#include "tests/fuzz/plik_w_pamieci.h"
#include "ustawienia/kontrola_struktury.h"
#include "ustawienia/tabela_ustawien.h"
#include "ustawienia/ustawienia.h"
#include "ustawienia/wspolzaleznosci.h"

namespace {

void Wczytaj(std::string_view bajty, Ustawienia& ustawienia) {
  TMConfig config;
  plik_konfiguracji::Czytaj(bajty, config);
  // An unreadable value keeps the old one, so the refused keys are all known ones.
  for (const QString& klucz : ZastosujUstawienia(config, ustawienia))
    Wymagaj(UstawKlucz(ustawienia, klucz, config.Tekst(klucz)) == WynikUstawienia::ZlaWartosc);
  // Single settings meet the keys of the lists in every spelling.
  for (const TMCfgParam& parametr : config.Params())
    UstawKlucz(ustawienia, parametr.Nazwa(), parametr.Wartosc());
  wspolzaleznosci::ZastosujWspolzaleznosci(ustawienia);
}

void SprawdzGranice(const Ustawienia& ustawienia) {
  const OpcjeImportuTowarow& opcje = ustawienia.importTow;
  Wymagaj(opcje.UpDownMinDlugoscKodu >= 1 && opcje.UpDownMinDlugoscKodu <= opcje.UpDownMaxDlugoscKodu &&
          opcje.UpDownMaxDlugoscKodu <= 20);
  for (const StrukturaPliku* struktura : {&ustawienia.strukturaTow, &ustawienia.strukturaKontr}) {
    Wymagaj(struktura->pola.size() <= kNajdluzszaLista && struktura->opisyVat.size() <= kNajdluzszaLista);
    Wymagaj(struktura->CBTypPliku != TypPliku::Zorvik || !SprawdzStrukture(*struktura));
    SprawdzStrukture(*struktura);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bajty, size_t ile) {
  static const Ustawienia domyslne = [] {
    Ustawienia ustawienia;
    WypelnijDomyslne(ustawienia, QStringLiteral("/start"));
    return ustawienia;
  }();
  Ustawienia ustawienia = domyslne;
  Wczytaj(std::string_view(reinterpret_cast<const char*>(bajty), ile), ustawienia);
  SprawdzGranice(ustawienia);

  // The first writing may cut a value; from then on nothing changes any more.
  Wczytaj(windows1250::ZUnicode(WydrukUstawien(ustawienia)), ustawienia);
  const QString zapisane = WydrukUstawien(ustawienia);
  Wczytaj(windows1250::ZUnicode(zapisane), ustawienia);
  Wymagaj(WydrukUstawien(ustawienia) == zapisane);
  return 0;
}
