#pragma once

#include <QTemporaryDir>

#include "database/schemat.h"
#include "goods/opcje_towarow.h"
#include "model/kontekst.h"
#include "model/parametry_systemu.h"
#include "platform/windows1250.h"
#include "run/liczniki.h"
#include "run/raport_problemow.h"
#include "tests/wspolne/baza_testowa.h"
#include "tests/wspolne/przebieg_testowy.h"

// A new database with the base data, and what resolvers need of a run. Every call of Zatwierdz is a commit of
// the run.
struct SrodowiskoTowarow {
  SrodowiskoTowarow() {
    UtworzBaze(baza.baza, {});
    raport.Otworz(folder.path(), QStringLiteral("POMINIETE.TXT"), {});
    raport.NowyRekord(QStringLiteral("1"), QStringLiteral("A"));
  }
  // The messages reported since the last call.
  QStringList Problemy() {
    liczniki.Zatwierdz();
    raport.Zatwierdz();
    const QString calosc = windows1250::NaUnicode(Zawartosc(raport.Sciezka()).toStdString());
    const QString nowe = calosc.mid(m_przeczytane);
    m_przeczytane = calosc.size();
    raport.NowyRekord(QStringLiteral("1"), QStringLiteral("A"));
    QStringList wynik;
    for (const QString& linia : nowe.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts))
      wynik << linia.section(QStringLiteral(" | "), 2);
    return wynik;
  }

  QTemporaryDir folder;
  BazaTestowa baza;
  ParametrySystemu parametry;
  KontekstSesji sesja{baza.baza, parametry};
  OpcjeImportuTowarow opcje;
  PostepTestowy postep;
  Liczniki liczniki;
  RaportProblemow raport{postep, liczniki};

 private:
  qsizetype m_przeczytane = 0;
};
