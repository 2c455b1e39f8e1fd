#pragma once

#include <functional>

#include <QFile>
#include <QStringList>

#include "run/operator.h"
#include "run/postep.h"

// What a run showed: one text per line, the last number behind it; message boxes as "TYTUŁ: tekst".
class PostepTestowy final : public IPostep {
 public:
  QStringList linie;
  bool koniec = false;

  void Faza(const QString& tekst, long long /*maksimum*/) override {
    m_tekst = tekst;
    m_faza = linie.size();
    linie << tekst;
  }
  void Pozycja(long long /*pozycja*/) override {}
  void DopiszLiczbe(long long liczba) override { linie[m_faza] = m_tekst + QString::number(liczba); }
  void Gotowe() override {}
  void Pokaz(const QString& tytul, const QString& tekst) override {
    linie << tytul + QStringLiteral(": ") + tekst;
  }
  void PokazUwage(const QString& linia) override { linie << QStringLiteral("Uwaga: ") + linia; }
  void Koniec() override { koniec = true; }

 private:
  QString m_tekst;
  qsizetype m_faza = 0;
};

// Answers every question with what the test says; `przyPytaniu` is called first.
class OperatorTestowy final : public IOperator {
 public:
  OdpowiedzLiczbaPol liczbaPol = OdpowiedzLiczbaPol::Przerwij;
  Poprawka poprawka = Poprawka::Zrezygnowano;
  // What the person does with the record; without it the answer above.
  std::function<Poprawka(TDmVLTElement&, const OdmowaZapisu&)> popraw;
  std::optional<QString> tekst;
  std::function<void()> przyPytaniu = [] {};
  QStringList pytania;

  bool JestOsoba() const override { return true; }
  OdpowiedzLiczbaPol LiczbaPol(const Komunikat& pytanie) override { return Zapisz(pytanie.tekst), liczbaPol; }
  Poprawka Popraw(TDmVLTElement& rekord, const OdmowaZapisu& odmowa) override {
    Zapisz(odmowa.tekst);
    return popraw ? popraw(rekord, odmowa) : poprawka;
  }
  bool CzyTak(const Komunikat& pytanie, bool bezpieczna) override {
    return Zapisz(pytanie.tekst), bezpieczna;
  }
  std::optional<QString> PodajTekst(const Komunikat& pytanie) override {
    return Zapisz(pytanie.tekst), tekst;
  }

 private:
  void Zapisz(const QString& pytanie) {
    pytania << pytanie;
    przyPytaniu();
  }
};

inline QByteArray Zawartosc(const QString& sciezka) {
  QFile plik(sciezka);
  return plik.open(QIODevice::ReadOnly) ? plik.readAll() : QByteArray("?");
}
