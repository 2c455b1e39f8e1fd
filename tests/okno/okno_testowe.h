#pragma once

#include <QAbstractButton>
#include <QDir>
#include <QFile>

#include "database/schemat.h"
#include "platform/config.h"
#include "shell/okno/okno_glowne.h"
#include "tests/okno/rozmowa_testowa.h"
#include "tests/wspolne/baza_testowa.h"
#include "ustawienia/magazyn_ustawien.h"

using namespace Qt::Literals::StringLiterals;

// The main window with a person who answers by the book, on a database of its own and in a folder of its own.
struct OknoTestowe : testing::Test {
  OknoTestowe() {
    UtworzBaze(b.baza, {});
    QFile::remove(ParametryPolaczenia::PlikDomyslnych());
    QFile::remove(QFileInfo(ParametryPolaczenia::PlikDomyslnych()).dir().filePath(u"okno.ini"_s));
  }

  StartOkna Start() const {
    StartOkna start{.katalogStartowy = folder.path(), .utworzBaze = {}};
    start.baza = ParametryPolaczenia::ZTekstu(b.Sciezka());
    start.katalogPominietych = folder.path();
    return start;
  }
  bool Otworz(const StartOkna& start) {
    okno = std::make_unique<Tfrm_main>(rozmowa, start);
    return okno->FormShow();
  }
  bool Otworz() { return Otworz(Start()); }

  template <typename Kontrolka = QAbstractButton>
  Kontrolka& Znajdz(const QString& nazwa) const {
    auto* const kontrolka = okno->findChild<Kontrolka*>(nazwa);
    if (!kontrolka) throw std::runtime_error("no control " + nazwa.toStdString());
    return *kontrolka;
  }
  void Kliknij(const QString& nazwa) const { Znajdz(nazwa).click(); }
  bool Zaznaczony(const QString& nazwa) const { return Znajdz(nazwa).isChecked(); }
  void Polecenie(const QString& pozycjaMenu) const { Znajdz<QAction>(pozycjaMenu).trigger(); }
  Ustawienia& U() const { return okno->Kontekst().ustawienia; }

  QString Sciezka(const QString& nazwa) const { return folder.filePath(nazwa); }
  QString Zapisz(const QString& nazwa, const QByteArray& tresc) const {
    QFile plik(Sciezka(nazwa));
    EXPECT_TRUE(plik.open(QIODevice::WriteOnly) && plik.write(tresc) == tresc.size());
    return plik.fileName();
  }
  using Wpisy = std::initializer_list<std::pair<const char*, const char*>>;
  static TMConfig Config(Wpisy wpisy) {
    TMConfig config;
    for (const auto& [klucz, wartosc] : wpisy) config.Ustaw(klucz, wartosc);
    return config;
  }
  // The texts of the message boxes since the last call.
  QStringList Komunikaty() {
    QStringList teksty;
    for (const auto& pytanie : rozmowa.pytania)
      teksty << pytanie.komunikat.naglowek + u": "_s + pytanie.komunikat.tekst;
    rozmowa.pytania.clear();
    return teksty;
  }

  QTemporaryDir folder;
  BazaTestowa b;
  RozmowaTestowa rozmowa;
  std::unique_ptr<Tfrm_main> okno;
};
