#pragma once

#include <initializer_list>

#include <gtest/gtest.h>

#include "database/schemat.h"
#include "exchange/struktura_pliku.h"
#include "goods/import_towarow.h"
#include "goods/opcje_towarow.h"
#include "model/bufor_towarow.h"
#include "model/kontekst.h"
#include "model/parametry_systemu.h"
#include "platform/windows1250.h"
#include "tests/wspolne/baza_testowa.h"
#include "tests/wspolne/przebieg_testowy.h"

// A shop's database and everything a goods import is started with. Files are delimited by ";" and hold the
// fields named by UstawPola.
struct ImportTestowy {
  ImportTestowy() {
    UtworzBaze(b.baza, {});
    parametry.Wczytaj(b.baza);
    struktura.CBTypPliku = TypPliku::Rozdzielany;
    struktura.separator = QStringLiteral(";");
    struktura.CBKwalifikatorTekstu = KwalifikatorTekstu::Brak;
    struktura.CBNieAnalizujPierwszejLinii = false;
    struktura.opisyVat = {OpisVat(QStringLiteral("23"), QStringLiteral("A")),
                          OpisVat(QStringLiteral("8"), QStringLiteral("B")),
                          OpisVat(QStringLiteral("-1"), QStringLiteral("ZW")),
                          OpisVat(QStringLiteral("7"), QStringLiteral("S"))};
    UstawPola({0, 1});
  }

  void UstawPola(std::initializer_list<int> pola) {
    struktura.pola.clear();
    for (const int pole : pola) struktura.pola.emplace_back(pole, QString());
  }

  // One record a line, in UTF-8 here and in Windows-1250 in the file.
  WynikPrzebiegu Importuj(const char* rekordy) { return Importuj(QString::fromUtf8(rekordy)); }
  WynikPrzebiegu Importuj(const QString& rekordy) {
    QFile plik(folder.filePath(QStringLiteral("towary.txt")));
    EXPECT_TRUE(plik.open(QIODevice::WriteOnly));
    plik.write(QByteArray::fromStdString(windows1250::ZUnicode(rekordy)));
    plik.close();
    postep = {};
    return ImportujTowary({sesja, struktura, plik.fileName(), postep, *oper, stop, separator, folder.path()},
                          opcje, bufor);
  }

  // Lines of the skipped-records file.
  QStringList Pominiete() const {
    const QByteArray bajty = Zawartosc(folder.filePath(QStringLiteral("POMINIETE.TXT")));
    return windows1250::NaUnicode(std::string_view(bajty.data(), static_cast<std::size_t>(bajty.size())))
        .split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
  }

  BazaTestowa b;
  QTemporaryDir folder;
  ParametrySystemu parametry;
  KontekstSesji sesja{b.baza, parametry};
  StrukturaPliku struktura{RodzajRekordu::Towary};
  OpcjeImportuTowarow opcje;
  TVLTBuforTowarow bufor;
  PostepTestowy postep;
  OperatorTestowy osoba;
  OperatorNieobecny nikt{postep};
  IOperator* oper = &nikt;
  std::atomic<bool> stop{false};
  char separator = '.';
};
