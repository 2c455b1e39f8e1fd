#pragma once

#include <gtest/gtest.h>

#include "database/schemat.h"
#include "model/bledy.h"
#include "model/kontekst.h"
#include "model/nazwy_skrocone.h"
#include "model/parametry_systemu.h"
#include "model/reguly_kodow.h"
#include "model/towar.h"
#include "tests/wspolne/baza_testowa.h"
#include "tests/wspolne/zrzut_bazy.h"

using namespace Qt::Literals::StringLiterals;

// A database with one entry in each dictionary, two warehouses and three contractors (the third without a tax
// number).
class TowaryProbne : public testing::Test {
 protected:
  void SetUp() override {
    UtworzBaze(b.baza, {});
    for (const char* sql :
         {"insert into Asort (Nazwa) values ('Napoje')", "insert into JM (Nazwa) values ('szt.')",
          "insert into Kategoria (Nazwa) values ('Wody')", "insert into Magazyn (Nazwa) values ('B')",
          "insert into Magazyn (Nazwa) values ('A')", "insert into Parametr (Nazwa) values ('Gaz')",
          "insert into Parametr (Nazwa, Typ) values ('Litry', 1)",
          "insert into Kontrahent (Nazwa, NIP) values ('K1', '111-11')",
          "insert into Kontrahent (Nazwa, NIP) values ('K2', '222')",
          "insert into Kontrahent (Nazwa, NIP) values ('K3', 'brak')"})
      b.baza.ExecSQL(sql);
    skroty.emplace(b.baza, &bufor);
    reguly.formaty.Dodaj({27, 5});
  }

  OtoczenieTowarow Otoczenie() {
    return {.reguly = reguly, .skroty = *skroty, .bufor = &bufor, .unikalneCKU = unikalneCKU};
  }

  // A good that can be saved as it stands.
  std::unique_ptr<TDmVLTTowar> Nowy(const QString& kod, const QString& nazwa) {
    auto towar = std::make_unique<TDmVLTTowar>(kontekst, Otoczenie());
    towar->Nowy();
    towar->UstawNazwa(nazwa);
    towar->UstawKod(kod);
    towar->UstawAsId(1);
    towar->UstawJMId(1);
    towar->UstawStawka(2300);
    return towar;
  }
  int Zapisany(const QString& kod, const QString& nazwa) { return Nowy(kod, nazwa)->Zapisz(); }
  std::unique_ptr<TDmVLTTowar> Wczytany(int id) {
    auto towar = std::make_unique<TDmVLTTowar>(kontekst, Otoczenie());
    towar->Wczytaj(id);
    return towar;
  }
  // All rows of a table as one text.
  QString Wiersze(const std::string& tabela) {
    return WierszeTabeli(b.baza, tabela,
                         [](const std::string& kolumna) { return kolumna != "Zmiana" && kolumna != "Czas"; })
        .join(u' ');
  }

  BazaTestowa b;
  ParametrySystemu parametry;
  KontekstSesji kontekst{b.baza, parametry};
  TVLTBuforTowarow bufor;
  RegulyKodow reguly;
  std::optional<TDmVLTNazwySkrocone> skroty;
  bool unikalneCKU = false;
};

inline KodDodatkowy Dodatkowy(const QString& kod, const QString& skrot) {
  return {0, kod, skrot};
}

template <typename Praca>
int KodBledu(Praca praca) {
  try {
    praca();
  } catch (const EVLTWDError& blad) {
    return blad.MacCode();
  }
  return 0;
}
