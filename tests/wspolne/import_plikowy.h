#pragma once

#include <initializer_list>

#include <gtest/gtest.h>

#include "database/schemat.h"
#include "exchange/struktura_pliku.h"
#include "model/kontekst.h"
#include "model/parametry_systemu.h"
#include "platform/windows1250.h"
#include "run/przebieg.h"
#include "tests/wspolne/baza_testowa.h"
#include "tests/wspolne/przebieg_testowy.h"

// A shop's database and what every import is started with. Files are delimited by ";" and hold the fields
// named by UstawPola, one record a line, in UTF-8 here and in Windows-1250 in the file.
struct ImportPlikowy {
  explicit ImportPlikowy(RodzajRekordu rodzaj) : struktura(rodzaj) {
    UtworzBaze(b.baza, {});
    parametry.Wczytaj(b.baza);
    struktura.CBTypPliku = TypPliku::Rozdzielany;
    struktura.separator = QStringLiteral(";");
    struktura.CBKwalifikatorTekstu = KwalifikatorTekstu::Brak;
    struktura.CBNieAnalizujPierwszejLinii = false;
    UstawPola({0, 1});
  }

  void UstawPola(std::initializer_list<int> pola) {
    struktura.pola.clear();
    for (const int pole : pola) struktura.pola.emplace_back(pole, QString());
  }

  // Writes the file and clears what the run before has shown.
  ParametryPrzebiegu Parametry(const QString& rekordy) {
    QFile plik(folder.filePath(QStringLiteral("plik.txt")));
    EXPECT_TRUE(plik.open(QIODevice::WriteOnly));
    plik.write(QByteArray::fromStdString(windows1250::ZUnicode(rekordy)));
    plik.close();
    postep = {};
    return {sesja, struktura, plik.fileName(), postep, *oper, stop, separator, folder.path()};
  }

  // Lines of the skipped-records file.
  QStringList Pominiete(std::u16string_view plik) const {
    const QByteArray bajty = Zawartosc(folder.filePath(QStringView(plik).toString()));
    return windows1250::NaUnicode(std::string_view(bajty.data(), static_cast<std::size_t>(bajty.size())))
        .split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
  }

  BazaTestowa b;
  QTemporaryDir folder;
  ParametrySystemu parametry;
  KontekstSesji sesja{b.baza, parametry};
  StrukturaPliku struktura;
  PostepTestowy postep;
  OperatorTestowy osoba;
  OperatorNieobecny nikt{postep};
  IOperator* oper = &nikt;
  std::atomic<bool> stop{false};
  char separator = '.';
};
